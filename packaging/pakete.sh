# Installs Debian packages that are missing; for run.sh and test.sh. Asks no questions.

als_root() {
    if [ "$(id -u)" = 0 ]; then "$@"; else sudo "$@"; fi
}

pakete_installieren() {
    local fehlend=() paket
    for paket in "$@"; do
        dpkg-query -W -f='${db:Status-Status}' "$paket" 2>/dev/null | grep -qx installed ||
            fehlend+=("$paket")
    done
    [ ${#fehlend[@]} -eq 0 ] && return 0
    echo "Installing: ${fehlend[*]}"
    als_root apt-get update -qq
    als_root env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${fehlend[@]}" >/dev/null
}

# What the program needs to be built and to run: compiler, Qt, the
# charts, the calendars, and the fonts of screen and paper.
PROGRAMM_PAKETE=(g++ cmake ninja-build qt6-base-dev libqcustomplot-dev libical-dev
    fonts-dejavu-core fonts-liberation2)
