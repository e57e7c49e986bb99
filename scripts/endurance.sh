#!/usr/bin/env bash
# Kills and stops jobs of quorvex-cli at random moments, and checks what they leave, on images of its own:
# scripts/endurance.sh [--build PRESET] [--kills N] [--stops N] [--seed S]
#
#   scripts/endurance.sh                            20 kills and 20 stops, less than a minute
#   scripts/endurance.sh --kills 1000 --stops 1000  for an evening
#   scripts/endurance.sh --build tsan --kills 0 --stops 100
#
# The same seed gives the same moments, as far as the machine is as fast. What is checked: tests/endurance/endurance.py.
# shellcheck source=lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

preset=dev
if [[ ${1:-} == --build ]]; then
    preset=${2:?which preset?}
    shift 2
fi
# The addresses of the sanitizers: see sanitize.sh.
launcher=()
if [[ $preset == tsan || $preset == asan ]] && (($(cat /proc/sys/vm/mmap_rnd_bits 2>/dev/null || echo 28) > 28)); then
    launcher=(setarch "$(uname -m)" --addr-no-randomize)
fi
install_packages "${packages_build[@]}" "${packages_test[@]}" python3
if [[ $preset == tsan ]]; then
    "$root/scripts/tsan-qt.sh"
fi
build "$preset" --target quorvex-cli
exec "${launcher[@]}" "$root/tests/endurance/endurance.py" --program "$root/build/$preset/bin/quorvex-cli" "$@"
