# shellcheck shell=bash
# Drives whose sectors cannot be written or read, that cannot flush, and that have no room below them.
# shellcheck disable=SC2034,SC2154
title="write, read and flush errors at the first, middle and last sector; no room below a thin drive"
failing=(write-first write-middle write-last read flush room)

drives() {
    local name rules
    for name in "${failing[@]}"; do
        rules=$media/$scenario.$name.rules
        case $name in
            write-first) error_rules "$rules" write 5 0 ;;
            write-middle) error_rules "$rules" write 5 2048 ;;
            write-last) error_rules "$rules" write 5 4095 ;;
            # Many, so that samples reach them.
            read) mapfile -t bad < <(seq 2000 2600) && error_rules "$rules" read 5 "${bad[@]}" ;;
            flush) error_rules "$rules" flush 5 any ;;
            room) error_rules "$rules" write 28 3000 ;;
        esac
        drive scsi "$name" $((2 << 20)) rules="$rules"
    done
}

fails() {
    check "$1: fails" exits_with 1
    check "$1: the outcome is told" result_is outcome failed
    check "$1: the report is no success" does_not_say '"success":true'
    quorvex --json reports list
    check "$1: no success on record" does_not_say '"status":3'
}

guest() {
    local name bad
    for name in "${failing[@]}"; do
        wipe "$name"
        fails "$name"
        case $name in
            write-* | room) check "$name: some old content is left" outside has_markers "$name" ;;
        esac
    done
    # A drive that can be written everywhere, and not be read everywhere.
    quietly modprobe scsi_debug dev_size_mb=8 opts=2 medium_error_start=4096 medium_error_count=4000
    until bad=$(grep -l scsi_debug /sys/block/*/device/model); do
        sleep 0.2
    done
    bad=${bad#/sys/block/}
    quorvex --json wipe disk "/dev/${bad%%/*}" --yes
    fails "medium errors"
}
