# shellcheck shell=bash
# Members of md, LVM, LUKS, btrfs and swap: refused while they are in use, complete afterwards, and no other drive is touched.
# shellcheck disable=SC2034,SC2154
title="members of md, LVM, LUKS and btrfs, and swap: refused or complete, no other drive touched" ci=yes
mib=$((1 << 20))
all=(mirror1 mirror2 stripe1 stripe2 single span1 span2 locked swap pool1 pool2)

drives() {
    local name
    for name in "${all[@]}"; do
        case $name in
            pool*) drive scsi "$name" $((20 * mib)) ;;
            *) drive scsi "$name" $((8 * mib)) ;;
        esac
    done
}

# What is on every drive now, once nobody writes any more.
settle() {
    sync
    sleep 1
    outside remember_all
}

# refuses TEXT NAME HOLDER [WAY]: a job on the drive, by default in both ways, names what holds it.
refuses() {
    local way ways=("" --whole)
    (($# == 3)) || ways=("$4")
    for way in "${ways[@]}"; do
        wipe "$2" ${way:+"$way"}
        check "$1${way:+, as a whole}: refused" exits_with 3
        check "$1${way:+, as a whole}: the reason is told" says "$3"
        check "$1${way:+, as a whole}: no drive touched" outside unchanged "${all[@]}"
    done
}

# completes TEXT NAME
completes() {
    wipe "$2"
    check "$1: complete" exits_with 0
    check "$1: every byte 0x00" outside all_bytes "$2" 00
    check "$1: no other drive touched" outside unchanged_but "$2"
    outside remember "$2"
}

array() {
    mdadm --create "/dev/$1" --run --metadata=1.2 --homehost=any --level="$2" --raid-devices=2 "$(node "$3")" "$(node "$4")"
}

volume_group() {
    local name=$1
    shift
    vgcreate -s 1m --zero n "$name" "$@" && lvcreate -y -Zn -Wn --noudevsync -l 100%FREE -n volume "$name" && vgmknodes "$name"
}

ext4_on() {
    mke2fs -t ext4 -F -E lazy_itable_init=0,lazy_journal_init=0 "$1" && mkdir -p "/run/lab/mnt/$2" && mount "$1" "/run/lab/mnt/$2"
}

raid() {
    quietly modprobe -a raid1 raid0 ext4
    quietly array md0 1 mirror1 mirror2
    quietly array md1 0 stripe1 stripe2
    quietly ext4_on /dev/md0 mirror
    quietly ext4_on /dev/md1 stripe
    settle
    refuses "mirror, mounted" mirror1 md0
    refuses "stripe, mounted" stripe2 md1
    quietly umount /run/lab/mnt/mirror /run/lab/mnt/stripe
    settle
    refuses "mirror, active" mirror2 md0 --whole
    refuses "stripe, active" stripe1 md1 --whole
    quietly mdadm --stop /dev/md0 /dev/md1
    settle
    completes "mirror, stopped" mirror1
    completes "stripe, stopped" stripe2
}

lvm() {
    quietly volume_group one "$(node single)"
    quietly volume_group two "$(node span1)" "$(node span2)"
    quietly ext4_on /dev/one/volume one
    quietly ext4_on /dev/two/volume two
    settle
    refuses "LVM on one drive, mounted" single LVM
    refuses "LVM on two drives, mounted" span2 two
    quietly umount /run/lab/mnt/one /run/lab/mnt/two
    settle
    refuses "LVM on one drive, active" single LVM --whole
    refuses "LVM on two drives, active" span1 two --whole
    quietly vgchange --noudevsync -an one two
    settle
    completes "LVM on one drive, inactive" single
    completes "LVM on two drives, inactive" span1
}

luks() {
    local secret=/run/lab/secret
    echo secret >"$secret"
    quietly modprobe -a dm_crypt aes_generic xts ecb cbc sha256_generic algif_skcipher algif_hash
    quietly cryptsetup luksFormat -q --type luks1 --pbkdf-force-iterations 1000 "$(node locked)" "$secret"
    quietly cryptsetup open --key-file "$secret" "$(node locked)" opened
    quietly ext4_on /dev/mapper/opened opened
    settle
    refuses "LUKS, mounted" locked LUKS
    quietly umount /run/lab/mnt/opened
    settle
    refuses "LUKS, open" locked LUKS --whole
    quietly cryptsetup close opened
    settle
    completes "LUKS, closed" locked
}

swap_space() {
    quietly mkswap "$(node swap)"
    quietly swapon "$(node swap)"
    settle
    refuses "swap, in use" swap "system disk"
    quietly swapoff "$(node swap)"
    settle
    completes "swap, not in use" swap
}

pool() {
    quietly modprobe btrfs
    quietly mkfs.btrfs --mixed -f -d single -m single "$(node pool1)" "$(node pool2)"
    # What udev does elsewhere.
    quietly btrfs device scan "$(node pool1)" "$(node pool2)"
    mkdir -p /run/lab/mnt/pool
    quietly mount "$(node pool1)" /run/lab/mnt/pool
    settle
    refuses "btrfs on two drives, mounted" pool2 /run/lab/mnt/pool
    quietly umount /run/lab/mnt/pool
    settle
    completes "btrfs on two drives, not mounted" pool1
}

guest() {
    raid
    lvm
    luks
    swap_space
    pool
}

# On the host.

remember_all() {
    local name
    for name in "${all[@]}"; do
        remember "$name"
    done
}

unchanged_but() {
    local name
    for name in "${all[@]}"; do
        [[ $name == "$1" ]] || unchanged "$name"
    done
}
