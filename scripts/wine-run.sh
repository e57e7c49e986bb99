#!/usr/bin/env bash
# Runs a Windows program of build/windows-cross under Wine, in a separate prefix: scripts/wine-run.sh PROGRAM
# [ARGUMENT...]
# shellcheck source=lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
# shellcheck source=wineprefix.sh
source "$(dirname "${BASH_SOURCE[0]}")/wineprefix.sh"

provide_wine_prefix
exec "$wine" "$@"
