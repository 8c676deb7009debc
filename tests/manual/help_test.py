"""The help file that is made from the manual: unpacks it, and follows all that leads somewhere."""
import html.parser
import pathlib
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path += [str(ROOT / "scripts"), str(ROOT / "tests/templates")]
import manual_pages  # noqa: E402
from chm_test import Sitemap  # noqa: E402


class HelpPage(html.parser.HTMLParser):
    def __init__(self, path):
        super().__init__()
        self.anchors = set()
        self.links = []
        self.said = ""
        self.feed(path.read_bytes().decode("ascii"))

    def handle_starttag(self, tag, attributes):
        attributes = dict(attributes)
        self.anchors.add(attributes.get("id"))
        self.links += [attributes[name] for name in ("href", "src") if name in attributes]

    def handle_data(self, data):
        self.said += data


class HelpTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        work = tempfile.TemporaryDirectory()
        cls.addClassCleanup(work.cleanup)
        target = pathlib.Path(work.name) / "made/tamrikon.chm"
        subprocess.run([sys.executable, "-B", ROOT / "scripts/build_help.py", target], check=True)
        cls.folder = pathlib.Path(work.name) / "unpacked"
        subprocess.run(["extract_chmLib", target, cls.folder], check=True, capture_output=True)
        cls.pages = {path.name: HelpPage(path) for path in cls.folder.glob("*.html")}
        cls.contents = Sitemap((cls.folder / "tamrikon.hhc").read_text())
        cls.index = Sitemap((cls.folder / "tamrikon.hhk").read_text())

    def assert_leads_somewhere(self, address, page):
        name, _, anchor = address.partition("#")
        self.assertTrue((self.folder / (name or page)).exists(), f"{page}: {address}")
        if anchor:
            self.assertIn(anchor, self.pages[name or page].anchors, f"{page}: {address}")

    def test_each_page_is_there_and_its_links_lead_somewhere(self):
        self.assertEqual(set(self.pages), {path.stem + ".html"
                                           for path in manual_pages.DOCS.glob("*.md")})
        for name, page in self.pages.items():
            for address in page.links:
                if "://" not in address:
                    self.assert_leads_somewhere(address, name)
            for mark in ("```", "](", "\n- ", "\n| "):  # Markdown that wasn't understood
                self.assertFalse(mark in page.said, f"{name}: {mark}")

    def test_contents_and_index_lead_to_each_page(self):
        for entries in (self.contents, self.index):
            for address in entries.pages():
                self.assert_leads_somewhere(address, "")
        pages = set(self.pages)
        self.assertEqual({address for address in self.contents.pages() if "#" not in address}, pages)
        self.assertEqual({address.split("#")[0] for address in self.index.pages()},
                         pages - {"manual.html"})
        self.assertIn((("Comments", "Writing comments", "Links"), "comments.html#links"),
                      self.contents.entries)

    def test_words_of_tables_are_in_the_index(self):
        index = dict(self.index.entries)
        for word, address in (("--no-exec", "command-line.html#compile"),
                              ("@param", "comments.html#text-and-tags"),
                              ("comPrivate", "settings.html#what-is-documented"),
                              ("MEMBER-RETURN", "template-language.html#the-topic-of-a-member"),
                              ("NEXT-ID", "template-language.html#built-in-macros"),
                              ("Links (Writing comments)", "comments.html#links")):
            self.assertEqual(index[(word,)], address)


if __name__ == "__main__":
    unittest.main()
