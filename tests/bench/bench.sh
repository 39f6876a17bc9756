#!/usr/bin/env bash
# bench.sh [PLANTS...]   builds the release benchmarks and runs them, on that many potted plants (3000 and 100000) and on pictures.
set -euo pipefail
cd "$(dirname "$0")/../.."
cmake --preset release -DFLOX_BENCH=ON >/dev/null
cmake --build build/release --target bench_flox bench_bilder vervielfacher flox_daten >/dev/null
for anzahl in "${@:-3000 100000}"; do
    for n in $anzahl; do
        datenbank=build/release/bench-$n.mdb
        [ "$datenbank" -nt build/release/flox-demo.mdb ] || build/release/tools/vervielfacher build/release/flox-demo.mdb "$datenbank" Topfpfl "$n"
        QT_QPA_PLATFORM=offscreen XDG_CONFIG_HOME=build/release/bench-einstellungen build/release/programm/bench_flox "$datenbank"
    done
done
build/release/tests/bench/bench_bilder
