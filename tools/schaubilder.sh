#!/usr/bin/env bash
# Takes the pictures of the program for the desktop's software catalogue, out of a finished build, into docs/bilder.
#   tools/schaubilder.sh [VORLAGE]
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/einrichten.sh
ordner=build/${1:-release}
cmake --build "$ordner" --target flox_daten schaubilder
# A screen and a window manager of its own, with the manager's own look.
xvfb-run -a -s '-screen 0 1280x800x24' bash -c '
    XDG_CONFIG_HOME=/nonexistent openbox & verwalter=$!
    QT_QPA_PLATFORM=xcb "$0"/tools/hilfe/schaubilder "$0"/programm "$0"/flox-demo.mdb docs/bilder
    ergebnis=$?
    kill "$verwalter"
    exit $ergebnis' "$ordner"
for bild in docs/bilder/*.png; do
    convert "$bild" -strip -colors 256 -define png:compression-level=9 "PNG8:$bild"
done
ls -l docs/bilder
