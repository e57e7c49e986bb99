#!/usr/bin/env bash
# Static analysis of everything below src/ with the checks of .clang-tidy; a warning is a failure.
# shellcheck source=lib.sh
# Works on the compile commands of build/dev. Arguments limit it to files: scripts/check-tidy.sh src/engine/*.cpp
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
cd "$root"

[[ -f build/dev/compile_commands.json ]] || fail "build/dev is missing: run ./test.sh first"
if (($# > 0)); then
    files=("$@")
else
    files=()
    while read -r file; do
        # What this platform does not build has no compile command, and would be analysed with wrong flags.
        if grep -qF "\"file\": \"$root/$file\"" build/dev/compile_commands.json; then
            files+=("$file")
        else
            printf 'Not built here, and so not analysed: %s\n' "$file"
        fi
    done < <(find src -name '*.cpp' | sort)
fi
((${#files[@]} > 0)) || fail "no file below src/ is in build/dev/compile_commands.json"

# One file; its output comes in one piece, without the count of warnings suppressed in Qt's headers.
analyse() {
    local output status=0
    output=$(clang-tidy --quiet -p build/dev --warnings-as-errors='*' "$1" 2>&1) || status=$?
    output=$(sed -E '/^[0-9]+ warnings?( treated as errors?)?( generated)?\.?$/d' <<<"$output")
    [[ -z $output ]] || printf '%s\n' "$output"
    return "$status"
}
export -f analyse

# shellcheck disable=SC2016  # $1 belongs to the inner shell
printf '%s\0' "${files[@]}" | xargs -0 -n 1 -P "$(jobs_count)" bash -c 'analyse "$1"' _ ||
    fail "clang-tidy has complaints"
printf '%d files analysed.\n' "${#files[@]}"
