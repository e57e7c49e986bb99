#!/usr/bin/env bash
# Feeds the readers of foreign files with random files, starting from those in tests/fuzz/corpus/, and checks the
# invariants of each reader: scripts/fuzz.sh [RUNS]
#
# RUNS is the number of files for each reader; by default as many as fit into about half a minute in all. The same SEED (from
# the environment) gives the same files. New finds stay in build/fuzz/.
# shellcheck source=lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
cd "$root"

readers=(commandline devicereplies glyphnames infofile linkcatalogue mounttable sysattributes trashinfo wipereport)
# As many as each reader processes in about four seconds on an idle small machine.
declare -A runs=([commandline]=3000 [devicereplies]=150000 [glyphnames]=1500 [infofile]=200000 [linkcatalogue]=15000
    [mounttable]=60000 [sysattributes]=3000 [trashinfo]=150000 [wipereport]=15000)
# The limit on a slow machine; the number of runs is printed.
seconds_at_most=7
# Longer than the longest input that a reader treats specially.
declare -A longest=([commandline]=400 [devicereplies]=600 [glyphnames]=1200 [infofile]=1200 [linkcatalogue]=800
    [mounttable]=800 [sysattributes]=800 [trashinfo]=600 [wipereport]=1200)

if (($# > 0)); then
    [[ $1 =~ ^[1-9][0-9]*$ ]] || fail "how many files? $1 is no number"
    for name in "${!runs[@]}"; do
        runs[$name]=$1
    done
    seconds_at_most=0
fi
seed=${SEED:-$((RANDOM << 15 | RANDOM))}
[[ $seed =~ ^[1-9][0-9]*$ ]] || fail "SEED is no number above 0: $seed"

# For the same reason as in sanitize.sh.
launcher=()
if (($(cat /proc/sys/vm/mmap_rnd_bits 2>/dev/null || echo 28) > 28)); then
    launcher=(setarch "$(uname -m)" --addr-no-randomize)
fi

# fuzz NAME
fuzz() {
    local name=$1 work=build/fuzz/$1 log status=0
    log=$work/log
    rm -rf "$work/corpus"
    mkdir -p "$work/findings"
    cp -r "tests/fuzz/corpus/$name" "$work/corpus"
    # Reports contain times, some of them in local time.
    TZ=UTC UBSAN_OPTIONS=print_stacktrace=1 "${launcher[@]}" "build/fuzz/bin/fuzz_$name" -seed="$seed" \
        -runs="${runs[$name]}" -max_total_time="$seconds_at_most" -max_len="${longest[$name]}" -timeout=10 \
        -rss_limit_mb=1024 -print_final_stats=1 -artifact_prefix="$work/findings/" "$work/corpus" \
        >"$log" 2>&1 || status=$?
    if ((status != 0)); then
        tail -n 60 "$log" >&2
        fail "reader $name, seed $seed: $(sed -n 's/^.*Test unit written to /the file that it fails on is /p' "$log")" \
            "(again: build/fuzz/bin/fuzz_$name FILE)"
    fi
    grep -E '^Done [1-9][0-9]* runs' "$log" || fail "reader $name did nothing, see $log"
    sed -n 's/^stat::average_exec_per_sec: */files a second: /p' "$log"
}

step "packages" install_packages "${packages_build[@]}" "${packages_fuzz[@]}"
step "build (fuzz)" build fuzz
printf '\nSeed %s\n' "$seed"
for name in "${readers[@]}"; do
    step "reader $name" fuzz "$name"
done
