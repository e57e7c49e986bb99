# shellcheck shell=bash
# A drive that says that it wrote and did not.
# shellcheck disable=SC2034,SC2154
title="writes that a drive takes and loses: the read-back notices" ci=yes

drives() {
    drive scsi whole $((4 << 20))
    drive scsi part $((4 << 20))
}

# loses NAME FROM: loses writes from that sector on; no drive, so a loop device, which is one, stands on it.
loses() {
    local device sectors
    device=$(node "$1")
    sectors=$(blockdev --getsz "$device")
    {
        (($2 == 0)) || echo "0 $2 linear $device 0"
        echo "$2 $((sectors - $2)) flakey $device $2 0 86400 1 drop_writes"
    } | dmsetup create "loses_$1"
    losetup --direct-io=on --find --show "/dev/mapper/loses_$1" >/run/lab/loop
}

guest() {
    local name from
    quietly modprobe -a dm_flakey loop
    for name in whole part; do
        from=$([[ $name == whole ]] && echo 0 || echo 6144)
        loses "$name" "$from"
        quorvex --json wipe disk "$(</run/lab/loop)" --yes
        check "$name: fails" exits_with 1
        check "$name: the outcome is told" result_is outcome failed
        check "$name: the report is no success" does_not_say '"success":true'
        quorvex reports list --json
        check "$name: no success on record" does_not_say '"status":3'
        check "$name: the old content is still there" outside has_markers "$name"
        quietly losetup -d "$(</run/lab/loop)"
        quietly dmsetup remove "loses_$name"
    done
}
