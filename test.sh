#!/usr/bin/env bash
# Installs what is missing, builds everything and runs all tests without a display.
set -euo pipefail
cd "$(dirname "$0")"
. packaging/pakete.sh

pakete_installieren "${PROGRAMM_PAKETE[@]}" libgtest-dev libbenchmark-dev poppler-utils clang-format-14

# The part without Qt, built without Qt, under the sanitizers.
cmake --preset asan >/dev/null
cmake --build --preset asan
ctest --preset asan

cmake --preset dev >/dev/null
cmake --build --preset dev
ctest --preset dev
