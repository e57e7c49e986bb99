#!/usr/bin/env bash
# Speed and memory against what a user would otherwise run. Every row alternates the two commands five times on this
# machine and compares medians; a ratio is ours over theirs in throughput, so more is better. Works on loop devices and
# files of its own in a temporary folder (about 4 GiB), needs root.
#
#   bench/run.sh [--build FOLDER] [--runs N] [ROW...]     rows: disk shred random file small free count memory
set -euo pipefail
export LC_ALL=C

here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=$here/build/release
runs=5
rows=()
while [ $# -gt 0 ]; do
  case $1 in
    --build) build=$2; shift 2 ;;
    --runs) runs=$2; shift 2 ;;
    -h|--help) sed -n '2,6s/^# \{0,1\}//p' "$0"; exit 0 ;;
    *) rows+=("$1"); shift ;;
  esac
done
[ ${#rows[@]} -gt 0 ] || rows=(disk shred random file small free count memory)
[ "$(id -u)" = 0 ] || { echo "bench: needs root for loop devices" >&2; exit 1; }

job=$build/bin/quorvex-bench-job
cli=$build/bin/quorvex-cli
for program in "$job" "$cli"; do
  [ -x "$program" ] || { echo "bench: $program is missing; build the release preset first" >&2; exit 1; }
done

folder=$(mktemp -d "${TMPDIR:-/var/tmp}/quorvex-bench.XXXXXX")
loop=
clean_up() {
  mountpoint -q "$folder/mnt" 2>/dev/null && umount "$folder/mnt"
  [ -z "$loop" ] || losetup -d "$loop"
  rm -rf "$folder"
}
trap clean_up EXIT

now() { date +%s%N; }

# timed COMMAND...: seconds of one run, in $seconds; its output in $folder/out.
timed() {
  local from to
  sync
  from=$(now)
  "$@" >"$folder/out" 2>&1 || { cat "$folder/out" >&2; echo "bench: failed: $*" >&2; exit 1; }
  to=$(now)
  seconds=$(awk -v ns=$((to - from)) 'BEGIN { printf "%.4f", ns / 1e9 }')
}

median() { sort -g | awk '{ v[NR] = $1 } END { print NR % 2 ? v[(NR + 1) / 2] : (v[NR / 2] + v[NR / 2 + 1]) / 2 }'; }

# compare NAME GOAL PREPARE OURS THEIRS: the last three are functions; PREPARE runs before each.
compare() {
  local name=$1 goal=$2 prepare=$3 ours=$4 theirs=$5 i a=() b=()
  "$prepare"; timed "$ours"; "$prepare"; timed "$theirs" # warm-up, not counted
  for ((i = 0; i < runs; i++)); do
    "$prepare"; timed "$ours"; a+=("$seconds")
    "$prepare"; timed "$theirs"; b+=("$seconds")
  done
  local ma mb
  ma=$(printf '%s\n' "${a[@]}" | median)
  mb=$(printf '%s\n' "${b[@]}" | median)
  printf '%-46s %9.3f s %9.3f s   %5.2f   (goal %s)\n' "$name" "$ma" "$mb" \
    "$(awk -v a="$ma" -v b="$mb" 'BEGIN { print b / a }')" "$goal"
}

nothing() { :; }

attach() { # a preallocated file of $1 MiB behind a loop device with direct I/O
  fallocate -l "$1M" "$folder/disk.img"
  loop=$(losetup --find --show --direct-io=on "$folder/disk.img")
}
detach() { losetup -d "$loop"; loop=; rm "$folder/disk.img"; }

disk_ours() { "$cli" --quiet --data-dir "$folder/data" wipe disk "$loop" --method 0 --no-verify --yes; }
disk_random() { "$job" disk "$loop" random; }
disk_dd() { dd if=/dev/zero of="$loop" oflag=direct bs=64M count=16; }
disk_shred() { shred -n0 -z "$loop"; }

new_file() { rm -rf "$folder/f"; mkdir "$folder/f"; dd if=/dev/urandom of="$folder/f/big" bs=16M count=64 status=none; }
file_ours() { "$cli" --quiet --data-dir "$folder/data" wipe files "$folder/f/big" --method 0 --yes; }
file_shred() { shred -n0 -z -u "$folder/f/big"; }

new_files() { # $1 files of $2 bytes
  rm -rf "$folder/f"; mkdir "$folder/f"
  head -c $(($1 * $2)) /dev/urandom | split -a 6 -d -b "$2" - "$folder/f/file"
}
small_files() { new_files 2000 16384; }
small_ours() { "$cli" --quiet --data-dir "$folder/data" wipe files "$folder/f" --method 0 --yes; }
small_shred() { find "$folder/f" -type f -print0 | xargs -0 shred -n0 -z -u; rmdir "$folder/f"; }

free_ours() { "$job" free "$folder/mnt" zeros; free_bytes=$(awk '/^bytes/ { print $2 }' "$folder/out"); }
free_dd() {
  dd if=/dev/zero of="$folder/mnt/fill" bs=64M count="$((free_bytes / 67108864))" oflag=dsync
  local rest=$((free_bytes % 67108864))
  [ $rest -eq 0 ] || dd if=/dev/zero of="$folder/mnt/fill2" bs="$rest" count=1 oflag=dsync
  rm -f "$folder/mnt/fill" "$folder/mnt/fill2"
}

count_row() {
  local i small=() large=()
  for ((i = 0; i < runs; i++)); do
    new_files 1000 4096; timed "$job" files 0 "$folder/f"; small+=("$seconds")
    new_files 100000 4096; timed "$job" files 0 "$folder/f"; large+=("$seconds")
  done
  local ms ml
  ms=$(printf '%s\n' "${small[@]}" | median)
  ml=$(printf '%s\n' "${large[@]}" | median)
  printf '%-46s %9.3f s %9.3f s   %5.2f   (goal at most 1.2)\n' "cost per file, 100,000 against 1,000 files" "$ml" "$ms" \
    "$(awk -v s="$ms" -v l="$ml" 'BEGIN { print (l / 100000) / (s / 1000) }')"
}

memory_row() {
  attach 1024
  "$job" disk "$loop" random >"$folder/out"
  printf '%-46s %s   (goal at most 192 MiB)\n' "memory, disk job with two 64 MiB buffers" "$(sed 's/.*memory //' "$folder/out")"
  detach
  new_files 100000 512
  "$job" files 0 "$folder/f" >"$folder/out"
  printf '%-46s %s   (goal at most %d kB)\n' "memory, file job with 100,000 files" "$(sed 's/.*memory //' "$folder/out")" \
    $(( ($(nproc) * 16 + 64) * 1024 + 100000 * 400 / 1024 ))
}

printf '%-46s %11s %11s   %s\n' "work" "ours" "theirs" "ratio"
for row in "${rows[@]}"; do
  case $row in
    disk) attach 1024; compare "disk, one constant pass / dd direct" "at least 0.95" nothing disk_ours disk_dd; detach ;;
    shred) attach 1024; compare "disk, one constant pass / shred -n0 -z" "at least 4" nothing disk_ours disk_shred; detach ;;
    random) attach 1024; compare "disk, one random pass / dd direct" "at least 0.75" nothing disk_random disk_dd; detach ;;
    file) compare "1 GiB file, verified and deleted / shred -u" "at least 1.5" new_file file_ours file_shred ;;
    small) compare "2,000 files of 16 KiB / shred -u" "at least 2" small_files small_ours small_shred ;;
    free)
      attach 1300; mkfs.ext4 -q "$loop"; mkdir -p "$folder/mnt"; mount "$loop" "$folder/mnt"
      compare "free space, one constant pass / dd dsync" "at least 0.95" nothing free_ours free_dd
      umount "$folder/mnt"; detach ;;
    count) count_row ;;
    memory) memory_row ;;
    *) echo "bench: no row $row" >&2; exit 2 ;;
  esac
done
