#!/usr/bin/python3
"""Makes what comes with the program, from the drawings and generators in this folder.

    assets/make.py              all of it, into data/
    assets/make.py borders      one kind
    assets/make.py --sheets DIR borders    also overview pictures to look at, into DIR

The tools that it needs are installed by `dev/setup.sh assets`; the designs are drawn by the built program (release). Run it after a change and commit what it
writes: the build takes the files as they are and needs none of these tools. The same sources give the same
bytes.
"""

import argparse
import importlib
import pathlib
import sys

ASSETS = pathlib.Path(__file__).resolve().parent
DATA = ASSETS.parent / "data"

# Each is a module assets/<name>/make.py with
#     make(data)              writes its files into the folder of the data
#     sheets(data, folder)    renders what it wrote into overview pictures
# In this order: designs are made of the others, and the manuals show them.
KINDS = ["backs", "borders", "cliparts", "fonts", "forms", "glitter", "images", "designs", "help"]


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("kinds", nargs="*", metavar="KIND", help=", ".join(KINDS))
    parser.add_argument("--sheets", type=pathlib.Path, metavar="DIR", help="folder for the overview pictures")
    chosen = parser.parse_args()
    unknown = sorted(set(chosen.kinds) - set(KINDS))
    if unknown:
        parser.error(f"no such kind: {', '.join(unknown)}")
    sys.path.insert(0, str(ASSETS))
    for kind in chosen.kinds or KINDS:
        module = importlib.import_module(f"{kind}.make")
        print(kind, flush=True)
        module.make(DATA)
        if chosen.sheets:
            chosen.sheets.mkdir(parents=True, exist_ok=True)
            module.sheets(DATA, chosen.sheets)


if __name__ == "__main__":
    main()
