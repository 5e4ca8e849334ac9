#!/usr/bin/env bash
# Builds the tests for Windows and runs them under Wine; then lets planlauf for Windows and planlauf
# for Linux do the same on a hundred random parishes and compares what they have written, byte for
# byte. Needs what bauen.sh keeps in its cache, and makes it if it is missing.
set -euo pipefail
WURZEL=$(cd "$(dirname "$0")/../.." && pwd)
. "$WURZEL/packaging/windows/werkzeug.sh"

pakete_installieren "${WINDOWS_PAKETE[@]}" wine wine64 fonts-wine xvfb libgtest-dev
bibliotheken
bibliothek googletest -DCMAKE_TOOLCHAIN_FILE="$MINGW" -DBUILD_GMOCK=OFF

bau=$WURZEL/build/windows-tests
programm_bauen "$bau" -DALTARDIENST_TESTS=ON
cmake --preset release -S "$WURZEL" >/dev/null
cmake --build "$WURZEL/build/release" --target planlauf

# Wine as an ordinary user in a home of his own: root may write what is read-only.
heim=$(mktemp -d)
trap 'rm -rf "$heim"' EXIT
als_benutzer() {
    if [ "$(id -u)" = 0 ]; then
        chown -R nobody "$heim"
        setpriv --reuid=nobody --regid=nogroup --clear-groups "$@"
    else
        "$@"
    fi
}
unter_wine() {
    als_benutzer env HOME="$heim" WINEPREFIX="$heim/wine" WINEDEBUG=-all \
        WINEDLLOVERRIDES="mscoree,mshtml=" xvfb-run -a wine "$@"
}
unter_wine wineboot -i >/dev/null 2>&1
cp /usr/share/fonts/truetype/liberation2/*.ttf /usr/share/fonts/truetype/dejavu/*.ttf \
    "$heim/wine/drive_c/windows/Fonts/"

fehler=0
unter_wine "$bau/tests/kern_tests.exe" --gtest_brief=1 || fehler=1
unter_wine explorer /desktop=tests,1280x1000 "$bau/tests/fenster_tests.exe" \
    --gtest_brief=1 || fehler=1

gemeinden=$heim/gemeinden
mkdir -p "$gemeinden"
ALTARDIENST_GEMEINDEN=$gemeinden unter_wine "$bau/tests/kern_tests.exe" \
    --gtest_brief=1 --gtest_filter='GemeindenTest.*'
gleich=0
for gemeinde in "$gemeinden"/*; do
    for schritte in 3,5 4,5; do
        for wo in linux windows; do
            rm -rf "${heim:?}/$wo"
            cp -r "$gemeinde" "$heim/$wo"
        done
        auftrag=(--heute 21.11.2026 --saat 7 --schritte "$schritte")
        "$WURZEL/build/release/planlauf" --daten "$heim/linux" "${auftrag[@]}" \
            --text "$heim/linux/plan.txt" >"$heim/linux/meldungen" 2>/dev/null
        unter_wine "$bau/planlauf.exe" --daten "Z:$heim/windows" "${auftrag[@]}" \
            --text "Z:$heim/windows/plan.txt" 2>/dev/null |
            tr -d '\r' >"$heim/windows/meldungen"
        if diff -rq "$heim/linux" "$heim/windows"; then
            gleich=$((gleich + 1))
        else
            echo "Differs: $gemeinde, steps $schritte"
            fehler=1
        fi
    done
done
echo "$gleich runs of planlauf are the same on both systems"
exit $fehler
