# shellcheck shell=bash
# The laboratory's machine as its host sees it: kernel, drives, QEMU, and the answers to what the guest asks. Only to be
# sourced, by scripts/lab.sh.

# shellcheck disable=SC2154  # set by the script that sources this file
lab=$root/tests/lab

# Prints the name of the kernel package that Debian's own kernel package stands for.
kernel_package() {
    LC_ALL=C apt-cache depends linux-image-amd64 2>/dev/null | sed -nE 's/^ *Depends: (linux-image-[0-9].*)$/\1/p' | head -n 1
}

# Fetches the kernel and makes the initial file system, both once: cache/lab-PACKAGE-VERSION/, without installing.
provide_kernel() {
    local package version cache folder home=~
    package=$(kernel_package)
    if [[ -z $package ]]; then
        as_root apt-get update
        package=$(kernel_package)
    fi
    [[ -n $package ]] || fail "apt knows of no kernel package"
    version=$(apt-cache show --no-all-versions "$package" | sed -n 's/^Version: //p')
    cache=${QUORVEX_CACHE:-${XDG_CACHE_HOME:-$home/.cache}/quorvex}
    kernel=$cache/lab-$package-$version
    if [[ ! -d $kernel ]]; then
        mkdir -p "$cache"
        folder=$(mktemp -d "$cache/lab.XXXXXX")
        (
            cd "$folder"
            apt-get download "$package" || { as_root apt-get update && apt-get download "$package"; }
            dpkg-deb -x ./*.deb .
            rm -f ./*.deb
            depmod --basedir . "${package#linux-image-}"
        ) >"$folder/log" 2>&1 || {
            cat "$folder/log" >&2
            rm -rf "$folder"
            fail "the kernel $package could not be fetched"
        }
        chmod 755 "$folder"
        # Another run may have been faster.
        mv -T "$folder" "$kernel" 2>/dev/null || rm -rf "$folder"
    fi
    modules=$kernel/lib/modules/${package#linux-image-}
    provide_initramfs "${package#linux-image-}"
}

# Contains only what mounts the host's root; every other module comes from there.
provide_initramfs() {
    local folder module
    initramfs=$kernel/initramfs-$(cat "$lab/init" "$lab/machine.sh" | sha256sum | cut -c 1-12)
    [[ ! -f $initramfs ]] || return 0
    folder=$(mktemp -d)
    mkdir -p "$folder"/{bin,modules,proc,sys,dev,host,system,machine}
    cp /bin/busybox "$folder/bin"
    cp "$lab/init" "$folder/init"
    # Modules in the order in which they need each other.
    for module in virtio_pci virtio_blk ext4 9pnet_virtio 9p overlay; do
        modprobe --dirname "$kernel" --set-version "$1" --show-depends "$module"
    done | sed -n 's/^insmod \([^ ]*\).*/\1/p' | awk '!seen[$0]++' >"$folder/order"
    while read -r module; do
        cp "$module" "$folder/modules"
    done <"$folder/order"
    sed 's|.*/|/modules/|' "$folder/order" >"$folder/modules/order"
    rm "$folder/order"
    (cd "$folder" && find . | cpio --quiet -o -H newc -R 0:0 | gzip -1) >"$initramfs.$$"
    mv "$initramfs.$$" "$initramfs"
    rm -rf "$folder"
}

# drive KIND NAME BYTES [KEY=VALUE...]: a drive of the scenario that declares it, filled with markers.
#
#   KIND   nvme nvme4k hdd ssd scsi scsi4k usb sd virtio cd floppy; none: a medium that is plugged in later
#   KEYs   throttle=BYTES a second; rules=FILE of errors, see error_rules; path=NAME: another path to that drive, both
#          with share-rw=on; all others are options of the device
drive() {
    local kind=$1 name=$2 bytes=$3 id serial option medium options=() blocks='' bus
    shift 3
    id=${scenario//-/_}_$name
    drive_count=$((drive_count + 1))
    serial=$(printf 'LAB%05d' "$drive_count")
    medium=$media/$scenario.$name.raw
    local file=,file="$medium" extra='' fresh=yes
    for option in "$@"; do
        case $option in
            share-rw=on)
                extra+=,file.locking=off
                options+=("$option")
                ;;
            throttle=*) extra+=,throttling.bps-total=${option#*=} ;;
            rules=*) file=,file.driver=blkdebug,file.config=${option#*=},file.image.driver=file,file.image.filename=$medium ;;
            path=*)
                ln -sf "$scenario.${option#*=}.raw" "$medium"
                fresh=no
                ;;
            *) options+=("$option") ;;
        esac
    done
    if [[ $fresh == yes ]]; then
        "$lab/media.py" fill "$medium" "$scenario/$name" "$bytes"
        digests[$scenario/$name]=$("$lab/media.py" digest "$medium")
    fi
    [[ $kind != none ]] || return 0
    # The markers of a second path are those of the first one.
    [[ $fresh == no ]] || printf '%s\n' "$scenario/$name" >>"$share/drives"

    [[ $kind == *4k ]] && blocks=,logical_block_size=4096,physical_block_size=4096
    for option in "${options[@]}"; do
        blocks+=,$option
    done
    # An error is told to the guest, never kept by stopping the machine.
    local policy=,werror=report,rerror=report
    [[ $kind != cd && $kind != floppy && $kind != nvme* && $kind != sd ]] || policy=
    qemu+=(-drive "if=none,id=$id,format=raw,cache=writeback$file$extra$policy")
    case $kind in
        nvme | nvme4k)
            qemu+=(-device "nvme,id=c_$id,serial=$serial" -device "nvme-ns,bus=c_$id,drive=$id,nsid=1$blocks")
            ;;
        hdd | ssd | cd)
            bus=ide.$ide_count
            ide_count=$((ide_count + 1))
            case $kind in
                hdd) qemu+=(-device "ide-hd,id=d_$id,bus=$bus,drive=$id,model=LAB HARD DISK,serial=$serial,rotation_rate=7200$blocks") ;;
                ssd) qemu+=(-device "ide-hd,id=d_$id,bus=$bus,drive=$id,model=LAB FLASH DISK,serial=$serial,rotation_rate=1$blocks") ;;
                cd) qemu+=(-device "ide-cd,id=d_$id,bus=$bus,drive=$id,serial=$serial") ;;
            esac
            ;;
        scsi | scsi4k)
            [[ $blocks == *scsi-id=* ]] || blocks+=,scsi-id=$drive_count,lun=0
            qemu+=(-device "scsi-hd,id=d_$id,bus=lab_scsi.0,drive=$id,vendor=LAB,product=SCSI DISK,serial=$serial,rotation_rate=7200$blocks")
            ;;
        usb) qemu+=(-device "usb-storage,id=d_$id,bus=lab_usb.0,drive=$id,removable=on,serial=$serial$blocks") ;;
        sd) qemu+=(-device "sdhci-pci,id=c_$id" -device "sd-card,id=d_$id,drive=$id$blocks") ;;
        virtio) qemu+=(-device "virtio-blk-pci,id=d_$id,drive=$id,serial=$serial$blocks") ;;
        floppy) qemu+=(-device "isa-fdc,id=c_$id" -device "floppy,id=d_$id,drive=$id,bus=c_$id.0") ;;
        *) fail "scenario $scenario: no such kind of drive: $kind" ;;
    esac
}

# error_rules FILE TYPE ERRNO SECTOR...: TYPE is write, read or flush; "any" for every sector.
error_rules() {
    local file=$1 type=$2 number=$3 sector
    shift 3
    for sector in "$@"; do
        printf '[inject-error]\nevent = "none"\niotype = "%s"\nerrno = "%s"\n' "$type" "$number"
        [[ $sector == any ]] || printf 'sector = "%s"\n' "$sector"
    done >"$file"
}

# partitions NAME BYTES...: of a declared drive; each begins 1 MiB after the end of the one before.
partitions() {
    medium table "$@"
    digests[$scenario/$1]=$(medium digest "$1")
}

# What scenarios ask from outside. Names of drives are those that the scenario declared.

image() {
    echo "$media/$scenario.$1.raw"
}

# medium COMMAND NAME [ARGUMENT...]: see media.py
medium() {
    local command=$1 name=$2
    shift 2
    "$lab/media.py" "$command" "$(image "$name")" "$@"
}

all_bytes() {
    medium all "$@"
}

is_random() {
    medium random "$1"
}

# How many bytes lie in blocks that are not all BYTE: others NAME BYTE [FROM TO]
others() {
    medium others "$@"
}

markers() {
    medium markers "$@"
}

has_markers() {
    [[ $(markers "$@") != 0 ]]
}

refill() {
    medium fill "$1" "$scenario/$1" "$(stat -L -c %s "$(image "$1")")"
    remember "$1"
}

remember() {
    medium digest "$1" >"$media/$scenario.$1.digest"
}

unchanged() {
    local name
    for name in "$@"; do
        [[ $(medium digest "$name") == "$(<"$media/$scenario.$name.digest")" ]] || {
            echo "$name is not what it was"
            return 1
        }
    done
}

# machine COMMAND [ARGUMENTS as JSON] [EVENT]: a command to QEMU.
machine() {
    "$lab/qmp.py" "$work/qmp" "$@"
}

# pull NAME: the drive's cable.
pull() {
    machine device_del "{\"id\": \"d_${scenario//-/_}_$1\"}" DEVICE_DELETED
}

# plug KIND NAME SERIAL [OPTION]: a medium that no machine has yet, as a USB stick or behind the SCSI controller.
plug() {
    local id=${scenario//-/_}_$2 device
    machine blockdev-add "{\"node-name\": \"n_$id\", \"driver\": \"raw\", \"file\": {\"driver\": \"file\", \"filename\": \"$(image "$2")\"}}"
    case $1 in
        usb) device='"driver": "usb-storage", "bus": "lab_usb.0", "removable": true' ;;
        scsi) device='"driver": "scsi-hd", "bus": "lab_scsi.0", "vendor": "LAB", "product": "SCSI DISK"' ;;
    esac
    machine device_add "{$device, \"id\": \"d_$id\", \"drive\": \"n_$id\", \"serial\": \"$3\"${4:+, $4}}"
}

# forget NAME: a medium that was pulled and is to be plugged in once more.
forget() {
    machine blockdev-del "{\"node-name\": \"n_${scenario//-/_}_$1\"}"
}

# cut_power NAME COPY...: what the media hold at one moment, as when the power fails. Names in pairs.
cut_power() {
    machine stop
    while (($# > 1)); do
        cp --sparse=always "$(image "$1")" "$(image "$2")"
        shift 2
    done
    machine cont
}

# One check more: tell RESULT SCENARIO TEXT [DETAIL]
tell() {
    printf '%s\t%s\t%s\t%s\n' "$1" "$2" "$3" "${4:-}" >>"$work/results"
    if [[ $1 == ok ]]; then
        printf 'ok      %s: %s\n' "$2" "$3"
    else
        printf 'FAILED  %s: %s%s\n' "$2" "$3" "${4:+ ($4)}"
    fi
}

# A line of the guest: a result, the end of a scenario with the number of its results, or a question with a command and its arguments, between tabs.
hear() {
    local words
    IFS=$'\t' read -ra words <<<"$1"
    case ${words[0]:-} in
        tell)
            heard[${words[2]}]=$((${heard[${words[2]}]:-0} + 1))
            tell "${words[@]:1}"
            ;;
        end) ended[${words[1]}]=${words[2]} ;;
        ask) answer "${words[@]:1}" >&"$to_guest" ;;
    esac
}

# answer SCENARIO COMMAND...: prints exit code and number of lines, and the lines that the command printed.
answer() {
    local lines=() text status
    # Behind "||" bash would go on after a failure inside.
    set +e
    text=$(
        set -e
        # shellcheck disable=SC2030  # for the commands of this scenario only
        scenario=$1
        # shellcheck source=/dev/null
        source "$lab/scenarios/$scenario.sh"
        "${@:2}" 2>&1
    )
    status=$?
    set -e
    [[ -z $text ]] || mapfile -t lines <<<"$text"
    printf '%s\n' "$status ${#lines[@]}" "${lines[@]}"
}

# boot NAME SCENARIO...: one machine, and the scenarios in it one after the other.
boot() {
    local name=$1 began=$SECONDS process
    shift
    work=$lab_folder/$name
    share=$work/share
    media=$work/media
    rm -rf "$work"
    mkdir -p "$share" "$media"
    mkfifo "$work/talk.in" "$work/talk.out"
    /sbin/mke2fs -q -t ext4 -O ^has_journal,^metadata_csum "$work/system.raw" 256M >/dev/null 2>&1
    drive_count=0
    ide_count=0
    declare -gA ended=() heard=() digests=()
    # shellcheck disable=SC2054  # the commas belong to the options
    qemu=(qemu-system-x86_64 -M q35 -accel "tcg,thread=multi" -cpu max,la57=off -smp 2 -m 2048 -nodefaults
        -no-user-config -no-reboot -display none -monitor none -serial "file:$work/console" -qmp "unix:$work/qmp,server=on,wait=off"
        -kernel "$kernel"/boot/vmlinuz-* -initrd "$initramfs" -append "console=ttyS0 mitigations=off panic=-1 quiet"
        -virtfs "local,path=/,mount_tag=host,security_model=none,readonly=on,multidevs=remap"
        -virtfs "local,path=$share,mount_tag=share,security_model=none"
        -drive "if=none,id=lab_system,format=raw,file=$work/system.raw" -device "virtio-blk-pci,drive=lab_system,serial=SYSTEM"
        -device "virtio-serial-pci" -chardev "pipe,id=talk,path=$work/talk" -device "virtserialport,chardev=talk"
        -device "virtio-scsi-pci,id=lab_scsi" -device "qemu-xhci,id=lab_usb,p2=8,p3=8")
    for scenario in "$@"; do
        # shellcheck source=/dev/null
        source "$lab/scenarios/$scenario.sh"
        drives
        for declared in "${!digests[@]}"; do
            echo "${digests[$declared]}" >"$media/${declared/\//.}.digest"
        done
    done
    {
        printf 'export LC_ALL=C.UTF-8 PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin HOME=/run/lab\n'
        printf 'lab=%q modules=%q program=%q\n' "$lab" "$modules" "$program"
        # shellcheck disable=SC2016  # for the guest
        printf 'source "$lab/guest.sh"\nrun_scenarios'
        printf ' %q' "$@"
        printf '\n'
    } >"$share/boot"

    printf '\n==> machine "%s": %s\n' "$name" "$*"
    local from_guest to_guest line part='' status=0
    exec {from_guest}<>"$work/talk.out" {to_guest}<>"$work/talk.in"
    timeout --kill-after=10 "$lab_seconds" "${qemu[@]}" 2>"$work/qemu.log" </dev/null &
    process=$!
    while kill -0 "$process" 2>/dev/null || read -rt 0 -u "$from_guest"; do
        # What came of a line before the second was over belongs to the rest of it.
        if IFS= read -rt 1 -u "$from_guest" line; then
            hear "$part$line"
            part=
        else
            part+=$line
        fi
    done
    wait "$process" || status=$?
    exec {from_guest}<&- {to_guest}<&-
    for scenario in "$@"; do
        if [[ -z ${ended[$scenario]:-} ]]; then
            tell FAILED "$scenario" "reaches its end" "see $work/console"
        elif [[ ${heard[$scenario]:-0} != "${ended[$scenario]}" ]]; then
            tell FAILED "$scenario" "every line was heard" "${heard[$scenario]:-0} of ${ended[$scenario]}"
        fi
    done
    if ((status == 124 || status == 137)); then
        printf 'error: the machine "%s" did not end within %d s; the last lines of its console:\n' "$name" "$lab_seconds"
        tail -n 15 "$work/console"
    elif ((status != 0)); then
        printf 'error: QEMU ended with %d:\n' "$status"
        cat "$work/qemu.log"
    fi
    printf '<== machine "%s": %d s\n' "$name" $((SECONDS - began))
}
