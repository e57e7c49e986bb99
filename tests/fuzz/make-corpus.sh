#!/usr/bin/env bash
# Writes the initial corpus of the fuzzers into tests/fuzz/corpus/: small files of every relevant shape. Run
# it after a change here; the files are kept in the repository.
set -euo pipefail
export LC_ALL=C.UTF-8
cd "$(dirname "${BASH_SOURCE[0]}")/corpus"

# little NUMBER BYTES: the number in that many bytes, the lowest first.
little() {
    local number=$1 i
    for ((i = 0; i < $2; i++)); do
        # shellcheck disable=SC2059  # the format is the byte
        printf "\\x$(printf %02x $((number >> (8 * i) & 255)))"
    done
}
utf16() { iconv -f UTF-8 -t UTF-16LE; }
repeated() { head -c "$2" /dev/zero | tr '\0' "$1"; }

# header VERSION SIZE: writes also the time of the deletion.
header() { little "$1" 8; little "$2" 8; little 133500000000000000 8; }
# fixed_path SIZE FILE: version 1, the path in a field of 260 units.
fixed_path() {
    { header 1 "$1"; utf16; } >"$2"
    truncate -s 544 "$2"
}
# counted_path SIZE UNITS: version 2, with this length even if the text has another one.
counted_path() { header 2 "$1"; little "$2" 4; utf16; }

readers=(commandline devicereplies glyphnames infofile linkcatalogue mounttable sysattributes trashinfo wipereport)
rm -rf "${readers[@]}"
mkdir "${readers[@]}"

cd infofile
printf 'C:\\Users\\ann\\a.txt' | fixed_path 12345 version1
printf 'C:\\Users\\ann\\a.txt\0' | counted_path 12345 19 >version2
printf 'C:\\Users\\ann\\a.txt' | counted_path 12345 18 >version2-without-zero
printf 'D:/mixed\\and/slashes\0' | counted_path 1 21 >version2-both-separators
printf '/only/slashes\0' | counted_path 1 14 >version2-slashes
printf ' \t\n C:\\a \0 ' | counted_path 1 11 >version2-white-space
printf 'C:\\ends\\\0' | counted_path 1 9 >version2-ends-in-separator
printf 'name\0' | counted_path 1 5 >version2-name-only
printf '\0\0\0' | counted_path 1 3 >version2-only-zeros
printf 'C:\\a\0b\\c\0d\0' | counted_path 1 11 >version2-zeros-inside
printf 'C:\\表情😀.txt\0' | counted_path 1 12 >version2-astral
{ header 2 7; little 4 4; printf 'C\0:\0\\\0'; little 0xD800 2; } >version2-high-surrogate-last
{ header 2 7; little 5 4; printf 'C\0:\0'; little 0xDC00 2; printf 'a\0'; little 0xD83D 2; } >version2-lone-surrogates
{ header 2 7; little 3 4; little 0xFEFF 2; printf 'a\0'; little 0xFFFE 2; } >version2-byte-order-marks
printf 'C:\\short' | counted_path 1 100 >version2-length-too-large
printf 'C:\\short' | counted_path 1 9 >version2-length-one-too-large
printf 'C:\\long' | counted_path 1 2 >version2-length-too-small
printf 'C:\\a' | counted_path 1 $((0xFFFFFFFF)) >version2-length-all-ones
printf 'C:\\a' | counted_path 1 $((0x80000000)) >version2-length-doubled-is-0
printf 'C:\\a' | counted_path 1 $((0x7FFFFFF2)) >version2-length-overflows-with-offset
{ header 2 1; little 0 4; } >version2-28-bytes
{ header 2 1; little 0 4; printf a; } >version2-29-bytes
{ header 2 1; little 1 4; printf a; } >version2-half-a-unit
{ printf 'C:\\odd\0' | counted_path 1 7; printf x; } >version2-odd-size
header 2 -1 >24-bytes
{ header 2 1; little 0 3; } >27-bytes
fixed_path -1 version1-no-path-largest-size </dev/null
printf 'C:\\a' | fixed_path 1 version1-one-byte-short
truncate -s 543 version1-one-byte-short
printf 'C:\\a' | fixed_path 1 version1-more-behind
printf more >>version1-more-behind
repeated x 260 | fixed_path 1 version1-full
repeated ' ' 260 | fixed_path 1 version1-only-white-space
{
    header 1 1
    for ((i = 0; i < 130; i++)); do
        little 0xD800 2
        little 0x5C 2
    done
} >version1-surrogates-and-separators
{ header 0 1; little 2 4; printf 'a\0b\0'; } >version0
{ header 3 1; little 2 4; printf 'a\0b\0'; } >version3
{ little $((1 << 32 | 2)) 8; little 1 8; little 0 8; little 1 4; printf 'a\0'; } >version-in-the-upper-half
: >empty
cd ..

cd trashinfo
printf '[Trash Info]\nPath=/tmp/a%%20b\nDeletionDate=2026-01-02T03:04:05\n' >usual
printf '[Trash Info]\r\nPath=relative/a\r\n' >carriage-returns
printf '[Trash Info]\nPath=/%%E8%%A1%%A8\xe8\xa1\xa8%%ff\xff\n' >not-utf8
printf '[Trash Info]\nPath=/a%%0Ab%%00c%%\n' >controls
printf '[Trash Info]\nPath=%%2\nPath=/second\n' >cut-escape
printf '[Trash Info]\nPath=\nPath=/second\n' >empty-path
printf '[Other]\nPath=/no\n[Trash Info]\n Path = /a \n[Trash Info]\nPath=/b' >groups
printf 'Path=/no\n' >no-group
printf '[Trash Info\nPath=/no\n=\n==' >cut-group
: >empty
cd ..

cd wipereport
cat >usual <<'JSON'
{"certificateId":"QVX-2026-01-02-1234","operationType":3,"methodType":2,"startTime":"2026-01-02T03:04:05",
"endTime":"2026-01-02T03:04:05Z","status":3,"diskInfo":{"model":"m","serialNumber":"s","totalSize":"1000"},
"wipeItems":[{"path":"/a","size":"1"}],"totalSectors":"18446744073709551615","wipedSectors":"-1",
"badSectors":1,"verificationPassed":true,"verificationMethod":"\u8868","errorMessage":"a\nb"}
JSON
printf '{"operationType":2147483647,"methodType":-1,"status":1e99,"badSectors":1.5,"fileCount":-2147483648}' >numbers
printf '{"certificateId":"\\ud800","errorMessage":"\\udc00\\ud83d\\ude00\\u0000","dataHash":null}' >surrogates
printf '{"startTime":"24:00","endTime":"9999-12-31T23:59:59.999+14:00","diskInfo":[]}' >late-times
printf '{"startTime":"-0001-01-01T00:00:00","endTime":"2026-03-29T02:30:00+05:30"}' >odd-times
printf '[[[[{}]]]]' >array
printf '{"certificateId":{"certificateId":{}},"diskInfo":{"totalSize":"9223372036854775808"}}' >nested
printf '\xef\xbb\xbf{}' >byte-order-mark
printf '{' >cut-short
: >empty
cd ..

cd commandline
printf 'wipe\ndisk\n/dev/sdb\n--method\n4\n--yes\n--json' >wipe-disk
printf 'wipe\nfiles\n--\n-rf\n--yes' >wipe-files
printf 'wipe\nfree\n/mnt\n--buffer-mb=8\n--threads\n-1' >wipe-free
printf 'wipe\ntrash\n--dry-run\n--quiet' >wipe-trash
printf 'reports\nexport\nQVX-1\n--pdf\na.pdf\n--json\n-' >reports-export
printf 'reports\nlist\n--limit\n99999999999999999999' >reports-list
printf 'disks\n--all\n--lang\nde' >disks
printf 'help\nwipe\ndisk' >help
printf -- '--version' >version
printf 'wipe\ndsik' >typing-error
printf -- '-\n--\n---\n=\n--=\n\n' >signs
: >empty
cd ..

cd devicereplies
# descriptor SERIAL: STORAGE_DEVICE_DESCRIPTOR with a product and a serial number behind the fixed part.
descriptor() {
    little 40 4; little 72 4; little 0 2; printf '\1\1'
    little 0 4; little 40 4; little 0 4; little 48 4; little 11 4; little 0 4; little 0 4
    printf 'DISK\0\0\0\0%s\0' "$1"
}
descriptor ' S1234 ' >usual
descriptor "$(printf 'a\001\177b')" >descriptor-controls
descriptor 12345678901234567890 | head -c 50 >descriptor-cut
{ little 2 4; little 0 4; little 0 8; little 1048576 8; little 4096 8; little 1 8; little 0 8; little -1 8; } >extents
{ little -1 4; little 0 4; little 0 8; } >extents-without-end
{ little 12 4; little 32 4; little 1 4; little 1 4; little 3 4; little 8 2; little 20 2; little 0 4
  printf '\x50\x00\xc5\x00\xa1\xb2\xc3\xd4'; } >identifier
{ little 1 4; little 3 4; repeated x 40; little 1 4; little 0 4; repeated y 144; } >layout
repeated '\377' 64 >ones
: >empty
cd ..

cd glyphnames
# pdf RANGES [COUNT]: one font whose glyphs are named by these ranges, and a table of COUNT objects.
pdf() {
    local body names=$1 count=${2:-3} first=9 second table
    names=$'/CMap\n'"$(wc -l <<<"$names") beginbfrange"$'\n'"$names"$'\nendbfrange\nendcmap\n'
    body=$'%PDF-1.4\n1 0 obj\n<< /ToUnicode 2 0 R >>\nendobj\n'
    second=${#body}
    body+=$'2 0 obj\n<< /Length '"${#names}"$' >>\nstream\n'"$names"$'endstream\nendobj\n'
    table=${#body}
    printf '%s' "$body"
    printf 'xref\n0 %s\n0000000000 65535 f \n%010d 00000 n \n%010d 00000 n \n' "$count" "$first" "$second"
    printf 'trailer\n<<\n/Size 3\n/Root 1 0 R\n>>\nstartxref\n%d\n%%%%EOF\n' "$table"
}
pdf '<0000> <0001> <2F64>' >range
pdf '<0003> <0004> [<2F64> <F900>]' >list
pdf $'<0000> <0001> <2F64>\n<0005> <0005> <00200041>' >ranges
pdf '<0000> <7FFFFFFF> <0041>' >range-too-large
pdf '<0005> <0001> <0041>' >range-backwards
pdf '<0000> <0001> [<2F64>' >list-not-closed
pdf '<0000> <0001> <2F64>' 9223372036854775807 >count-too-large
pdf '<0000> <0001> <2F64>' -3 >count-negative
pdf '<0000> <0001> <2F64>' | head -c 180 >cut-short
: >empty
cd ..

cd linkcatalogue
cat >usual <<'JSON'
{"metadata":{"version":"1","supported_languages":["en","de"],"fallback_language":"en"},
"support":{"help":{"en":"https://example.org/en","de":"https://example.org/de"},"faq":{"en":"https://example.org/faq"}}}
JSON
printf '{"metadata":[],"support":{"help":[1,null,true]}}' >other-kinds
printf '{"metadata":{"supported_languages":{"a":"b"},"fallback_language":7},"support":{"help":{"en":7}}}' >numbers
printf '{"support":{"help":{"en":"javascript:alert(1)","":"\\ud800"}}}' >odd-addresses
printf '[{}]' >array
printf '{"metadata":' >cut-short
: >empty
cd ..

cd mounttable
printf '36 35 98:0 /mnt1 /mnt2 rw,noatime master:1 - ext3 /dev/root rw,errors=continue\n' >usual
printf '41 28 0:42 /sub /srv\\040data rw,nosuid shared:7 master:1 propagate_from:2 - btrfs /dev/sdb1 rw,subvol=/sub\n' >btrfs
printf '1 0 8:1 / / ro,relatime - vfat /dev/sda1 rw,uid=0,iocharset=\\134\n' >escapes
printf '1 0 8:1 / / rw shared:1 master:2\n' >no-dash
printf ' - - - - - - - \n-\n\n - \n' >dashes
printf '99999999999999999999 -1 a:b / /\\04 rw - x y\n' >numbers
printf 'Filename Type Size Used Priority\n/dev/sda2 partition 1 0 -2\n/swap\\040file file 1 0 -3\n' >swaps
: >empty
cd ..

cd sysattributes
# The attributes in the order of the reader's list, each ended by the byte 0xFF.
attributes() { printf '%b\xff' "$@"; }
attributes '2097152\n' '0\n' '1\n' '17\n' 'naa.5000c500a1b2c3d4\n' '' 'Disk A \n' 'S123\n' '' '' '' '' >usual
attributes '8\n' '0' '0' '' '' 't10.ATA x' '' '' '' '\x00\x80\x00\x04SER1' '' 'E:ID_SERIAL_SHORT=a\\x20b\nE:ID_BUS=usb\n' >page
attributes '-1\n' '' '' '' '' '' '\x00\x01' '\xc3\x28' '' '\x00\x80\xff\xfe' '' 'E:\nE:=\n=\nE:A' >odd
attributes '99999999999999999' '0' '0' >size-beyond-bytes
attributes '99999999999999999999' '2' '-5' '\n\n' 'uuid.' 'eui.\n' >numbers
: >empty
cd ..
