#!/usr/bin/env bash
# bench.sh [PLANTS...]   builds the release benchmarks and runs them, on that many plants (3000 and 100000) of each collection, on print and on pictures.
set -euo pipefail
cd "$(dirname "$0")/../.."
cmake --preset release -DFLOX_BENCH=ON >/dev/null
cmake --build build/release --target bench_flox bench_bilder bench_druck vervielfacher flox_daten >/dev/null
# database N   path of a database with N potted plants
database() {
    local file=build/release/bench-$1.mdb
    [ "$file" -nt build/release/flox-demo.mdb ] || build/release/tools/vervielfacher build/release/flox-demo.mdb "$file" Topfpfl "$1" >&2
    echo "$file"
}
# sparten N    path of a database with N plants in each collection
sparten() {
    local file=build/release/bench-sparten-$1.mdb quelle=build/release/flox-demo.mdb tabelle
    if [ ! "$file" -nt "$quelle" ]; then
        for tabelle in Topfpfl Stauden Gehoelze Apfel Obst; do
            build/release/tools/vervielfacher "$quelle" "$file.$tabelle" "$tabelle" "$1" >&2
            quelle=$file.$tabelle
        done
        mv "$quelle" "$file"
        rm -f "$file".*
    fi
    echo "$file"
}
for anzahl in "${@:-3000 100000}"; do
    for n in $anzahl; do
        datenbank=$(database "$n")
        QT_QPA_PLATFORM=offscreen XDG_CONFIG_HOME=build/release/bench-einstellungen build/release/programm/bench_flox "$datenbank"
        datenbank=$(sparten "$n")
        QT_QPA_PLATFORM=offscreen XDG_CONFIG_HOME=build/release/bench-einstellungen build/release/programm/bench_flox --sparten "$datenbank"
    done
done
QT_QPA_PLATFORM=offscreen build/release/tests/bench/bench_druck "$(database 10000)"
build/release/tests/bench/bench_bilder
