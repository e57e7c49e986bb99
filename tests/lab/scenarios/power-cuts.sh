# shellcheck shell=bash
# The power fails in each phase of each job.
# shellcheck disable=SC2034,SC2154
title="power cut in each phase of each job"
# shellcheck source=../powercut.sh
source "$lab/powercut.sh"

drives() {
    power_drives
}

guest() {
    local recorded=0 kind
    quietly prepare_power
    for kind in disk free files; do
        power_fails "$kind" '"event":"started"' "before the first write"
        power_fails "$kind" '"event":"pass","pass":1' "first pass"
        power_fails "$kind" '"event":"progress"' "after the first progress"
        power_fails "$kind" '"event":"pass","pass":2' "second pass"
        power_fails "$kind" '正在' "between two steps"
    done
    power_fails disk '正在验证' "reading back"
}
