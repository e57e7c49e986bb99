#!/usr/bin/env bash
# Checks that the repository contains no unfinished work and no path of one computer.
# shellcheck source=lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
cd "$root"

found=0

# search WHAT OPTION-OF-GIT-GREP...
search() {
    local what=$1 status=0
    shift
    git -c safe.directory="$root" grep -nI "$@" || status=$?
    # 0: found, 1: not found; any other status means that the search itself failed.
    ((status <= 1)) || fail "git grep could not search for $what"
    if ((status == 0)); then
        printf 'error: %s, see above\n' "$what" >&2
        found=1
    fi
}

# The words are concatenated here, so that this file does not match itself. One of them is a Spanish word.
search "a marker of unfinished work" -wE -e "TO""DO|FIX""ME|XX""X|HA""CK" -- . ":!resources/translations/*.ts"
search "a mark of an unresolved merge" -E -e "^(<<<<<<""<|>>>>>>"">)( |\$)"
search "a path into somebody's home folder" -E -e "(^|[^A-Za-z0-9_.\$}~-])/(ro""ot|home/[A-Za-z0-9_.-]+)/"
search "the path of this checkout" -F -e "$root/"

((found == 0)) || exit 1
printf 'No left-overs.\n'
