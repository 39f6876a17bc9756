#!/usr/bin/env bash
# Makes a program folder that needs no Qt of the system:   tools/mitnehmen.sh DIR   after a release build.
# It is started by DIR/flox.sh.
set -euo pipefail
cd "$(dirname "$0")/.."
ziel=${1:?"Aufruf: tools/mitnehmen.sh DIR"}
vorlage=${2:-release}
cmake --install "build/$vorlage" --component programm --prefix "$ziel" >/dev/null
mkdir -p "$ziel/lib/plugins"
plugins=$(qmake6 -query QT_INSTALL_PLUGINS)
for plugin in platforms/libqxcb platforms/libqoffscreen platforms/libqminimal imageformats/libqjpeg imageformats/libqgif imageformats/libqsvg \
    iconengines/libqsvgicon sqldrivers/libqsqlite printsupport/libcupsprintersupport xcbglintegrations/libqxcb-glx-integration; do
    [ -e "$plugins/$plugin.so" ] || continue
    mkdir -p "$ziel/lib/plugins/$(dirname "$plugin")"
    cp -L "$plugins/$plugin.so" "$ziel/lib/plugins/$plugin.so"
done
# Everything but the system's core: what every Debian 12 has, and what must fit its kernel and its display.
kern='^(ld-linux|libc|libm|libdl|librt|libpthread|libresolv|libgcc_s|libstdc\+\+|libGL|libGLX|libGLdispatch|libEGL|libdrm|libgbm)[-.]'
{
    ldd "$ziel/flox"
    find "$ziel/lib/plugins" -name '*.so' -exec ldd {} +
} | awk '$2 == "=>" && $3 ~ /^\// { print $3 }' | sort -u | while read -r bibliothek; do
    name=$(basename "$bibliothek")
    [[ $name =~ $kern ]] || cp -L "$bibliothek" "$ziel/lib/$name"
done
# The licence of each goes with it.
mkdir -p "$ziel/lib/lizenzen"
cp LICENSES.md "$ziel/"
{
    find "$ziel/lib" -maxdepth 1 -name '*.so*' -printf '%f\n'
    find "$ziel/lib/plugins" -name '*.so' -printf '%P\n'
} | while read -r datei; do
    paket=$(dpkg-query -S "*/$datei" 2>/dev/null | head -1 | cut -d: -f1)
    if [ -z "$paket" ] || [ ! -e "/usr/share/doc/$paket/copyright" ]; then
        echo "No licence found: $datei" >&2
        exit 1
    fi
    cp "/usr/share/doc/$paket/copyright" "$ziel/lib/lizenzen/$paket"
done
cat > "$ziel/flox.sh" <<'S'
#!/bin/sh
hier=$(dirname "$(readlink -f "$0")")
LD_LIBRARY_PATH="$hier/lib${LD_LIBRARY_PATH:+:$LD_LIBRARY_PATH}" QT_PLUGIN_PATH="$hier/lib/plugins" exec "$hier/flox" "$@"
S
chmod +x "$ziel/flox.sh"
du -sh "$ziel/lib"
