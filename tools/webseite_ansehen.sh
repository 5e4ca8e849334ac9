#!/bin/sh
# Pictures of the web page as a browser shows it, on a phone and on a screen, light and dark, and
# the sheets it prints, of plans small and large: webseite_ansehen.sh [DIRECTORY]
#
# Needs a build with tests (build/dev, or $BAU) and Chromium.
set -eu
wurzel=$(cd "$(dirname "$0")/.." && pwd)
ort=${1:-${TMPDIR:-/tmp}/webseiten}
/usr/bin/python3 "$wurzel/tests/exchange/webseite_pruefen.py" \
    "${BAU:-$wurzel/build/dev}/tests/webseitenproben" "$ort"
ls "$ort"/*.png "$ort"/*.pdf
