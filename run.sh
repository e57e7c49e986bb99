#!/usr/bin/env bash
# From a fresh Debian 12 to a finished job: installs what is missing, builds, and does the main job once.
# shellcheck source=scripts/lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/scripts/lib.sh"

cli=$root/build/release/bin/quorvex-cli
folder=$root/build/practice
image=$folder/practice-disk.img
data=$folder/data
report=$folder/report.json
certificate=$folder/certificate.pdf
size=$((256 * 1024 * 1024))
marker='Quorvex practice disk: none of this text may be left.'

usage() {
    cat <<'TEXT'
Usage: ./run.sh [JOB]

Installs missing packages, builds the preset "release" into build/release and runs one job:

  desktop    (what runs where there is a display) starts the desktop program; the only drive it sees is a practice
             disk, an image file of 256 MiB full of text
  practice   (what runs where there is none) makes that image file of 256 MiB full of text, lets quorvex-cli erase
             it as a drive with "NIST 800-88", checks every byte of it without quorvex-cli, and shows the report
             that was stored and the certificate as PDF

Only build/practice is written to. No drive of this computer is listed, opened or changed.
TEXT
}

build_program() {
    install_packages "${packages_build[@]}" "${packages_fonts[@]}"
    build release --target "$1"
}

marker_lines() {
    # grep ends with 1 when there are none, which is an answer here.
    grep -acF "$marker" "$image" || (($? == 1))
}

make_practice_disk() {
    local before
    rm -rf "$folder"
    mkdir -p "$folder"
    head -c "$size" < <(yes "$marker") >"$image"
    before=$(marker_lines)
    ((before > 0)) || fail "the practice disk was not filled"
    printf '%s: %d bytes, the text stands in it %d times\n' "$image" "$(stat -c %s "$image")" "$before"
}

# The number of the one drive there is.
practice_number() {
    local numbers
    mapfile -t numbers < <("$cli" --json --only-images --image "$image" disks |
        grep -oE '"diskNumber": *"?[0-9]+' | grep -oE '[0-9]+$')
    ((${#numbers[@]} == 1)) || fail "expected exactly one drive, the practice disk; found ${#numbers[@]}"
    echo "${numbers[0]}"
}

erase_practice_disk() {
    local number
    "$cli" --only-images --image "$image" disks
    number=$(practice_number)
    "$cli" --only-images --image "$image" --data-dir "$data" \
        wipe disk "$number" --method "NIST 800-88" --report "$report" --pdf "$certificate" --yes
    [[ -s $report ]] || fail "no report was written to $report"
    [[ $(head -c 5 "$certificate") == %PDF- ]] || fail "no certificate was written to $certificate"
}

check_practice_disk() {
    local now
    now=$(stat -c %s "$image")
    ((now == size)) || fail "the practice disk is now $now bytes long, not $size"
    cmp -n "$size" "$image" /dev/zero || fail "bytes of the practice disk were left"
    [[ $(marker_lines) == 0 ]] || fail "text of the practice disk was left"
    printf 'Every one of the %d bytes is 0x00 (compared by cmp), and the text is found 0 times.\n' "$size"
}

show_records() {
    "$cli" --data-dir "$data" reports list
    "$cli" --data-dir "$data" check "$report"
}

practice_job() {
    step "practice disk" make_practice_disk
    step "erase" erase_practice_disk
    step "independent check" check_practice_disk
    step "records" show_records
    printf '\nErased and checked.\n'
    printf '  %-12s %s\n' image: "$image" report: "$report" certificate: "$certificate" database: "$data/quorvex.db"
    printf 'The stored report: %s --data-dir %s reports list\n' "$cli" "$data"
}

desktop_job() {
    step "practice disk" make_practice_disk
    printf '\nThe desktop program sees one drive, the practice disk %s.\n' "$image"
    # Reports and settings of practice are not the user's.
    XDG_DATA_HOME=$data XDG_CONFIG_HOME=$folder/config QUORVEX_ONLY_IMAGE_DISKS=1 QUORVEX_IMAGE_DISKS=$image \
        "$root/build/release/bin/quorvex"
}

job=practice
[[ -z ${DISPLAY:-}${WAYLAND_DISPLAY:-} ]] || job=desktop
job=${1:-$job}
case $job in
    -h | --help)
        usage
        exit 0
        ;;
    desktop | practice) ;;
    *) fail "no such job: '$job'; see ./run.sh --help" ;;
esac

declare -A programs=([practice]=quorvex-cli [desktop]=quorvex)
step "build (release)" build_program "${programs[$job]}"
"${job}_job"
