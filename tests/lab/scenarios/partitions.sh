# shellcheck shell=bash
# Drives whose partitions have mounted file systems, through their volumes and as a whole.
# shellcheck disable=SC2034,SC2154
title="mounted partitions with vfat, ntfs, ext4, xfs and btrfs, with and without --whole" ci=yes
mib=$((1 << 20))
systems_of_first=(vfat ntfs ext4)
systems_of_second=(xfs btrfs)

drives() {
    drive scsi first $((16 * mib))
    partitions first $((4 * mib)) $((3 * mib)) $((5 * mib))
    drive scsi second $((40 * mib))
    partitions second $((20 * mib)) $((16 * mib))
}

make_file_system() {
    case $1 in
        vfat) mkfs.vfat "$2" ;;
        ntfs) mkntfs -Q -F "$2" ;;
        ext4) mke2fs -t ext4 -F "$2" ;;
        xfs) mkfs.xfs --unsupported -f "$2" ;;
        btrfs) mkfs.btrfs --mixed -f "$2" ;;
    esac
}

# mount_all NAME FILE-SYSTEM...: every partition, with a file on it.
mount_all() {
    local name=$1 number=0 system folder
    shift
    for system in "$@"; do
        number=$((number + 1))
        folder=/run/lab/mnt/$name-$system
        mkdir -p "$folder"
        quietly make_file_system "$system" "$(node "$name")$number"
        quietly mount -t "${driver_of[$system]:-$system}" "$(node "$name")$number" "$folder"
        echo "QUORVEX-LAB a file" >"$folder/file"
    done
    sync
}

nothing_mounted() {
    ! grep "^$(node "$1")" /proc/mounts
}

guest() {
    local name systems left said
    declare -A driver_of=([ntfs]=ntfs-3g)
    quietly modprobe -a vfat nls_cp437 nls_ascii nls_utf8 fuse ext4 xfs btrfs
    for name in first second; do
        declare -n systems=systems_of_$name
        outside refill "$name"
        outside partitions_again "$name"
        quietly blockdev --rereadpt "$(node "$name")"
        mount_all "$name" "${systems[@]}"
        wipe "$name"
        check "$name, through its volumes: partly done" exits_with 1
        check "$name, through its volumes: the outcome is told" result_is outcome partial
        check "$name, through its volumes: the kind is told" says '"kind":"only-volumes"'
        left=$(outside others "$name" 00)
        said=$(result bytes)
        check "$name, through its volumes: what is said to stay ($said) is what stays ($left)" test "$said" = "$left"
        check "$name, through its volumes: no partition has any byte left" outside partitions_are_empty "$name"

        mount_all "$name" "${systems[@]}"
        wipe "$name" --whole
        check "$name, as a whole: complete" exits_with 0
        check "$name, as a whole: every byte 0x00" outside all_bytes "$name" 00
        check "$name, as a whole: nothing is mounted" nothing_mounted "$name"
    done
}

# On the host.

sizes_of() {
    case $1 in
        first) echo $((4 * mib)) $((3 * mib)) $((5 * mib)) ;;
        second) echo $((20 * mib)) $((16 * mib)) ;;
    esac
}

partitions_again() {
    # shellcheck disable=SC2046  # sizes are words
    medium table "$1" $(sizes_of "$1")
}

partitions_are_empty() {
    local start=$mib size
    for size in $(sizes_of "$1"); do
        all_bytes "$1" 00 "$start" $((start + size))
        start=$((start + size + mib))
    done
}
