#!/usr/bin/env bash
# Draws the rooms and who uses whom into docs/raeume.svg, from what CMake links; needs a configured build folder and graphviz.
set -euo pipefail
cd "$(dirname "$0")/.."
graph=$(mktemp)
trap 'rm -f "$graph"*' EXIT
cmake --graphviz="$graph" "build/${1:-dev}" >/dev/null 2>&1
python3 - "$graph" <<'P' | dot -Tsvg | perl -0pe 's/<!--.*?-->\n//gs' >docs/raeume.svg
import re, sys
text = open(sys.argv[1]).read()
name = dict(re.findall(r'"(node\d+)" \[ label = "([^"\\]+)', text))
raum = {'flox_access': 'store', 'flox_store': 'store', 'flox_controls': 'controls', 'flox_filters': 'filters',
        'flox_filterdialoge': 'filters\ndialogs', 'flox_pictures': 'pictures', 'flox_bildformen': 'pictures\nforms',
        'flox_printing': 'printing', 'flox_druckformen': 'printing\nforms', 'flox_plantwindows': 'plantwindows', 'flox_frame': 'frame'}
kanten = set()
for von, nach in re.findall(r'"(node\d+)" -> "(node\d+)"', text):
    a, b = raum.get(name.get(von)), raum.get(name.get(nach))
    if a and b and a != b:
        kanten.add((a, b))
# An arrow that follows from two others is left out.
def weiter(a, ohne):
    offen, da = [b for x, b in kanten if x == a and (x, b) != ohne], set()
    while offen:
        b = offen.pop()
        if b not in da:
            da.add(b)
            offen += [c for x, c in kanten if x == b]
    return da
bleibt = sorted(k for k in kanten if k[1] not in weiter(k[0], k))
print('digraph { rankdir=TB; node [shape=box style="rounded,filled" fillcolor="#eaf2e6" color="#7fae77" fontname="DejaVu Sans" fontsize=12];')
print('edge [color="#5c665a" arrowsize=0.7];')
for a, b in bleibt:
    print('"%s" -> "%s";' % (a.replace('\n', '\\n'), b.replace('\n', '\\n')))
print('}')
P
