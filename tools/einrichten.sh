#!/usr/bin/env bash
# Installs what building and testing need on Debian 12 and is not there yet. Sourced by other scripts, which may name more in weitere.
weitere=(${weitere[@]+"${weitere[@]}"})
pakete=(g++ cmake ninja-build ccache mold pkg-config qt6-base-dev qt6-base-dev-tools qt6-svg-dev qt6-tools-dev qt6-tools-dev-tools
    qt6-documentation-tools libqt6sql6-sqlite
    qt6-translations-l10n libgl-dev libsqlite3-dev libicu-dev libturbojpeg0-dev libjpeg62-turbo-dev libzip-dev
    xvfb xauth openbox imagemagick fonts-dejavu-core fonts-liberation poppler-utils dbus-daemon mdbtools clang-format "${weitere[@]}")
fehlend=()
for paket in "${pakete[@]}"; do
    dpkg-query -W -f='${Status}' "$paket" 2>/dev/null | grep -q 'ok installed' || fehlend+=("$paket")
done
if [ ${#fehlend[@]} -gt 0 ]; then
    als_root=()
    [ "$(id -u)" -eq 0 ] || als_root=(sudo)
    "${als_root[@]}" apt-get update -q
    "${als_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${fehlend[@]}"
fi
