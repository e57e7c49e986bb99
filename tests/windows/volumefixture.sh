#!/usr/bin/env bash
# Volumes for tst_winevolume: E: is an image file, F: a loop device on another (with root only), both full of text.
#
#   volumefixture.sh prepare|release
#   volumefixture.sh check      every byte is what the last pass of the suite wrote: 0x00 on E:, 0xAA on F:
# shellcheck source=../../scripts/lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/../../scripts/lib.sh"
# shellcheck source=../../scripts/wineprefix.sh
source "$root/scripts/wineprefix.sh"

folder=$root/build/windows-cross/volumes
size=$((24 * 1024 * 1024))

release() {
    local device
    # Also releases devices of an interrupted run, but none that has been attached to another file since.
    if [[ -e $folder/f.img ]]; then
        for device in $(losetup --noheadings --output NAME --associated "$folder/f.img"); do
            losetup --detach "$device"
        done
    fi
    rm -f "$WINEPREFIX"/dosdevices/{e,f}{:,::}
    rm -rf "$folder"
}

prepare() {
    local drive
    release
    provide_wine_prefix
    mkdir -p "$folder"/{e,f}
    for drive in e f; do
        head -c "$size" < <(yes "Text on drive $drive that must not be left.") >"$folder/$drive.img"
        ln -s "$folder/$drive" "$WINEPREFIX/dosdevices/$drive:"
    done
    ln -s "$folder/e.img" "$WINEPREFIX/dosdevices/e::"
    if [[ $(id -u) == 0 ]]; then
        losetup --find --show "$folder/f.img" >"$folder/device"
        ln -s "$(cat "$folder/device")" "$WINEPREFIX/dosdevices/f::"
    else
        rm "$WINEPREFIX/dosdevices/f:"
    fi
}

# every_byte_is FILE OCTAL checks that the file has its old size and contains only this byte.
every_byte_is() {
    local others
    [[ $(stat -c %s "$1") == "$size" ]] || fail "$1 has another size than before"
    others=$(tr -d "\\$2" <"$1" | wc -c)
    ((others == 0)) || fail "$others bytes of $1 were not written"
    printf '%s: all %d bytes are as the last pass wrote them\n' "${1##*/}" "$size"
}

check() {
    every_byte_is "$folder/e.img" 000
    [[ ! -e $folder/device ]] || every_byte_is "$folder/f.img" 252
}

case ${1:-} in
    prepare | release | check) "$1" ;;
    *) fail "what? prepare, check or release" ;;
esac
