"""Drives the real program on a screen of its own and takes pictures of its windows."""

import contextlib
import os
import signal
import subprocess
import tempfile
import time

from PIL import Image, ImageChops, ImageGrab

from help.player import BUILT_FOLDER

SCREEN = "1400x1050x24"
CLOCK = "2026-01-02 15:04:05"  # the program shows the time, and pictures made twice shall be the same
PATIENCE = 20.0
OUT_OF_THE_WAY = (1390, 1040)


def run(*command):
    return subprocess.run([str(part) for part in command], check=True, stdout=subprocess.PIPE, text=True).stdout


def comes(condition):
    """Waits until something is there, and gives it; nothing if it doesn't come."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        found = condition()
        if found:
            return found
        time.sleep(0.05)
    return None


@contextlib.contextmanager
def screen():
    """A screen that nobody sees, until the block ends."""
    reading, writing = os.pipe()
    server = subprocess.Popen(
        ["Xvfb", "-displayfd", str(writing), "-screen", "0", SCREEN, "-dpi", "96", "-nolisten", "tcp", "-noreset"],
        pass_fds=[writing], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    os.close(writing)
    try:
        with os.fdopen(reading) as number:
            os.environ["DISPLAY"] = ":" + number.readline().strip()
        yield
    finally:
        server.terminate()
        server.wait()


class Window:
    """A window on the screen, by the window system's number."""

    def __init__(self, number):
        self.number = number
        figures = dict(line.split("=") for line in run("xdotool", "getwindowgeometry", "--shell", number).split())
        self.left, self.top = int(figures["X"]), int(figures["Y"])
        self.width, self.height = int(figures["WIDTH"]), int(figures["HEIGHT"])

    def look(self):
        """The window's picture, once it has stopped changing."""
        before, same = None, 0
        while same < 4:
            box = (self.left, self.top, self.left + self.width, self.top + self.height)
            now = ImageGrab.grab(bbox=box, xdisplay=os.environ["DISPLAY"]).convert("RGB")
            same = same + 1 if before is not None and ImageChops.difference(now, before).getbbox() is None else 0
            before = now
            time.sleep(0.08)
        return now

    def click(self, x, y, button=1):
        run("xdotool", "mousemove", self.left + x, self.top + y, "click", button)

    def point(self, x, y):
        run("xdotool", "mousemove", self.left + x, self.top + y)


def width_of(number):
    """The width of a window; 0 for one that has gone meanwhile, as menus do."""
    try:
        return Window(number).width
    except subprocess.CalledProcessError:
        return 0


class Program:
    """The running program; its main window is the one that was there first."""

    def __init__(self, application_folder):
        program = application_folder / "coinlet-designer"
        program.write_bytes((BUILT_FOLDER / "coinlet-designer").read_bytes())
        program.chmod(0o755)
        run("xdotool", "mousemove", *OUT_OF_THE_WAY)
        self.runtime = tempfile.TemporaryDirectory()
        environment = {name: value for name, value in os.environ.items() if name not in (
            "WAYLAND_DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "QT_STYLE_OVERRIDE")}
        environment |= {"QT_QPA_PLATFORM": "xcb", "QT_QPA_PLATFORMTHEME": "none", "LC_ALL": "C.UTF-8",
                        "XDG_RUNTIME_DIR": self.runtime.name, "FAKETIME_DONT_FAKE_MONOTONIC": "1"}
        self.process = subprocess.Popen(["faketime", "-f", CLOCK, program], env=environment,
                                        start_new_session=True)
        numbers = comes(self.windows)
        if not numbers:
            raise SystemExit("the program shows no window")
        self.main = Window(numbers[0])
        self.main.look()

    def windows(self):
        """The numbers of the visible windows, the front one last."""
        found = subprocess.run(["xdotool", "search", "--onlyvisible", "--class", "coinlet"],
                               stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True).stdout.split()
        return [number for number in found if width_of(number) > 20]

    def front(self, others):
        """A window that was not among the others; none if nothing opens."""
        fresh = comes(lambda: [number for number in self.windows() if number not in others])
        if not fresh:
            return None
        window = Window(fresh[-1])
        window.look()
        return window

    def opened_by(self, act):
        others = self.windows()
        act()
        return self.front(others)

    def key(self, name):
        run("xdotool", "key", name)

    def close_popups(self):
        """Escape until the main window is alone again."""
        def alone():
            if len(self.windows()) <= 1:
                return True
            self.key("Escape")
            time.sleep(0.3)
            return False
        if not comes(alone):
            raise SystemExit("a window doesn't close")
        run("xdotool", "mousemove", *OUT_OF_THE_WAY)

    def end(self):
        # The clock's wrapper runs the program as a child.
        os.killpg(self.process.pid, signal.SIGKILL)
        self.process.wait()
        self.runtime.cleanup()


def stretches(places, least_gap):
    """Neighbouring places as (first, last), parted where at least so many are missing."""
    found = []
    for place in places:
        if found and place - found[-1][1] <= least_gap:
            found[-1][1] = place
        else:
            found.append([place, place])
    return found


def text_places(picture, axis, least_gap, least_size):
    """Where texts stand on an even ground: their middles along the axis ("x" or "y"). Rules are too thin to
    count."""
    ground = picture.getpixel((picture.width // 2, 2))
    pixels = picture.load()
    width, height = picture.width - 4, picture.height - 4  # without the frame
    along, across = (width, height) if axis == "x" else (height, width)

    def stands(a, b):
        colour = pixels[(a + 2, b + 2) if axis == "x" else (b + 2, a + 2)]
        return sum(abs(one - two) for one, two in zip(colour, ground)) > 150

    inked = [a for a in range(along) if any(stands(a, b) for b in range(across))]
    return [2 + (first + last) // 2 for first, last in stretches(inked, least_gap) if last - first >= least_size]
