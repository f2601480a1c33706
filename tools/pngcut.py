"""Cuts a rectangle out of a PNG, with Python's own modules only."""

import struct
import zlib

SIGNATURE = b"\x89PNG\r\n\x1a\n"
CHANNELS = {2: 3, 6: 4}


def paeth(left, up, corner):
    way = left + up - corner
    return min((left, up, corner), key=lambda value: abs(way - value))


# What a PNG's filters 0 to 4 expect a byte to be, from those left, above, and left above.
FILTERS = [
    lambda left, up, corner: 0,
    lambda left, up, corner: left,
    lambda left, up, corner: up,
    lambda left, up, corner: (left + up) // 2,
    paeth,
]


def read(path):
    """The rows of a PNG with 8 bits a channel, and its type of colour."""
    data, at, pixels = path.read_bytes(), len(SIGNATURE), b""
    while at < len(data):
        length, kind = struct.unpack_from(">I4s", data, at)
        body = data[at + 8:at + 8 + length]
        if kind == b"IHDR":
            width, height, _, colour = struct.unpack_from(">IIBB", body)
        elif kind == b"IDAT":
            pixels += body
        at += 12 + length
    raw, step = zlib.decompress(pixels), CHANNELS[colour]
    stride = width * step
    rows, above = [], bytearray(stride)
    for start in range(0, height * (stride + 1), stride + 1):
        expected, row = FILTERS[raw[start]], bytearray(raw[start + 1:start + 1 + stride])
        for i in range(stride):
            left, corner = (row[i - step], above[i - step]) if i >= step else (0, 0)
            row[i] = (row[i] + expected(left, above[i], corner)) & 255
        rows.append(row)
        above = row
    return rows, colour


def packed(rows, step):
    """The rows by Paeth's filter, which suits a street and a form alike."""
    above, lines = bytes(len(rows[0])), bytearray()
    for row in rows:
        lines.append(FILTERS.index(paeth))
        for i, value in enumerate(row):
            left, corner = (row[i - step], above[i - step]) if i >= step else (0, 0)
            lines.append((value - paeth(left, above[i], corner)) & 255)
        above = row
    return zlib.compress(bytes(lines), 9)


def chunk(kind, body):
    return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body))


def cut(source, target, left, top, width, height):
    rows, colour = read(source)
    step = CHANNELS[colour]
    rows = [row[left * step:(left + width) * step] for row in rows[top:top + height]]
    header = struct.pack(">IIBBBBB", width, height, 8, colour, 0, 0, 0)
    target.write_bytes(SIGNATURE + chunk(b"IHDR", header) +
                       chunk(b"IDAT", packed(rows, step)) + chunk(b"IEND", b""))
