"""The pictures that the forms carry: icons of the buttons, the pointer, stock pictures. They go into the sources,
not into the data: the program holds them in itself. So do the icons that desktops show for the program, which go
into its packages.
"""

import io
import itertools
import pathlib
import struct
import subprocess

from PIL import Image

from kit import metals, stamped
from kit.relief import Relief

HERE = pathlib.Path(__file__).resolve().parent
SOURCE = HERE.parent.parent / "src"
CORE_STOCK = SOURCE / "core" / "stock"
SHELL_STOCK = SOURCE / "shell" / "stock"
PACKAGE_ICONS = HERE.parent.parent / "packaging" / "icons"
PACKAGE_ICON_SIDES = (24, 32, 48, 64, 128, 256)

# In the order of the tool buttons.
TOOLS = [
    "draw", "line", "shapes", "polygon", "arc_pie", "fill", "erase", "curved_text",
    "text", "get_pms", "remove", "replace", "copy", "flip_image", "holes", "about",
]
ICON_SIDE = 14
# So many times larger are the icons that screens with finer pixels show; the program scales them down to what such
# a screen has for an icon, and makes the half-tones of the edges itself.
ICON_FINENESS = 6
START_PICTURE_SIDE = 175
PRINT_PREVIEW_SIDE = 140
METAL_SIDE = 100

# The hole tool wipes a disc of this radius, pen included, before it stamps the ring. Both have their middle at
# the same corner of four pixels, so that the ring's dark outline covers the edge of the disc all round.
HOLE_RADIUS = 44
HOLE_CENTRE = METAL_SIDE // 2 - 0.5
BLANK_RADIUS = 46.7

# What a button leaves out of its picture, and from which coverage on (of 255) a pixel is ink: fainter ones
# would stand as a speckle around the drawing.
MASK = (0, 255, 0)
FAINTEST = 16

# A strip has no half-transparent pixels, so edges are blended into the middle of the body that the button has
# in that state.
BODY_NORMAL = (228, 228, 228)
BODY_DISABLED = (244, 244, 244)
BODY_PRESSED = (165, 211, 236)


def render(drawing, side, crisp=False):
    """A drawing of the given side in pixels, with its coverage (RGBA). Crisp: each pixel is covered or not."""
    text = (HERE / drawing).read_text()
    if crisp:
        text = text.replace("<svg ", '<svg shape-rendering="crispEdges" ', 1)
    command = ["rsvg-convert", "--width", str(side), "--height", str(side)]
    png = subprocess.run(command, check=True, input=text.encode(), stdout=subprocess.PIPE).stdout
    picture = Image.open(io.BytesIO(png)).convert("RGBA")
    if picture.size != (side, side):
        raise SystemExit(f"{drawing}: {picture.size} instead of {side} by {side}")
    return picture


def same(colour):
    return colour


def pale(colour):
    """Grey between the disabled caption's and the disabled body's, so that the drawing steps back with both."""
    red, green, blue = colour
    light = (299 * red + 587 * green + 114 * blue) / 1000 / 255
    return (round(158 + 88 * light),) * 3


def deep(colour):
    """In the shade of the finger."""
    return tuple(round(channel * 0.88) for channel in colour)


def frame(icon, tint, body):
    """An icon as one opaque frame of a strip."""
    result = Image.new("RGB", icon.size, MASK)
    for y in range(icon.height):
        for x in range(icon.width):
            *colour, coverage = icon.getpixel((x, y))
            if coverage < FAINTEST:
                continue
            ink = tint(tuple(colour))
            blend = tuple((a * coverage + b * (255 - coverage) + 127) // 255 for a, b in zip(ink, body))
            result.putpixel((x, y), blend)
    return result


def tool_icons(fineness=1):
    """All strips below each other; a strip is the normal, the disabled and the pressed frame side by side."""
    side = fineness * ICON_SIDE
    sheet = Image.new("RGB", (3 * side, len(TOOLS) * side), MASK)
    for row, tool in enumerate(TOOLS):
        icon = render(f"icons/{tool}.svg", side, crisp=fineness > 1)
        frames = [frame(icon, same, BODY_NORMAL), frame(icon, pale, BODY_DISABLED), frame(icon, deep, BODY_PRESSED)]
        for column, picture in enumerate(frames):
            sheet.paste(picture, (column * side, row * side))
    return sheet


def few_colours(picture):
    """The picture in 256 colours, of which the mask is one to the bit."""
    inks = Image.new("RGB", (picture.width * picture.height, 1))
    inks.putdata([pixel for pixel in picture.getdata() if pixel != MASK] or [MASK])
    palette = inks.quantize(colors=255, dither=Image.Dither.NONE).getpalette()[: 255 * 3]
    result = picture.quantize(palette=palette_of(palette), dither=Image.Dither.NONE)
    result.putdata([255 if pixel == MASK else index for pixel, index in zip(picture.getdata(), result.getdata())])
    result.putpalette(palette + list(MASK))
    return result


def palette_of(colours):
    image = Image.new("P", (1, 1))
    image.putpalette(colours)
    return image


def save_in_runs(picture, file):
    """A picture with a palette as a bitmap file of run lengths, 8 bits a pixel."""
    data = bytearray()
    for y in reversed(range(picture.height)):
        row = [picture.getpixel((x, y)) for x in range(picture.width)]
        for index, group in itertools.groupby(row):
            length = len(list(group))
            while length:
                data += bytes((min(length, 255), index))
                length -= min(length, 255)
        data += b"\0\0"
    data += b"\0\1"
    palette = picture.getpalette()
    entries = b"".join(bytes((*reversed(palette[i : i + 3]), 0)) for i in range(0, len(palette), 3))
    start = 14 + 40 + len(entries)
    header = struct.pack("<2sIII", b"BM", start + len(data), 0, start)
    info = struct.pack("<IiiHHIIiiII", 40, picture.width, picture.height, 1, 8, 1, len(data), 0, 0, len(entries) // 4, 0)
    file.write_bytes(header + info + entries + data)


def on_white(picture):
    paper = Image.new("RGBA", picture.size, (255, 255, 255, 255))
    return Image.alpha_composite(paper, picture).convert("RGB")


def hole_rings():
    """A grommet of each metal; white around it and in its hole."""
    relief = Relief(METAL_SIDE, HOLE_CENTRE)
    relief.flat_ring(28, HOLE_RADIUS, height=2.5, bevel=3)
    relief.half_round(28, 39, height=5, base=1)
    return metals.strip(relief)


def border_hole_rings():
    """The same in the few tones that stay one metal over a border, with a deeper groove to tell its parts."""
    relief = Relief(METAL_SIDE, HOLE_CENTRE)
    relief.flat_ring(28, HOLE_RADIUS, height=3, bevel=3)
    relief.half_round(28, 38.5, height=6, base=1)
    return stamped.strip(relief)


def blank_tags():
    """A polished tag of each metal with nothing on it yet."""
    relief = Relief(METAL_SIDE, METAL_SIDE // 2)
    # A shallow dish mirrors more of the room than a flat face.
    relief.lay(relief.radius <= 40, (2.5 * (relief.radius / 38) ** 3).astype("float32"))
    relief.flat_ring(34, BLANK_RADIUS, height=3.5, bevel=3, base=1)
    relief.half_round(38, BLANK_RADIUS, height=3.5, base=2.5)
    return metals.strip(relief)


def make(_data):
    CORE_STOCK.mkdir(parents=True, exist_ok=True)
    SHELL_STOCK.mkdir(parents=True, exist_ok=True)
    tool_icons().save(CORE_STOCK / "tool_icons.bmp")
    save_in_runs(few_colours(tool_icons(ICON_FINENESS)), CORE_STOCK / "fine_tool_icons.bmp")
    on_white(render("start_picture.svg", START_PICTURE_SIDE)).save(CORE_STOCK / "start_picture.bmp")
    for job in ("print_all_designs", "print_all_cliparts"):
        on_white(render(f"{job}.svg", PRINT_PREVIEW_SIDE)).save(CORE_STOCK / f"{job}.bmp")
    hole_rings().save(CORE_STOCK / "hole_rings.bmp")
    border_hole_rings().save(CORE_STOCK / "border_hole_rings.bmp")
    blank_tags().save(CORE_STOCK / "blank_tags.bmp")
    # The smallest icon is a drawing of its own: fewer parts, each on whole pixels.
    PACKAGE_ICONS.mkdir(parents=True, exist_ok=True)
    for folder, name in ((SHELL_STOCK, "window_icon_16.png"), (PACKAGE_ICONS, "16.png")):
        render("window_icon_16.svg", 16).save(folder / name)
    for side in PACKAGE_ICON_SIDES:
        render("window_icon.svg", side).save(PACKAGE_ICONS / f"{side}.png")
    for side in (32, 48, 64):
        render("window_icon.svg", side).save(SHELL_STOCK / f"window_icon_{side}.png")
    render("tool_pointer.svg", 32).save(SHELL_STOCK / "tool_pointer.png")
    render("tool_pointer.svg", 64).save(SHELL_STOCK / "tool_pointer@2x.png")


def sheets(_data, folder):
    """All of them on one page, on the grey of a button."""
    page = Image.new("RGB", (640, 640), BODY_NORMAL)
    x = y = row_height = 10
    for file in sorted([*CORE_STOCK.iterdir(), *SHELL_STOCK.iterdir()], key=lambda path: path.name):
        picture = Image.open(file).convert("RGBA")
        if x + picture.width > page.width:
            x, y, row_height = 10, y + row_height + 10, 0
        page.paste(picture, (x, y), picture)
        x, row_height = x + picture.width + 10, max(row_height, picture.height)
    page.save(folder / "forms.png")
