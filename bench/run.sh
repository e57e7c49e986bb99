#!/usr/bin/env bash
# Speed and memory compared with common tools. Every row alternates the two commands five times on this machine and
# compares the medians; the ratio is the throughput of ours over theirs, so more is better. Works on its own loop devices
# and files in a temporary folder (about 4 GiB), and needs root.
#
#   bench/run.sh [--build FOLDER] [--runs N] [--json FILE] [ROW...]     rows: disk shred random random-memory
#            processor read-back four file small tiny free count memory reports bin trash bin-items trash-items start
#            idle; only when named: count-disk many
#
# --json FILE also writes the table there, as one object.
set -euo pipefail
export LC_ALL=C

here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=$here/build/release
runs=5
json=
rows=()
while [ $# -gt 0 ]; do
  case $1 in
    --build) build=$2; shift 2 ;;
    --runs) runs=$2; shift 2 ;;
    --json) json=$2; shift 2 ;;
    -h|--help) sed -n '2,10s/^# \{0,1\}//p' "$0"; exit 0 ;;
    *) rows+=("$1"); shift ;;
  esac
done
[ ${#rows[@]} -gt 0 ] || rows=(disk shred random random-memory processor read-back four file small tiny free count memory reports bin trash bin-items trash-items start idle)
[ "$(id -u)" = 0 ] || { echo "bench: needs root for loop devices" >&2; exit 1; }

desktop=$build/bin/quorvex
window=$build/bin/quorvex-bench-window
probe=$build/bench-plugins/generic/libquorvex-bench-firstpaint.so
job=$build/bin/quorvex-bench-job
services=$build/bin/quorvex-bench-services
cli=$build/bin/quorvex-cli
needed=()
for row in "${rows[@]}"; do
  case $row in
    disk|shred|file|small|tiny|processor|read-back|four|many) needed+=("$cli" "$job") ;;
    reports|bin|trash|bin-items|trash-items) needed+=("$services") ;;
    start) needed+=("$desktop" "$window" "$probe") ;;
    idle) needed+=("$desktop" "$probe") ;;
    *) needed+=("$job") ;;
  esac
done
for program in "${needed[@]}"; do
  [ -x "$program" ] || { echo "bench: $program is missing; build the release preset first" >&2; exit 1; }
done

folder=$(mktemp -d "${TMPDIR:-/var/tmp}/quorvex-bench.XXXXXX")
loop=
loops=()
screen=
clean_up() {
  [ -z "$screen" ] || kill "$screen" 2>/dev/null || true
  mountpoint -q "$folder/mnt" 2>/dev/null && umount "$folder/mnt"
  [ -z "$loop" ] || losetup -d "$loop"
  for loop in "${loops[@]}"; do losetup -d "$loop"; done
  mountpoint -q "$folder/memory" 2>/dev/null && umount "$folder/memory"
  rm -rf "$folder"
}
trap clean_up EXIT

now() { date +%s%N; }

# timed COMMAND...: runs the command once; the seconds go to $seconds, the output to $folder/out.
timed() {
  local from to
  sync
  from=$(now)
  "$@" >"$folder/out" 2>&1 || { cat "$folder/out" >&2; echo "bench: failed: $*" >&2; exit 1; }
  to=$(now)
  seconds=$(awk -v ns=$((to - from)) 'BEGIN { printf "%.4f", ns / 1e9 }')
}

median() { sort -g | awk '{ v[NR] = $1 } END { print NR % 2 ? v[(NR + 1) / 2] : (v[NR / 2] + v[NR / 2 + 1]) / 2 }'; }

# tell NAME GOAL UNIT OURS THEIRS RATIO: prints a row of the table, and keeps it for --json. $row: its name here.
json_rows=()
tell() {
  printf '%-46s %9.3f %s %9.3f %s   %5.2f   (goal %s)\n' "$1" "$4" "$3" "$5" "$3" "$6" "$2"
  json_rows+=("$(printf '{"row": "%s", "work": "%s", "goal": "%s", "unit": "%s", "ours": %s, "theirs": %s, "ratio": %s}' \
    "$row" "$1" "$2" "$3" "$4" "$5" "$6")")
}
# tell_one NAME GOAL UNIT VALUE: the same for a row without a comparison.
tell_one() {
  printf '%-46s %9.1f %s   (goal %s)\n' "$1" "$4" "$3" "$2"
  json_rows+=("$(printf '{"row": "%s", "work": "%s", "goal": "%s", "unit": "%s", "ours": %s}' "$row" "$1" "$2" "$3" "$4")")
}
write_json() {
  local i
  {
    printf '{"date": "%s", "runs": %d, "processors": %d, "rows": [' "$(date -u +%F)" "$runs" "$(nproc)"
    for ((i = 0; i < ${#json_rows[@]}; i++)); do
      printf '%s\n  %s' "$([ $i = 0 ] || echo ,)" "${json_rows[$i]}"
    done
    printf '\n]}\n'
  } >"$json"
}
ratio() { awk -v a="$1" -v b="$2" 'BEGIN { printf "%.4f", a / b }'; }

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
  tell "$name" "$goal" s "$ma" "$mb" "$(ratio "$mb" "$ma")"
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

# in_memory MIB FUNCTION: runs the function with $loop on an image in memory. No medium limits what is measured.
in_memory() {
  mkdir "$folder/memory"
  mount -t tmpfs -o size="$(($1 + 16))m" tmpfs "$folder/memory"
  fallocate -l "$1M" "$folder/memory/disk.img"
  loop=$(losetup --find --show "$folder/memory/disk.img")
  "$2"
  losetup -d "$loop"; loop=
  umount "$folder/memory"
  rmdir "$folder/memory"
}
shred_random() { shred -n1 "$loop"; }
random_memory_row() {
  compare "1 GiB in memory, one random pass / shred -n1" "at least 3" nothing disk_random shred_random
  compare "  the same / dd from /dev/zero, direct" "none" nothing disk_random disk_dd
}

# processor_of COMMAND...: sets $seconds to the processor time of the command and its children.
processor_of() {
  local TIMEFORMAT='%U %S' times
  times=$({ time "$@" >"$folder/out" 2>&1 || echo failed; } 2>&1)
  case $times in
    *failed*) cat "$folder/out" >&2; echo "bench: failed: $*" >&2; exit 1 ;;
  esac
  seconds=$(awk '{ print $1 + $2 }' <<<"$times")
}
# processor NAME GOAL OURS THEIRS: compares the processor time of two functions on 1 GiB. Ours is without the start of the
# program, which does not grow with the drive.
processor() {
  local i a=() b=() ma mb
  processor_of "$3"; processor_of "$4" # warm-up, not counted
  for ((i = 0; i < runs; i++)); do
    processor_of "$3"; a+=("$(awk '/^processor/ { print $2 }' "$folder/out")")
    processor_of "$4"; b+=("$seconds")
  done
  ma=$(printf '%s\n' "${a[@]}" | median)
  mb=$(printf '%s\n' "${b[@]}" | median)
  tell "$1" "$2" s "$ma" "$mb" "$(ratio "$ma" "$mb")"
}
# dd writes zeros with system calls of the same size. In a random pass we also make the data; dd does not.
processor_row() {
  processor "processor per GiB, constant pass / dd" "at most 1.2" disk_constant disk_dd
  processor "processor per GiB, random pass / dd of zeros" "at most 1.5" disk_random disk_dd
}
disk_constant() { "$job" disk "$loop" zeros; }

read_ours() { "$cli" --quiet --data-dir "$folder/data" check --zeros "$loop"; }
read_dd() { dd if="$loop" of=/dev/null iflag=direct bs=64M; }
# The device holds zeros only, otherwise our reading ends at the first other byte.
read_back() { disk_dd 2>/dev/null; compare "$1" "at least 0.9" nothing read_ours read_dd; }
read_back_memory() { read_back "  the same in memory"; }

# Four processes, each with a drive, do four times the work of one.
four_ours() {
  local one pids=() pid
  for one in "${loops[@]}"; do
    "$cli" --quiet --data-dir "$folder/data" wipe disk "$one" --method 0 --no-verify --yes &
    pids+=($!)
  done
  for pid in "${pids[@]}"; do wait "$pid"; done
}
four_in_turn() {
  local one
  for one in "${loops[@]}"; do
    "$cli" --quiet --data-dir "$folder/data" wipe disk "$one" --method 0 --no-verify --yes
  done
}
four_row() {
  local i
  for i in 1 2 3 4; do
    fallocate -l 256M "$folder/disk$i.img"
    loops+=("$(losetup --find --show --direct-io=on "$folder/disk$i.img")")
  done
  compare "four drives of 256 MiB at once / in turn" "at least 0.95" nothing four_ours four_in_turn
  for i in "${loops[@]}"; do losetup -d "$i"; done
  loops=()
  rm "$folder"/disk[1-4].img
}

new_file() { rm -rf "$folder/f"; mkdir "$folder/f"; dd if=/dev/urandom of="$folder/f/big" bs=16M count=64 status=none; }
file_ours() { "$cli" --quiet --data-dir "$folder/data" wipe files "$folder/f/big" --method 0 --yes; }
file_shred() { shred -n0 -z -u "$folder/f/big"; }

place=$folder
new_files() { # $1 files of $2 bytes
  rm -rf "$place/f"; mkdir "$place/f"
  head -c $(($1 * $2)) /dev/urandom | split -a 6 -d -b "$2" - "$place/f/file"
}
small_files() { new_files 2000 16384; }
small_ours() { "$cli" --quiet --data-dir "$folder/data" wipe files "$folder/f" --method 0 --yes; }
small_shred() { find "$folder/f" -type f -print0 | xargs -0 shred -n0 -z -u; rmdir "$folder/f"; }

tiny_files() { new_files 5000 4096; }
tiny_shred() { find "$folder/f" -type f -print0 | xargs -0 shred -n0 -z --remove=unlink; rmdir "$folder/f"; }
tiny_ours() { "$cli" --quiet --data-dir "$folder/data" wipe files "$folder/f" --method 0 --no-verify --yes; }
tiny_row() { # shred reads nothing back
  compare "5,000 files of 4 KiB / shred --remove=unlink" "at least 2" tiny_files tiny_ours tiny_shred
  compare "  the same, read back" "none" tiny_files small_ours tiny_shred
  compare "5,000 files of 4 KiB / shred -u" "at least 4" tiny_files small_ours small_shred
}

# Takes many minutes, since each file waits for the drive.
many_files() { new_files 100000 4096; }
many_rm() { rm -r "$folder/f"; sync; }
many_row() {
  compare "100,000 files of 4 KiB on a drive / shred -u" "at least 4" many_files small_ours small_shred
  compare "  the same / rm and sync, which erase nothing" "none" many_files small_ours many_rm
}

free_ours() { "$job" free "$folder/mnt" zeros; free_bytes=$(awk '/^bytes/ { print $2 }' "$folder/out"); }
free_dd() {
  dd if=/dev/zero of="$folder/mnt/fill" bs=64M count="$((free_bytes / 67108864))" oflag=dsync
  local rest=$((free_bytes % 67108864))
  [ $rest -eq 0 ] || dd if=/dev/zero of="$folder/mnt/fill2" bs="$rest" count=1 oflag=dsync
  rm -f "$folder/mnt/fill" "$folder/mnt/fill2"
}

# inside COMMAND...: like timed, but with the seconds that the program itself measured.
inside() {
  timed "$@"
  seconds=$(awk '/^seconds/ { print $2 }' "$folder/out")
}

# grown NAME GOAL FEW MANY: FEW and MANY are functions that do the same amount of work and set $seconds; the ratio is
# MANY over FEW, so less is better.
grown() {
  local name=$1 goal=$2 few=$3 many=$4 i a=() b=() ma mb
  "$few" # warm-up, not counted
  for ((i = 0; i < runs; i++)); do
    "$few"; a+=("$seconds")
    "$many"; b+=("$seconds")
  done
  ma=$(printf '%s\n' "${a[@]}" | median)
  mb=$(printf '%s\n' "${b[@]}" | median)
  tell "$name" "$goal" s "$mb" "$ma" "$(ratio "$mb" "$ma")"
}

# The pages are read often enough to take a good part of a second.
reports_few() { inside "$services" read-reports "$folder/few" 20; }
reports_many() { inside "$services" read-reports "$folder/many" 20; }
reports_row() {
  "$services" fill-reports "$folder/few" 200
  "$services" fill-reports "$folder/many" 10000
  grown "first page of 10,000 against of 200 reports" "at most 1.5" reports_few reports_many
  rm -r "$folder/few" "$folder/many"
}

# Whole programs are timed, since find cannot measure its work without its start. $bin: "bin" or "trash".
bin_ours() { "$services" "scan-$bin" "$folder/drive" 0; }
bin_find() { find "$folder/drive" -printf '%s %f\n'; }
bin_row() { # $1: the kind of bin
  bin=$1
  "$services" "fill-$bin" "$folder/drive" 50000
  compare "50,000 items in a $bin / find" "at least 0.33" nothing bin_ours bin_find
  rm -r "$folder/drive"
}

# Both rows scan the same number of items.
items_few() { inside "$services" "scan-$bin" "$folder/few" 50; }
items_many() { inside "$services" "scan-$bin" "$folder/many" 1; }
items_row() { # $1: the kind of bin
  bin=$1
  "$services" "fill-$bin" "$folder/few" 1000
  "$services" "fill-$bin" "$folder/many" 50000
  grown "items of a $bin, 50,000 at once / by 1,000" "at most 1.2" items_few items_many
  rm -r "$folder/few" "$folder/many"
}

# The files lie in memory. On a drive each file waits for the medium, which takes many minutes and hides the cost that
# grows with the number of files. The row "count-disk" measures a drive nevertheless.
files_each() { # sets $seconds to the time of 100,000 files, from $1 jobs of $2 files
  local i sum=0
  for ((i = 0; i < $1; i++)); do
    new_files "$2" 4096
    inside "$job" files 0 "$place/f"
    sum=$(awk -v a="$sum" -v b="$seconds" 'BEGIN { print a + b }')
  done
  seconds=$(awk -v s="$sum" -v n=$(($1 * $2)) 'BEGIN { printf "%.4f", s / n * 1e5 }')
}
files_few() { files_each 5 1000; }
files_many() { files_each 1 100000; }
count_row() { # $1: the place, for the label
  grown "100,000 files at once / by 1,000, $1" "at most 1.2" files_few files_many
}
count_in_memory() {
  mkdir "$folder/memory"
  mount -t tmpfs -o size=1g tmpfs "$folder/memory"
  place=$folder/memory
  count_row "in memory"
  place=$folder
  umount "$folder/memory"
}

peak_memory() { awk '/ memory / { print $4 / 1024 }' "$folder/out"; }
memory_row() {
  attach 1024
  "$job" disk "$loop" random >"$folder/out"
  tell_one "memory, disk job with two 64 MiB buffers" "at most 192 MiB" MiB "$(peak_memory)"
  detach
  new_files 100000 512
  "$job" files 0 "$folder/f" >"$folder/out"
  tell_one "memory, file job with 100,000 files" "at most $((($(nproc) * 16 + 64) + 100000 * 400 / 1048576)) MiB" MiB \
    "$(peak_memory)"
}

# until_shown PROGRAM [IDLE]: runs a desktop program on $platform with its own home and no real drive, until its window
# is painted for the first time, and on request for IDLE more seconds.
until_shown() {
  env HOME="$folder/home" XDG_DATA_HOME="$folder/home/data" XDG_CONFIG_HOME="$folder/home/config" \
    XDG_CACHE_HOME="$folder/home/cache" XDG_RUNTIME_DIR="$folder/home/run" QUORVEX_ONLY_IMAGE_DISKS=1 LC_ALL=C.UTF-8 \
    QT_QPA_PLATFORM="$platform" QT_PLUGIN_PATH="$build/bench-plugins" \
    QT_QPA_GENERIC_PLUGINS="firstpaint${2:+:$2}" timeout 120 "$1" >"$folder/out" 2>"$folder/trace"
}
new_home() { rm -rf "${folder:?}/home"; mkdir -p "$folder/home/run"; chmod 700 "$folder/home/run"; }

# Sets $seconds, and the processor time in $processor. No sync, which would wait for the writes of other programs.
started() {
  local TIMEFORMAT='%3R %3U %3S' times
  times=$({ time until_shown "$1" || echo failed; } 2>&1)
  case $times in
    *failed*) cat "$folder/trace" >&2; echo "bench: failed: $1" >&2; exit 1 ;;
  esac
  read -r seconds processor < <(awk '{ print $1, $2 + $3 }' <<<"$times")
}

# Runs are short, hence four times as many. Both programs have run before, so that their files are cached and the
# database exists.
start_row() { # $1: the place, for the label
  local i a=() b=() pa=() pb=()
  new_home
  started "$desktop"; started "$window"
  for ((i = 0; i < runs * 4; i++)); do
    started "$desktop"; a+=("$seconds"); pa+=("$processor")
    started "$window"; b+=("$seconds"); pb+=("$processor")
  done
  against "until the window is painted, $1" "$(printf '%s\n' "${a[@]}" | median)" "$(printf '%s\n' "${b[@]}" | median)"
  against "  of it processor time" "$(printf '%s\n' "${pa[@]}" | median)" "$(printf '%s\n' "${pb[@]}" | median)"
}
against() { # $1 name, $2 ours, $3 theirs; less is better
  tell "$1" "at most 1.5" s "$2" "$3" "$(ratio "$2" "$3")"
}

idle_row() { # $1: the place, for the label
  new_home
  until_shown "$desktop" 10 || { cat "$folder/trace" >&2; echo "bench: failed: $desktop" >&2; exit 1; }
  tell_one "idle for 10 s, $1, processors" none ms "$(awk '/^milliseconds/ { print $2 }' "$folder/out")"
  tell_one "  the same, woken" none times "$(awk '/^milliseconds/ { print $4 }' "$folder/out")"
}

# on_screens ROW: runs the row without a screen, and on an X screen where Xvfb is installed.
on_screens() {
  platform=offscreen
  "$1" "no screen"
  command -v Xvfb >/dev/null || { echo "bench: no Xvfb, nothing was measured on X" >&2; return; }
  : >"$folder/display"
  Xvfb -displayfd 1 -screen 0 1600x1000x24 -nolisten tcp >"$folder/display" 2>"$folder/xvfb" &
  screen=$!
  until [ -s "$folder/display" ]; do
    kill -0 "$screen" || { cat "$folder/xvfb" >&2; exit 1; }
    sleep 0.1
  done
  DISPLAY=:$(cat "$folder/display")
  export DISPLAY
  platform=xcb
  "$1" "Xvfb"
  kill "$screen"; wait "$screen" 2>/dev/null || true
  screen=
}

printf '%-46s %11s %11s   %s\n' "work" "ours" "theirs" "ratio"
for row in "${rows[@]}"; do
  case $row in
    disk) attach 1024; compare "disk, one constant pass / dd direct" "at least 0.95" nothing disk_ours disk_dd; detach ;;
    shred) attach 1024; compare "disk, one constant pass / shred -n0 -z" "at least 4" nothing disk_ours disk_shred; detach ;;
    random) attach 1024; compare "disk, one random pass / dd direct" "at least 0.75" nothing disk_random disk_dd; detach ;;
    random-memory) in_memory 1024 random_memory_row ;;
    processor) in_memory 1024 processor_row ;;
    read-back)
      attach 1024; read_back "1 GiB read back and compared / dd iflag=direct"; detach
      in_memory 1024 read_back_memory ;;
    four) four_row ;;
    many) many_row ;;
    file) compare "1 GiB file, verified and deleted / shred -u" "at least 1.5" new_file file_ours file_shred ;;
    small) compare "2,000 files of 16 KiB / shred -u" "at least 2" small_files small_ours small_shred ;;
    tiny) tiny_row ;;
    free)
      attach 1300; mkfs.ext4 -q "$loop"; mkdir -p "$folder/mnt"; mount "$loop" "$folder/mnt"
      compare "free space, one constant pass / dd dsync" "at least 0.95" nothing free_ours free_dd
      umount "$folder/mnt"; detach ;;
    count) count_in_memory ;;
    count-disk) count_row "on a drive" ;;
    memory) memory_row ;;
    reports) reports_row ;;
    bin|trash) bin_row "$row" ;;
    bin-items) items_row bin ;;
    trash-items) items_row trash ;;
    start) on_screens start_row ;;
    idle) on_screens idle_row ;;
    *) echo "bench: no row $row" >&2; exit 2 ;;
  esac
done
[ -z "$json" ] || write_json
