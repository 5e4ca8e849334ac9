# The licences of what is linked into the program for Windows; for bauen.sh, which sources it after
# werkzeug.sh. Which libraries there are stands in packaging/Bibliotheken.txt.

scheitern() {
    echo "lizenzen: $1" >&2
    exit 1
}

# What Debian says about a source package: in its sources, or where one of its packages is installed.
lizenztext() {
    local datei installiert=$1
    case $1 in
    gcc-mingw-w64) installiert=gcc-mingw-w64-base ;;
    mingw-w64) installiert=mingw-w64-x86-64-dev ;;
    esac
    for datei in /usr/share/doc/"$installiert"/copyright "$WERKZEUG/quellen/$1/debian/copyright"; do
        [ ! -s "$datei" ] || { echo "$datei" && return; }
    done
    scheitern "no licence of $1"
}

# The source package of a library that stands in the command of the linker.
quellpaket() {
    case $1 in
    libQCustomPlotQt6.a) echo qcustomplot ;;
    libical.a) echo libical3 ;;
    libQt6Bundled*.a | libQt6*.a | libq*.a) echo qt6-base ;;
    *) scheitern "nobody knows the licence of $1" ;;
    esac
}

# lizenzen BAUVERZEICHNIS ZIEL: all texts of the table, and that nothing is linked that is missing in it.
lizenzen() {
    local bau=$1 ziel=$2 zeile paket datei bibliothek name
    local tabelle=$WURZEL/packaging/Bibliotheken.txt
    mkdir -p "$ziel/Allgemein"
    while read -r paket datei; do
        cp "$(lizenztext "$paket")" "$ziel/$datei"
    done < <(awk '/^Bibliothek /, /^$/ { if ($NF ~ /\.txt$/) print $2, $NF }' "$tabelle")
    for name in $(grep -oh 'common-licenses/[A-Z][A-Za-z0-9.-]*[0-9A-Za-z]' "$ziel"/*.txt | sort -u); do
        [ ! -f "/usr/share/$name" ] || cp "/usr/share/$name" "$ziel/Allgemein/${name#*/}.txt"
    done

    zeile=$(ninja -C "$bau" -t commands altardienst.exe | tail -n 1)
    for bibliothek in $(grep -oE '[^ ]+\.a' <<<"$zeile" | grep -vE 'libaltardienst(_[a-z]+|\.dll)?\.a$'); do
        name=${bibliothek##*/}
        paket=$(quellpaket "$name")
        grep -q " $paket " "$tabelle" || scheitern "$paket is missing in Bibliotheken.txt"
        if [[ $name == libQt6Bundled* ]]; then # it stands in Qt's own text
            name=${name#libQt6Bundled}
            grep -qi "3rdparty/${name%.a}" "$ziel/Qt.txt" || scheitern "Qt.txt lacks ${name%.a}"
        fi
    done
}
