#!/usr/bin/env bash
# Installs what is missing, checks the sources, builds everything and runs all tests without a
# display.
set -euo pipefail
cd "$(dirname "$0")"
. packaging/pakete.sh

pakete_installieren "${PROGRAMM_PAKETE[@]}" libgtest-dev libbenchmark-dev poppler-utils \
    python3-icalendar clang-format-14 clang-tidy-14

tools/lint.sh

# The part without Qt and its tests, built without Qt, under the sanitizers.
cmake --preset asan >/dev/null
cmake --build --preset asan
ctest --preset asan

# Everything else: the windows and their tests, and the benchmarks.
cmake --preset fenster >/dev/null
cmake --build --preset fenster
ctest --preset fenster
