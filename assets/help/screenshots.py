#!/usr/bin/python3
"""Takes the pictures of the manuals: of the real program's windows, and of canvases drawn without one.

    assets/help/screenshots.py           all of them, into assets/help/pictures/: canvases into the folder
                                         itself, windows into a folder for each language; the English
                                         main window goes into docs/ too
    assets/help/screenshots.py NAME...   the windows whose names begin so, such as main_window or dialog_arc

Needs the built program (cmake --preset release; ninja -C build/release) and what `dev/setup.sh assets`
installs. What the program can't do yet is told and left out; the manuals then have text alone. Afterwards
`assets/make.py help` makes the manuals with the new pictures.
"""

import contextlib
import functools
import os
import pathlib
import shutil
import sys
import tempfile
import time

from PIL import Image

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))

from help import canvas, player, sample, window  # noqa: E402

PICTURES = player.HERE / "pictures"
README_PICTURE = player.ROOT / "docs/main-window.png"
LANGUAGES = {"en": "English", "nl": "Nederlands"}  # what the program says differs; its captions don't
TWIPS = 15
MENU_BAR = 18
BLINKING = 3.5  # seconds that an opened design tells of its notes

MENUS = {
    "File": ["FileNew", "FileOpen", "FileSave", "FileImport", "FileExport", "FilePrint", "FileExit"],
    "Edit": ["BewerkenUndo", "BewerkenCopy", "BewerkenInformation"],
    "View": ["ViewKruis", "ViewMyCollection"],
    "Library": ["LibraryBorders", "LibraryBackside", "LibraryGlitter", "ClipartGroot", "Symbolen"],
    "Filters": [],
    "Help": [],
}

# Places in the main window's picture: the canvas's corner, and the button in the corner of the rulers.
CANVAS = (238, 88)
CORNER = (226, 78)
# The parts of the main window: left, top, width, height in pixels below the menu bar.
TOOL_PANEL = (928, 72, 166, 508)
SIDE_PANEL = (738, 50, 180, 330)
BROWSER = (4, 32, 196, 632)

# The dialogs: how each is opened, and what is done in it before its picture is taken. A step is an action with
# a control and a place on it in pixels (its middle if none is told), or a text or keys for what has the focus.
DIALOGS = {
    "open": ("FileOpen", [("click", "OpenFile.List1", 40, 8)]),
    "save": ("FileSave", []),
    "export": ("FileExport", []),
    "info_text": ("BewerkenInformation", []),
    "import": ("FileImport", [("key", "Return"), ("key", "Tab", "Down")]),
    "print": ("FilePrint", []),
    "collection": ("ViewMyCollection", [("click", "CollectionForm.List1", 40, 24)]),
    "borders": ("LibraryBorders", [("click", "BorderForm.Option1(3)", 8, 8), ("click", "BorderForm.Check1", 8, 8)]),
    "backs": ("LibraryBackside", [("click", "BackForm.Pic", 225, 75)]),
    "glitter": ("LibraryGlitter", []),
    "cliparts": ("ClipartGroot", [("click", "ClipartForm.Pic", 170, 60)]),
    "symbols": ("Symbolen", [("click", "SymbolForm.InstalKnop")]),
    "polygon": ("Knop(3)", []),
    "arc": ("Knop(4)", [("click", "ArcForm.Pic", x, y) for x, y in ((250, 280), (400, 250), (130, 120))]),
    "arc_curves": ("Knop(4)", [("click", "ArcForm.Option1(3)", 8, 10)] + [
        ("click", "ArcForm.Pic", x, y) for x, y in ((70, 400), (110, 80), (330, 60), (430, 380))]),
    "curved_text": ("Knop(7)", [("click", "CircelText.DrawKnop")]),
    "remove": ("Knop(10)", [("click", "RemoveForm.Check2", 8, 8), ("point", "RemoveForm.Pic", 250, 152)]),
    "replace": ("Knop(11)", [("click", "ColorChange.Combo1"), ("key", "Home", "Down", "Down", "Down", "Down",
                                                                "Return"),
                             ("click", "ColorChange.StartKnop"), ("point", "ColorChange.Pic", 250, 510)]),
    "pms": ("ColorLabel", [("click", "PMSForm.Combo1", 30, 10), ("key", "ctrl+a"), ("type", "186")]),
}
# Those that are taken over an empty canvas, since they show thin lines.
ON_PAPER = ["arc", "arc_curves"]
# Those of which a part is enough: its left, top, width and height.
PARTS = {"arc_curves": (40, 30, 440, 420)}
HOME = pathlib.Path(tempfile.gettempdir()) / "anna"
PHOTOS = ["Clouds.jpg", "Drops.jpg", "Galaxy.jpg", "Grass.jpg"]
COLLECTION = ["CN-0104", "CN-0117", "CN-0230", "HL-2026-01", "HL-2026-02"]


def save(path, picture):
    """As a small PNG: what was drawn has few colours, and shaded pictures look well with 256."""
    colours = picture.getcolors(256)
    small = picture.quantize(len(colours) if colours else 256, dither=Image.Dither.NONE)
    small.save(path, optimize=True)


def part(picture, box):
    left, top, width, height = box
    return picture.crop((left, top + MENU_BAR, left + width, top + height + MENU_BAR))


class Camera:
    """Takes the pictures of the program's windows, with the sample on the canvas."""

    def __init__(self, application_folder, pictures, names):
        self.folder = application_folder
        self.pictures = pictures
        self.names = names
        self.program = window.Program(application_folder)
        self.main = self.program.main
        self.titles = text_columns(self.main)
        self.skipped = []
        self.places = {}

    def keep(self, name, picture):
        if self.wants(name):
            save(self.pictures / f"{name}.png", picture)

    def wants(self, *starts):
        """Some picture with such a beginning is to be taken."""
        return not self.names or any(one.startswith(two) or two.startswith(one) for one in self.names
                                     for two in starts)

    def place(self, opened, control):
        """The left, top, width and height of a dialog's control, in pixels: the player tells it."""
        if control not in self.places:
            names = [f"{control}.{each}" for each in ("Left", "Top", "Width", "Height")]
            script = [self.opening(opened), "print " + " ".join(names)]
            told = player.printed(self.folder, script)
            self.places[control] = [round(float(told[name]) / TWIPS) for name in names]
        return self.places[control]

    def opening(self, opened):
        return "press Main.ColorLabel 1 5 5" if opened == "ColorLabel" else f"click Main.{opened}"

    def main_place(self, frame, control):
        """The middle of a control that lies in a frame of the main window."""
        names = [f"Main.{each}.{what}" for each in (frame, control) for what in ("Left", "Top")]
        names += [f"Main.{control}.{what}" for what in ("Width", "Height")]
        told = player.printed(self.folder, ["print " + " ".join(names)])
        left, top, own_left, own_top, width, height = (float(told[name]) / TWIPS for name in names)
        return round(left + own_left + width / 2), round(top + own_top + height / 2) + MENU_BAR

    def open_menu(self, title):
        column = self.titles[list(MENUS).index(title)]
        return self.program.opened_by(lambda: self.main.click(column, MENU_BAR // 2))

    def choose(self, entry):
        title = next(title for title, entries in MENUS.items() if entry in entries)
        menu = self.open_menu(title)
        rows = window.text_places(menu.look(), "y", 3, 4)
        menu.click(menu.width // 3, rows[MENUS[title].index(entry)])

    def press_opener(self, opened):
        if opened == "ColorLabel" or opened.startswith("Knop"):
            self.main.click(*self.main_place("Frame4", opened))
        else:
            self.choose(opened)

    def do(self, dialog, opened, step):
        action, control, *place = step
        if action in ("key", "type"):
            window.run("xdotool", action, control, *place)
        else:
            left, top, width, height = self.place(opened, control)
            x, y = place or (width // 2, height // 2)
            (dialog.click if action == "click" else dialog.point)(left + x, top + y)
        dialog.look()

    def dialog(self, name):
        opened, steps = DIALOGS[name]
        if opened != "ColorLabel" and not player.is_enabled(self.folder, f"Main.{opened}"):
            self.skipped.append(f"dialog_{name}")
            return
        others = self.program.windows()
        self.press_opener(opened)
        dialog = self.program.front(others)
        if dialog is None:
            raise SystemExit(f"the dialog for {name} doesn't open")
        for step in steps:
            self.do(dialog, opened, step)
        if not steps or steps[-1][0] != "point":
            window.run("xdotool", "mousemove", *window.OUT_OF_THE_WAY)
        look = dialog.look()
        if name in PARTS:
            left, top, width, height = PARTS[name]
            look = look.crop((left, top, left + width, top + height))
        self.keep(f"dialog_{name}", look)
        self.program.close_popups()

    def open_design(self):
        others = self.program.windows()
        self.choose("FileOpen")
        dialog = self.program.front(others)
        for step in [("click", "OpenFile.List1", 40, 8), ("click", "OpenFile.OkKnop")]:
            self.do(dialog, "FileOpen", step)
        time.sleep(BLINKING)

    def main_window(self):
        window.run("xdotool", "mousemove", *window.OUT_OF_THE_WAY)
        time.sleep(1.2)  # a second of the clock
        look = self.main.look()
        self.keep("main_window", look)
        self.keep("tool_strip", part(look, TOOL_PANEL))
        self.keep("side_panel", part(look, SIDE_PANEL))

    def browser(self):
        """The image browser with a picture chosen, if any come with the program."""
        count = player.printed(self.folder, ["print Main.List1.ListCount"])["Main.List1.ListCount"]
        if count != "0":
            x, y = self.main_place("Frame1", "List1")
            self.main.click(x, y - 130)
        window.run("xdotool", "mousemove", *window.OUT_OF_THE_WAY)
        self.keep("browser", part(self.main.look(), BROWSER))

    def paste_menu(self):
        """The menu under the button in the corner of the rulers, while a copied area floats."""
        script = ["click Main.Knop(12)", "drag Main.Pic 10 10 60 60", "print Main.HoekKnop.Visible"]
        if player.printed(self.folder, script)["Main.HoekKnop.Visible"] != "true":
            self.skipped.append("popup_paste")
            return
        self.press_opener("Knop(12)")
        left, top = CANVAS
        for action in (["mousemove", left + 330, top + 240], ["mousedown", 1], ["mousemove", left + 440, top + 360],
                       ["mouseup", 1]):
            window.run("xdotool", *action)
        menu = self.program.opened_by(lambda: self.main.click(*CORNER))
        self.keep("popup_paste", menu.look())
        rows = window.text_places(menu.look(), "y", 3, 4)
        menu.click(menu.width // 3, rows[-1])

    def menus(self):
        for title in MENUS:
            self.keep(f"menu_{title.lower()}", self.open_menu(title).look())
            self.program.close_popups()

    def popups(self):
        """The menus under two buttons of the strip, and the panels that tools bring along."""
        shapes = self.program.opened_by(lambda: self.press_opener("Knop(2)"))
        self.keep("popup_shapes", shapes.look())
        rows = window.text_places(shapes.look(), "y", 3, 4)
        for name, row in (("panel_corner", 1), ("panel_raster", 10)):
            shapes.click(shapes.width // 3, rows[row])
            self.keep(name, self.panel(364, 56))
            shapes = self.program.opened_by(lambda: self.press_opener("Knop(2)"))
        self.program.close_popups()
        self.keep("popup_flip", self.program.opened_by(lambda: self.press_opener("Knop(13)")).look())
        self.program.close_popups()
        self.press_opener("Knop(6)")
        self.keep("panel_eraser", self.panel(364, 76))
        self.press_opener("Knop(8)")
        self.keep("panel_text", self.panel(0, 508))
        self.main.click(*self.main_place("Frame6", "ExitKnop"))

    def panel(self, top, height):
        """A part of the tool panel, from so many pixels below its top."""
        window.run("xdotool", "mousemove", *window.OUT_OF_THE_WAY)
        left, panel_top, width, _ = TOOL_PANEL
        return part(self.main.look(), (left, panel_top + top, width, height))

    def screen_information(self):
        menu = self.open_menu("Help")
        rows = window.text_places(menu.look(), "y", 3, 4)
        submenu = self.program.opened_by(lambda: menu.click(menu.width // 3, rows[-1]))
        rows = window.text_places(submenu.look(), "y", 3, 4)
        message = self.program.opened_by(lambda: submenu.click(submenu.width // 3, rows[0]))
        window.run("xdotool", "mousemove", *window.OUT_OF_THE_WAY)
        self.keep("screen_info", message.look())
        self.program.close_popups()


def text_columns(main):
    bar = main.look().crop((0, 0, main.width, MENU_BAR))
    columns = window.text_places(bar, "x", 8, 4)
    if len(columns) != len(MENUS):
        raise SystemExit(f"the menu bar has {len(columns)} titles")
    return columns


@contextlib.contextmanager
def camera_before(folder, pictures, names):
    """The program started anew, and somebody with a camera before it."""
    camera = Camera(folder, pictures, names)
    try:
        yield camera
    finally:
        camera.program.end()


def take(camera, steps):
    """Those of the steps that take a picture that is wanted; each with the beginnings of its pictures' names."""
    for step, *starts in steps:
        if camera.wants(*starts):
            step()


def dialogs(camera, names):
    return [(functools.partial(camera.dialog, name), f"dialog_{name}") for name in names]


@contextlib.contextmanager
def a_users_home(folder):
    """A home with a folder of pictures, so that the import has some to show: one that looks the same whoever
    takes the pictures."""
    before = os.environ.get("HOME")
    shutil.rmtree(HOME, ignore_errors=True)
    (HOME / "Pictures").mkdir(parents=True)
    for name in PHOTOS:
        shutil.copy(folder / "Images" / name, HOME / "Pictures")
    os.environ["HOME"] = str(HOME)
    try:
        yield
    finally:
        if before is not None:
            os.environ["HOME"] = before
        shutil.rmtree(HOME, ignore_errors=True)


def windows(folder, pictures, names):
    """Takes the pictures of the windows. Gives the names of those that can't be taken yet."""
    with window.screen(), a_users_home(folder):
        with camera_before(folder, pictures, names) as camera:
            camera.open_design()
            take(camera, [
                (camera.main_window, "main_window", "tool_strip", "side_panel"), (camera.menus, "menu"),
                (camera.popups, "popup_shapes", "popup_flip", "panel"), (camera.screen_information, "screen_info"),
                *dialogs(camera, [name for name in DIALOGS if name not in ON_PAPER]),
                (camera.paste_menu, "popup_paste"), (camera.browser, "browser"),
            ])
        with camera_before(folder, pictures, names) as second:
            take(second, dialogs(second, ON_PAPER))
    return camera.skipped + second.skipped


def canvases(folder, stages):
    """Takes the pictures that need no window. Gives the names of those that can't be taken yet."""
    flips = canvas.flips(folder, stages["coloured"])
    pictures = {f"design_{name}": picture for name, picture in stages.items()}
    pictures |= canvas.shapes(folder) | canvas.filters(folder) | flips
    for name, picture in pictures.items():
        save(PICTURES / f"{name}.png", picture)
    return [] if flips else ["flip_1 to flip_6"]


def write_collection(folder):
    catalogue = "".join(f'"{number}"\r\n' for number in COLLECTION)
    (folder / "Collection" / "Collection.col").write_bytes(catalogue.encode("cp1252"))


def main(names):
    for code, language in LANGUAGES.items():
        with tempfile.TemporaryDirectory() as scratch:
            folder = player.fresh_application_folder(pathlib.Path(scratch) / "application", language)
            write_collection(folder)
            stages = sample.make(folder)
            (PICTURES / code).mkdir(parents=True, exist_ok=True)
            skipped = canvases(folder, stages) if code == "en" and not names else []
            skipped += windows(folder, PICTURES / code, names)
            if code == "en":
                shutil.copy(PICTURES / code / "main_window.png", README_PICTURE)
            if skipped:
                print(f"{language}: not yet in the program:", ", ".join(skipped), flush=True)


if __name__ == "__main__":
    main(sys.argv[1:])
