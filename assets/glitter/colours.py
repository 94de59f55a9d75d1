"""The names of the glitter colours and what their flakes are like."""

from dataclasses import dataclass


@dataclass(frozen=True)
class Glitter:
    """`bases` are the colours of the flakes (0 to 255 a channel); `hue_spread` is in turns of the colour
    circle; `sparkle` tells how strongly single flakes flash, 1 being usual."""

    name: str
    bases: tuple
    hue_spread: float = 0.015
    sparkle: float = 1.0


def plain(name, red, green, blue, **more):
    return Glitter(name, ((red, green, blue),), **more)


COLOURS = [
    plain("Snow White", 226, 230, 236),
    plain("Pearl", 228, 218, 208),
    plain("Champagne", 220, 196, 158),
    plain("Silver", 176, 180, 186, sparkle=1.3),
    plain("Gunmetal", 92, 98, 108, sparkle=1.2),
    plain("Jet Black", 34, 34, 40, sparkle=1.1),
    plain("Lemon", 246, 226, 60),
    plain("Sunflower", 248, 194, 24),
    plain("Gold", 214, 168, 48, sparkle=1.2),
    plain("Old Gold", 170, 126, 36, sparkle=1.1),
    plain("Bronze", 150, 98, 46),
    plain("Copper", 190, 104, 60, sparkle=1.1),
    plain("Peach", 248, 178, 136),
    plain("Apricot", 246, 148, 72),
    plain("Orange", 240, 112, 20),
    plain("Flame", 232, 72, 26),
    plain("Coral", 244, 104, 90),
    plain("Rust", 160, 64, 30),
    plain("Scarlet", 224, 30, 34),
    plain("Ruby", 178, 16, 48),
    plain("Cherry", 150, 14, 38),
    plain("Wine", 104, 18, 48),
    plain("Rose Gold", 214, 146, 136, sparkle=1.1),
    plain("Chocolate", 92, 54, 34),
    plain("Baby Pink", 248, 182, 204),
    plain("Pink", 242, 120, 170),
    plain("Hot Pink", 236, 44, 134),
    plain("Fuchsia", 206, 26, 140),
    plain("Magenta", 178, 20, 118),
    plain("Plum", 112, 34, 92),
    plain("Lilac", 200, 168, 226),
    plain("Lavender", 160, 136, 214),
    plain("Violet", 124, 62, 184),
    plain("Purple", 92, 32, 150),
    plain("Indigo", 58, 40, 140),
    plain("Midnight", 26, 32, 84, sparkle=1.1),
    plain("Ice Blue", 184, 220, 242),
    plain("Sky Blue", 98, 178, 236),
    plain("Azure", 30, 136, 222),
    plain("Royal Blue", 30, 76, 192),
    plain("Sapphire", 20, 46, 150),
    plain("Navy", 22, 34, 96),
    plain("Aqua", 84, 214, 222),
    plain("Turquoise", 24, 182, 188),
    plain("Teal", 12, 124, 132),
    plain("Peacock", 10, 100, 130, hue_spread=0.06),
    plain("Mint", 150, 226, 188),
    plain("Seafoam", 92, 200, 158),
    plain("Lime", 172, 218, 44),
    plain("Apple Green", 110, 190, 46),
    plain("Emerald", 16, 150, 84),
    plain("Forest", 20, 96, 54),
    plain("Olive", 116, 118, 38),
    plain("Moss", 80, 104, 50),
    Glitter("Rainbow", ((230, 40, 60), (246, 170, 30), (70, 190, 80), (40, 130, 230), (150, 60, 210)), 0.04,
            1.2),
    Glitter("Opal", ((226, 220, 236), (190, 230, 226), (240, 206, 220), (206, 214, 246)), 0.05, 1.2),
    Glitter("Galaxy", ((24, 24, 70), (70, 30, 120), (20, 70, 140), (150, 40, 130)), 0.03, 1.4),
    Glitter("Mermaid", ((30, 180, 180), (60, 120, 210), (130, 90, 200)), 0.03, 1.1),
    Glitter("Autumn", ((210, 120, 30), (170, 50, 30), (200, 160, 50), (100, 70, 30)), 0.02),
    Glitter("Confetti", ((240, 60, 130), (250, 200, 50), (60, 190, 230), (236, 236, 240), (120, 200, 80)),
            0.02),
]
