"""GIF files of pictures in many close shades, a third smaller than a plain writer makes them.

LZW stores a run of pixels that it has met before as one code. Shaded metal hardly ever repeats itself
exactly, but nearly: so a pixel may be taken for one of a neighbouring shade where that makes a run longer, by
more shades where the picture is so busy that nobody sees the difference.
"""

import struct

CODE_BITS = 8
CLEAR = 1 << CODE_BITS
END = CLEAR + 1
LARGEST_CODE = 4095
# A full table of runs is still of use for a while; so many codes later new runs have earned their place.
CODES_FROM_FULL_TABLE = 2000


class Codes:
    """Codes of growing width, packed into bytes from the lowest bit on, in the blocks of the file format."""

    def __init__(self):
        self.packed = bytearray()
        self.waiting, self.waiting_bits = 0, 0

    def add(self, code, width):
        self.waiting |= code << self.waiting_bits
        self.waiting_bits += width
        while self.waiting_bits >= 8:
            self.packed.append(self.waiting & 255)
            self.waiting >>= 8
            self.waiting_bits -= 8

    def blocks(self):
        data = bytes(self.packed) + (bytes([self.waiting]) if self.waiting_bits else b"")
        parts = [data[start : start + 255] for start in range(0, len(data), 255)]
        return b"".join(bytes([len(part)]) + part for part in parts) + b"\0"


def compressed(pixels, alike):
    """The pixels as blocks of LZW codes. `alike` has for each pixel a table that tells for each index the
    others it may be taken for."""
    codes = Codes()
    codes.add(CLEAR, CODE_BITS + 1)
    table, width = [{} for _ in range(END + 1)], CODE_BITS + 1
    place, count, since_full = 0, len(pixels), 0
    while place < count:
        run = pixels[place]
        place += 1
        while place < count:
            longer = table[run].get(pixels[place])
            if longer is None:
                others = alike[place][pixels[place]]
                longer = next((table[run][other] for other in others if other in table[run]), None)
            if longer is None:
                break
            run = longer
            place += 1
        codes.add(run, width)
        if place == count:
            break
        # The reader knows each run one code later than the writer, which is why the width grows late.
        if len(table) <= LARGEST_CODE:
            table[run][pixels[place]] = len(table)
            table.append({})
            if len(table) > (1 << width) and width < 12:
                width += 1
        elif since_full < CODES_FROM_FULL_TABLE:
            since_full += 1
        else:
            codes.add(CLEAR, width)
            table, width, since_full = [{} for _ in range(END + 1)], CODE_BITS + 1, 0
    codes.add(END, width)
    return codes.blocks()


def save_gif(pixels, palette, path, alike, slack):
    """Writes rows of indexes (a numpy array) and 256 colours (768 numbers) as a GIF without transparency.
    `slack` is a number for each pixel; `alike[slack][index]` are the indexes it may be taken for."""
    height, width = pixels.shape
    screen = struct.pack("<HHBBB", width, height, 0xF7, 0, 0)
    image = b"," + struct.pack("<HHHHB", 0, 0, width, height, 0) + bytes([CODE_BITS])
    data = compressed(pixels.flatten().tolist(), [alike[level] for level in slack.flatten().tolist()])
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(b"GIF87a" + screen + bytes(palette) + image + data + b";")
