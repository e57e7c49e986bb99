#!/usr/bin/env bash
# Updates the catalogues in resources/translations with the texts in the sources:
#
#   scripts/update-translations.sh           adds new texts and drops removed ones
#   scripts/update-translations.sh --check   fails when there are texts to add or to drop
# shellcheck source=lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
cd "$root"

lupdate=/usr/lib/qt6/bin/lupdate
folder=resources/translations
mapfile -t languages < <(sed -n 's/^\([^#|]*\) |.*/\1/p' "$folder/languages.txt")

((${#languages[@]} > 0)) || fail "there are no languages in $folder/languages.txt"

[[ -x $lupdate ]] || fail "there is no $lupdate: the package qt6-l10n-tools brings it"

# update FOLDER: writes no line numbers, which would change with every edit of a source.
update() {
    local language files=()
    for language in "${languages[@]}"; do
        files+=("$1/quorvex_$language.ts")
    done
    "$lupdate" -silent -locations none -no-obsolete -source-language zh_CN src -ts "${files[@]}"
}

if [[ ${1:-} != --check ]]; then
    update "$folder"
    exit 0
fi
copy=$(mktemp -d)
trap 'rm -rf "$copy"' EXIT
cp "$folder"/*.ts "$copy"
update "$copy"
changed=0
for language in "${languages[@]}"; do
    diff -u "$folder/quorvex_$language.ts" "$copy/quorvex_$language.ts" | head -n 40 || changed=1
done
((changed == 0)) || fail "the catalogues do not have the texts of the sources: run scripts/update-translations.sh"
printf '%d catalogues have the texts of the sources.\n' "${#languages[@]}"
