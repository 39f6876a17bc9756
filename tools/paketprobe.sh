#!/usr/bin/env bash
# Builds the package, and tries it and the folder that brings its libraries as users of a bare Debian 12 would: checked by the validators,
# installed, started by several users, handed a file, removed. The clean system needs root and a mirror; without them that part is passed
# over, with a message.
#   tools/paketprobe.sh [VORLAGE]      FLOX_PROBE_GANZ=1: nothing may be passed over
# Ends with 0 where nothing was wrong. Leaves build/VORLAGE/paketprobe.png.
set -Eeuo pipefail
trap 'echo "Failed in line $LINENO: $BASH_COMMAND" >&2' ERR
cd "$(dirname "$0")/.."
vorlage=${1:-release}
# The machine's own mirror.
spiegel=${FLOX_SPIEGEL:-$(apt-get indextargets --format '$(REPO_URI)' 'Codename: bookworm' | sed -n '1s:/$::p')}
weitere=(lintian desktop-file-utils appstream debootstrap)
. tools/einrichten.sh
tools/paket.sh "$vorlage" >/dev/null
deb=$(ls "build/$vorlage"/flox_*.deb)

echo "--- validators"
desktop-file-validate data/paket/local.flox.Flox.desktop
appstreamcli validate --no-net --explain "build/$vorlage/data/paket/local.flox.Flox.metainfo.xml"
lintian --fail-on error,warning "$deb"

echo "--- hardening"
programm=$(mktemp)
trap 'rm -f "$programm"' EXIT
dpkg-deb --fsys-tarfile "$deb" | tar -xO ./usr/lib/flox/flox >"$programm"
ist() { # OPTION PATTERN: the program has it
    grep -qE "$2" <<<"$(readelf -W "$1" "$programm")" || { echo "Not there: $2"; exit 1; }
}
ist -h 'Type: +DYN'
ist -d 'FLAGS_1.* PIE'
ist -d 'BIND_NOW'
ist -l 'GNU_RELRO'
ist -l 'GNU_STACK.* RW '
ist --dyn-syms ' __stack_chk_fail@'
ist --dyn-syms '_chk@GLIBC'
if readelf -dW "$programm" | grep -E 'R(UN)?PATH'; then exit 1; fi

auslassen() {
    echo "--- passed over: $1"
    [ "${FLOX_PROBE_GANZ:-}" = 1 ] && exit 1
    exit 0
}
[ "$(id -u)" -eq 0 ] || auslassen "the clean system needs root"
wurzel=$(mktemp -d)
abschied=()
ende() {
    for befehl in "${abschied[@]}"; do eval "$befehl" 2>/dev/null || true; done
    umount "$wurzel/proc" 2>/dev/null || true
    rm -rf --one-file-system "$wurzel" "$programm"
}
trap ende EXIT
/usr/lib/apt/apt-helper download-file "$spiegel/dists/bookworm/Release" "$wurzel/Release" >/dev/null 2>&1 || auslassen "no mirror at $spiegel"
rm "$wurzel/Release"
{ mknod "$wurzel/null" c 1 3 && mkdir "$wurzel/proc" && mount -t proc proc "$wurzel/proc"; } 2>/dev/null || auslassen "no devices, or nothing can be mounted"
umount "$wurzel/proc"
rm -r "$wurzel/null" "$wurzel/proc"

chmod 755 "$wurzel"

rein=(env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LANG=C.UTF-8 DEBIAN_FRONTEND=noninteractive)
drin() { "${rein[@]}" HOME=/ chroot "$wurzel" "$@"; }
holen() { drin apt-get install -y -q --no-install-recommends "$@" >/dev/null; }
als_zeile() { # USER COMMAND...
    zeile=("${rein[@]}" HOME="/home/$1" XDG_CURRENT_DESKTOP=GNOME XDG_RUNTIME_DIR="/run/user/$1" DISPLAY="${schirm:-}" QT_QPA_PLATFORM="${art:-offscreen}"
        chroot --userspec="$1" "$wurzel" "${@:2}")
}
als() {
    als_zeile "$@"
    "${zeile[@]}"
}

echo "--- clean system"
# What every desktop has, but nothing of Qt. Made anew after a week.
vorrat=build/bookworm.tar
if [ -z "$(find "$vorrat" -mtime -7 2>/dev/null)" ]; then
    debootstrap --variant=minbase bookworm "$wurzel" "$spiegel" >build/debootstrap.log || auslassen "no clean system: $(tail -1 build/debootstrap.log)"
    printf '%s\n' force-unsafe-io 'path-exclude /usr/share/doc/*' 'path-exclude /usr/share/locale/*' 'path-include /usr/share/doc/flox/*' \
        >"$wurzel/etc/dpkg/dpkg.cfg.d/probe"
    printf '%s\n' 'APT::Sandbox::User "root";' 'Acquire::Languages "none";' 'Dpkg::Use-Pty "0";' >"$wurzel/etc/apt/apt.conf.d/probe"
    cp /etc/resolv.conf "$wurzel/etc/"
    drin apt-get update -q >/dev/null
    holen libgl1 libegl1 fonts-dejavu-core fontconfig-config shared-mime-info desktop-file-utils xdg-utils libglib2.0-bin
    for wer in anna bert; do
        drin useradd -m "$wer"
        drin install -d -m 700 -o "$wer" "/run/user/$wer"
    done
    tar -C "$wurzel" -cf "$vorrat.neu" .
    mv "$vorrat.neu" "$vorrat"
else
    tar -C "$wurzel" -xf "$vorrat"
    cp /etc/resolv.conf "$wurzel/etc/"
fi
mount -t proc proc "$wurzel/proc"
warten() { # SECONDS COMMAND...: until it succeeds
    local frist=$((SECONDS + $1))
    shift
    until "$@" >/dev/null 2>&1; do
        [ $SECONDS -lt $frist ] || { echo "In vain: $*"; return 1; }
        sleep 0.2
    done
}
# USER COMMAND...: in the background; its number is in laufend
starten() {
    als_zeile "$@"
    "${zeile[@]}" >"$wurzel/tmp/ausgabe-$1" 2>&1 &
    laufend=$!
    abschied+=("kill $laufend")
}
laeuft() { # NUMBER USER: a program that has made its user's folder, and still runs behind its splash
    warten 60 test -f "$(daten "$2")/flox-demo.mdb"
    sleep 7
    kill -0 "$1" || { echo "It has ended."; cat "$wurzel"/tmp/ausgabe-*; return 1; }
}
beenden() { # as the desktop does at log-out
    kill "$1"
    local ergebnis=0
    wait "$1" || ergebnis=$?
    [ $ergebnis -eq 0 ] || { echo "Ended with $ergebnis."; cat "$wurzel"/tmp/ausgabe-*; return 1; }
}
daten() { echo "$wurzel/home/$1/.local/share/flox"; }

echo "--- folder with its libraries, no Qt on the system"
tools/mitnehmen.sh "$wurzel/opt/flox" "$vorlage"
chown -R root: "$wurzel/opt/flox"
if drin sh -c 'ls /usr/lib/*/libQt6Core.so*' 2>/dev/null; then
    echo "The bare system has Qt: nothing would be shown."
    exit 1
fi
als anna /opt/flox/flox.sh --version
# What a user may not write is installed for all, whatever it is called.
starten anna /opt/flox/flox.sh
laeuft $laufend anna
beenden $laufend
rm -r "$(daten anna)" "$wurzel/opt/flox"

echo "--- package"
cp "$deb" "$wurzel/tmp/"
holen "/tmp/$(basename "$deb")"
als anna flox --version | grep -E '^Flox [0-9.]+ \([0-9a-f]{12}(-dirty)?\)$'
als anna flox --help >/dev/null
drin sh -c 'test -s /usr/share/doc/flox/copyright && zcat /usr/share/man/man1/flox.1.gz | grep -q "^.SH DATEIEN"'
for groesse in 16 22 24 32 48 64 128 256 512; do
    for bild in apps/flox mimetypes/flox-database mimetypes/flox-filter; do
        test -s "$wurzel/usr/share/icons/hicolor/${groesse}x$groesse/$bild.png"
    done
done

echo "--- file types"
typ() { # FILE TYPE: known by name or by content, and opened by the program
    local gefunden
    gefunden=$(als anna xdg-mime query filetype "$1")
    [ "$gefunden" = "$2" ] || { echo "$1: $gefunden"; return 1; }
    als anna gio info -a standard::content-type "$1" | grep -q "standard::content-type: $2\$"
    [ "$(als anna xdg-mime query default "$2")" = local.flox.Flox.desktop ]
}
for endung in fft ffs ffg ffa ffo fff; do
    echo 'Flox' >"$wurzel/tmp/x.$endung"
    typ /tmp/x.$endung application/x-flox-filter
done
for endung in fit mut mus mug mua muo muf; do
    cp "$wurzel/usr/lib/flox/flox-demo.mdb" "$wurzel/tmp/x.$endung"
    typ /tmp/x.$endung application/x-flox-database
done
chmod 644 "$wurzel"/tmp/x.*

echo "--- two users at the same time, one with a screen"
schirm=
if command -v Xvfb >/dev/null; then
    exec {nummer}<> <(:)
    Xvfb -displayfd $nummer -screen 0 1280x800x24 2>/dev/null &
    abschied+=("kill $!")
    read -r -t 20 -u $nummer schirm
    schirm=:$schirm
    art=xcb
fi
starten anna flox
erste=$laufend
schirm='' art=offscreen starten bert flox
laeuft $erste anna
laeuft $laufend bert
for wer in anna bert; do
    [ "$(stat -c %U "$(daten $wer)/flox-demo.mdb")" = "$(stat -c %U "$wurzel/home/$wer")" ]
done
[ -z "$schirm" ] || DISPLAY=$schirm import -window root "build/$vorlage/paketprobe.png"
beenden $laufend

echo "--- a file for the one that runs"
als anna flox /tmp/x.fit
warten 60 test -f "$(daten anna)/flox-original.pdb"
kill -0 $erste
beenden $erste

echo "--- a home that is only read"
chmod -R a-w "$wurzel/home/bert"
starten bert flox
laeuft $laufend bert
beenden $laufend
chmod -R u+w "$wurzel/home/bert"

echo "--- removed"
drin apt-get remove -y -q flox >/dev/null
for weg in usr/bin/flox usr/lib/flox usr/share/applications/local.flox.Flox.desktop usr/share/mime/packages/flox.xml; do
    test ! -e "$wurzel/$weg"
done
[ "$(als anna xdg-mime query filetype /tmp/x.fft)" != application/x-flox-filter ]
# What is a user's stays.
for wer in anna bert; do test -f "$(daten $wer)/flox-demo.mdb"; done
echo "--- installed, started, removed; $SECONDS s"
