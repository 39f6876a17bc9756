#!/usr/bin/env bash
# Builds everything with sanitizers and runs every test; then the benchmarks, small, against the release build.
set -euo pipefail
cd "$(dirname "$0")"
. tools/einrichten.sh
cmake --preset sanitize >/dev/null
cmake --build build/sanitize
ctest --test-dir build/sanitize --output-on-failure -j2
if [ -x tests/bench/bench.sh ]; then
    tests/bench/bench.sh 3000
fi
