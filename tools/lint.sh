#!/usr/bin/env bash
# Fails if a source file is not formatted or clang-tidy finds something. Both are pinned to version
# 14, since other versions format differently.
#   tools/lint.sh          everything
# tools/lint.sh FILE... clang-tidy over these files only
set -euo pipefail
cd "$(dirname "$0")/.."

mapfile -d '' sources < <(find src tests tools bench fuzz \( -name '*.cpp' -o -name '*.h' \) -print0)
clang-format-14 --dry-run --Werror "${sources[@]}"

# A separate compile database: clang cannot read headers that another compiler has precompiled.
cmake --preset dev -B build/lint -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON >/dev/null
if [ $# -eq 0 ]; then
    mapfile -d '' files < <(find src tools -name '*.cpp' -print0)
else
    files=("$@")
fi
printf '%s\0' "${files[@]}" | xargs -0 -n 1 -P "$(nproc)" sh -c '
    out=$(clang-tidy-14 -p build/lint --quiet --extra-arg=-Wno-unknown-warning-option "$1" 2>/dev/null) ||
        { printf "%s\n" "$out"; exit 1; }' tidy
