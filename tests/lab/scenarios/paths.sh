# shellcheck shell=bash
# One drive with two paths, mounted by the other one; a read-only drive.
# shellcheck disable=SC2034,SC2154
title="two paths to one drive, and a read-only drive"

drives() {
    local both=(wwn=0x5000c50015ea71aa serial=ONEUNIT share-rw=on)
    drive scsi path1 $((8 << 20)) "${both[@]}"
    partitions path1 $((6 << 20))
    drive scsi path2 $((8 << 20)) path=path1 "${both[@]}"
    drive scsi readonly $((2 << 20))
}

guest() {
    local nodes first second way
    blockdev --setro "$(node readonly)"
    for way in "" --whole; do
        wipe readonly $way
        check "read-only${way:+, as a whole}: refused" exits_with 3
        check "read-only${way:+, as a whole}: told" says "read-only"
        check "read-only${way:+, as a whole}: untouched" outside unchanged readonly
    done

    # Both paths have the markers of the first one.
    mapfile -t nodes < <(sed -n "s|^$scenario/path1 ||p" /run/lab/nodes)
    first=${nodes[0]}
    second=${nodes[1]}
    quietly modprobe ext4
    quietly mke2fs -t ext4 -F "${second}1"
    mkdir -p /run/lab/mnt/unit
    quietly mount "${second}1" /run/lab/mnt/unit
    echo "QUORVEX-LAB a file" >/run/lab/mnt/unit/file
    sync
    for way in "" --whole; do
        quorvex --json wipe disk "$first" --yes $way
        echo "written after the job" >/run/lab/mnt/unit/late || true
        quietly umount /run/lab/mnt/unit || true
        check "mounted by the other path${way:+, as a whole}: refused, or nothing is left" refused_or_empty
        mount "${second}1" /run/lab/mnt/unit || true
    done
}

refused_or_empty() {
    exits_with 3 >/dev/null || outside all_bytes path1 00 || {
        last_words
        return 1
    }
}
