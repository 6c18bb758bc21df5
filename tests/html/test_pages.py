"""The help pages: valid, complete, and true about the boards and modules they speak of."""

import os
import pathlib
import re
import subprocess
import unittest
from html.parser import HTMLParser

ROOT = pathlib.Path(__file__).resolve().parents[2]
HTML = pathlib.Path(os.environ["VELTRIX_APPLICATION_FOLDER"]) / "html"
PAGES = sorted(HTML.glob("*.htm"))


class Page(HTMLParser):
    """What a test asks of a page."""

    def __init__(self, path):
        super().__init__()
        self.language = None
        self.anchors, self.links, self.pictures, self.headings = set(), [], [], []
        self.text = path.read_text(encoding="utf-8")
        self.feed(self.text)

    def handle_starttag(self, tag, attrs):
        attrs = dict(attrs)
        if "id" in attrs:
            self.anchors.add(attrs["id"])
        if tag == "html":
            self.language = attrs.get("lang")
        elif tag == "a" and "href" in attrs:
            self.links.append(attrs["href"])
        elif tag == "img":
            self.pictures.append(attrs)
        elif re.fullmatch("h[1-6]", tag):
            self.headings.append(int(tag[1]))


class Pages(unittest.TestCase):
    def test_there_is_a_page_for_pupils_one_in_english_and_one_for_teachers(self):
        self.assertEqual([page.name for page in PAGES],
                         ["HelpDocent.htm", "HelpENG.htm", "HelpNL.htm"])

    def test_every_page_is_valid_html(self):
        for path in PAGES:
            with self.subTest(path.name):
                found = subprocess.run(["tidy", "-q", "-e", "-utf8", str(path)],
                                       capture_output=True, text=True, check=False)
                self.assertEqual((found.returncode, found.stderr), (0, ""))

    def test_every_page_says_in_which_language_it_is(self):
        languages = {path.name: Page(path).language for path in PAGES}
        self.assertEqual(languages, {"HelpDocent.htm": "nl", "HelpENG.htm": "en",
                                     "HelpNL.htm": "nl"})

    def test_headings_skip_no_level(self):
        for path in PAGES:
            headings = Page(path).headings
            self.assertEqual(headings[0], 1, path.name)
            for above, below in zip(headings, headings[1:]):
                self.assertLessEqual(below, above + 1, path.name)

    def test_every_link_leads_to_a_place_on_these_pages(self):
        anchors = {path.name: Page(path).anchors for path in PAGES}
        for path in PAGES:
            for link in Page(path).links:
                page, _, anchor = link.partition("#")
                with self.subTest(f"{path.name}: {link}"):
                    self.assertIn(page or path.name, anchors)
                    if anchor:
                        self.assertIn(anchor, anchors[page or path.name])

    def test_every_picture_is_there_and_told_in_words(self):
        shown = 0
        for path in PAGES:
            for picture in Page(path).pictures:
                shown += 1
                with self.subTest(f"{path.name}: {picture['src']}"):
                    self.assertTrue((HTML / picture["src"]).is_file())
                    self.assertGreater(len(picture.get("alt", "")), 20)
        self.assertGreaterEqual(shown, 5)

    def test_every_board_that_a_page_names_is_an_example_and_every_example_has_a_lesson(self):
        boards = {path.name for path in (ROOT / "examples").glob("*.vtx")} - {"leeg.vtx"}
        for name in ("HelpNL.htm", "HelpENG.htm"):
            named = set(re.findall(r"[\w-]+\.vtx", Page(HTML / name).text))
            self.assertEqual(named, boards, name)

    def test_every_board_stands_beside_the_programs_where_the_pages_send_the_reader(self):
        for board in (ROOT / "examples").glob("*.vtx"):
            copy = HTML.parent / "examples" / board.name
            self.assertEqual(copy.read_bytes(), board.read_bytes(), board.name)

    def test_nothing_is_fetched_from_elsewhere(self):
        for path in PAGES:
            self.assertNotRegex(path.read_text(encoding="utf-8"), r"(src|href)=\"https?:")


if __name__ == "__main__":
    unittest.main()
