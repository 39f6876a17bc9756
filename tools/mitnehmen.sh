#!/usr/bin/env bash
# Makes a program folder that needs no Qt of the system:   tools/mitnehmen.sh DIR   after a release build.
# It is started by DIR/flox.sh.
set -euo pipefail
cd "$(dirname "$0")/.."
ziel=${1:?"Aufruf: tools/mitnehmen.sh DIR"}
vorlage=${2:-release}
cmake --install "build/$vorlage" --component programm --prefix "$ziel" >/dev/null
mitgenommen=()
nehmen() { # FILE TARGET
    mkdir -p "$(dirname "$2")"
    cp -L "$1" "$2"
    mitgenommen+=("$1")
}
plugins=$(qmake6 -query QT_INSTALL_PLUGINS)
for plugin in platforms/libqxcb platforms/libqoffscreen platforms/libqminimal imageformats/libqjpeg imageformats/libqgif imageformats/libqsvg \
    iconengines/libqsvgicon sqldrivers/libqsqlite printsupport/libcupsprintersupport xcbglintegrations/libqxcb-glx-integration; do
    [ -e "$plugins/$plugin.so" ] || continue
    nehmen "$plugins/$plugin.so" "$ziel/lib/plugins/$plugin.so"
done
# Everything but the system's core: what every Debian 12 has, and what must fit its kernel and its display.
kern='^(ld-linux|libc|libm|libdl|librt|libpthread|libresolv|libgcc_s|libstdc\+\+|libGL|libGLX|libGLdispatch|libEGL|libdrm|libgbm)[-.]'
gebunden=$({
    ldd "$ziel/flox"
    find "$ziel/lib/plugins" -name '*.so' -exec ldd {} +
} | awk '$2 == "=>" && $3 ~ /^\// { print $3 }' | sort -u)
for bibliothek in $gebunden; do
    name=$(basename "$bibliothek")
    [[ $name =~ $kern ]] || nehmen "$bibliothek" "$ziel/lib/$name"
done
# The licence of each goes with it.
mkdir -p "$ziel/lib/lizenzen"
cp LICENSES.md "$ziel/"
# A package may name its files by /lib what the loader finds in /usr/lib, and the other way round. All are asked for at once and by their
# whole paths: each question reads the lists of every package there is, a pattern all the paths in them.
besitzer=$(dpkg-query -S "${mitgenommen[@]}" "${mitgenommen[@]#/usr}" "${mitgenommen[@]/#//usr}" 2>/dev/null) || true
for datei in "${mitgenommen[@]}"; do
    paket=$(awk -v a=": ${datei#/usr}" -v b=": /usr${datei#/usr}" '
        function endet(e) { return substr($0, length($0) - length(e) + 1) == e }
        endet(a) || endet(b) { sub(/:.*/, ""); print; exit }' <<<"$besitzer")
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
