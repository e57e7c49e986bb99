#!/usr/bin/env bash
# Every C++ file in the repository is formatted as .clang-format says.
# shellcheck source=lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
cd "$root"

# A clone that belongs to somebody else is refused by git, which would leave nothing to check.
list=$(git -c safe.directory="$root" ls-files -- '*.h' '*.cpp')
[[ -n $list ]] || fail "git lists no C++ file"
mapfile -t files <<<"$list"
clang-format --dry-run -Werror "${files[@]}"
printf '%d files are formatted.\n' "${#files[@]}"
