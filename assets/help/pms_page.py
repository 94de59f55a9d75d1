"""The PMS colour table as one page for the browser: swatches, a search field, and fit to be printed."""

import html
import pathlib

HERE = pathlib.Path(__file__).resolve().parent
FIELDS = 9


def colours(data):
    """The lines of the table, each split into code, C, M, Y, K, R, G, B and the hexadecimal value."""
    table = (data / "Data" / "PMS-Colors.txt").read_text(encoding="cp1252")
    lines = [line.split(",") for line in table.splitlines() if line.strip()]
    for line in lines:
        if len(line) != FIELDS:
            raise SystemExit(f"a colour without {FIELDS} fields: {','.join(line)}")
    return lines


def row(colour):
    code, *figures = [html.escape(field) for field in colour]
    return f'<tr><td><i style="background:#{figures[-1]}"></i><td>{code}' + "".join(f"<td>{f}" for f in figures)


def write(data, path):
    table = colours(data)
    page = (HERE / "pms_page.html").read_text(encoding="utf-8")
    english = f"{len(table):,}"
    # Not str.format: the style sheet and the script are full of braces.
    for mark, text in [("{count}", english), ("{aantal}", english.replace(",", ".")),
                       ("{rows}", "\n".join(row(colour) for colour in table))]:
        page = page.replace(mark, text)
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text(page, encoding="utf-8", newline="\n")
