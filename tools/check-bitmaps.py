#!/usr/bin/env python3
"""Checks the bitmaps and the icon of the plug-in's resources: sizes, depths, headers and the mask colour.

Usage: check-bitmaps.py [FOLDER]. Prints each fault and exits with 1 when there is one.
"""
import struct
import sys
from pathlib import Path

MASK = (0, 128, 128)

# name: (image size, images in the strip, bits per pixel)
BITMAPS = {
    "nodes16.bmp": (16, 24, 8),
    "nodes32.bmp": (32, 24, 24),
    "folder16.bmp": (16, 1, None),
    "folder32.bmp": (32, 1, None),
    "toolbar.bmp": (16, 2, 4),
}
ICON_SIZES = [16, 32, 48, 256]
PNG_SIGNATURE = b"\x89PNG\r\n\x1a\n"


class Fault(Exception):
    pass


def demand(condition, text):
    if not condition:
        raise Fault(text)


def pixels_of(data, width, height, depth):
    """Rows of (red, green, blue), top row first. Bitmaps keep the bottom row first and blue before green and red."""
    offset = struct.unpack_from("<I", data, 10)[0]
    colours = struct.unpack_from("<I", data, 46)[0] or (1 << depth if depth <= 8 else 0)
    demand(offset == 54 + 4 * colours, f"pixels start at {offset}, not right after {colours} palette entries")
    palette = [tuple(data[54 + 4 * i + c] for c in (2, 1, 0)) for i in range(colours)]
    stride = (width * depth + 31) // 32 * 4
    demand(len(data) == offset + stride * height, f"{len(data)} bytes, expected {offset + stride * height}")
    rows = []
    for y in reversed(range(height)):
        line = data[offset + y * stride : offset + (y + 1) * stride]
        if depth == 24:
            rows.append([tuple(line[3 * x + c] for c in (2, 1, 0)) for x in range(width)])
        elif depth == 8:
            rows.append([palette[line[x]] for x in range(width)])
        else:
            rows.append([palette[line[x // 2] >> (0 if x % 2 else 4) & 15] for x in range(width)])
    return rows


def check_bitmap(path, size, count, expected_depth):
    data = path.read_bytes()
    demand(data[:2] == b"BM", "not a bitmap file")
    demand(struct.unpack_from("<I", data, 2)[0] == len(data), "the file header gives another file size")
    header, width, height, planes, depth, compression = struct.unpack_from("<IiiHHI", data, 14)
    demand(header == 40, f"header of {header} bytes; the resource compiler and LoadBitmap want BITMAPINFOHEADER (40)")
    demand((width, height) == (size * count, size), f"{width}x{height} pixels, expected {size * count}x{size}")
    demand(planes == 1, f"{planes} planes")
    demand(compression == 0, f"compression {compression}, expected BI_RGB (0)")
    demand(depth in ((4, 8, 24) if expected_depth is None else (expected_depth,)),
           f"{depth} bits per pixel, expected {expected_depth}")

    rows = pixels_of(data, width, height, depth)
    for index in range(count):
        cell = [pixel for row in rows for pixel in row[index * size : (index + 1) * size]]
        drawn = [pixel for pixel in cell if pixel != MASK]
        demand(len(drawn) >= len(cell) // 8, f"image {index} is nearly empty")
        demand(len(drawn) < len(cell), f"image {index} has no pixel of the mask colour")
        demand(max(map(sum, drawn)) - min(map(sum, drawn)) > 100, f"image {index} has no contrast")
        for pixel in drawn:
            distance = max(abs(a - b) for a, b in zip(pixel, MASK))
            demand(distance > 24, f"image {index} has a pixel {pixel} that is nearly the mask colour: a fringe")


def check_icon(path):
    data = path.read_bytes()
    reserved, kind, count = struct.unpack_from("<HHH", data, 0)
    demand((reserved, kind) == (0, 1), "not an icon file")
    sizes = []
    for index in range(count):
        width, height, _, _, _, depth, length, offset = struct.unpack_from("<BBBBHHII", data, 6 + 16 * index)
        image = data[offset : offset + length]
        demand(len(image) == length, f"image {index} is cut off")
        demand(width == height and depth == 32, f"image {index} is {width}x{height} with {depth} bits per pixel")
        size = width or 256
        if size == 256:
            demand(image.startswith(PNG_SIGNATURE), "the 256-pixel image is not stored as PNG")
        else:
            header, w, h, _, bits, compression = struct.unpack_from("<IiiHHI", image, 0)
            # An icon's height counts the colours and the one-bit mask below them.
            demand((header, w, h, bits, compression) == (40, size, 2 * size, 32, 0),
                   f"the {size}-pixel image has an odd header")
            alphas = image[43 : 40 + 4 * size * size : 4]
            demand(0 in alphas and 255 in alphas, f"the {size}-pixel image has no transparency")
        sizes.append(size)
    demand(sorted(sizes) == ICON_SIZES, f"holds the sizes {sorted(sizes)}, expected {ICON_SIZES}")


def main():
    default = Path(__file__).resolve().parent.parent / "tmgmt" / "resources" / "images"
    folder = Path(sys.argv[1]) if len(sys.argv) > 1 else default
    checks = [(name, lambda path, facts=facts: check_bitmap(path, *facts)) for name, facts in BITMAPS.items()]
    checks.append(("snapin.ico", check_icon))
    faults = 0
    for name, check in checks:
        try:
            check(folder / name)
        except (Fault, OSError, struct.error) as fault:
            print(f"check-bitmaps.py: {name}: {fault}", file=sys.stderr)
            faults += 1
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
