#!/usr/bin/env bash
# From a bare Debian 12 to the packages for Windows: an installer, and a ZIP to unpack anywhere. Both
# lie in build/windows afterwards. The first run takes its time for Qt; what it makes is kept in
# ~/.cache/altardienst-windows, or in $ALTARDIENST_WINDOWS_CACHE.
set -euo pipefail
WURZEL=$(cd "$(dirname "$0")/../.." && pwd)
. "$WURZEL/packaging/windows/werkzeug.sh"
. "$WURZEL/packaging/windows/lizenzen.sh"

pakete_installieren "${WINDOWS_PAKETE[@]}"
bibliotheken

bau=$WURZEL/build/windows
programm_bauen "$bau" -DALTARDIENST_TESTS=OFF # those of pruefen.sh stay where they are

version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$bau/CMakeCache.txt")
name=Altardienst-$version
rm -rf "${bau:?}/$name" "$bau/$name.zip" "$bau/$name-setup.exe"
cmake --install "$bau" --prefix "$bau/$name" --strip >/dev/null
lizenzen "$bau" "$bau/$name/Lizenzen"
(cd "$bau" && zip -qr "$name.zip" "$name")
LC_ALL=C.UTF-8 makensis -V2 -INPUTCHARSET UTF8 -DVERSION="$version" -DQUELLE="$bau/$name" \
    -DSYMBOL="$bau/bau/altardienst.ico" -DZIEL="$bau/$name-setup.exe" \
    "$WURZEL/packaging/windows/altardienst.nsi"
ls -l "$bau/$name-setup.exe" "$bau/$name.zip"
