#!/usr/bin/env bash
# Static analysis with the checks of .clang-tidy; a warning is a failure:
#
#   scripts/check-tidy.sh                    all files below src/ that the preset "dev" compiles
#   scripts/check-tidy.sh src/engine/*.cpp   only these files
#   scripts/check-tidy.sh --windows          src/platform/windows/, as the preset "windows-cross" compiles it
#
# It uses a separate build tree that is configured and never built. The tree has no precompiled headers, so that missing
# includes are found. A clean file is analysed again only after a change of the file, of a header below src/, of its
# compiler flags or of the checks; in a fresh clone every file is analysed.
# shellcheck source=lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
cd "$root"

export build_folder=build/tidy
preset=dev
folder=src
# The cross compiler's own headers, with clang's builtin headers in place of gcc's.
target_arguments=()
if [[ ${1:-} == --windows ]]; then
    shift
    build_folder=build/tidy-windows
    preset=windows-cross
    folder=src/platform/windows
    target_arguments=(--extra-arg-before=--target=x86_64-w64-mingw32)
    while read -r include; do
        target_arguments+=("--extra-arg=-isystem$include")
    done < <(x86_64-w64-mingw32-g++-posix -E -v -x c++ - </dev/null 2>&1 | sed -n '/#include <...>/,/End of search/p' |
        grep '^ ' | grep -E 'c\+\+|x86_64-w64-mingw32/include')
    ((${#target_arguments[@]} > 1)) || fail "the cross compiler does not tell where its headers are"
fi

cmake --preset "$preset" -B "$build_folder" -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON --log-level=NOTICE
if (($# > 0)); then
    files=("$@")
else
    files=()
    while read -r file; do
        # A file that this build does not compile has no compile command, and would be analysed with wrong flags.
        if grep -qF "\"file\": \"$root/$file\"" "$build_folder/compile_commands.json"; then
            files+=("$file")
        else
            printf 'Not built here, and so not analysed: %s\n' "$file"
        fi
    done < <(find "$folder" -name '*.cpp' | sort)
fi
((${#files[@]} > 0)) || fail "no file below $folder is in $build_folder/compile_commands.json"

# The inputs common to all files.
common=$(find src -name '*.h' -print0 | sort -z | xargs -0 cat .clang-tidy scripts/check-tidy.sh | sha256sum)
export common

# analyse FILE ARGUMENT...: prints its output in one piece, without the count of warnings suppressed in Qt's headers.
analyse() {
    local output status=0 file=$1 command key clean
    shift
    command=$(grep -B 2 -F "\"file\": \"$PWD/$file\"" "$build_folder/compile_commands.json")
    key=$(cat "$file" - <<<"$common $command $*" | sha256sum | head -c 64)
    clean=$build_folder/clean/$file
    if [[ -f $clean && $(<"$clean") == "$key" ]]; then
        return
    fi
    output=$(clang-tidy-22 --quiet -p "$build_folder" --warnings-as-errors='*' "$@" "$file" 2>&1) || status=$?
    output=$(sed -E '/^[0-9]+ warnings?( treated as errors?)?( generated)?\.?$/d' <<<"$output")
    [[ -z $output ]] || printf '%s\n' "$output"
    if ((status == 0)); then
        mkdir -p "${clean%/*}"
        printf '%s' "$key" >"$clean"
    fi
    return "$status"
}
export -f analyse

# shellcheck disable=SC2016  # "$@" belongs to the inner shell, whose arguments are those and the file
printf '%s\0' "${files[@]}" | xargs -0 -n 1 -P "$(jobs_count)" \
    bash -c 'analyse "${@: -1}" "${@:1:$#-1}"' _ "${target_arguments[@]}" ||
    fail "clang-tidy has complaints"
printf '%d files are clean.\n' "${#files[@]}"
