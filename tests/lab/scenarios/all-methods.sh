# shellcheck shell=bash
# Every kind of drive by the methods with many passes.
# shellcheck disable=SC2034,SC2154
# shellcheck source=kinds.sh
source "$lab/scenarios/kinds.sh"
title="every kind of drive by the two other methods" ci=no boot=all-methods
numbers=(2 4)
