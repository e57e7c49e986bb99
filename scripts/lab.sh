#!/usr/bin/env bash
# The laboratory: real controllers and their faults, in QEMU with Debian's kernel, erased by quorvex-cli; the media are
# compared from outside.
#
#   scripts/lab.sh                       all scenarios
#   scripts/lab.sh SCENARIO...           some of them
#   scripts/lab.sh --ci                  a selection without the repetitions
#   scripts/lab.sh --list                names and subjects
#   scripts/lab.sh --build FOLDER ...    the program of that build (default: build/dev)
#
# Needs no root, but for missing packages. Consoles, results and media stay in build/lab/.
# shellcheck source=lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
# shellcheck source=../tests/lab/machine.sh
source "$root/tests/lab/machine.sh"

# Long enough for the slowest machine.
lab_seconds=${LAB_SECONDS:-1800}
lab_folder=${LAB_FOLDER:-$root/build/lab}
folder=$root/build/dev
selection=all
chosen=()

# about SCENARIO: sets title, ci and boot.
about() {
    [[ -f $lab/scenarios/$1.sh ]] || fail "no such scenario: $1 (scripts/lab.sh --list)"
    title='' ci=no boot=common
    # shellcheck source=/dev/null
    source "$lab/scenarios/$1.sh"
}

while (($# > 0)); do
    case $1 in
        --list) selection=list ;;
        --ci) selection=ci ;;
        --build)
            folder=$(realpath "$2")
            shift
            ;;
        -h | --help)
            sed -n '2,12s/^# \{0,1\}//p' "$0"
            exit 0
            ;;
        -*) fail "no such option: $1" ;;
        *) chosen+=("$1") ;;
    esac
    shift
done

declare -A machines=()
order=()
((${#chosen[@]} > 0)) || mapfile -t chosen < <(find "$lab/scenarios" -name '*.sh' -printf '%f\n' | sed 's/\.sh$//' | sort)
for name in "${chosen[@]}"; do
    about "$name"
    if [[ $selection == list ]]; then
        printf '%-16s %-4s %s\n' "$name" "${ci/no/}" "$title"
        continue
    fi
    [[ $selection != ci || $ci == yes ]] || continue
    [[ -v machines[$boot] ]] || order+=("$boot")
    machines[$boot]+=" $name"
done
[[ $selection != list ]] || exit 0

install_packages "${packages_lab[@]}"
program=$folder/bin/quorvex-cli
[[ -x $program ]] || fail "$program is missing: cmake --preset dev && ninja -C build/dev quorvex-cli"
provide_kernel
mkdir -p "$lab_folder"
: >"$lab_folder/results"
for name in "${order[@]}"; do
    # shellcheck disable=SC2086  # names of scenarios are words
    boot "$name" ${machines[$name]}
    cat "$work/results" >>"$lab_folder/results"
done

failed=$(grep -c '^FAILED' "$lab_folder/results" || true)
printf '\n%d checks, %d failed, %d machines, %d s\n' "$(wc -l <"$lab_folder/results")" "$failed" "${#order[@]}" "$SECONDS"
((failed == 0)) || {
    grep '^FAILED' "$lab_folder/results"
    exit 1
}
