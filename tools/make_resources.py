#!/usr/bin/env python3
"""Makes the bitmaps, cursors and the icon of the library from the pictures in src/resources/art.

    tools/make_resources.py            write the files that have changed
    tools/make_resources.py --check    write nothing; fail if a file differs from its picture
    tools/make_resources.py --preview DIR    write each picture, eight times as large, as a .ppm to look at

A picture is text, a letter a pixel:

    # a comment
    size 13 13              width and height of the images that follow
    hotspot 15 15           cursors only
    . 00ff00  transparent   a letter and its colour, red first; "screen" in its place shows what lies behind
    image empty check box   starts an image; its rows follow
    repeat empty check box  the same image once more
"""

import argparse
import pathlib
import struct
import sys
from dataclasses import dataclass

RESOURCES = pathlib.Path(__file__).resolve().parent.parent / "src" / "resources"

# All 4-bit pictures have these colours, so that none depends on another's.
PALETTE = [
    0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080, 0x008080, 0x808080,
    0xC0C0C0, 0xFF0000, 0x00FF00, 0xFFFF00, 0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF,
]
SCREEN = None  # in place of a colour: what lies behind the picture


class ArtError(Exception):
    """A picture that can't be used; the text names file and line."""


@dataclass
class Image:
    name: str
    width: int
    height: int
    hotspot: tuple
    rows: list  # from the top, each a list of colours

    def strip(self, other):
        """This image with another at its right."""
        if other.height != self.height:
            raise ArtError(f"{other.name}: images of a strip differ in height")
        rows = [a + b for a, b in zip(self.rows, other.rows)]
        return Image(self.name, self.width + other.width, self.height, self.hotspot, rows)


class ArtReader:
    """Reads one file of pictures."""

    def __init__(self, path):
        self.path = path
        self.number = 0
        self.size = (0, 0)
        self.hotspot = (0, 0)
        self.colors = {}
        self.images = []

    def read(self):
        lines = iter(self.path.read_text(encoding="ascii").splitlines())
        for line in self.numbered(lines):
            if line and not line.startswith("#"):
                self.read_line(line, lines)
        return self.images

    def numbered(self, lines):
        for line in lines:
            self.number += 1
            yield line

    def fail(self, what):
        raise ArtError(f"{self.path.name}:{self.number}: {what}")

    def read_line(self, line, lines):
        word, _, rest = line.partition(" ")
        if word in ("size", "hotspot"):
            setattr(self, word, tuple(int(number) for number in rest.split()))
        elif word == "image":
            self.images.append(Image(rest, *self.size, self.hotspot, self.read_rows(lines)))
        elif word == "repeat":
            self.images.append(find_image(self.images, rest))
        elif len(word) == 1 and rest:
            value = rest.split()[0]
            self.colors[word] = SCREEN if value == "screen" else int(value, 16)
        else:
            self.fail(f"cannot read '{line}'")

    def read_rows(self, lines):
        width, height = self.size
        rows = []
        for _ in range(height):
            line = next(self.numbered(lines), "")
            if len(line) != width:
                self.fail(f"a row has {len(line)} letters, not {width}")
            if not set(line) <= set(self.colors):
                self.fail(f"'{line}' has a letter without a colour")
            rows.append([self.colors[letter] for letter in line])
        return rows


def find_image(images, name):
    for image in images:
        if image.name == name:
            return image
    raise ArtError(f"there is no image '{name}'")


def load_art(name):
    return ArtReader(RESOURCES / "art" / name).read()


def pack_bits(values, bits):
    """A row of pixels, filled up to whole double words."""
    number = 0
    for value in values:
        number = number << bits | value
    used = len(values) * bits
    padded = (used + 31) // 32 * 32
    return (number << (padded - used)).to_bytes(padded // 8, "big")


def dib_header(image, bits, mask):
    """BITMAPINFOHEADER; in icons and cursors the height counts the mask too."""
    height = image.height * (2 if mask else 1)
    return struct.pack("<IiiHHIIiiII", 40, image.width, height, 1, bits, 0, 0, 0, 0, 0, 0)


def palette_bytes(colors):
    return b"".join(struct.pack("<I", color) for color in colors)  # blue, green, red, 0


def pixel_bytes(image, palette, bits):
    index = {color: number for number, color in enumerate(palette)}
    index[SCREEN] = 0
    unknown = {color for row in image.rows for color in row} - set(index)
    if unknown:
        raise ArtError(f"{image.name}: {', '.join(f'{color:06x}' for color in unknown)} isn't in the palette")
    return b"".join(pack_bits([index[color] for color in row], bits) for row in reversed(image.rows))


def mask_bytes(image):
    return b"".join(pack_bits([int(color is SCREEN) for color in row], 1) for row in reversed(image.rows))


def make_bitmap(images):
    strip = images[0]
    for image in images[1:]:
        strip = strip.strip(image)
    head = dib_header(strip, 4, mask=False) + palette_bytes(PALETTE)
    pixels = pixel_bytes(strip, PALETTE, 4)
    offset = 14 + len(head)
    return struct.pack("<2sIHHI", b"BM", offset + len(pixels), 0, 0, offset) + head + pixels


def make_icon_file(images, kind, palette, bits):
    """An .ico (kind 1) or .cur (kind 2) file."""
    entries, bodies = b"", b""
    for image in images:
        head = dib_header(image, bits, mask=True) + palette_bytes(palette)
        body = head + pixel_bytes(image, palette, bits) + mask_bytes(image)
        colors, pair = (len(palette), (1, bits)) if kind == 1 else (0, image.hotspot)
        offset = 6 + 16 * len(images) + len(bodies)
        entries += struct.pack("<BBBBHHII", image.width, image.height, colors, 0, *pair, len(body), offset)
        bodies += body
    return struct.pack("<HHH", 0, kind, len(images)) + entries + bodies


def make_icon(images):
    return make_icon_file(images, 1, PALETTE, 4)


def make_cursor(images):
    return make_icon_file(images, 2, [0x000000, 0xFFFFFF], 1)


# File, how it is made, its pictures, and the images taken from them (all without a list).
OUTPUTS = [
    ("check_strip.bmp", make_bitmap, "check_strip.txt", None),
    ("check_strip_double.bmp", make_bitmap, "check_strip_double.txt", None),
    ("box_empty.bmp", make_bitmap, "check_strip.txt", ["empty check box"]),
    ("box_crossed.bmp", make_bitmap, "check_strip.txt", ["crossed check box"]),
    ("box_dithered.bmp", make_bitmap, "check_strip.txt", ["dithered check box"]),
    ("triangle7_black.bmp", make_bitmap, "small_marks.txt", ["triangle 7, black"]),
    ("triangle9_black.bmp", make_bitmap, "small_marks.txt", ["triangle 9, black"]),
    ("triangle7_grey.bmp", make_bitmap, "small_marks.txt", ["triangle 7, grey"]),
    ("triangle9_grey.bmp", make_bitmap, "small_marks.txt", ["triangle 9, grey"]),
    ("dashes_black.bmp", make_bitmap, "small_marks.txt", ["dashes, black"]),
    ("dashes_grey.bmp", make_bitmap, "small_marks.txt", ["dashes, grey"]),
    ("dashes_low.bmp", make_bitmap, "small_marks.txt", ["dashes, low"]),
    ("to_first.bmp", make_bitmap, "small_marks.txt", ["bar and triangle up"]),
    ("to_last.bmp", make_bitmap, "small_marks.txt", ["triangle down and bar"]),
    ("cross.bmp", make_bitmap, "small_marks.txt", ["cross"]),
    ("pointer.cur", make_cursor, "pointer.txt", None),
    ("row_size.cur", make_cursor, "row_size.txt", None),
    ("col_size.cur", make_cursor, "col_size.txt", None),
    ("col_move.cur", make_cursor, "col_move.txt", None),
    ("grid.ico", make_icon, "grid_icon.txt", None),
]


def make_outputs():
    """Gives each file of the resources with its bytes."""
    for name, make, art, chosen in OUTPUTS:
        images = load_art(art)
        if chosen is not None:
            images = [find_image(images, choice) for choice in chosen]
        yield RESOURCES / name, make(images)


def is_current(path, data):
    return path.exists() and path.read_bytes() == data


def check():
    stale = [path for path, data in make_outputs() if not is_current(path, data)]
    for path in stale:
        print(f"{path.relative_to(RESOURCES)} differs from its picture: run tools/make_resources.py")
    return 1 if stale else 0


def write():
    for path, data in make_outputs():
        if not is_current(path, data):
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_bytes(data)
            print(f"wrote {path.relative_to(RESOURCES)}")
    return 0


def preview(folder, scale=8):
    folder.mkdir(parents=True, exist_ok=True)
    for art in sorted({output[2] for output in OUTPUTS}):
        for number, image in enumerate(load_art(art)):
            body = b""
            for row in image.rows:
                colors = (0x4080A0 if color is SCREEN else color for color in row)
                body += b"".join(color.to_bytes(3, "big") * scale for color in colors) * scale
            head = f"P6 {image.width * scale} {image.height * scale} 255\n".encode()
            (folder / f"{pathlib.Path(art).stem}-{number:02}.ppm").write_bytes(head + body)
    return 0


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--check", action="store_true")
    parser.add_argument("--preview", type=pathlib.Path, metavar="DIR")
    options = parser.parse_args()
    try:
        if options.preview:
            return preview(options.preview)
        return check() if options.check else write()
    except ArtError as error:
        print(error, file=sys.stderr)
        return 1


if __name__ == "__main__":
    sys.exit(main())
