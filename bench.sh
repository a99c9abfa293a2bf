#!/usr/bin/env bash
# Release benchmarks, each road beside the floor it is measured against. All of them run to their end, then one table
# comes and the limits that were missed are told. With names (`./bench.sh parse http`) only those run.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/setup.sh

cmake --preset release >/dev/null
cmake --build build-release

export QT_QPA_PLATFORM="${QT_QPA_PLATFORM:-offscreen}"
export QT_LOGGING_RULES="default.warning=false" # what the offscreen platform cannot do
export RIGGING_DESK_FINDER=lo
export XDG_RUNTIME_DIR="${XDG_RUNTIME_DIR:-$PWD/build-release}"
[ $# -gt 0 ] || set -- spine parse http log recorder
rows=build-release/bench.rows
: >"$rows"
failed=0
for name in "$@"; do
    echo "== $name"
    "build-release/bin/${name}_bench" >>"$rows" || { echo "$name: ended with code $?" >&2; failed=1; }
done

awk -F '\t' '
BEGIN { printf "\n%-44s %14s %14s %7s %7s\n", "road", "ours", "floor", "ratio", "limit" }
{
    missed = $4 + 0 > $5 + 0
    printf "%-44s %14s %14s %7s %7s%s\n", $1, $2, $3, $4, $5, missed ? "  missed" : ""
    bad += missed
}
END { if (bad) printf "%d of %d limits missed\n", bad, NR; exit bad > 0 }' "$rows" || failed=1
exit $failed
