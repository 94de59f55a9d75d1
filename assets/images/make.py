"""The stock pictures: textures, and motifs on white ground."""

import numpy
from PIL import Image

from images import creatures, made, motifs, natural
from images.cutout import cut_out
from kit.palette import few_colours

QUALITY = 90
SMALL, LARGE = 170, 300

TEXTURES = {
    "Brick wall.jpg": made.brick_wall,
    "Brushed metal.jpg": made.brushed_metal,
    "Camouflage.jpg": made.camouflage,
    "Carbon fibre.jpg": made.carbon_fibre,
    "Checker.gif": made.checker,
    "Clouds.jpg": natural.cloudy_sky,
    "Colours.bmp": made.spectrum,
    "Cork.jpg": made.cork,
    "Denim.jpg": made.denim,
    "Dots.gif": made.dots,
    "Drops.jpg": made.water_drops,
    "Galaxy.jpg": natural.galaxy,
    "Granite.jpg": natural.granite,
    "Grass.jpg": natural.grass,
    "Hexagon mesh.jpg": made.hexagon_mesh,
    "Lava.jpg": natural.lava,
    "Leather.jpg": made.leather,
    "Leopard.jpg": natural.leopard,
    "Linen.jpg": made.linen,
    "Marble.jpg": natural.marble,
    "Moon ground.jpg": natural.moon_ground,
    "Parchment.jpg": made.parchment,
    "Parquet.jpg": made.parquet,
    "Rainbow.jpg": made.rainbow,
    "Rust.jpg": made.rust,
    "Sand.jpg": natural.sand,
    "Sea.jpg": natural.sea,
    "Starry sky.jpg": natural.starry_sky,
    "Stone wall.jpg": natural.stone_wall,
    "Stripes.gif": made.stripes,
    "Sunset.jpg": natural.sunset,
    "Tartan.jpg": made.tartan,
    "Walnut.jpg": natural.walnut,
    "Water.jpg": natural.water,
    "Wood.jpg": natural.wood,
    "Zebra.jpg": natural.zebra,
}

MOTIFS = {
    "Anchor.gif": (motifs.anchor, LARGE),
    "Apple.gif": (creatures.apple, SMALL),
    "Arrow.bmp": (motifs.arrow, 120),
    "Balloons.gif": (motifs.balloons, LARGE),
    "Butterfly.gif": (creatures.butterfly, LARGE),
    "Cloud.gif": (motifs.cloud, LARGE),
    "Clover.gif": (creatures.clover, LARGE),
    "Compass.gif": (motifs.compass, LARGE),
    "Crown.gif": (motifs.crown, LARGE),
    "Daisy.gif": (creatures.daisy, LARGE),
    "Drop.bmp": (motifs.drop, 150),
    "Fish.gif": (creatures.fish, LARGE),
    "Flame.gif": (motifs.flame, LARGE),
    "Flower.gif": (creatures.blossom, SMALL),
    "Footprint.gif": (motifs.footprint, LARGE),
    "Gem.gif": (motifs.gem, SMALL),
    "Globe.gif": (motifs.globe, 400),
    "Heart.gif": (motifs.heart, LARGE),
    "Key.gif": (motifs.key, LARGE),
    "Ladybird.gif": (creatures.ladybird, SMALL),
    "Leaf.gif": (motifs.leaf, SMALL),
    "Lightning.bmp": (motifs.lightning, 120),
    "Map pin.gif": (motifs.map_pin, LARGE),
    "Moon.gif": (motifs.moon, LARGE),
    "Owl.gif": (creatures.owl, LARGE),
    "Paw.gif": (creatures.paw, SMALL),
    "Pine.gif": (creatures.pine, LARGE),
    "Race flag.gif": (motifs.race_flag, LARGE),
    "Rocket.gif": (motifs.rocket, LARGE),
    "Skull.gif": (motifs.skull, LARGE),
    "Smiley.gif": (motifs.smiley, SMALL),
    "Snowflake.gif": (motifs.snowflake, LARGE),
    "Star.bmp": (motifs.star, 175),
    "Striped flag.gif": (motifs.striped_flag, SMALL),
    "Sun.gif": (motifs.sun, LARGE),
    "Toadstool.gif": (creatures.toadstool, LARGE),
}


def save(picture, path):
    if path.suffix == ".jpg":
        picture.save(path, "JPEG", quality=QUALITY)
    elif path.suffix == ".gif":
        few_colours(picture).save(path, "GIF", optimize=False)
    else:
        picture.save(path, "BMP")


def touches_edge(motif):
    inked = (numpy.asarray(motif) != 255).any(axis=2)
    return inked[[0, -1]].any() or inked[:, [0, -1]].any()


def make(data):
    folder = data / "Images"
    folder.mkdir(parents=True, exist_ok=True)
    for old in folder.iterdir():
        old.unlink()
    for name, texture in TEXTURES.items():
        pixels = numpy.rint(numpy.clip(texture(), 0, 255)).astype("uint8")
        save(Image.fromarray(pixels), folder / name)
    for name, (draw, side) in MOTIFS.items():
        motif = cut_out(draw, side)
        if touches_edge(motif):
            raise SystemExit(f"{name}: the motif touches the edge of its picture")
        save(motif, folder / name)


def sheets(data, folder):
    """All at half their size on green, where fringes of the motifs would show."""
    green = (150, 190, 150)
    for title, names in (("textures", TEXTURES), ("motifs", MOTIFS)):
        page = Image.new("RGB", (6 * 256, -(-len(names) // 6) * 256), green)
        for place, name in enumerate(names):
            picture = Image.open(data / "Images" / name).convert("RGB")
            if names is MOTIFS:
                shown = (numpy.asarray(picture) != 255).any(axis=2, keepdims=True)
                picture = Image.fromarray(numpy.where(shown, picture, green).astype("uint8"))
            picture = picture.resize((picture.width // 2, picture.height // 2), Image.Resampling.BOX)
            page.paste(picture, (place % 6 * 256, place // 6 * 256))
        page.save(folder / f"images_{title}.png")
