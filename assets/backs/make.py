"""The two collections of ready-made backs: a picture with rows of four cells, and their names."""

from PIL import Image

from kit.palette import few_colours

from backs import give, standard
from backs.struck import SIDE, struck

COLUMNS = 4
EXACT = 48  # colours of ivory and black, the ground of all backs
COLLECTIONS = {1: [(*back, None) for back in standard.BACKS], 2: give.BACKS}


def make(data):
    for number, backs in COLLECTIONS.items():
        rows = -(-len(backs) // COLUMNS)
        picture = Image.new("RGB", (COLUMNS * SIDE, rows * SIDE), "white")
        for cell, (_, draw, words) in enumerate(backs):
            picture.paste(struck(draw, words), (cell % COLUMNS * SIDE, cell // COLUMNS * SIDE))
        few_colours(picture, EXACT).save(data / "Data" / f"Back-{number}.bak", "GIF", optimize=False)
        names = "".join(f"{name}\r\n" for name, *_ in backs)
        (data / "Data" / f"Back-{number}.txt").write_bytes(names.encode("cp1252"))


def sheets(data, folder):
    for number in COLLECTIONS:
        Image.open(data / "Data" / f"Back-{number}.bak").convert("RGB").save(folder / f"backs_{number}.png")
