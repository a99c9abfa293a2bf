#!/usr/bin/env bash
# Release benchmarks, each beside the floor it is measured against, as ratios.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/setup.sh

cmake --preset release >/dev/null
cmake --build build-release

export QT_QPA_PLATFORM="${QT_QPA_PLATFORM:-offscreen}"
export RIGGING_DESK_FINDER=lo
for bench in build-release/bin/*_bench; do
    echo "== $(basename "$bench")"
    "$bench"
done
