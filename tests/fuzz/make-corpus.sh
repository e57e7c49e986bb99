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

rm -rf infofile trashinfo wipereport
mkdir infofile trashinfo wipereport

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
