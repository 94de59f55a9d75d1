"""The documents that the Help menu opens: manuals, notes about the screen, and the table of PMS colours."""

import subprocess

from help import pages, pms_page

# By the names under which the Help menu looks for them: each with its source and its language.
DOCUMENTS = {
    "English.pdf": ("manual.en.html", "en"),
    "Nederlands.pdf": ("manual.nl.html", "nl"),
    "Beeldscherm.pdf": ("screen.html", "nl"),
}


def make(data):
    folder = data / "Help"
    pms_page.write(data, folder / "PMS-Colors.htm")
    for name, (source, language) in DOCUMENTS.items():
        pages.write(source, language, folder / name)


def sheets(data, folder):
    """The pages of the documents, small."""
    for document in sorted((data / "Help").glob("*.pdf")):
        subprocess.run(["pdftoppm", "-r", "60", "-png", document, folder / f"help_{document.stem}"], check=True)
