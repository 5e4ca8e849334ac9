#!/usr/bin/env bash
# Installs what is missing, builds the program and starts it. Where there is no display, makes a
# plan of the sample parish instead.
set -euo pipefail
cd "$(dirname "$0")"
. packaging/pakete.sh

pakete_installieren "${PROGRAMM_PAKETE[@]}"
cmake --preset release >/dev/null
cmake --build --preset release

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    daten=${ALTARDIENST_DATEN:-$HOME/.local/share/Altardienst}
    if [ ! -e "$daten" ]; then
        mkdir -p "$daten"
        cp data/beispiel/* "$daten"/
        echo "The sample parish was copied to $daten"
    fi
    exec build/release/altardienst
fi

ziel=$PWD/build/planlauf
rm -rf "$ziel"
mkdir -p "$ziel/bilder"
cp -r data/beispiel "$ziel/daten"
build/release/planlauf --daten "$ziel/daten" --schritte 1,4,5 \
    --text "$ziel/plan.txt" --bilder "$ziel/bilder"
cat <<EOF

There is no display, so a plan of the sample parish was made instead:
  plan      $ziel/plan.txt
  pictures  $ziel/bilder
  files     $ziel/daten
EOF
