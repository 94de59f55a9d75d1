"""The finished designs that come with the program, to show what can be made.

Each is drawn through the program itself by the script of its name in this folder, which the player obeys; so the
release build must be there, and the other kinds made before. What the script stores is delivered in `Ontwerpen`.
"""

import pathlib
import tempfile

import numpy
from PIL import Image

from help import player

HERE = pathlib.Path(__file__).resolve().parent
PICTURES = player.HERE / "pictures"
CANVAS = 500
COLOURS = 256
# Half its size, for manual and README.
SMALL = CANVAS // 2
DOCS_PICTURE = player.ROOT / "docs" / "designs.png"


def scripts():
    return sorted(HERE.glob("*.play"), key=lambda script: script.stem.lower())


def in_few_colours(picture):
    """The picture with at most 256 colours, a third of the size on disk. The colours that fill areas stay exact;
    the rare shades of smooth letters and of metal become the nearest of the others."""
    pixels = numpy.asarray(picture.convert("RGB")).astype(int)
    colours, place, counts = numpy.unique(pixels.reshape(-1, 3), axis=0, return_inverse=True, return_counts=True)
    # Ties are broken by the colour's value, so that the same picture gives the same bytes.
    order = numpy.lexsort((*colours.T, -counts))
    kept = colours[order[:COLOURS]]
    nearest = ((colours[:, None] - kept[None]) ** 2).sum(axis=2).argmin(axis=1)
    indexed = Image.fromarray(nearest[place].reshape(pixels.shape[:2]).astype("uint8"), "P")
    indexed.putpalette(kept.flatten().tolist() + [0] * (3 * (COLOURS - len(kept))))
    return indexed


def drawn(data, script, folder):
    """Plays a script in a folder of its own. Gives the design's picture and its notes."""
    application = folder / script.stem
    application.mkdir()
    for part in data.iterdir():
        if part.name != "Ontwerpen":
            (application / part.name).symlink_to(part)
    for part in ("Ontwerpen", "Collection"):
        (application / part).mkdir()
    player.play(application, script.read_text(encoding="utf-8").splitlines())
    stored = application / "Ontwerpen" / f"{script.stem}.pat"
    return Image.open(stored).convert("RGB"), stored.with_suffix(".txt").read_bytes()


def make(data):
    if not (player.BUILD / "coinlet-play").exists():
        raise SystemExit("the designs are drawn by the built program: build the release first")
    store = data / "Ontwerpen"
    store.mkdir(exist_ok=True)
    for old in store.iterdir():
        old.unlink()
    with tempfile.TemporaryDirectory() as folder:
        for script in scripts():
            picture, notes = drawn(data, script, pathlib.Path(folder))
            few = in_few_colours(picture)
            few.save(store / f"{script.stem}.pat", "BMP")
            (store / f"{script.stem}.txt").write_bytes(notes)
            small = few.convert("RGB").crop((0, 0, CANVAS, CANVAS)).resize((SMALL, SMALL), Image.Resampling.BOX)
            name = "made_" + script.stem.lower().replace(" ", "_")
            small.quantize(COLOURS, dither=Image.Dither.NONE).save(PICTURES / f"{name}.png", optimize=True)
    overview(store).quantize(COLOURS, dither=Image.Dither.NONE).save(DOCS_PICTURE, optimize=True)


def overview(store):
    """All of them on one page, without their side panels."""
    files = sorted(store.glob("*.pat"), key=lambda file: file.stem.lower())
    columns = 4
    page = Image.new("RGB", (columns * SMALL, -(-len(files) // columns) * SMALL), "white")
    for place, file in enumerate(files):
        tag = Image.open(file).convert("RGB").crop((0, 0, CANVAS, CANVAS)).resize((SMALL, SMALL), Image.Resampling.BOX)
        page.paste(tag, (place % columns * SMALL, place // columns * SMALL))
    return page


def sheets(data, folder):
    """Each as it is stored, side panel and all."""
    for file in sorted((data / "Ontwerpen").glob("*.pat")):
        Image.open(file).convert("RGB").save(folder / f"design_{file.stem}.png")
