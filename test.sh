#!/usr/bin/env bash
# Checks the layout of the sources, builds everything with sanitizers and runs every test; then the benchmarks, small,
# against the release build. Tables between "clang-format off" and "on" are laid out by hand.
set -euo pipefail
cd "$(dirname "$0")"
weitere=(clang-16 libclang-rt-16-dev)
. tools/einrichten.sh
find controls data filters frame pictures plantwindows printing store tests tools -name '*.cpp' -o -name '*.h' |
    xargs clang-format --dry-run -Werror
cmake --preset sanitize >/dev/null
cmake --build build/sanitize
echo "--- built; $SECONDS s"
ctest --test-dir build/sanitize --output-on-failure -j3
echo "--- tested; $SECONDS s"
if [ -x tests/bench/bench.sh ]; then
    tests/bench/bench.sh 3000
fi
echo "--- measured; $SECONDS s"
