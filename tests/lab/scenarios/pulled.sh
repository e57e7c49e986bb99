# shellcheck shell=bash
# A USB stick is pulled in each phase of a job.
# shellcheck disable=SC2034,SC2154
title="a USB stick pulled before the first write, in each pass and while reading back"
phases=('"event":"started"' '"event":"pass","pass":1' '"event":"pass","pass":2' '正在验证')

drives() {
    local phase
    for phase in "${!phases[@]}"; do
        drive usb "stick$phase" $((2 << 20)) throttle=1000000
    done
}

guest() {
    local phase running place
    for phase in "${!phases[@]}"; do
        place=$(node "stick$phase")
        out=/run/lab/out.$BASHPID
        err=/run/lab/err.$BASHPID
        : >"$out"
        "$program" --data-dir "$data" --json wipe disk "$place" --yes --method 1 >"$out" 2>"$err" &
        running=$!
        quietly appears "${phases[phase]}" "$out"
        unplug "stick$phase" "$place"
        status=0
        wait "$running" || status=$?
        check "phase $phase: fails" exits_with 1
        check "phase $phase: the outcome is told" result_is outcome failed
        check "phase $phase: the report is no success" does_not_say '"success":true'
        quorvex --json reports list
        check "phase $phase: no success on record" does_not_say '"status":3'
    done
}
