# shellcheck shell=bash
# A system behind LVM and LUKS: its drive is refused while it runs, and is any other drive for a live system.
# shellcheck disable=SC2034,SC2154
title="the drive of the running system behind LVM and LUKS; the same drive seen from a live system" ci=yes

drives() {
    drive scsi inner $((16 << 20))
    drive scsi other $((2 << 20))
}

# The inner system has the programs of the outer one; its root is the volume.
make_system() {
    local entry
    echo secret >/run/lab/secret
    modprobe -a dm_crypt aes_generic xts ecb cbc sha256_generic algif_skcipher algif_hash
    cryptsetup luksFormat -q --type luks1 --pbkdf-force-iterations 1000 "$(node inner)" /run/lab/secret
    cryptsetup open --key-file /run/lab/secret "$(node inner)" inner
    vgcreate -s 1m --zero n inner /dev/mapper/inner
    lvcreate -y -Zn -Wn --noudevsync -l 100%FREE -n root inner
    vgmknodes inner
    mke2fs -t ext4 -F -E lazy_itable_init=0,lazy_journal_init=0 /dev/inner/root
    mkdir -p /run/lab/inner
    # Nothing but an erasure may write to it.
    mount -o noatime /dev/inner/root /run/lab/inner
    mkdir -p /run/lab/inner/{outer,proc,sys,dev,run,tmp}
    for entry in /*; do
        [[ -e /run/lab/inner$entry ]] || ln -s "outer$entry" "/run/lab/inner$entry"
    done
    # Only of this system: what it does not mount itself, it does not see.
    mount --bind / /run/lab/inner/outer
    for entry in proc sys dev run tmp; do
        mount --bind "/$entry" "/run/lab/inner/$entry"
    done
}

leave_system() {
    umount /run/lab/inner/{outer,proc,sys,dev,run,tmp}
    umount /run/lab/inner
    vgchange --noudevsync -an inner
    cryptsetup close inner
}

guest() {
    local outer=$program way
    quietly make_system
    printf '#!/bin/sh\nexec chroot /run/lab/inner %s "$@"\n' "$outer" >/run/lab/inside
    chmod +x /run/lab/inside
    sync
    sleep 1
    outside remember inner
    program=/run/lab/inside
    for way in "" --whole; do
        wipe inner $way
        check "from the system on it${way:+, as a whole}: refused" exits_with 3
        check "from the system on it${way:+, as a whole}: as a system disk" says "is a system disk"
        check "from the system on it${way:+, as a whole}: nothing touched" outside unchanged inner other
    done
    wipe other
    check "another drive, from the same system: complete" exits_with 0
    check "another drive: every byte 0x00" outside all_bytes other 00
    program=$outer

    wipe inner
    check "from a live system that has opened it: refused" exits_with 3
    check "from a live system that has opened it: the holder is told" says LUKS
    check "from a live system that has opened it: nothing touched" outside unchanged inner
    quietly leave_system
    wipe inner
    check "from a live system that has not: complete" exits_with 0
    check "from a live system that has not: every byte 0x00" outside all_bytes inner 00
}
