"""A photo of 200 megapixels for the bench, made of the tiles of a smaller one, repeated, and turned by a quarter."""
import itertools
import struct

COLUMNS, ROWS, SIDE = 32, 24, 512


def box(kind, *parts):
    content = b"".join(parts)
    return struct.pack(">I", len(content) + 8) + kind + content


def full_box(kind, version, *parts):
    return box(kind, bytes([version, 0, 0, 0]), *parts)


def boxes(data):
    """Kind and content of each box in data."""
    position = 0
    while position + 8 <= len(data):
        size, kind = struct.unpack(">I4s", data[position:position + 8])
        yield kind, data[position + 8:position + size]
        position += size


def child(data, *path):
    for kind in path:
        data = next(content for name, content in boxes(data) if name == kind)
        if kind == b"meta":
            data = data[4:]
    return data


def tiles_of(photo):
    """Data of the photo's tiles, by an item location box of version 1 with one extent for each item."""
    location = child(photo, b"meta", b"iloc")
    if location[0] != 1 or location[4:6] != b"\x44\x00":  # offsets and lengths of 4 bytes, no base offsets
        raise ValueError("not a photo this can be made of")
    return [photo[offset:offset + length]
            for _, method, _, _, offset, length in struct.iter_unpack(">HHHHII", location[8:]) if method == 0]


def make_mosaic(photo, tile_count):
    """The file's bytes; the first tile_count items of photo are its tiles of 512 x 512."""
    properties = list(boxes(child(photo, b"meta", b"iprp", b"ipco")))
    colour = next(content for kind, content in properties if kind == b"colr")
    configuration = next(content for kind, content in properties if kind == b"hvcC")
    tiles = tiles_of(photo)[:tile_count]
    total = COLUMNS * ROWS
    grid = total + 1
    entries = [full_box(b"infe", 2, struct.pack(">HH4sB", item, 0, b"grid" if item == grid else b"hvc1", 0))
               for item in range(1, grid + 1)]
    size = lambda width, height: full_box(b"ispe", 0, struct.pack(">II", width, height))
    container = box(b"ipco", box(b"hvcC", configuration), size(SIDE, SIDE), box(b"colr", colour),
                    size(COLUMNS * SIDE, ROWS * SIDE), box(b"irot", b"\x03"))
    associations = b"".join(struct.pack(">HB3B", item, 3, 0x81, 2, 3) for item in range(1, grid))
    associations += struct.pack(">HB3B", grid, 3, 3, 4, 0x85)
    header = box(b"ftyp", b"heic", bytes(4), b"mif1heic")

    def meta(offsets):
        places = b"".join(struct.pack(">HHHHII", item, 0, 0, 1, offset, length)
                          for item, (offset, length) in enumerate(offsets, 1))
        places += struct.pack(">HHHHII", grid, 1, 0, 1, 0, 8)
        return full_box(
            b"meta", 0, full_box(b"hdlr", 0, bytes(4), b"pict", bytes(13)), full_box(b"pitm", 0, struct.pack(">H", grid)),
            full_box(b"iinf", 0, struct.pack(">H", grid), *entries),
            full_box(b"iref", 0, box(b"dimg", struct.pack(f">HH{total}H", grid, total, *range(1, grid)))),
            box(b"iprp", container, full_box(b"ipma", 0, struct.pack(">I", grid), associations)),
            box(b"idat", struct.pack(">BBBBHH", 0, 0, ROWS - 1, COLUMNS - 1, COLUMNS * SIDE, ROWS * SIDE)),
            full_box(b"iloc", 1, b"\x44\x00", struct.pack(">H", grid), places))

    # Each place has bytes of its own, as in a camera's photo.
    placed = list(itertools.islice(itertools.cycle(tiles), total))
    start = len(header) + len(meta([(0, 0)] * total)) + 8
    starts = itertools.accumulate(map(len, placed), initial=start)
    return header + meta(list(zip(starts, map(len, placed)))) + box(b"mdat", *placed)
