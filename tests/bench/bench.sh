#!/usr/bin/env bash
# bench.sh [PLANTS...]   builds the benchmarks as the program is released and runs them, on that many plants (3000 and 100000) of each collection, on print,
#                        on pictures and on making previews.
# FLOX_BENCH_KURZ=1: few rounds.
set -euo pipefail
cd "$(dirname "$0")/../.."
# A build of its own: it needs the plates of a few plants only, and drawing all of them takes minutes.
ordner=build/bench
cmake --preset bench >/dev/null
cmake --build $ordner --target bench_{flox,access,bestand,bilder,druck,suche,treffer,uebersicht,vorschau} vervielfacher flox_daten -- --quiet
# database N   path of a database with N potted plants
database() {
    local file=$ordner/bench-$1.mdb
    [ "$file" -nt $ordner/flox-demo.mdb ] || $ordner/tools/vervielfacher $ordner/flox-demo.mdb "$file" Topfpfl "$1" >&2
    echo "$file"
}
# sparten N    path of a database with N plants in each collection
sparten() {
    local file=$ordner/bench-sparten-$1.mdb quelle=$ordner/flox-demo.mdb tabelle
    if [ ! "$file" -nt "$quelle" ]; then
        for tabelle in Topfpfl Stauden Gehoelze Apfel Obst; do
            $ordner/tools/vervielfacher "$quelle" "$file.$tabelle" "$tabelle" "$1" >&2
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
        QT_QPA_PLATFORM=offscreen XDG_CONFIG_HOME=$ordner/bench-einstellungen $ordner/programm/bench_flox "$datenbank"
        $ordner/tests/bench/bench_bestand "$datenbank"
        $ordner/tests/bench/bench_access "$datenbank"
        $ordner/tests/bench/bench_treffer "$datenbank" Topf
        $ordner/tests/bench/bench_treffer "$datenbank" Topf verschieden
        QT_QPA_PLATFORM=offscreen $ordner/tests/bench/bench_suche "$datenbank"
        datenbank=$(sparten "$n")
        QT_QPA_PLATFORM=offscreen XDG_CONFIG_HOME=$ordner/bench-einstellungen $ordner/programm/bench_flox --sparten "$datenbank"
        $ordner/tests/bench/bench_treffer "$datenbank" Obst
    done
done
QT_QPA_PLATFORM=offscreen $ordner/tests/bench/bench_druck "$(database 10000)"
$ordner/tests/bench/bench_bilder
QT_QPA_PLATFORM=offscreen $ordner/tests/bench/bench_uebersicht
$ordner/tests/bench/bench_vorschau
