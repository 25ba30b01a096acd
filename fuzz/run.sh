#!/bin/sh
# Builds the appcast fuzzer with the fuzz preset and runs it.
# Usage: fuzz/run.sh [build-dir] [seconds]   (defaults: build/fuzz, 30)
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
build=${1:-$root/build/fuzz}
seconds=${2:-30}

cd "$root"
cmake --preset fuzz -B "$build" >/dev/null
cmake --build "$build" --target fuzz_appcast -j2

# New inputs go to a scratch corpus; the committed seeds stay as they are.
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
"$build/fuzz/fuzz_appcast" -max_total_time="$seconds" -max_len=16384 -timeout=10 \
    -rss_limit_mb=2048 -dict="$root/fuzz/appcast.dict" -artifact_prefix="$build/" \
    "$work" "$root/fuzz/corpus/appcast"
