"""Pictures of the canvas: what the shapes, the flips and the filters make of it."""

from kit.drawing import on_white, render_svg

from help import player
from help.player import HERE

SIDE = 500
DETAIL = (120, 110, 380, 370)  # the middle of the filters' sample, in pixels of its own

# What the manual shows of the Filters menu: the name of the picture, and the entry.
FILTERS = {
    "edge_lines": "Filter(3)", "grayscale": "Filter(4)", "negative": "Filter(5)", "light": "Filter(6)",
    "dark": "Filter(7)", "sharpen": "Filter(8)", "contrast_positive": "EditContrastConvert(1)",
    "contrast_negative": "EditContrastConvert(2)", "pixelize": "Filter(10)", "relief": "Filter(11)",
    "swap_brg": "EditSwap(1)", "swap_gbr": "EditSwap(2)", "swap_rbg": "EditSwap(3)", "swap_bgr": "EditSwap(4)",
    "swap_grb": "EditSwap(5)", "scattered": "Filter(13)", "blur": "Filter(14)", "aquarel": "Filter(15)",
    "defuse": "Filter(16)", "add_noise": "Filter(17)", "edge": "Filter(18)", "contour": "Filter(19)",
    "sepia": "Filter(20)", "connection": "Filter(21)", "erode": "Filter(22)", "saturation": "Filter(23)",
    "coldept": "Filter(24)", "dodge": "Filter(25)", "neon": "Filter(26)", "smooth": "Filter(27)",
}
# A step that small doesn't show on paper: the entry is chosen as often as the manual says.
TIMES = {"light": 5, "dark": 5, "contrast_positive": 3, "contrast_negative": 3, "blur": 2}

SHAPES = 16
SHAPES_IN_A_ROW = 4
FLIPS = 6


def filters(application_folder):
    """The sample before any filter, and after each."""
    sample = on_white(render_svg((HERE / "filter_sample.svg").read_text(encoding="utf-8"), SIDE, SIDE))
    script = []
    for name, entry in FILTERS.items():
        script += ["load Main.Pic sample.bmp"]
        script += [f"click Main.{entry}"] * TIMES.get(name, 1)
        script += [f"save Main.Pic {name}.bmp"]
    _, pictures = player.play(application_folder, script, {"sample.bmp": sample})
    pictures["before"] = sample
    return {f"filter_{name}": picture.crop(DETAIL) for name, picture in pictures.items()}


def shapes(application_folder):
    """The figures of the Shapes menu, four in a row, each as one drag draws it."""
    cell, margin = SIDE // SHAPES_IN_A_ROW, 18
    script = ["set Main.HScroll1.Value 3", "set Main.HScroll4.Value 15", "set Main.HScroll2.Value 40"]
    for index in range(SHAPES):
        left = index % SHAPES_IN_A_ROW * cell + margin
        top = index // SHAPES_IN_A_ROW * cell + margin
        size = cell - 2 * margin
        script += ["click Main.Knop(2)", f"click Main.Vormen({index + 1})",
                   f"drag Main.Pic {left} {top} {left + size} {top + size}"]
    _, pictures = player.play(application_folder, script + ["save Main.Pic all.bmp"])
    for index in range(SHAPES):
        left, top = index % SHAPES_IN_A_ROW * cell, index // SHAPES_IN_A_ROW * cell
        pictures[f"shape_{index + 1}"] = pictures["all"].crop((left + 8, top + 8, left + cell - 8, top + cell - 8))
    del pictures["all"]
    return pictures


def flips(application_folder, design):
    """The design after each entry of the Flip Image menu; none while the program lacks them."""
    if not player.is_enabled(application_folder, "Main.FlipPic(1)"):
        return {}
    script = []
    for index in range(1, FLIPS + 1):
        script += ["load Main.Pic design.bmp", "click Main.Knop(13)", f"click Main.FlipPic({index})",
                   f"save Main.Pic flip_{index}.bmp"]
    return player.play(application_folder, script, {"design.bmp": design})[1]
