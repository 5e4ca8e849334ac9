# The installer under Wine, from the first start on an empty machine to the day it is removed; for
# pruefen.sh, which sources it after wine.sh. paket_prüfen SETUP VERZEICHNIS, which is what was packed.

PAKET_REGISTER='HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Altardienst'

paket_scheitert() {
    echo "The package: $1"
    fehler=1
}

# Waits for at most 20 seconds.
bis() {
    local versuch
    for versuch in {1..100}; do
        ! "$@" || return 0
        sleep 0.2
    done
    echo "waited in vain ($versuch times): $*"
    return 1
}

fenster_offen() { DISPLAY=$WINE_BILDSCHIRM xdotool search --onlyvisible --name "$1" >/dev/null 2>&1; }
fenster_zu() { ! fenster_offen "$1"; }
taste() { DISPLAY=$WINE_BILDSCHIRM xdotool key "$1"; }
fort() { [ ! -e "$1" ]; }
eingetragen() { unter_wine reg query "$PAKET_REGISTER" /v DisplayVersion 2>/dev/null | grep -q "$1"; }
fensterzahl() { DISPLAY=$WINE_BILDSCHIRM xdotool search --onlyvisible --name "$1" | wc -l; }

# What lies on the drive, but for what Windows itself keeps there.
laufwerk() { (cd "$WINE_HEIM/wine/drive_c" && find . -path ./windows -prune -o -print | grep -v '/Temp/' | sort); }

paket_prüfen() {
    local setup=$1 inhalt=$2 c=$WINE_HEIM/wine/drive_c
    local benutzer ort programm entfernen daten=$c/programm/Altardienst
    benutzer=$(cd "$c/users" && find . -maxdepth 1 -type d ! -name . ! -name Public -printf '%f\n')
    ort=$c/users/$benutzer/AppData/Local/Programs/Altardienst
    programm="C:\\users\\$benutzer\\AppData\\Local\\Programs\\Altardienst\\altardienst.exe"
    entfernen="C:\\users\\$benutzer\\AppData\\Local\\Programs\\Altardienst\\Entfernen.exe"
    laufwerk >"$WINE_HEIM/vorher"
    cp "$setup" "$WINE_HEIM/setup.exe"

    unter_wine "Z:$WINE_HEIM/setup.exe" /S || paket_scheitert "the installer fails"
    diff -r "$inhalt" "$ort" | grep -v ': Entfernen.exe$' && paket_scheitert "not what was packed"
    eingetragen "$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "${inhalt%/*}/CMakeCache.txt")" ||
        paket_scheitert "Windows does not know of it"
    [ "$(find "$c/users/$benutzer/AppData/Roaming" -path '*Start Menu*Altardienst*.lnk' | wc -l)" = 2 ] ||
        paket_scheitert "it is not in the Start menu"

    echo "First start on an empty machine"
    unter_wine "$programm" &
    bis fenster_offen '^Datendateien kopieren$' || paket_scheitert "no copy dialog"
    unter_wine "$entfernen" /S || true
    sleep 2
    [ -x "$ort/altardienst.exe" ] && [ -e "$ort/Entfernen.exe" ] ||
        paket_scheitert "it is removed while it is open"
    taste Return # that there are no files yet
    sleep 1
    taste alt+F4
    bis fenster_zu '^Datendateien kopieren$' || paket_scheitert "it cannot be closed"

    echo "With files, twice at once"
    cp "$inhalt"/data/beispiel/* "$daten"/
    wine_gehört "$daten"
    unter_wine "$programm" &
    bis fenster_offen '^Altardienst$' || paket_scheitert "no start dialog"
    unter_wine "$programm" &
    sleep 3
    [ "$(fensterzahl '^Altardienst$')" = 1 ] || paket_scheitert "two programs run on the same files"
    taste alt+F4
    bis fenster_zu '^Altardienst$' || paket_scheitert "the start dialog cannot be closed"

    unter_wine "$entfernen" /S || paket_scheitert "it cannot be removed"
    bis fort "$ort" || paket_scheitert "it is still there"
    ! eingetragen . || paket_scheitert "Windows still knows of it"
    laufwerk | comm -13 "$WINE_HEIM/vorher" - |
        grep -vE '^\./programm(/Altardienst(/.*)?)?$|/Local/(Altardienst(/Fenster.ini)?|Programs)$' &&
        paket_scheitert "this was left behind"
    diff -rq "$inhalt/data/beispiel" "$daten" | grep -v '^Only in .*: \(Stände\|Archiv\)$' &&
        paket_scheitert "the data are not what they were"
    return 0
}
