"""From the documents' sources to PDF.

A source is a well-formed page with a few elements of its own:

    <toc/>                                  the table of contents, from the headings
    <shot name="dialog_save" title="Save Coinlet">Caption</shot>
                                            a picture of the program, with its title bar if one is told;
                                            nothing at all while the picture has not been taken
    <callouts name="main_window"/>          the same with the numbers of CALLOUTS on it
    <filters><filter name="sepia" caption="Sepia">Text</filter>...</filters>
                                            a table of filters, each before and after
    <shapes><shape name="shape_1">Caption</shape>...</shapes>
                                            a grid of small pictures
    <border-count/>                         how many borders there are
    <border-reach most="from"/>, ... "to"/> how near to the middle three of four borders come, at the most
                                            and at the least
    <border-list within="180"/>             the borders that come nearer to the middle than so many pixels

Pictures are looked for in pictures/LANGUAGE/ and in pictures/.
"""

import base64
import os
import pathlib
import subprocess
import xml.etree.ElementTree as ET

from PIL import Image

from help import reaches

HERE = pathlib.Path(__file__).resolve().parent
PICTURES = HERE / "pictures"
WIDEST = 174.0  # millimetres, the text's width
MILLIMETRES_A_PIXEL = 0.165  # of the program's windows on paper
NARROWEST = 40.0  # of a picture's caption
FILTERS_IN_A_ROW = 2
FILTER_WIDTH = 29.0
SHAPES_IN_A_ROW = 4
DATE = "1767225600"  # every build of the same sources gives the same bytes

# The numbers on a picture: places in pixels, in the order of the numbers.
CALLOUTS = {"main_window": [(250, 8), (250, 31), (202, 240), (202, 500), (202, 662), (600, 130), (300, 78),
                            (880, 190), (944, 66), (926, 240), (926, 394), (926, 440), (800, 640)]}


def in_the_page(picture):
    """The picture itself in the place of its address: the renderer writes addresses into what it makes, and the
    result must not depend on the folder that the sources lie in."""
    return "data:image/png;base64," + base64.b64encode(picture.read_bytes()).decode()


class Document:
    """One source on its way to a page that the renderer understands."""

    def __init__(self, source, language):
        self.tree = ET.fromstring(source.read_text(encoding="utf-8"))
        self.language = language

    def picture(self, name):
        """The file of a picture and its width in pixels; nothing if there is none."""
        for folder in (PICTURES / self.language, PICTURES):
            file = folder / f"{name}.png"
            if file.exists():
                return file, Image.open(file).width
        return None

    def image(self, name, width):
        """An image element of so many millimetres."""
        return ET.Element("img", src=in_the_page(self.picture(name)[0]), alt="", style=f"width: {width:.1f}mm")

    def shot(self, element):
        name = element.get("name")
        found = self.picture(name)
        if found is None:
            return []
        width = min(found[1] * float(element.get("scale", MILLIMETRES_A_PIXEL)), WIDEST)
        has_caption = bool(element.text and element.text.strip())
        figure = ET.Element("figure", {"class": f"shot {element.get('class', '')}".strip(),
                                       "style": f"width: {max(width + 0.6, NARROWEST if has_caption else 0):.1f}mm"})
        frame = ET.SubElement(figure, "div", {"class": "window" if element.get("title") else "plain",
                                              "style": f"width: {width:.1f}mm"})
        if element.get("title"):
            ET.SubElement(frame, "div", {"class": "title"}).text = element.get("title")
        inner = ET.SubElement(frame, "div", {"class": "numbered"})
        inner.append(self.image(name, width))
        if element.tag == "callouts":
            self.number(inner, name)
        if has_caption:
            caption = ET.SubElement(figure, "figcaption", style=f"width: {max(width, NARROWEST):.1f}mm")
            caption.text = element.text
            caption.extend(list(element))
        return [figure]

    def number(self, inner, name):
        width, height = Image.open(self.picture(name)[0]).size
        for number, (x, y) in enumerate(CALLOUTS[name], 1):
            place = f"left: {x / width:.2%}; top: {y / height:.2%}"
            ET.SubElement(inner, "span", {"class": "number", "style": place}).text = str(number)

    def grid(self, cells, columns, kind):
        table = ET.Element("table", {"class": kind})
        for start in range(0, len(cells), columns):
            row = ET.SubElement(table, "tr")
            row.extend(cells[start : start + columns])
        return [table]

    def filters(self, element):
        cells = []
        for each in element:
            cell = ET.Element("td")
            pair = ET.SubElement(cell, "div", {"class": "pair"})
            pair.append(self.image("filter_before", FILTER_WIDTH))
            ET.SubElement(pair, "span").text = "▸"
            pair.append(self.image(f"filter_{each.get('name')}", FILTER_WIDTH))
            name = ET.SubElement(cell, "p")
            ET.SubElement(name, "b").text = each.get("caption")
            name[0].tail = " " + (each.text or "")
            name.extend(list(each))
            cells.append(cell)
        return self.grid(cells, FILTERS_IN_A_ROW, "filters")

    def shapes(self, element):
        """Without its pictures nothing is left of the grid."""
        shown = [each for each in element if self.picture(each.get("name"))]
        cells = []
        for each in shown:
            cell = ET.Element("td")
            cell.append(self.image(each.get("name"), float(element.get("size", 21))))
            ET.SubElement(cell, "p").text = each.text
            cells.append(cell)
        return self.grid(cells, int(element.get("columns", SHAPES_IN_A_ROW)), "shapes") if cells else []

    def border_figure(self, element):
        """A figure about the borders that are delivered, as text."""
        text = ET.Element("span")
        if element.tag == "border-count":
            text.text = str(len(reaches.of_borders()))
        elif element.tag == "border-reach":
            text.text = str(reaches.of_most()[element.get("most")])
        else:
            text.text = ", ".join(f"{name} ({reach})" for name, reach in
                                  reaches.within(int(element.get("within"))))
        return [text]

    def contents(self, _):
        """Chapters and sections with their pages, which the renderer fills in."""
        top = ET.Element("nav", {"class": "toc"})
        count = 0
        for heading in self.tree.iter():
            if heading.tag not in ("h1", "h2") or heading.get("class") == "unlisted":
                continue
            count += 1
            heading.set("id", f"h{count}")
            line = ET.SubElement(top, "p", {"class": heading.tag})
            ET.SubElement(line, "a", href=f"#h{count}").text = "".join(heading.itertext())
        return [top]

    def expand(self, parent):
        """Puts what the renderer knows in the place of the elements of our own."""
        makers = {"shot": self.shot, "callouts": self.shot, "toc": self.contents, "filters": self.filters,
                  "shapes": self.shapes, "border-count": self.border_figure,
                  "border-reach": self.border_figure, "border-list": self.border_figure}
        for child in list(parent):
            self.expand(child)
            if child.tag not in makers:
                continue
            made, place, tail = makers[child.tag](child), list(parent).index(child), child.tail or ""
            parent.remove(child)
            for offset, element in enumerate(made):
                parent.insert(place + offset, element)
            if made:
                made[-1].tail = tail
        return parent

    def html(self):
        self.expand(self.tree)
        for image in self.tree.iter("img"):
            if not image.get("src").startswith("data:"):
                image.set("src", in_the_page(HERE / image.get("src")))
        text = ET.tostring(self.tree, encoding="unicode", method="html")
        return "<!DOCTYPE html>\n" + text


def write(source, language, path):
    """Makes the PDF of a source beside this file."""
    path.parent.mkdir(parents=True, exist_ok=True)
    # The order in which the renderer visits its sets must not depend on the run.
    environment = os.environ | {"SOURCE_DATE_EPOCH": DATE, "PYTHONHASHSEED": "0"}
    command = ["weasyprint", "--quiet", "--encoding", "utf-8", "--base-url", "about:blank",
               "--stylesheet", str(HERE / "style.css"), "-", str(path)]
    subprocess.run(command, input=Document(HERE / source, language).html().encode(), env=environment, check=True)
