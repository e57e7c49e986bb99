# shellcheck shell=bash
# A job, the moment at which the power fails, and what the next start finds; for the scenarios that cut the power.
#
# The machine stands still while its media are copied, and goes on; the copies are then what a drive would hold.
# shellcheck disable=SC2154  # from guest.sh and machine.sh

power_drives() {
    drive scsi home $((16 << 20))
    drive scsi target $((4 << 20)) throttle=1000000
    drive scsi volume $((24 << 20)) throttle=4000000
    drive none home-then $((16 << 20))
    drive none target-then $((4 << 20))
    drive none volume-then $((24 << 20))
}

prepare_power() {
    modprobe ext4
    mke2fs -t ext4 -F "$(node home)"
    mke2fs -t ext4 -F -E lazy_itable_init=0,lazy_journal_init=0 "$(node volume)"
    mkdir -p /run/lab/mnt/{home,volume,then}
    mount "$(node home)" /run/lab/mnt/home
    mount "$(node volume)" /run/lab/mnt/volume
}

put_files() {
    local number
    mkdir -p /run/lab/mnt/volume/files
    for number in {1..24}; do
        yes "QUORVEX-LAB $number" | head -c 200000 >"/run/lab/mnt/volume/files/$number"
    done
    sync
}

job() {
    case $1 in
        disk) echo "disk $(node target)" ;;
        free) echo "free /run/lab/mnt/volume" ;;
        files) echo "files /run/lab/mnt/volume/files" ;;
    esac
}

is_whole_database() {
    python3 - "$1" <<'END'
import glob, sqlite3, sys
for name in glob.glob(sys.argv[1] + "/**/*.db", recursive=True):
    answer = sqlite3.connect(name).execute("PRAGMA integrity_check").fetchone()[0]
    sys.exit(None if answer == "ok" else answer)
sys.exit("no database")
END
}

no_left_overs() {
    ! find /run/lab/mnt/then -path '*.quorvex_temp_*' -type f | grep .
}

# power_fails JOB PATTERN TEXT: the power fails as soon as the job prints that.
power_fails() {
    local kind=$1 text="$1, $3" running home medium words
    [[ $kind == disk ]] && medium=target || medium=volume
    [[ $kind != files ]] || quietly put_files
    [[ $kind != disk ]] || outside refill target
    read -ra words <<<"$(job "$kind")"
    out=/run/lab/out.$BASHPID
    err=/run/lab/err.$BASHPID
    : >"$out"
    "$program" --data-dir /run/lab/mnt/home/data --json wipe "${words[@]}" --yes --method 1 >"$out" 2>"$err" &
    running=$!
    appears "$2" "$out"
    outside cut_power home home-then "$medium" "$medium-then"
    check "$text: the job was still at work" does_not_say '"event":"finished"'
    wait "$running" || true

    home=$(plugged scsi home-then HOME)
    quietly mount "$home" /run/lab/mnt/then
    check "$text: the database is whole" is_whole_database /run/lab/mnt/then
    status=0
    "$program" --data-dir /run/lab/mnt/then/data --json reports list --limit 1000 >"$out" 2>"$err" || status=$?
    check "$text: the database opens" exits_with 0
    check "$text: no more on record than before" test "$(records_in "$out")" = "$recorded"
    quietly umount /run/lab/mnt/then
    take_back home-then "$home"
    [[ $status != 0 ]] || next_job "$kind" "$text"
    recorded=$(count_records)
}

# What the next start makes of the medium.
next_job() {
    local kind=$1 text=$2 medium=volume place
    [[ $kind != disk ]] || medium=target
    place=$(plugged scsi "$medium-then" THEN)
    if [[ $kind == disk ]]; then
        quorvex --json wipe disk "$place" --yes
        check "$text, next job: complete" exits_with 0
        check "$text, next job: every byte 0x00" outside all_bytes target-then 00
    else
        quietly mount "$place" /run/lab/mnt/then
        if [[ $kind == free ]]; then
            quorvex --json wipe free /run/lab/mnt/then --yes
            check "$text, next job: ends without an error" not_failed
            check "$text, next job: nothing of the first one left" no_left_overs
        elif [[ -d /run/lab/mnt/then/files ]]; then
            quorvex --json wipe files /run/lab/mnt/then/files --yes
            check "$text, next job: ends without an error" not_failed
        fi
        quietly umount /run/lab/mnt/then
        if [[ $kind == files ]]; then
            check "$text, next job: no block of a file left" test "$(outside markers_of_files volume-then)" = 0
        fi
    fi
    take_back "$medium-then" "$place"
}

not_failed() {
    result_is outcome complete || result_is outcome partial
}

take_back() {
    unplug "$1" "$2"
    outside forget "$1"
}

# Successes in the answer of "reports list".
records_in() {
    { grep -o '"status":3' "$1" || true; } | wc -l
}

count_records() {
    "$program" --data-dir /run/lab/mnt/home/data --json reports list --limit 1000 >/run/lab/records 2>/dev/null || true
    records_in /run/lab/records
}

# On the host: "QUORVEX-LAB 1", not the markers with which every drive begins.
markers_of_files() {
    { grep -a -o -E 'QUORVEX-LAB [0-9]+$' "$(image "$1")" || true; } | wc -l
}
