#!/usr/bin/env bash
# clang-tidy over src/ and simulators/ with the checks of .clang-tidy (apt install clang-tidy). It takes minutes, so
# test.sh leaves it out. With files as arguments only those are looked at. Needs the dev build: its headers are made there.
set -euo pipefail
cd "$(dirname "$0")/.."
commands=$(mktemp -d)
trap 'rm -rf "$commands"' EXIT
# The precompiled headers are the other compiler's: they are read as plain ones, from a place without those.
sed -E "s/ -Winvalid-pch//g; s/ccache //; s| -include [^ ]*/([a-z_]+)\.dir/cmake_pch\.hxx| -include $commands/\1.h|" \
    build-dev/compile_commands.json >"$commands/compile_commands.json"
for header in build-dev/CMakeFiles/precompiled_*.dir/cmake_pch.hxx; do
    name=${header#build-dev/CMakeFiles/}
    cp "$header" "$commands/${name%.dir/*}.h"
done
[ $# -gt 0 ] || mapfile -t files < <(git ls-files -- 'src/*.cpp' 'simulators/*.cpp')
[ $# -eq 0 ] || files=("$@")
# What the toolkit's headers hold is counted on the error stream, and nobody's affair.
printf '%s\n' "${files[@]}" | xargs -P "$(nproc)" -n 4 clang-tidy --quiet -p "$commands" \
    --header-filter="^$PWD/(src|simulators)/" --extra-arg=-Wno-unknown-warning-option --extra-arg=-Wno-everything \
    2> >(grep -vE '^[0-9]+ warnings? generated' >&2)
echo "${#files[@]} files, nothing found"
