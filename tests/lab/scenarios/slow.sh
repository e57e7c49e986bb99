# shellcheck shell=bash
# A job on a slow drive is stopped.
# shellcheck disable=SC2034,SC2154
title="a slow drive, stopped in the middle of a pass"

drives() {
    drive scsi snail $((8 << 20)) throttle=1000000
}

is_free() {
    python3 -c 'import os, sys; os.open(sys.argv[1], os.O_RDONLY | os.O_EXCL)' "$1"
}

guest() {
    local running place
    place=$(node snail)
    out=/run/lab/out.$BASHPID
    err=/run/lab/err.$BASHPID
    : >"$out"
    "$program" --data-dir "$data" --json wipe disk "$place" --yes --method 3 --buffer-mb 1 >"$out" 2>"$err" &
    running=$!
    quietly appears '"event":"progress"' "$out"
    kill -TERM "$running"
    status=0
    wait "$running" || status=$?
    check "stopped: the exit code tells it" exits_with 4
    check "stopped: the outcome is told" result_is outcome cancelled
    check "stopped: nobody holds the drive" is_free "$place"
    quorvex --json reports list
    check "stopped: no success on record" does_not_say '"status":3'
    check "stopped: old content is left, as is told" outside has_markers snail
}
