#!/usr/bin/env python3
"""Writes a grid definition (.GRS) from its text form, so that a definition can be read and edited as text.

usage: make_definition.py FILE.grs.txt FILE.grs      writes the definition
       make_definition.py --check FILE.grs.txt FILE.grs   fails if the file isn't what the text gives
"""
import re
import struct
import sys

VERSION = 0x484A

STYLES = {
    "WS_CHILD": 0x40000000, "WS_VISIBLE": 0x10000000, "WS_VSCROLL": 0x00200000, "WS_HSCROLL": 0x00100000,
    "WS_TABSTOP": 0x00010000, "WS_BORDER": 0x00800000,
    "HGS_READONLY": 0x0001, "HGS_NOLINES": 0x0002, "HGS_FACEBACK": 0x0004, "HGS_STRIPED": 0x0008,
    "HGS_NEWROW": 0x0010, "HGS_ROWSIZE": 0x0020, "HGS_COLSIZE": 0x0040, "HGS_ROWHEADERS": 0x0080,
    "HGS_COLHEADERS": 0x0100, "HGS_ROWDELETE": 0x0200, "HGS_NOTAB": 0x0400, "HGS_KEEPSEL": 0x0800,
    "HGS_COLMAP": 0x1000, "HGS_ROWSELECT": 0x2000, "HGS_NOEXTEND": 0x4000, "HGS_NAVIGATOR": 0x8000,
}
HFF_CODE = 0x0008
ALIGN = {"": 0, "center": 0x0001, "right": 0x0002}


def fail(path, number, message):
    sys.exit(f"{path}:{number}: {message}")


def text(value):
    data = value.encode("latin-1")
    return struct.pack("<H", len(data)) + data


def field_record(path, number, line):
    parts = [part.strip() for part in line.split("|")]
    if len(parts) != 6:
        fail(path, number, f"a field has 6 parts, this one {len(parts)}")
    caption, width, pair, size, align, form = parts
    if not re.fullmatch("(%..){1,2}", pair) or align not in ALIGN:
        fail(path, number, "the type is % and two letters, once or twice, the alignment right, center or nothing")
    letters = [ord(letter) for letter in pair.replace("%", "")]
    # A second pair is that of the codes which the cells of a list store.
    flags, kind = (HFF_CODE, "l") if len(letters) == 4 else (0, "e")
    letters += [0] * (4 - len(letters))
    fixed = struct.pack("<HhHHBBBBBI", flags, int(width), 0, int(size), *letters, ord(kind), ALIGN[align])
    return fixed + text(caption) + text(form)


def style_word(path, number, names):
    word = 0
    for name in names.split():
        if name not in STYLES:
            fail(path, number, f"no style {name}")
        word |= STYLES[name]
    return word


def definition(path):
    settings = {"title": "", "style": 0, "fixed": 0, "row-height": -1, "header-width": -1, "header-height": -1,
                "options": 0, "min-rows": 0}
    fields = []
    with open(path, encoding="latin-1") as source:
        for number, line in enumerate(source, 1):
            line = line.strip()
            if not line or line.startswith("#"):
                continue
            key, _, value = line.partition(" ")
            value = value.strip()
            if key == "field":
                fields.append(field_record(path, number, value))
            elif key == "style":
                settings["style"] = style_word(path, number, value)
            elif key == "title":
                settings["title"] = value
            elif key in settings:
                settings[key] = int(value)
            else:
                fail(path, number, f"no setting {key}")
    header = struct.pack("<HIhhhh", VERSION, settings["style"], settings["fixed"], settings["row-height"],
                         settings["header-width"], settings["header-height"])
    rest = struct.pack("<IHH", settings["options"], settings["min-rows"], len(fields))
    return header + text(settings["title"]) + rest + b"".join(fields)


def main(arguments):
    check = arguments[:1] == ["--check"]
    if len(arguments) != (3 if check else 2):
        sys.exit(__doc__)
    source, target = arguments[-2:]
    data = definition(source)
    if not check:
        with open(target, "wb") as out:
            out.write(data)
        return
    with open(target, "rb") as kept:
        if kept.read() != data:
            sys.exit(f"{target} isn't what {source} gives; run tools/make_definition.py {source} {target}")


if __name__ == "__main__":
    main(sys.argv[1:])
