#!/usr/bin/env bash
# Checks that every C++ file in the repository is formatted by .clang-format.
# shellcheck source=lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
cd "$root"

# git refuses a clone of another owner, and without a file list nothing would be checked.
list=$(git -c safe.directory="$root" ls-files -- '*.h' '*.cpp')
[[ -n $list ]] || fail "git lists no C++ file"
mapfile -t files <<<"$list"
clang-format --dry-run -Werror "${files[@]}"
printf '%d files are formatted.\n' "${#files[@]}"
