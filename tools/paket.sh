#!/usr/bin/env bash
# Builds the Debian package into build/release, the same bytes for the same commit. Another build folder may be named, and options of cmake.
set -euo pipefail
# The archive keeps the rights of the files it is made of.
umask 022
cd "$(dirname "$0")/.."
. tools/einrichten.sh
vorlage=${1:-release}
shift || true
SOURCE_DATE_EPOCH=$(git log -1 --format=%ct)
export SOURCE_DATE_EPOCH
cmake --preset "$vorlage" "$@" >/dev/null
cmake --build "build/$vorlage"
rm -f "build/$vorlage"/*.deb
(cd "build/$vorlage" && cpack -G DEB >/dev/null)
ls "build/$vorlage"/*.deb
