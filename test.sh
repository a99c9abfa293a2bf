#!/usr/bin/env bash
# Builds everything with warnings as errors and the address and undefined behaviour sanitizers, and runs every test.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/setup.sh

echo "== Formatting"
git ls-files -- '*.cpp' '*.h' | xargs -r clang-format --dry-run -Werror

echo "== Build"
cmake --preset sanitize >/dev/null
cmake --build build-sanitize

echo "== Tests"
ctest --test-dir build-sanitize --output-on-failure -j2
