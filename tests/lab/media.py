#!/usr/bin/env python3
"""What lies on a medium, read and written from outside the machine.

media.py fill FILE NAME BYTES      a medium of that size; every 512 bytes begin with a marker, NAME and a number
media.py table FILE BYTES...         a partition table; each partition has that size and begins 1 MiB after the one before
media.py all FILE BYTE [FROM TO]   succeeds when every byte is BYTE (hexadecimal)
media.py random FILE               succeeds when no block of 512 bytes occurs twice, looks even, or has a marker
media.py others FILE BYTE [FROM TO]  prints how many bytes the blocks have that are not all BYTE
media.py markers FILE [FROM TO]    prints how many markers are left
media.py digest FILE               prints a checksum of the content
media.py holds FILE TEXT           succeeds when TEXT is somewhere
"""
import hashlib
import os
import struct
import sys

MARKER = b"QUORVEX-LAB"
SECTOR = 512
MIB = 1 << 20


def marked_sector(name, number):
    line = MARKER + b" %s %012d " % (name, number)
    return (line * (SECTOR // len(line) + 1))[:SECTOR]


def fill(path, name, size):
    name = name.encode()
    content = b"".join(marked_sector(name, number) for number in range((size + SECTOR - 1) // SECTOR))
    # An existing file is written in place: a running machine has it open.
    with os.fdopen(os.open(path, os.O_WRONLY | os.O_CREAT, 0o644), "wb") as file:
        file.write(content[:size])
        file.truncate(size)


def partitions(sizes):
    start = MIB
    for size in sizes:
        yield start, size
        start += size + MIB


def write_table(path, sizes):
    entries = b"".join(struct.pack("<4sB3sII", b"", 0x83, b"", start // SECTOR, size // SECTOR)
                       for start, size in partitions(sizes))
    with open(path, "r+b") as file:
        file.seek(446)
        file.write(entries.ljust(64, b"\0") + b"\x55\xaa")


def content_of(path, start=0, end=None):
    with open(path, "rb") as file:
        file.seek(start)
        return file.read() if end is None else file.read(end - start)


def is_all(content, byte):
    wrong = len(content) - content.count(byte)
    if not content:
        print("nothing to compare")
    elif wrong:
        first = next(at for at, value in enumerate(content) if value != byte)
        print(f"{wrong} of {len(content)} bytes are others, the first at {first}: 0x{content[first]:02X}")
    return bool(content) and not wrong


def is_random(content):
    markers = content.count(MARKER)
    if markers:
        print(f"{markers} markers left")
        return False
    blocks = [content[at:at + SECTOR] for at in range(0, len(content), SECTOR)]
    if not blocks or len(set(blocks)) != len(blocks):
        print(f"{len(blocks)} blocks, {len(set(blocks))} different ones")
        return False
    # A block of random bytes has about 221 different ones; fewer than 150 do not occur.
    dull = sum(len(set(block)) < 150 for block in blocks if len(block) == SECTOR)
    if dull:
        print(f"{dull} of {len(blocks)} blocks do not look random")
    return not dull


def main(command, path, *rest):
    if command == "fill":
        fill(path, rest[0], int(rest[1]))
        return True
    if command == "table":
        write_table(path, map(int, rest))
        return True
    if command == "digest":
        print(hashlib.sha256(content_of(path)).hexdigest())
        return True
    if command == "random":
        return is_random(content_of(path))
    if command == "holds":
        return rest[0].encode() in content_of(path)
    if command == "markers":
        print(content_of(path, *map(int, rest)).count(MARKER))
        return True
    byte = int(rest[0], 16)
    content = content_of(path, *map(int, rest[1:]))
    if command == "all":
        return is_all(content, byte)
    if command == "others":
        clean = bytes([byte]) * SECTOR
        print(sum(SECTOR for at in range(0, len(content), SECTOR) if content[at:at + SECTOR] != clean))
        return True
    raise SystemExit(__doc__)


if __name__ == "__main__":
    sys.exit(0 if main(*sys.argv[1:]) else 1)
