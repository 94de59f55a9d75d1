"""The documents that the Help menu opens: manuals, notes about the screen, and the table of PMS colours."""

import subprocess

from help import pms_page


def make(data):
    folder = data / "Help"
    pms_page.write(data, folder / "PMS-Colors.htm")


def sheets(data, folder):
    """The pages of the documents, small."""
    for document in sorted((data / "Help").glob("*.pdf")):
        subprocess.run(["pdftoppm", "-r", "60", "-png", document, folder / f"help_{document.stem}"], check=True)
