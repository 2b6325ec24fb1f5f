#!/usr/bin/env python3
"""Lets the numbers of a help file's topics lead to its pages: number_help_topics.py HELP.chm FOLDER

The help compiler writes the whole path of each page on its own machine, in FOLDER, where the viewer
wants the page's name. The list of the numbers (the file's entry "#IVB") is written anew, so that
each number leads to where the name begins in that path, and stands uncompressed at the file's end.
"""
import pathlib
import struct
import subprocess
import sys
import tempfile

ENTRY = b"/#IVB"
LIST_HEAD = 20  # of a part of the directory: mark, free bytes, zero, part before, part behind


def read_number(data, at):
    """A number in bytes of seven bits, and where it ends."""
    value = 0
    while True:
        value = value << 7 | data[at] & 0x7F
        at += 1
        if data[at - 1] < 0x80:
            return value, at


def number_bytes(value):
    found = [value & 0x7F]
    while value := value >> 7:
        found.append(value & 0x7F | 0x80)
    return bytes(reversed(found))


def renumbered(help_file, folder):
    """The list of the numbers, each with the place of its page's name."""
    with tempfile.TemporaryDirectory() as scratch:
        subprocess.run(["extract_chmLib", help_file, scratch], check=True, capture_output=True)
        numbers = (pathlib.Path(scratch) / "#IVB").read_bytes()
        strings = (pathlib.Path(scratch) / "#STRINGS").read_bytes()
    prefix = (folder.rstrip("/") + "/").encode()
    result = numbers[:4]
    for number, place in struct.iter_unpack("<II", numbers[4:]):
        if strings.startswith(prefix, place):
            place += len(prefix)
        result += struct.pack("<II", number, place)
    return result


def rewritten_part(part, quick_step, place):
    """A part of the directory in which the entry of the numbers has another place."""
    (count,) = struct.unpack_from("<H", part, len(part) - 2)
    at, entries, starts, found = LIST_HEAD, b"", [], False
    for index in range(count):
        starts.append(len(entries))
        length, name_at = read_number(part, at)
        name = part[name_at : name_at + length]
        end = name_at + length
        for _ in range(3):
            _, end = read_number(part, end)
        if name == ENTRY:
            entries += part[at : name_at + length] + b"".join(map(number_bytes, place))
            found = True
        else:
            entries += part[at:end]
        at = end
    # From the end on stand the number of entries and where every so-manieth of them begins.
    quick = b"".join(
        struct.pack("<H", starts[index])
        for index in reversed(range(quick_step - 1, count, quick_step))
    ) + struct.pack("<H", count)
    room = len(part) - LIST_HEAD - len(entries)
    if room < len(quick):
        raise SystemExit("the directory of the help file has no room")
    head = part[:4] + struct.pack("<I", room) + part[8:LIST_HEAD]
    return (head + entries + bytes(room - len(quick)) + quick) if found else None


def main(help_file, folder):
    path = pathlib.Path(help_file)
    data = bytearray(path.read_bytes())
    numbers = renumbered(help_file, folder)
    sizes_at, _, directory_at, _ = struct.unpack_from("<QQQQ", data, 0x38)
    (content_at,) = struct.unpack_from("<Q", data, 0x58)
    (head_size,) = struct.unpack_from("<I", data, directory_at + 8)
    part_size, density = struct.unpack_from("<II", data, directory_at + 16)
    (parts,) = struct.unpack_from("<I", data, directory_at + 44)
    place = (0, len(data) - content_at, len(numbers))
    changed = 0
    for index in range(parts):
        at = directory_at + head_size + index * part_size
        if data[at : at + 4] != b"PMGL":
            continue
        part = rewritten_part(bytes(data[at : at + part_size]), (1 << density) + 1, place)
        if part is not None:
            data[at : at + part_size] = part
            changed += 1
    if changed != 1:
        raise SystemExit("the help file has no one list of numbers")
    data += numbers
    struct.pack_into("<Q", data, sizes_at + 8, len(data))
    path.write_bytes(data)


main(*sys.argv[1:])
