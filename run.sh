#!/usr/bin/env bash
# Builds the desk, lays out station/ and starts it beside a simulated site.
#   --no-simulators  for real devices      --build-only  stops once station/ is laid out
# Without a display the walkthrough runs under a virtual one and prints the rows it made.
set -euo pipefail
cd "$(dirname "$0")"
simulators=yes
build_only=no
for argument in "$@"; do
    case "$argument" in
    --no-simulators) simulators=no ;;
    --build-only) build_only=yes ;;
    *) echo "usage: ./run.sh [--no-simulators] [--build-only]" >&2; exit 2 ;;
    esac
done
. scripts/setup.sh

cmake --preset run >/dev/null
cmake --build build-run

bin=build-run/bin
mkdir -p station/Database station/log
cp -u "$bin/RiggingDesk" station/
cp "$bin/Database/Database.mdb.tmp" station/Database/
cp -rn resources/station/. station/
chmod 700 station/Database
[ "$build_only" = no ] || exit 0

if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    # A station of its own each time: the walkthrough begins with an empty one.
    walk=$(mktemp -d)
    trap 'rm -rf "$walk"' EXIT
    cp -r station/MAP station/Images station/wav "$walk/"
    mkdir -p "$walk/Database"
    cp station/Database/Database.mdb.tmp "$walk/Database/"
    RIGGING_DESK_FINDER=lo xvfb-run -a -s "-screen 0 1280x800x24" "$bin/walkthrough" "$walk" station/screenshots
    echo "Screenshots: station/screenshots/"
    exit 0
fi
if [ "$simulators" = yes ]; then
    "$bin/site_simulator" &
    site=$!
    trap 'kill "$site" 2>/dev/null || true' EXIT
    export RIGGING_DESK_FINDER=lo
fi
station/RiggingDesk
