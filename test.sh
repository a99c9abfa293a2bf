#!/usr/bin/env bash
# Builds everything with warnings as errors and the address and undefined behaviour sanitizers, and runs every test.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/setup.sh

echo "== Sources"
git ls-files -- '*.cpp' '*.h' | xargs -r clang-format --dry-run -Werror
scripts/check_sources.sh

echo "== Build"
cmake --preset sanitize >/dev/null
cmake --build build-sanitize

echo "== Tests"
ctest --test-dir build-sanitize --output-on-failure -j2 | tee build-sanitize/ctest.log
summary=$(grep 'tests passed' build-sanitize/ctest.log)

# Coverage-guided fuzzing for a bounded time where clang with libFuzzer is at hand; the corpus is replayed above anyway.
if command -v clang++ >/dev/null && echo 'extern "C" int LLVMFuzzerTestOneInput(const unsigned char*, unsigned long) { return 0; }' |
    clang++ -fsanitize=fuzzer -x c++ - -o /dev/null 2>/dev/null; then
    echo "== Fuzzing"
    cmake --preset fuzz >/dev/null
    cmake --build build-fuzz --target xml_replies_fuzz parameter_text_fuzz discovery_fuzz
    for target in xml_replies parameter_text discovery; do
        scratch=$(mktemp -d)
        ASAN_OPTIONS=detect_leaks=0 "build-fuzz/bin/${target}_fuzz" -max_total_time=15 -verbosity=0 -print_final_stats=0 \
            -artifact_prefix="build-fuzz/" "$scratch" "tests/fuzz/corpus/$target"
        rm -rf "$scratch"
    done
fi
echo "$summary"
