"""Has the program draw pictures without a window, by scripts for its scenario player."""

import pathlib
import shutil
import subprocess
import tempfile

from PIL import Image

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parents[1]
BUILD = ROOT / "build" / "release"
BUILT_FOLDER = BUILD / "coinlet-designer"
SETTINGS = "Ivo Kestrell Software ® 2014\r\n" + "-" * 28 + "\r\n{language}\r\n"


def fresh_application_folder(folder, language="English"):
    """A copy of the built program, as it is at its first start but for the language and an empty store."""
    left_out = shutil.ignore_patterns("Coinlet.ini", "coinlet-designer", "Ontwerpen")
    shutil.copytree(BUILT_FOLDER, folder, ignore=left_out)
    (folder / "Ontwerpen").mkdir()
    (folder / "Coinlet.ini").write_bytes(SETTINGS.format(language=language).encode("cp1252"))
    return folder


def play(application_folder, lines, files=None):
    """Plays a script. Gives what it printed, and the pictures that it saved by their names.

    `files` are pictures to be laid beside the script, by name, for its `load`.
    """
    with tempfile.TemporaryDirectory() as scratch:
        scratch = pathlib.Path(scratch)
        for name, picture in (files or {}).items():
            picture.convert("RGB").save(scratch / name)
        script = scratch / "script.play"
        script.write_text("\n".join(lines) + "\n", encoding="utf-8")
        out = scratch / "out"
        out.mkdir()
        command = [BUILD / "coinlet-play", "--folder", application_folder, "--out", out, script]
        run = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
        if run.returncode != 0:
            raise SystemExit(run.stdout)
        return run.stdout, {file.stem: Image.open(file).convert("RGB").copy() for file in out.glob("*.bmp")}


def printed(application_folder, lines):
    """The values that a script printed, by `ADDRESS.PROPERTY`."""
    text, _ = play(application_folder, lines)
    return dict(line.split(" = ", 1) for line in text.splitlines() if " = " in line)


def is_enabled(application_folder, address):
    """Whether the program has the button or the entry of a menu, and it can be chosen."""
    name = f"{address}.Enabled"
    return printed(application_folder, [f"print {name}"])[name] == "true"
