#!/usr/bin/env bash
# Runs every fuzz target for a while, seeded with the sample transcripts and
# databases. The core is instrumented too (coverage feedback, address and
# undefined-behaviour sanitizers). Needs clang (Debian: clang, libclang-rt-14-dev).
#   tools/fuzz.sh [SECONDS_PER_TARGET]     default 600
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-600}

cmake --preset fuzz >/dev/null
cmake --build build-fuzz -j"$(nproc)"

corpus=build-fuzz/corpus
for target in build-fuzz/bin/fuzz_*; do
    name=$(basename "$target")
    mkdir -p "$corpus/$name"
    case $name in
    fuzz_database) cp -n data/samples/*.tvidb "$corpus/$name/" 2>/dev/null || true ;;
    fuzz_settings_reader) cp -n data/*.ini "$corpus/$name/" 2>/dev/null || true ;;
    *) cp -n data/samples/*.tvi "$corpus/$name/" 2>/dev/null || true ;;
    esac
    echo "== $name for $seconds s"
    "$target" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=4096 \
        -artifact_prefix="build-fuzz/$name-" "$corpus/$name"
done
