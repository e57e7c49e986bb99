#!/usr/bin/env bash
# What jobs leave on real file systems, as a table. Each cell makes a file system on a loop device, fills it with marked
# files, lets quorvex-cli work on it, unmounts it and searches the raw image from outside: the markers that are left of
# all, the names that are left of all, and what the program said (outcome, kinds, exit code). The column "control"
# removes the files without erasing them. Fails when markers are left and the program did not say so, when they are left
# where the file system overwrites in place, when names are left on ext4, or when a control finds nothing. Needs root.
#
#   scripts/residue.sh [--cli PROGRAM] [CELL...]      CELL: a row, a column or ROW/COLUMN; all without one
#     rows: ext4 ext4-data-journal ext4-inline ext4-bigalloc ext4-ea-inode xfs xfs-no-reflink btrfs btrfs-nodatacow
#           btrfs-compressed btrfs-snapshot ntfs exfat vfat overlay tmpfs
#     columns: control files folders trash free
# shellcheck source=lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

cli=$root/build/dev/bin/quorvex-cli
rows=(ext4 ext4-data-journal ext4-inline ext4-bigalloc ext4-ea-inode xfs xfs-no-reflink btrfs btrfs-nodatacow
    btrfs-compressed btrfs-snapshot ntfs exfat vfat overlay tmpfs)
columns=(control files folders trash free)
cells=()
while [ $# -gt 0 ]; do
    case $1 in
    --cli) cli=$2; shift 2 ;;
    -h | --help) sed -n '2,11s/^# \{0,1\}//p' "$0"; exit 0 ;;
    *) cells+=("$1"); shift ;;
    esac
done
[ "$(id -u)" = 0 ] || fail "residue: loop devices and mounts need root"
[ -x "$cli" ] || fail "residue: $cli is missing; build it first"
for cell in "${cells[@]}"; do
    known=
    for row in "${rows[@]}"; do
        for column in "${columns[@]}"; do
            case $cell in "$row" | "$column" | "$row/$column") known=1 ;; esac
        done
    done
    [ -n "$known" ] || fail "residue: there is no cell $cell"
done

folder=$(mktemp -d "${TMPDIR:-/var/tmp}/quorvex-residue.XXXXXX")
image=$folder/image
mount=$folder/mount # where the program works
medium=$folder/medium
loop=
# shellcheck disable=SC2317 # the trap calls it
clean_up() {
    # One over the other: the overlay before its layers.
    ! mountpoint -q "$mount" || umount "$mount" || umount -l "$mount"
    ! mountpoint -q "$medium" || umount "$medium" || umount -l "$medium"
    [ -z "$loop" ] || losetup -d "$loop" || true
    rm -rf "$folder"
}
trap clean_up EXIT
mkdir "$mount" "$medium"

# Why a row cannot be had here; nothing when it can.
missing() {
    case $1 in
    ntfs) command -v mkfs.ntfs ntfs-3g >/dev/null || echo "needs ntfs-3g" ;;
    exfat) command -v mkfs.exfat mount.exfat-fuse >/dev/null || echo "needs exfat-fuse" ;;
    vfat) grep -qw vfat /proc/filesystems || modprobe -q vfat 2>/dev/null || echo "needs a kernel with the driver" ;;
    tmpfs) echo "has no medium to search" ;;
    esac
}

make_file_system() {
    case $1 in
    ext4 | ext4-data-journal | overlay) mkfs.ext4 -qF "$loop" ;;
    ext4-inline) mkfs.ext4 -qF -O inline_data "$loop" ;;
    ext4-bigalloc) mkfs.ext4 -qF -O bigalloc -C 65536 "$loop" ;;
    ext4-ea-inode) mkfs.ext4 -qF -O ea_inode "$loop" ;;
    xfs) mkfs.xfs -qf "$loop" ;;
    xfs-no-reflink) mkfs.xfs -qf -m reflink=0 "$loop" ;;
    btrfs*) mkfs.btrfs -qf "$loop" ;;
    ntfs) mkfs.ntfs -qQF "$loop" ;;
    exfat) mkfs.exfat "$loop" ;;
    vfat) mkfs.vfat "$loop" ;;
    esac >"$folder/made" 2>&1 || { cat "$folder/made" >&2; fail "residue: $1 could not be made"; }
}

mount_row() {
    case $1 in
    ext4-data-journal) mount -o data=journal "$loop" "$mount" ;;
    btrfs-nodatacow) mount -o nodatacow "$loop" "$mount" ;;
    btrfs-compressed) mount -o compress-force=zstd "$loop" "$mount" ;;
    ntfs) ntfs-3g "$loop" "$mount" ;;
    exfat) mount.exfat-fuse "$loop" "$mount" ;;
    overlay)
        mount "$loop" "$medium"
        mkdir -p "$medium/lower" "$medium/upper" "$medium/work"
        mount -t overlay -o "lowerdir=$medium/lower,upperdir=$medium/upper,workdir=$medium/work" overlay "$mount"
        ;;
    *) mount "$loop" "$mount" ;;
    esac >/dev/null 2>&1 || fail "residue: $1 could not be mounted"
}

unmount_row() {
    local place
    # A program that lists the volumes of the machine opens each of them for a moment.
    for place in "$mount" "$medium"; do
        for _ in {1..100}; do
            ! mountpoint -q "$place" || umount "$place" 2>/dev/null || sleep 0.05
            mountpoint -q "$place" || break
        done
        ! mountpoint -q "$place" || fail "residue: $place is busy"
    done
    sync "$image"
}

# populate ROW COLUMN: the marked files, on the medium.
populate() {
    local below=$mount
    # What comes from a lower layer is what an overlay has to tell.
    if [ "$1" = overlay ]; then
        umount "$mount"
        below=$medium/lower
    fi
    python3 - "$1" "$2" "$below" <<'PYTHON'
import os, struct, sys

row, column, below = sys.argv[1:]
trash = column == "trash"
top = os.path.join(below, "$Recycle.Bin/S-1-5-21-1-2-3-1000" if trash else "set")
os.makedirs(top if trash else os.path.join(top, "deeper", "deepest"))
folders = [top] if trash else [top, os.path.join(top, "deeper"), os.path.join(top, "deeper", "deepest")]
sizes = [40, 600, 5000, 70000, 300001]
for number in range(240):
    size = sizes[number % len(sizes)]
    content = (b"QVX-SECRET-%05d!" % number) * (size // 17 + 1)
    place = folders[number % len(folders)]
    path = os.path.join(place, ("$RMK%05d" if trash else "QMK%05d") % number)
    with open(path, "wb") as file:
        file.write(content[:size])
    if row == "ext4-ea-inode":
        for name, length in (("small", 60), ("block", 3000), ("large", 20000)):
            os.setxattr(path, "user." + name, ((b"QVX-SECRET-%05d+" % number) * 1200)[:length])
    if trash:
        original = ("C:\\QMK%05d" % number + "\0").encode("utf-16le")
        with open(os.path.join(place, "$IMK%05d" % number), "wb") as file:
            file.write(struct.pack("<qqqi", 2, size, 133000000000000000, len(original) // 2) + original)
PYTHON
    [ "$1" != btrfs-snapshot ] || btrfs -q subvolume snapshot -r "$mount" "$mount/kept" >/dev/null
    sync
    unmount_row "$1"
    found=$(search)
    mount_row "$1"
}

# The markers and the different names in the image.
search() {
    python3 - "$image" <<'PYTHON'
import mmap, re, sys

with open(sys.argv[1], "rb") as file, mmap.mmap(file.fileno(), 0, access=mmap.ACCESS_READ) as image:
    markers = sum(1 for _ in re.finditer(rb"QVX-SECRET-", image))
    names = set(re.findall(rb"MK(\d{5})", image))
    names |= {bytes(n[::2]) for n in re.findall(rb"M\0K\0((?:\d\0){5})", image)}
print(markers, len(names))
PYTHON
}

# erase COLUMN: lets the program work; sets $said and $complete.
erase() {
    local code=0 arguments=()
    case $1 in
    control) rm -r "$mount/set"; said=; complete=; return ;;
    files) mapfile -d '' arguments < <(find "$mount/set" -type f -print0); arguments=(files "${arguments[@]}") ;;
    folders) arguments=(files "$mount/set") ;;
    trash) arguments=(trash --root "$mount") ;;
    free) rm -r "$mount/set"; sync; arguments=(free "$mount") ;;
    esac
    "$cli" --json --data-dir "$folder/data" wipe "${arguments[@]}" --yes >"$folder/said" 2>"$folder/errors" || code=$?
    read -r complete said < <(python3 - "$folder/said" "$code" <<'PYTHON'
import json, sys

events = [json.loads(line) for line in open(sys.argv[1], encoding="utf-8")]
last = next((e for e in reversed(events) if e["event"] == "finished"), None)
if last is None:
    print("no", "refused (%s)" % sys.argv[2])
else:
    kinds = [s["kind"] for s in last["shortfalls"]] + ["note " + n["kind"] for n in last["notes"]]
    # These say nothing of content outside the reserve.
    silent = {"large-reserve", "note reserve-kept", "note not-read-back", "note read-back-impossible"}
    kinds = ["%s%s" % (k, " × %d" % kinds.count(k) if kinds.count(k) > 1 else "")
             for k in dict.fromkeys(kinds) if k not in silent]
    print("yes" if last["outcome"] in ("complete", "partial") and not kinds else "no",
          ": ".join(filter(None, [last["outcome"], ", ".join(kinds)])), "(%s)" % sys.argv[2])
PYTHON
    )
}

# outside_reserve ROW: sets $outside, the markers that are not in free blocks, the reserve of a free-space job.
outside_reserve() {
    case $1 in
    xfs*) # keeps free blocks that no file ever gets
        outside=$(xfs_db -r -c "sb 0" -c "p agblocks blocksize" -c "freesp -d" "$image" | search_but_free)
        ;;
    *) # what is free is overwritten, so that only the rest is found
        fill_reserve "$1"
        outside=$(search)
        outside=${outside% *}
        ;;
    esac
}

search_but_free() {
    python3 -c '
import mmap, re, sys

text = sys.stdin.read()
blocks, size = (int(re.search(name + r" = (\d+)", text).group(1)) for name in ("agblocks", "blocksize"))
free = [((int(group) * blocks + int(start)) * size, int(length) * size)
        for group, start, length in re.findall(r"^\s*(\d+)\s+(\d+)\s+(\d+)\s*$", text, re.M)]
with open(sys.argv[1], "rb") as file, mmap.mmap(file.fileno(), 0, access=mmap.ACCESS_READ) as image:
    print(sum(1 for found in re.finditer(rb"QVX-SECRET-", image)
              if not any(at <= found.start() < at + length for at, length in free)))
' "$image"
}

fill_reserve() {
    mount_row "$1"
    dd if=/dev/urandom of="$mount/fill" bs=1M status=none 2>/dev/null || true
    sync
    unmount_row "$1"
}

in_place() {
    case $1 in ext4 | ext4-bigalloc | xfs | xfs-no-reflink | ntfs | exfat | vfat) return 0 ;; esac
    return 1
}

# cell ROW COLUMN: prints its text; fails when the goal is missed.
cell() {
    local all left outside note='' bad=
    truncate -s 0 "$image"
    truncate -s 400M "$image"
    loop=$(losetup --find --show "$image")
    make_file_system "$1"
    mount_row "$1"
    populate "$1" "$2"
    read -r -a all <<<"$found"
    [ "$2" != control ] || [ "${all[0]}" -gt 0 ] || bad=' **not found**'
    erase "$2"
    sync
    unmount_row "$1"
    read -r -a left <<<"$(search)"
    outside=${left[0]}
    if [ "$2" = free ]; then
        outside_reserve "$1"
        note=" ($outside outside the reserve)"
    fi
    losetup -d "$loop"
    loop=
    if [ "$2" = control ]; then
        [ "${left[0]}" -gt $((all[0] / 2)) ] || bad=' **the search finds too little**'
    else
        [ "$outside" = 0 ] || [ "$complete" = no ] || bad+=' **left and not said**'
        [ "$outside" = 0 ] || ! in_place "$1" || [ "$2" = free ] || bad+=' **left where it is overwritten in place**'
        case $1/$2 in
        ext4*/files | ext4*/folders | ext4*/trash) [ "${left[1]}" = 0 ] || bad+=' **names left**' ;;
        esac
    fi
    printf '%s of %s%s; %s of %s%s%s' "${left[0]}" "${all[0]}" "$note" "${left[1]}" "${all[1]}" "${said:+; $said}" "$bad"
    [ -z "$bad" ]
}

wanted() {
    [ ${#cells[@]} -gt 0 ] || return 0
    local one
    for one in "${cells[@]}"; do
        case $one in "$1" | "$2" | "$1/$2") return 0 ;; esac
    done
    return 1
}

failed=0
printf '| markers; names; what was said |'
printf ' %s |' "${columns[@]}"
printf '\n|---|---|---|---|---|---|\n'
for row in "${rows[@]}"; do
    line="| $row |"
    some=
    for column in "${columns[@]}"; do
        if ! wanted "$row" "$column"; then
            line+='  |'
            continue
        fi
        some=1
        why=$(missing "$row")
        if [ -n "$why" ]; then
            line+=" not here: $why |"
            continue
        fi
        code=0
        cell "$row" "$column" >"$folder/cell" || code=$?
        text=$(cat "$folder/cell")
        [ -n "$text" ] || text='**failed**'
        [ "$code" = 0 ] || failed=1
        line+=" $text |"
    done
    [ -z "$some" ] || printf '%s\n' "$line"
done
exit $failed
