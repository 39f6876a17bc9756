#!/usr/bin/env bash
# Tries the package and the folder that brings its libraries as a user of a bare Debian 12 would; needs root and a mirror.
#   tools/paketprobe.sh [VORLAGE]      after tools/paket.sh VORLAGE
set -euo pipefail
cd "$(dirname "$0")/.."
vorlage=${1:-release}
deb=$(ls "build/$vorlage"/flox_*.deb)
desktop-file-validate data/paket/local.flox.Flox.desktop
appstreamcli validate --no-net data/paket/local.flox.Flox.metainfo.xml
lintian --fail-on error --suppress-tags no-copyright-file "$deb"

wurzel=$(mktemp -d)
ende() {
    umount "$wurzel/proc" 2>/dev/null || true
    rm -rf --one-file-system "$wurzel"
}
trap ende EXIT
debootstrap --variant=minbase bookworm "$wurzel" >/dev/null
cp /etc/resolv.conf "$wurzel/etc/"
mount -t proc proc "$wurzel/proc"
heim=/home/probe
mkdir -p "$wurzel$heim"
drin() { env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=$heim LANG=C.UTF-8 DEBIAN_FRONTEND=noninteractive chroot "$wurzel" "$@"; }
laeuft() { # a command that must still run after a while, with its window up
    drin bash -c "$1 & p=\$!; sleep 8; kill -0 \$p && kill \$p"
}
drin apt-get update -q >/dev/null

echo "--- folder with its libraries, no Qt on the system"
tools/mitnehmen.sh "$wurzel/opt/flox" "$vorlage"
drin apt-get install -y -q --no-install-recommends libgl1 libegl1 fonts-dejavu-core >/dev/null
if drin sh -c 'ls /usr/lib/*/libQt6Core.so*' 2>/dev/null; then
    echo "The bare system has Qt: nothing would be shown."
    exit 1
fi
drin /opt/flox/flox.sh --version
laeuft 'QT_QPA_PLATFORM=offscreen /opt/flox/flox.sh'

echo "--- package"
cp "$deb" "$wurzel/tmp/"
drin bash -c "apt-get install -y -q --no-install-recommends /tmp/$(basename "$deb") >/dev/null"
drin flox --version
drin flox --help >/dev/null
laeuft 'QT_QPA_PLATFORM=offscreen flox'
test -f "$wurzel$heim/.local/share/flox/flox-demo.mdb"
drin apt-get remove -y -q flox >/dev/null
test ! -e "$wurzel/usr/bin/flox"
test ! -e "$wurzel/usr/lib/flox"
# The user's own stays.
test -f "$wurzel$heim/.local/share/flox/flox-demo.mdb"
echo "--- installed, started, removed"
