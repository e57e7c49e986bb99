# shellcheck shell=bash
# What runs inside the laboratory's machine, as root in a copy of the host's root; only to be sourced, by the script that
# the host leaves for the machine.
share=/run/lab/share

# Loads the drivers of all kinds of drives, and waits until every declared drive is there.
prepare_machine() {
    mkdir -p /lib/modules /run/lab/mnt
    # shellcheck disable=SC2154  # from the script of the host
    mkdir -p "/lib/modules/${modules##*/}"
    mount --bind "$modules" "/lib/modules/${modules##*/}"
    echo 0 >/proc/sys/kernel/printk
    ln -sf /proc/self/fd /dev/fd
    mkdir -p /dev/pts /dev/shm
    mount -t devpts devpts /dev/pts
    local driver
    for driver in virtio_console virtio_scsi sd_mod sr_mod ahci nvme xhci_pci usb_storage sdhci_pci mmc_block floppy loop \
        dm_mod; do
        # Without such a drive some drivers refuse; what is missing is noticed by the drives that do not appear.
        modprobe -q "$driver" || true
    done
    # Programs of LVM and LUKS wait for udev otherwise.
    export DM_DISABLE_UDEV=1
    # Only one process can open the way to the host, and all others inherit it.
    exec {talk}<>"$(echo /dev/vport*)"
    export talk
    find_drives
}

# The first sector of a medium tells which drive it is: lines "scenario/drive /dev/node" in /run/lab/nodes.
find_drives() {
    local attempt device mark name missing=
    for attempt in {1..20}; do
        : >/run/lab/nodes
        for device in /sys/block/*; do
            device=/dev/${device##*/}
            [[ $device != /dev/loop* && -b $device ]] || continue
            LC_ALL=C read -r -n 60 mark name _ 2>/dev/null <"$device" || true
            [[ $mark != QUORVEX-LAB ]] || echo "$name $device" >>/run/lab/nodes
        done
        missing=$(cut -d ' ' -f 1 /run/lab/nodes | sort -u | comm -13 - <(sort -u "$share/drives"))
        [[ -n $missing ]] || return 0
        sleep 0.5
    done
    echo "drives that did not appear in $attempt attempts: $missing"
}

# run_scenarios NAME...: each in a process of its own.
run_scenarios() {
    prepare_machine
    # shellcheck disable=SC2154  # from the script of the host
    export lab program share
    for scenario in "$@"; do
        echo "scenario $scenario"
        scenario=$scenario bash -c 'source "$lab/guest.sh"; run_scenario'
    done
    sync
}

run_scenario() {
    set -eEuo pipefail
    shopt -s inherit_errexit
    data=/run/lab/data-$scenario
    told=/run/lab/told-$scenario
    : >"$told"
    # shellcheck source=/dev/null
    source "$lab/scenarios/$scenario.sh"
    trap 'tell FAILED "reaches its end" "line $LINENO: $BASH_COMMAND: $(last_step)"' ERR
    guest
    trap - ERR
    printf 'end\t%s\t%s\n' "$scenario" "$(stat -c %s "$told")" >&"$talk"
}

# tell RESULT TEXT [DETAIL]: to the host.
tell() {
    # One byte for each line, to be counted.
    printf . >>"$told"
    printf 'tell\t%s\t%s\t%s\t%s\n' "$1" "$scenario" "$2" "${3:-}" >&"$talk"
}

# check TEXT COMMAND...: a line in the result.
check() {
    local text=$1 detail
    shift
    if detail=$("$@" 2>&1); then
        tell ok "$text"
    else
        detail=${detail//$'\n'/; }
        tell FAILED "$text" "${detail:0:600}"
    fi
}

# Steps of preparation, whose words are only of interest when they fail.
quietly() {
    "$@" >"/run/lab/step.$$" 2>&1
}

last_step() {
    tail -c 300 "/run/lab/step.$$" 2>/dev/null | tr '\n\t' '; ' || true
}

# outside COMMAND...: a command of the host, see machine.sh. One at a time, also of a scenario that does two things at once.
outside() {
    local turn status count line words
    printf -v words '\t%s' "$scenario" "$@"
    exec {turn}>/run/lab/turn
    flock "$turn"
    printf 'ask%s\n' "$words" >&"$talk"
    read -r status count <&"$talk"
    while ((count-- > 0)); do
        IFS= read -r line <&"$talk"
        echo "$line"
    done
    exec {turn}>&-
    return "$status"
}

node() {
    local found
    found=$(sed -n "s|^$scenario/$1 ||p" /run/lab/nodes | head -n 1)
    [[ -n $found ]] || {
        echo "no drive $scenario/$1" >&2
        return 1
    }
    echo "$found"
}

# The program under test: exit code in $status, what it printed in the files $out and $err.
quorvex() {
    status=0
    out=/run/lab/out.$BASHPID
    err=/run/lab/err.$BASHPID
    "$program" --data-dir "$data" "$@" >"$out" 2>"$err" || status=$?
}

# wipe NAME [OPTION...]: a drive of this scenario, without the question.
wipe() {
    local name=$1
    shift
    quorvex --json wipe disk "$(node "$name")" --yes "$@"
}

# appears PATTERN FILE: waits for words.
appears() {
    local attempt
    for attempt in {1..600}; do
        ! grep -q -e "$1" "$2" 2>/dev/null || return 0
        sleep 0.1
    done
    echo "no '$1' after $attempt attempts"
    return 1
}

# plugged KIND NAME SERIAL [OPTION]: plugs a medium in and prints the node that it got.
plugged() {
    local before new
    before=$(printf "%s\n" /dev/sd*)
    outside plug "$@" >&2
    until new=$(comm -13 <(echo "$before") <(printf "%s\n" /dev/sd*)) && [[ -n $new ]]; do
        sleep 0.2
    done
    echo "${new%%$'\n'*}"
}

# unplug NAME NODE: and waits until it is gone.
unplug() {
    outside pull "$1"
    while [[ -e $2 ]]; do
        sleep 0.2
    done
}

last_words() {
    tail -n 2 "$out" | cut -c 1-400
    tail -n 2 "$err"
}

exits_with() {
    [[ $status == "$1" ]] || {
        echo "exit code $status"
        last_words
        return 1
    }
}

# result FIELD: a number, truth or text of the last event of a job.
result() {
    tail -n 1 "$out" | sed -nE "s/.*\"$1\":\"?([^\",}]*).*/\1/p"
}

result_is() {
    local value
    value=$(result "$1") || return 1
    [[ $value == "$2" ]] || {
        echo "$1 is $value"
        return 1
    }
}

says() {
    cat "$out" "$err" | grep -F -e "$1" >/dev/null || {
        last_words
        return 1
    }
}

does_not_say() {
    ! cat "$out" "$err" | grep -F -e "$1"
}
