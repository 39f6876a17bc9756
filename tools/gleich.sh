#!/usr/bin/env bash
# Builds the package of the last commit twice, in folders of different depth and name, in another time zone and language and without the
# compiler cache, and holds every file of the two packages and the packages themselves against each other. Fails where a byte differs.
#   tools/gleich.sh [VORLAGE [OPTION_OF_CMAKE...]]
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/einrichten.sh
vorlage=${1:-release}
shift || true
ort=$(mktemp -d)
trap 'rm -rf "$ort"' EXIT
export CCACHE_DISABLE=1
bauen() { # FOLDER, then the options
    local quelle=$ort/$1
    shift
    git clone -q . "$quelle"
    "$quelle/tools/paket.sh" "$vorlage" "$@" >/dev/null
    dpkg-deb -R "$quelle/build/$vorlage"/flox_*.deb "$quelle.inhalt"
}
TZ=UTC LC_ALL=C.UTF-8 bauen erster "$@"
(umask 027 && TZ=Asia/Tokyo LC_ALL=C bauen "zweiter-ort/mit-langem-namen" "$@")
eins=$ort/erster zwei="$ort/zweiter-ort/mit-langem-namen"
# Names, kinds, rights and targets of links first, then what the files hold.
liste() { (cd "$1" && find . -printf '%y %m %s %p %l\n' | sort); }
ergebnis=0
diff <(liste "$eins.inhalt") <(liste "$zwei.inhalt") || ergebnis=1
while IFS= read -r -d '' datei; do
    cmp "$eins.inhalt/$datei" "$zwei.inhalt/$datei" || ergebnis=1
done < <(cd "$eins.inhalt" && find . -type f -print0 | sort -z)
cmp "$eins/build/$vorlage"/flox_*.deb "$zwei/build/$vorlage"/flox_*.deb || ergebnis=1
if [ $ergebnis -eq 0 ]; then
    echo "The same bytes: $(find "$eins.inhalt" -type f | wc -l) files, $(sha256sum "$eins/build/$vorlage"/flox_*.deb | cut -c1-16) the package."
fi
exit $ergebnis
