#!/usr/bin/env bash
# Renders the gallery again: pictures of pages, dialogs and certificates in build/gallery, for visual review.
#
#   scripts/gallery.sh                     Chinese, English, German and Japanese at 100 %, 150 % and 200 %
#   scripts/gallery.sh de fr               these languages
#   ROOM=certificate SCALES=1 scripts/gallery.sh zh_CN
# shellcheck source=lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
cd "$root"

preset=${PRESET:-dev}
languages=("$@")
((${#languages[@]} > 0)) || languages=(zh_CN en de ja)
read -r -a scales <<<"${SCALES:-1 1.5 2}"
options=(--catalogues "build/$preset/translations")
[[ -z ${ROOM:-} ]] || options+=(--room "$ROOM")

install_packages "${packages_build[@]}" "${packages_fonts[@]}"
build "$preset" --target quorvex-gallery
for language in "${languages[@]}"; do
    for scale in "${scales[@]}"; do
        QT_QPA_PLATFORM=offscreen QT_SCALE_FACTOR=$scale \
            "build/$preset/bin/quorvex-gallery" "${options[@]}" --language "$language" build/gallery
    done
done
