"""The page of the report in a browser: it asks for nothing outside, shows the numbers of the text report, and what it
draws fits the data.

    page_test.py REPORT    REPORT is the program
"""

import csv
import json
import re
import shutil
import struct
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree
import zlib
from html.parser import HTMLParser
from pathlib import Path

HERE = Path(__file__).resolve().parent
DATA = HERE.parent.parent / "examples" / "data"
REPORT = Path(sys.argv.pop(1)).resolve()
BROWSER = ["chromium", "--headless", "--no-sandbox", "--disable-gpu", "--hide-scrollbars", "--no-first-run",
           "--disable-background-networking", "--disable-component-update", "--disable-sync", "--disable-extensions",
           "--host-resolver-rules=MAP * ~NOTFOUND", "--enable-logging=stderr", "--virtual-time-budget=2000"]


def browse(page, folder, *options):
    """What the browser prints on its two streams."""
    done = subprocess.run([*BROWSER, f"--user-data-dir={folder}/profile", *options, page.as_uri()], check=True,
                          capture_output=True, text=True, timeout=120)
    return done.stdout, done.stderr


class Reader(HTMLParser):
    """The words of a page outside its links and figures, all its tags with their attributes, and its pictures."""

    def __init__(self, page):
        super().__init__()
        self.words, self.tags = [], []
        self.outside = 0
        self.feed(page)
        pictures = re.findall(r"<svg.*?</svg>", re.sub(r' xmlns="[^"]*"', "", page), re.S)
        self.pictures = [xml.etree.ElementTree.fromstring(picture) for picture in pictures]

    def handle_starttag(self, tag, attrs):
        self.tags.append((tag, dict(attrs)))
        self.outside += tag in ("head", "nav", "figure")

    def handle_endtag(self, tag):
        self.outside -= tag in ("head", "nav", "figure")

    def handle_data(self, data):
        if not self.outside:
            self.words += data.split()


def image(path):
    """The rows of pixels of a PNG of 8 bits a channel, each pixel a triple."""
    data = path.read_bytes()
    place, packed = 8, b""
    while place < len(data):
        length, kind = struct.unpack(">I4s", data[place:place + 8])
        body = data[place + 8:place + 8 + length]
        if kind == b"IHDR":
            width, _, depth, colour = struct.unpack(">IIBB", body[:10])
            step = {2: 3, 6: 4}[colour]
            assert depth == 8
        elif kind == b"IDAT":
            packed += body
        place += 12 + length
    raw, rows = zlib.decompress(packed), []
    above = bytearray(width * step)
    for start in range(0, len(raw), width * step + 1):
        method, line = raw[start], bytearray(raw[start + 1:start + 1 + width * step])
        for k in range(len(line) if method else 0):
            left, up = line[k - step] if k >= step else 0, above[k]
            corner = above[k - step] if k >= step else 0
            if method == 4:
                guess = left + up - corner
                near = min((abs(guess - left), 0, left), (abs(guess - up), 1, up), (abs(guess - corner), 2, corner))[2]
            else:
                near = (0, left, up, (left + up) // 2)[method]
            line[k] = (line[k] + near) & 255
        rows.append([tuple(line[k:k + 3]) for k in range(0, len(line), step)])
        above = line
    return rows


def number(shape, name):
    return float(shape.get(name))


def by_class(picture, kind, tag="*"):
    return [shape for shape in picture.iter() if kind in (shape.get("class") or "").split() and tag in ("*", shape.tag)]


def ruler(texts, along):
    """The number at a coordinate, by the labels of an axis."""
    first, last = texts[0], texts[-1]
    low, high = float(first.text), float(last.text)
    begin, end = number(first, along), number(last, along)
    return lambda at: low + (at - begin) / (end - begin) * (high - low)


class Page(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = Path(tempfile.mkdtemp())
        cls.page = cls.folder / "page.html"
        cls.files = [DATA / "airquality.csv", DATA / "iris.csv", HERE / "mixed.csv"]
        done = subprocess.run([REPORT, *cls.files, "--html", cls.page], check=True, capture_output=True, text=True)
        cls.text = done.stdout
        cls.net = cls.folder / "net.json"
        cls.dumped, cls.log = browse(cls.page, cls.folder, "--dump-dom", f"--log-net-log={cls.net}")
        cls.read = Reader(cls.dumped)

    @classmethod
    def tearDownClass(cls):
        shutil.rmtree(cls.folder)

    def pictures(self, begin):
        return [picture for picture in self.read.pictures if picture.find("title").text.startswith(begin)]

    def columns(self):
        """Each column of numbers by its name, with the numbers that are there."""
        found = {}
        for file in self.files[:2]:
            with open(file, newline="", encoding="utf-8") as lines:
                for row in csv.DictReader(lines):
                    for name, cell in row.items():
                        if re.fullmatch(r"[-0-9.]+", cell):
                            found.setdefault(name, []).append(float(cell))
        return found

    def section(self, title, report=0):
        """The rows of a section of the text report, each split into words."""
        after = self.text.split("\n" + title)[report + 1]
        return [line.split() for line in after.split("\n\n")[0].split("\n")[2:]]

    def test_nothing_outside_is_asked_for(self):
        events = json.loads(self.net.read_text())
        start = events["constants"]["logEventTypes"]["URL_REQUEST_START_JOB"]
        # The browser's own requests come from no page.
        asked = [event["params"]["url"] for event in events["events"] if event["type"] == start
                 and event.get("params", {}).get("initiator", "not an origin") != "not an origin"]
        self.assertEqual(asked, [])
        for tag, attributes in self.read.tags:
            self.assertNotIn(tag, ("script", "img", "iframe", "object", "embed"))
            for name, value in attributes.items():
                self.assertFalse(name.startswith("on"), (tag, name))
                if name in ("src", "href"):
                    self.assertTrue(value.startswith(("#", "data:,")), (tag, value))

    def test_no_error_is_told(self):
        self.assertEqual([line for line in self.log.splitlines() if "CONSOLE" in line], [])

    def test_the_numbers_are_those_of_the_text(self):
        words = [word for line in self.text.splitlines() if set(line) != {"="} for word in line.split()]
        self.assertEqual(self.read.words, words)

    def test_each_picture_is_told_in_words(self):
        self.assertGreaterEqual(len(self.read.pictures), 10 + 3 + 3)
        for picture in self.read.pictures:
            self.assertEqual(picture.get("role"), "img")
            self.assertTrue(picture.find("title").text)
            self.assertGreater(len(picture.find("desc").text), 30)

    def test_the_bars_of_a_histogram_count_the_rows(self):
        tables = re.findall(r"<details>.*?</details>", self.dumped, re.S)
        for (name, values), table in zip(self.columns().items(), tables):
            with self.subTest(name):
                numbers = re.findall(r">([-0-9.]+)</td></tr>", table)
                picture, = self.pictures("Distribution of " + name)
                count_at = ruler(by_class(picture, "count"), "y")
                bottom = next(number(text, "y") for text in by_class(picture, "count") if text.text == "0")
                total = 0
                bars = by_class(picture, "bar")
                self.assertEqual(len(numbers), len(bars))
                for bar, count in zip(bars, numbers):
                    drawn = count_at(bottom - number(bar, "height"))
                    self.assertAlmostEqual(number(bar, "y") + number(bar, "height"), bottom, delta=0.011)
                    low, high, told = re.fullmatch(r"(\S+) to (\S+): (\d+) rows?", bar.find("title").text).groups()
                    end = float(high) + (0.001 if bar is bars[-1] else 0.0)
                    within = sum(float(low) <= value < end for value in values)
                    self.assertEqual([int(told), int(count)], [within, within])
                    self.assertAlmostEqual(drawn, within, delta=0.05)
                    total += drawn
                self.assertEqual(round(total), len(values))

    def test_a_box_stands_at_the_quartiles(self):
        for report in (0, 1):
            for name, _, _, lower, median, upper, *_ in self.section("Range and quartiles", report):
                with self.subTest(name):
                    picture, = self.pictures("Distribution of " + name)
                    texts = [text for text in by_class(picture, "minor") if "count" not in text.get("class")]
                    value_at = ruler(texts, "x")
                    box, = by_class(picture, "box")
                    line, = by_class(picture, "median")
                    pixel = value_at(1) - value_at(0)
                    for x, value in ((number(box, "x"), lower), (number(line, "x1"), median),
                                     (number(box, "x") + number(box, "width"), upper)):
                        self.assertAlmostEqual(value_at(x), float(value), delta=0.05 * pixel)

    def test_the_map_has_a_cell_for_each_pair(self):
        for report, (picture, columns) in enumerate(zip(self.pictures("Correlations"), (6, 4, 5), strict=True)):
            cells = by_class(picture, "cell")
            self.assertEqual(len(cells), columns * columns)
            figures = [row for row in self.section("Correlations, over", report) if row[0] != "rows"][:columns - 1]
            told = sorted(word for row in figures for word in row if re.fullmatch(r"-|-?\d\.\d{3}", word))
            hints = [cell.find("title").text.split(": ")[-1] for cell in cells]
            for k, (cell, hint) in enumerate(zip(cells, hints)):
                if "undefined" not in cell.get("class"):
                    self.assertAlmostEqual(float(cell.get("fill-opacity", 1)), abs(float(hint)), delta=0.006)
                    self.assertEqual("negative" in cell.get("class"), float(hint) < 0)
                self.assertEqual(hint, hints[k % columns * columns + k // columns])
            lower = [hints[i * columns + j] for i in range(columns) for j in range(i)]
            self.assertEqual(sorted(lower), told)

    def test_the_components_are_drawn(self):
        scree, biplot = self.pictures("Scree plot")[0], self.pictures("Biplot")[0]
        variances = [float(row[1]) for row in self.section("Principal components")]
        value_at = ruler([text for text in by_class(scree, "minor") if number(text, "x") < 46], "y")
        self.assertEqual([round(value_at(number(bar, "y")), 2) for bar in by_class(scree, "bar")],
                         [round(variance, 2) for variance in variances])
        loadings = [list(map(float, row[1:3])) for row in self.section("Loadings")]
        ring, = by_class(biplot, "ring")
        radius = number(ring, "r")
        arrows = [[(number(arrow, "x2") - number(ring, "cx")) / radius,
                   (number(ring, "cy") - number(arrow, "y2")) / radius] for arrow in by_class(biplot, "arrow")]
        self.assertEqual(len(arrows), len(loadings))
        for arrow, loading in zip(arrows, loadings):
            for drawn, told in zip(arrow, loading):
                self.assertAlmostEqual(drawn, told, delta=0.001)
        self.assertEqual(len(by_class(biplot, "dot")), 111)  # The rows without missing numbers.

    def test_a_screenshot_shows_it_in_light_and_in_dark(self):
        for scheme, ground, bar in ((1, (255, 255, 255), (47, 109, 179)), (0, (20, 24, 29), (106, 167, 232))):
            with self.subTest(ground):
                shot = self.folder / f"shot{scheme}.png"
                browse(self.page, self.folder, "--window-size=700,900", f"--screenshot={shot}",
                       f"--blink-settings=preferredColorScheme={scheme}")
                pixels = [pixel for row in image(shot) for pixel in row]
                self.assertGreater(pixels.count(ground), len(pixels) // 3)
                self.assertGreater(pixels.count(bar), 2000)
                self.assertGreater(len(set(pixels)), 50)


if __name__ == "__main__":
    unittest.main()
