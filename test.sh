#!/usr/bin/env bash
# Checks the layout of the sources, builds everything with sanitizers and runs every test; then the benchmarks, small and few rounds of each,
# against the release build. Tables between "clang-format off" and "on" are laid out by hand. FLOX_DANEBEN: a command that is run beside the
# tests, when everything is built.
set -euo pipefail
cd "$(dirname "$0")"
weitere=(clang-16 libclang-rt-16-dev)
. tools/einrichten.sh
find controls data filters frame pictures plantwindows printing store tests tools -name '*.cpp' -o -name '*.h' |
    xargs -P "$(nproc)" -n 50 clang-format --dry-run -Werror
cmake --preset sanitize >/dev/null
cmake --build build/sanitize
# The same sources, the same data: neither it nor what makes it is made twice.
cmake --preset bench -DFLOX_DATEN_VON="$PWD/build/sanitize" >/dev/null
cmake --build build/bench
echo "--- built; $SECONDS s"
if [ -n "${FLOX_DANEBEN:-}" ]; then
    $FLOX_DANEBEN >build/daneben.log 2>&1 &
    daneben=$!
    trap 'kill $daneben 2>/dev/null || true' EXIT
fi
# Databases are copied and made durable by the thousand: in memory, where it has room for them.
ort=${TMPDIR:-/tmp}
frei=$(df --output=avail /dev/shm 2>/dev/null | tail -1) || frei=0
[ "${frei:-0}" -lt 4000000 ] || ort=/dev/shm
TMPDIR=$ort ctest --test-dir build/sanitize --output-on-failure -j3
echo "--- tested; $SECONDS s"
if [ -n "${FLOX_DANEBEN:-}" ]; then
    ergebnis=0
    wait $daneben || ergebnis=$?
    trap - EXIT
    cat build/daneben.log
    [ $ergebnis -eq 0 ] || exit $ergebnis
    echo "--- beside them: $FLOX_DANEBEN; $SECONDS s"
fi
FLOX_BENCH_KURZ=1 tests/bench/bench.sh 3000
echo "--- measured; $SECONDS s"
