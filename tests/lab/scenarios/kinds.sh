# shellcheck shell=bash
# Every kind of drive, erased; and what is no drive.
# shellcheck disable=SC2034,SC2154
title="every kind of drive by three methods; what is no drive is never listed" ci=yes boot=kinds
kinds=(nvme nvme4k hdd ssd scsi scsi4k odd usb sd virtio)
no_drives=(cd floppy)
# What each method leaves, and its passes.
leaves=("all_bytes 00" is_random is_random "all_bytes AA" is_random)
passes=(1 2 7 7 35)
# With constants and random bytes; the others are in all-methods.
numbers=(0 1 3)

drives() {
    local size=$((1 << 20)) kind
    for kind in "${kinds[@]}"; do
        case $kind in
            odd) drive scsi odd $((size + 512)) ;;
            *) drive "$kind" "$kind" "$size" ;;
        esac
    done
    drive cd cd "$size"
    drive floppy floppy $((1440 << 10))
}

by_every_method() {
    local kind number size expected
    for kind in "$@"; do
        size=$(blockdev --getsize64 "$(node "$kind")")
        for number in "${numbers[@]}"; do
            outside refill "$kind"
            # Reading back takes most of the time; the whole medium is compared from outside.
            wipe "$kind" --method "$number" --samples $((number == 0 ? 1000 : 50))
            check "$kind, method $number: complete" exits_with 0
            check "$kind, method $number: passes written: ${passes[number]}" result_is written $((size * passes[number]))
            read -ra expected <<<"${leaves[number]}"
            check "$kind, method $number: ${leaves[number]}" outside "${expected[0]}" "$kind" "${expected[@]:1}"
        done
    done
}

# What the kernel calls a block device and nobody a drive.
make_devices() {
    modprobe -a zram raid0
    echo 1M >/sys/block/zram0/disksize
    truncate -s 4M /run/lab/part1 /run/lab/part2
    losetup /dev/loop0 /run/lab/part1
    losetup /dev/loop1 /run/lab/part2
    mdadm --build /dev/md9 --level=0 --raid-devices=2 /dev/loop0 /dev/loop1
    dmsetup create lab_linear --table "0 2048 linear $(node virtio) 0"
}

guest() {
    local kind device
    quietly make_devices
    quorvex disks
    for kind in "${kinds[@]}"; do
        check "$kind: listed" says " $(node "$kind")"
    done
    for device in $(node cd) $(node floppy) /dev/zram0 /dev/md9 /dev/dm-0 /dev/mapper/lab_linear; do
        check "$device: there" test -b "$device"
        # The refusal before it has replaced the list.
        quorvex disks
        check "$device: not listed" does_not_say "$device"
        quorvex wipe disk "$device" --yes
        check "$device: refused" exits_with 3
    done
    check "CD and floppy: as they were" outside unchanged "${no_drives[@]}"
    quietly dmsetup remove lab_linear
    quietly mdadm --stop /dev/md9
    quietly losetup -D

    # Two at a time, for two processors.
    by_every_method nvme hdd scsi odd sd &
    by_every_method nvme4k ssd scsi4k usb virtio
    wait $!
}
