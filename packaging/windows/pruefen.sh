#!/usr/bin/env bash
# Builds the tests for Windows and runs them under Wine; then lets planlauf for Windows and planlauf
# for Linux do the same on a hundred random parishes and compares what they have written, byte for
# byte. Needs what bauen.sh keeps in its cache, and makes it if it is missing.
# Before all that the installer is made, run, and its program removed again.
#   pruefen.sh [paket] [kern] [fenster] [planlauf]     (all of them if none is named)
set -euo pipefail
WURZEL=$(cd "$(dirname "$0")/../.." && pwd)
. "$WURZEL/packaging/windows/werkzeug.sh"
. "$WURZEL/packaging/windows/wine.sh"
. "$WURZEL/packaging/windows/paket.sh"
teile=("${@:-paket kern fenster planlauf}")
gewünscht() { [[ " ${teile[*]} " == *" $1 "* ]]; }

# What fails under Wine on both platforms and not on account of the program.
AUSGENOMMEN=(
    # Wine's list of printers and their settings are windows of its own.
    DeutschTest.DieEinstellungenDesDruckers
)
pakete_installieren "${WINDOWS_PAKETE[@]}" "${WINE_PAKETE[@]}" libgtest-dev poppler-utils
bibliotheken
bibliothek googletest -DCMAKE_TOOLCHAIN_FILE="$MINGW" -DBUILD_GMOCK=OFF
bau=$WURZEL/build/windows
! gewünscht paket || "$WURZEL/packaging/windows/bauen.sh"
! gewünscht kern && ! gewünscht fenster && ! gewünscht planlauf ||
    programm_bauen "$bau" -DALTARDIENST_TESTS=ON

wine_beginnen
fehler=0

! gewünscht paket || paket_prüfen "$bau"/Altardienst-*-setup.exe "$(echo "$bau"/Altardienst-*.*[0-9])"

gewünscht kern && { unter_wine "$bau/tests/kern_tests.exe" --gtest_brief=1 || fehler=1; }
# Without a screen every window has the keyboard at once, but no font of the system; on the screen it
# is the other way round. So what fails without is run again on it.
if gewünscht fenster; then
    gescheiterte() { tr -d '\r' <"$1" | sed -n 's/^\[  FAILED  \] \([^ ,]*\).* (.*ms)$/\1/p' | sort -u; }
    lauf() {
        unter_wine "$bau/tests/fenster_tests.exe" "${@:2}" >"$1" 2>&1 || true
        grep -qaE 'test suites? ran' "$1" || { echo "fenster_tests did not end"; tail -n 3 "$1"; fehler=1; }
    }
    ausgenommen=$(IFS=: && echo "${AUSGENOMMEN[*]}")
    lauf "$WINE_HEIM/ohne.log" -platform offscreen --gtest_filter="*-$ausgenommen"
    nochmal=$(gescheiterte "$WINE_HEIM/ohne.log")
    if [ -n "$nochmal" ]; then
        lauf "$WINE_HEIM/mit.log" --gtest_filter="${nochmal//$'\n'/:}"
        noch=$(gescheiterte "$WINE_HEIM/mit.log")
        [ -z "$noch" ] || { cat "$WINE_HEIM/mit.log" && fehler=1; }
    fi
    echo "$(grep -ac '       OK ' "$WINE_HEIM/ohne.log") window tests pass without a screen," \
        "$(wc -w <<<"$nochmal") run on it, $(wc -w <<<"${noch:-}") of them fail," \
        "${#AUSGENOMMEN[@]} are left out"
fi

# Steps 3 and 5 on one half of the parishes, 4 and 5 on the other.
if gewünscht planlauf; then
    cmake --preset release -S "$WURZEL" >/dev/null
    cmake --build "$WURZEL/build/release" --target planlauf
    mkdir "$WINE_HEIM/gemeinden"
    wine_gehört "$WINE_HEIM/gemeinden"
    ALTARDIENST_GEMEINDEN="Z:$WINE_HEIM/gemeinden" unter_wine "$bau/tests/kern_tests.exe" \
        --gtest_brief=1 --gtest_filter='GemeindenTest.*'
    gleich=0
    for nummer in {1..100}; do
        for wo in linux windows; do
            rm -rf "${WINE_HEIM:?}/$wo"
            cp -r "$WINE_HEIM/gemeinden/$nummer" "$WINE_HEIM/$wo"
        done
        auftrag=(--heute 21.11.2026 --uhr 5000 --saat "$nummer" --schritte $((3 + nummer % 2)),5)
        "$WURZEL/build/release/planlauf" --daten "$WINE_HEIM/linux" "${auftrag[@]}" \
            --text "$WINE_HEIM/linux/plan.txt" >"$WINE_HEIM/linux/meldungen" || fehler=1
        wine_gehört "$WINE_HEIM/windows"
        unter_wine "$bau/planlauf.exe" --daten "Z:$WINE_HEIM/windows" "${auftrag[@]}" \
            --text "Z:$WINE_HEIM/windows/plan.txt" |
            tr -d '\r' >"$WINE_HEIM/meldungen" || fehler=1
        mv "$WINE_HEIM/meldungen" "$WINE_HEIM/windows/"
        if diff -r "$WINE_HEIM/linux" "$WINE_HEIM/windows" >/dev/null; then
            gleich=$((gleich + 1))
        else
            echo "Differs: parish $nummer, ${auftrag[*]}"
            fehler=1
        fi
    done
    echo "$gleich of 100 parishes are the same on both systems"
    [ "$gleich" = 100 ] || fehler=1
fi
exit $fehler
