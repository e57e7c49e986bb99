#!/usr/bin/env bash
# Shows all pages and dialogs and names each text that has less room than it needs.
#
#   scripts/check-texts.sh                     all languages and the pseudo-locale
#   scripts/check-texts.sh de pseudo           these
# shellcheck source=lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
cd "$root"

preset=${PRESET:-dev}
mapfile -t all < <(sed -n 's/^\([^#|]*\) |.*/\1/p' resources/translations/languages.txt)
languages=("$@")
((${#languages[@]} > 0)) || languages=("${all[@]}" pseudo)

install_packages "${packages_build[@]}" "${packages_fonts[@]}"
build "$preset" --target quorvex-gallery
status=0
for language in "${languages[@]}"; do
    printf '%s: ' "$language"
    QT_QPA_PLATFORM=offscreen QT_LOGGING_RULES='*=false' "build/$preset/bin/quorvex-gallery" \
        --catalogues "build/$preset/translations" --language "$language" --check-texts || status=1
done
((status == 0)) || fail "texts are cut"
