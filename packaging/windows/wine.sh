# A Wine of its own for pruefen.sh, which sources it after werkzeug.sh: wine_beginnen once, then
# unter_wine PROGRAMM ANGABEN... . Everything is gone when the script ends.

WINE_PAKETE=(wine wine64 fonts-wine xvfb openbox xdotool)

# Wine runs as an ordinary user in a home of his own: root may write what is read-only.
als_benutzer() {
    if [ "$(id -u)" = 0 ]; then
        setpriv --reuid=nobody --regid=nogroup --clear-groups "$@"
    else
        "$@"
    fi
}

# What Wine is to write must be its user's.
wine_gehört() {
    [ "$(id -u)" != 0 ] || chown -R nobody "$@"
}

unter_wine() {
    als_benutzer env HOME="$WINE_HEIM" WINEPREFIX="$WINE_HEIM/wine" WINEDEBUG=-all LC_ALL=C.UTF-8 \
        WINEDLLOVERRIDES="mscoree,mshtml=;winedbg.exe=" DISPLAY="$WINE_BILDSCHIRM" \
        timeout -k 5 "${WINE_FRIST:-3600}" wine "$@"
}

# A screen on which every window has room that a test makes, with a window manager, without which Wine
# waits two seconds for each; a prefix with the fonts of Wine and of the system.
wine_beginnen() {
    WINE_HEIM=$(mktemp -d)
    chmod 755 "$WINE_HEIM"
    WINE_PROZESSE=()
    trap wine_beenden EXIT
    Xvfb -displayfd 3 -screen 0 1600x1000x24 3>"$WINE_HEIM/bildschirm" 2>/dev/null &
    WINE_PROZESSE+=($!)
    until [ -s "$WINE_HEIM/bildschirm" ]; do sleep 0.1; done
    WINE_BILDSCHIRM=:$(cat "$WINE_HEIM/bildschirm")
    DISPLAY=$WINE_BILDSCHIRM openbox >/dev/null 2>&1 &
    WINE_PROZESSE+=($!)
    wine_gehört "$WINE_HEIM"
    unter_wine wineboot -i >/dev/null 2>&1
    cp /usr/share/wine/fonts/*.ttf /usr/share/fonts/truetype/{liberation2,dejavu}/*.ttf \
        "$WINE_HEIM/wine/drive_c/windows/Fonts/"
}

wine_beenden() {
    als_benutzer env WINEPREFIX="$WINE_HEIM/wine" wineserver -k >/dev/null 2>&1 || true
    kill "${WINE_PROZESSE[@]}" 2>/dev/null || true
    rm -rf "$WINE_HEIM"
}
