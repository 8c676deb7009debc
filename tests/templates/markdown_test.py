"""markdown.tmkt: the pages as cmark-gfm shows them, which code hosting sites use as well."""
import collections
import re
import subprocess
import unittest

from program import (AZBUKA, GROUP, NOTHING, ODD, ODD_TOPICS, STOCK, Compile, Page,
                     topic_names)


class Shown(Page):
    """A page as a site shows it: its links, its text and how often it has which element."""

    def __init__(self, compiled, name):
        self.tags = collections.Counter()
        source = (compiled.folder / name).read_bytes().decode("utf-8")
        super().__init__(subprocess.run(
            ["cmark-gfm", "--unsafe", "-e", "table", "-e", "strikethrough", "-e", "autolink"],
            input=source.encode(), capture_output=True, check=True).stdout.decode())

    def handle_starttag(self, tag, attributes):
        super().handle_starttag(tag, attributes)
        self.tags[tag] += 1


class MarkdownTest(unittest.TestCase):
    def test_every_topic_has_a_page_and_each_link_leads_to_one(self):
        for project, title, count in ((STOCK, "Stock", 75), (ODD, "Odd", 19), (AZBUKA, "Азбука", 4),
                                      (NOTHING, "Nothing", 0), (GROUP, "Desk", 75 + 27)):
            with self.subTest(title):
                compiled = Compile(project, "markdown", files=["notes.txt", "Odd_example.txt"])
                pages = compiled.names(".md")
                own = {name for name in pages if "+" not in name and name.count(".") == 1}
                self.assertEqual(len(own), count)
                self.assertNotIn("\nERROR", compiled.log)
                linked = set()
                for name in pages:
                    links = Shown(compiled, name).links
                    linked.update(links)
                    for link in links:
                        if not re.match("https:|[.][.]/", link):
                            self.assertTrue((compiled.folder / link).exists(), f"{name}: {link}")
                self.assertEqual(pages - linked, {"Group+.kinds.md"} & pages)
                index = Shown(compiled, title + ".index.md").links
                by_kind = Shown(compiled, title + ".kinds.md").links
                if project != GROUP:
                    self.assertEqual({link for link in index if link in own}, own)
                    self.assertEqual({link for link in by_kind if link in own},
                                     {name for name in own if "-" in name})

    def test_nothing_in_a_text_is_taken_for_markdown(self):
        compiled = Compile(ODD, "markdown")
        self.assertEqual({name[:-3] for name in compiled.names(".md") if name.count(".") == 1},
                         topic_names(ODD_TOPICS) | {"Odd+title"})
        oddity = Shown(compiled, "Oddity.md")
        self.assertIn(
            "Everything odd: <b>bold</b> & \"quoted\", 'single', a \\path\\, {braces}, 100 % of 5 $. "
            "# no heading - no list, * no star*, _no line_, __none__, `no code`, [no](link), "
            "![no](picture), a|b, ~~c~~ 1. no number > no quotation + no plus "
            "Accents: é à ü ñ ß, a dash – and the euro €. Dim Odd As Oddity If a < b And c > d Then "
            'Odd.Run "x & y", 5 * 2 \' *note* End If', oddity.said)
        self.assertIn("https://example.org/a_b?c=1&d=2", oddity.links)
        self.assertEqual(oddity.tags & collections.Counter("em strong del code img".split()), {})
        self.assertEqual((oddity.tags["pre"], oddity.tags["h1"], oddity.tags["h2"]), (1, 1, 5))
        count = Shown(compiled, "Oddity-mCount.md")
        self.assertIn("- A member variable.", count.said)
        self.assertEqual(count.tags["li"], 0)
        run = Shown(compiled, "Oddity-Run.md")
        for words in ("Kind What kind. It goes on here, and breaks here. Mode Which <mode>.",
                      'kdTwo "a b" The *second*, over two lines.', "The first | one.", "Not before noon: &lt; stays.",
                      'Third_One = "a & b $5 ␂" \' </pre> ``` {x} End Function'):
            self.assertIn(words, run.said)
        self.assertEqual((run.tags["table"], run.tags["tr"], run.tags["pre"]), (4, 4 + 3 + 4, 2))
        self.assertIn("Склад «Юг» – всё, что в нём есть. Цена в €.",
                      Shown(Compile(AZBUKA, "markdown"), "Склад.md").said)


if __name__ == "__main__":
    unittest.main()
