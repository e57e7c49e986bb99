# shellcheck shell=bash
# Between the question and the word ERASE the drive is pulled, and another one gets its number.
# shellcheck disable=SC2034,SC2154
title="another drive in the place of the chosen one between the question and ERASE" ci=yes

drives() {
    local name
    for name in chosen second third; do
        drive none "$name" $((2 << 20))
    done
}

# A drive with that serial number on that node.
is_there() {
    local attempt name
    for attempt in {1..300}; do
        LC_ALL=C read -r -n 60 _ name _ 2>/dev/null <"$1" && [[ $name == "$scenario/$2" ]] && return 0
        sleep 0.2
    done
    echo "$2 is not at $1 after $attempt attempts"
    return 1
}

# exchange KIND NEW SERIAL TEXT: asks, exchanges, types the word; sets $status.
exchange() {
    local kind=$1 replacement=$2 serial=$3 place new asking keys
    [[ $kind == usb ]] && place='' || place='"scsi-id": 250, "lun": 0'
    outside refill chosen
    outside refill "$replacement"
    new=$(plugged "$kind" chosen CHOSEN "$place")
    out=/run/lab/out.$BASHPID
    err=/run/lab/err.$BASHPID
    rm -f /run/lab/keys
    mkfifo /run/lab/keys
    # A terminal of its own; the question is for people only.
    TERM=dumb script -qec "$program --data-dir $data wipe disk $new" /dev/null </run/lab/keys >"$out" 2>"$err" &
    asking=$!
    exec {keys}>/run/lab/keys
    appears "Type ERASE" "$out"
    unplug chosen "$new"
    outside plug "$kind" "$replacement" "$serial" "$place"
    check "$kind, $4: the other drive has the name of the chosen one" is_there "$new" "$replacement"
    echo ERASE >&"$keys"
    status=0
    wait "$asking" || status=$?
    exec {keys}>&-
    check "$kind, $4: refused" exits_with 3
    check "$kind, $4: neither drive touched" outside unchanged chosen "$replacement"
    unplug "$replacement" "$new"
}

guest() {
    exchange scsi second OTHER "same model and size, another serial number"
    outside forget chosen
    exchange usb third OTHER "same model and size, another serial number"
}
