#!/bin/sh
# The package's changelog, in Debian's form, out of CHANGELOG.md:   changelog.sh CHANGELOG.md MAINTAINER
awk '/^## / { gsub(/[()]/, ""); print "V", $2, $3; next } /^- / { print "Z", substr($0, 3); next } /^  / { print "F", $0 }' "$1" |
    {
        ende() { [ -z "$datum" ] || printf '\n -- %s  %s\n\n' "$wer" "$(LC_ALL=C date -u -R -d "$datum")"; }
        wer=$2 datum=
        while read -r art eins rest; do
            case $art in
            V) ende; datum=$rest; printf 'flox (%s) stable; urgency=medium\n\n' "$eins" ;;
            Z) printf '%s %s\n' "$eins" "$rest" | fold -s -w 74 | sed 's/ *$//; 1s/^/  * /; 2,$s/^/    /' ;;
            F) printf '%s %s\n' "$eins" "$rest" | fold -s -w 74 | sed 's/ *$//; s/^/    /' ;;
            esac
        done
        ende
    }
