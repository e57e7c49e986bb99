# shellcheck shell=bash
# The power fails during a job on a drive and during a job on free space.
# shellcheck disable=SC2034,SC2154
title="power cut in a job on a drive and in one on free space" ci=yes
# shellcheck source=../powercut.sh
source "$lab/powercut.sh"

drives() {
    power_drives
}

guest() {
    local recorded=0
    quietly prepare_power
    power_fails disk '"event":"pass","pass":2' "second pass"
    power_fails free '"event":"pass","pass":2' "second pass"
}
