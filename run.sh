#!/usr/bin/env bash
# Builds Flox and starts it. Without a display it runs under Xvfb and leaves a screenshot beside the build.
set -euo pipefail
cd "$(dirname "$0")"
. tools/einrichten.sh
cmake --preset release >/dev/null
cmake --build build/release
cmake --install build/release --prefix build/flox >/dev/null

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec build/flox/flox
fi
bild=build/flox.png
xvfb-run -a -s '-screen 0 1280x900x24' bash -c '
    build/flox/flox & programm=$!
    sleep 8
    import -window root "'"$bild"'"
    kill "$programm"' 
echo "No display: screenshot in $bild"
