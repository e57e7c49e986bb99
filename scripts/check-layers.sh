#!/usr/bin/env bash
# Checks the includes between the layers, and that the check still detects violations.
# shellcheck source=lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

tree=$(mktemp -d)
trap 'rm -rf "$tree"' EXIT

check_tree() {
    cmake -DSOURCE="$tree" -DTABLE="model=|platform=|engine=model,platform|ui/prompts=model|ui=model,ui/prompts" -P "$root/cmake/CheckLayers.cmake" 2>&1
}

# refuses FILE LINE MESSAGE: with LINE in src/FILE the check must fail with MESSAGE.
refuses() {
    local output
    printf '%s\n' "$2" >"$tree/$1"
    if output=$(check_tree); then
        fail "the layer check lets '$2' in $1 pass"
    fi
    # CMake wraps long messages.
    if [[ $(tr -s ' \n' ' ' <<<"$output") != *"$3"* ]]; then
        printf '%s\n' "$output" >&2
        fail "the layer check fails for '$2' in $1, but not with: $3"
    fi
    rm "$tree/$1"
}

mkdir -p "$tree"/{model,platform/linux,engine,ui/prompts}
printf '#include "model/b.h"\n' >"$tree/engine/a.h"
printf '#include <unistd.h>\n' >"$tree/platform/linux/a.cpp"
printf '#include "ui/prompts/a.h"\n#include "model/b.h"\n' >"$tree/ui/a.h"
printf '#include "model/b.h"\n' >"$tree/ui/prompts/a.h"
check_tree >/dev/null || fail "the layer check refuses a tree without a wrong include"
refuses model/b.h '#include "engine/a.h"' "'model' must not include 'engine/a.h'"
refuses platform/b.h '#include "engine/a.h"' "'platform' must not include 'engine/a.h'"
refuses ui/prompts/b.cpp '#include "ui/a.h"' "'ui/prompts' must not include 'ui/a.h'"
refuses ui/b.cpp '#include "engine/a.h"' "'ui' must not include 'engine/a.h'"
refuses engine/b.cpp '#include <unistd.h>' "'unistd.h' belongs below src/platform/"
refuses platform/b.cpp '#include <unistd.h>' "'unistd.h' belongs into a backend's folder"
refuses engine/b.cpp '#include <windows.h>' "'windows.h' belongs below src/platform/"
refuses platform/linux/b.cpp '#include <winioctl.h>' "'winioctl.h' belongs below src/platform/windows/"
refuses engine/b.cpp '#ifdef Q_OS_WIN' "'#ifdef Q_OS_WIN' belongs below src/platform/"
refuses engine/b.cpp '#elif defined(__linux__)' "belongs below src/platform/"
refuses engine/b.cpp '#include "a.h"' 'write "a.h" as a path from src/'
check_tree >/dev/null || fail "the layer check refuses a tree whose wrong includes are gone"
printf 'The layer check refuses what it should.\n'

"$root/scripts/check-pictures.py"

cmake --build "$root/build/dev" --target quorvex_layer_check
