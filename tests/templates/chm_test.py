"""chm.tmkt: compiles real help files with chmcmd and looks into them with extract_chmLib."""
import html.parser
import pathlib
import re
import stat
import struct
import subprocess
import unittest

from program import (AZBUKA, GROUP, NOTHING, ODD, ODD_TOPICS, STOCK, Compile, Page,
                     topic_names)


class Sitemap(html.parser.HTMLParser):
    """The entries of a .hhc or .hhk: (names of the folders above and of the entry, page)."""

    def __init__(self, text):
        super().__init__()
        self.entries = []
        self._path = []
        self.feed(text)

    def handle_starttag(self, tag, attributes):
        attributes = dict(attributes)
        if tag == "ul":
            self._path.append("")
        elif tag == "object":
            self._entry = {}
        elif tag == "param":
            self._entry[attributes["name"]] = attributes["value"]

    def handle_endtag(self, tag):
        if tag == "ul":
            self._path.pop()
        elif tag == "object" and "Name" in self._entry:
            self._path[-1] = self._entry["Name"]
            self.entries.append((tuple(self._path), self._entry.get("Local")))

    def pages(self):
        return [page for _, page in self.entries if page]


class HelpFile:
    def __init__(self, compiled, name):
        self.compiled = compiled
        self.name = name
        self.folder = compiled.folder / "unpacked"
        subprocess.run(["extract_chmLib", compiled.folder / (name + ".chm"), self.folder],
                       check=True, capture_output=True)

    def text(self, name):
        return self.compiled.text(name, self.folder)

    def sitemap(self, extension):
        return Sitemap(self.text(self.name + extension))

    def system(self):
        """The records of #SYSTEM by their code."""
        data, records, at = (self.folder / "#SYSTEM").read_bytes(), {}, 4
        while at < len(data):
            code, length = struct.unpack_from("<HH", data, at)
            records[code] = data[at + 4:at + 4 + length]
            at += 4 + length
        return records

    def numbers(self):
        """The pages by their number for context help."""
        data = (self.folder / "#IVB").read_bytes()
        strings = (self.folder / "#STRINGS").read_bytes()
        pairs = struct.iter_unpack("<II", data[4:])
        return {number: strings[at:strings.index(b"\0", at)].decode() for number, at in pairs}


class ChmTest(unittest.TestCase):
    def test_the_help_file_holds_every_topic_and_each_link_leads_to_one(self):
        for project, title, language in ((STOCK, "Stock", 0x409), (ODD, "Odd", 0x409),
                                         (AZBUKA, "Азбука", 0x419)):
            with self.subTest(title):
                compiled = Compile(project, "chm", files=["notes.txt", "Odd_example.txt"])
                book = HelpFile(compiled, title)
                self.assertNotRegex(compiled.log, r"\nERROR|\nWarning: Found file .*\?")
                self.assertFalse(compiled.names(".tmp.hhp"))
                start = title + "+title.html"
                pages = compiled.names(".html")
                topics = pages - {start}
                contents, index = book.sitemap(".hhc"), book.sitemap(".hhk")
                self.assertEqual(contents.entries[0], ((title,), start))
                self.assertEqual(set(contents.pages()), pages)
                self.assertEqual(sorted(index.pages()), sorted(topics))
                for name in pages:
                    text = book.text(name)
                    self.assertEqual(text, compiled.text(name))
                    for link in Page(text).links:
                        if not re.match("https:|[.][.]/", link):
                            self.assertTrue((book.folder / link).exists(), f"{name}: {link}")
                system = book.system()
                self.assertEqual(struct.unpack_from("<I", system[4])[0], language)
                self.assertEqual(system[3].rstrip(b"\0").decode(compiled.encoding), title)
                # chmcmd puts its folder in front of the pages.
                pages_of_numbers = [pathlib.Path(page).name for page in book.numbers().values()]
                self.assertEqual(sorted(pages_of_numbers), sorted(topics))

    def test_contents_are_nested_by_module_and_read_right(self):
        compiled = Compile(ODD, "chm", "--no-exec")
        odd = [path for path, _ in Sitemap(compiled.text("Odd.hhc")).entries]
        kinds = ("Members by kind",)
        for path in (("Forms", "frmOdd", "Properties", "Depth"), ("Objects", "Bare"),
                     ("Objects", "Oddity", "Methods", "Run"), ("Objects", "Oddity", "Events", "Told"),
                     ("Standard modules", "Lonely"), (*kinds, "Functions", "Sleep (Tools)"),
                     (*kinds, "Variables", "mCount (Oddity)"),
                     (*kinds, "Constants", "Limit (Tools)")):
            self.assertIn(path, odd)
        azbuka = Compile(AZBUKA, "chm", "--no-exec")
        self.assertIn(("Objects", "Склад", "Methods", "Добавить"),
                      [path for path, _ in Sitemap(azbuka.text("Азбука.hhc")).entries])
        self.assertEqual([path for path, _ in Sitemap(azbuka.text("Азбука.hhk")).entries],
                         [("Добавить method",), ("Общее module",), ("Предел constant",),
                          ("Склад object",)])
        said = Page(azbuka.text("Склад.html")).said
        self.assertIn("Склад «Юг» – всё, что в нём есть. Цена в €.", said)
        nothing = Compile(NOTHING, "chm", "--no-exec")
        self.assertEqual(Sitemap(nothing.text("Nothing.hhk")).entries, [])

    def test_pages_say_what_the_comments_say(self):
        compiled = Compile(ODD, "chm", "--no-exec")
        self.assertEqual(compiled.names(".html"),
                         {name + ".html" for name in topic_names(ODD_TOPICS) | {"Odd+title"}})
        run = Page(compiled.text("Oddity-Run.html")).said
        for words in ("Public method of Oddity", "Kind What kind. It goes on here, and breaks here.",
                      'kdTwo "a b" The *second*, over two lines.', "Return value True or $.",
                      "Remarks Not before noon: &lt; stays.",
                      'Third_One = "a & b $5 ␂" \' </pre> ``` {x}'):
            self.assertIn(words, run)
        self.assertIn('"<␁␇␛␡&>"', Page(compiled.text("Oddity-Bell.html")).said)

    def test_a_group_has_a_help_file_that_leads_to_those_of_its_projects(self):
        compiled = Compile(GROUP, "chm")
        self.assertEqual(compiled.names(".chm"), {"Group+.chm", "Stock.chm", "Desk.chm"})
        self.assertEqual(HelpFile(compiled, "Group+").sitemap(".hhc").entries,
                         [(("Desk",), "ms-its:Desk.chm::/Desk+title.html"),
                          (("Stock",), "ms-its:Stock.chm::/Stock+title.html")])

    def test_without_a_help_compiler_the_log_says_what_to_install(self):
        compiled = Compile(AZBUKA, "chm", path="/nowhere")
        self.assertIn("\nFor a help file, install chmcmd (package fp-utils) or hhc. The pages can be "
                      "read from Азбука+title.html on.\n", compiled.log)
        self.assertEqual(len(compiled.names(".html")), 5)

    def test_hhc_comes_first_and_its_status_is_no_failure(self):
        programs = Compile(NOTHING, "chm", "--no-exec").folder
        for body, complaints in ((": > Nothing.chm; exit 1", 0), ("exit 0", 1)):
            hhc = programs / "hhc"
            hhc.write_text(f"#!/bin/sh\necho hhc reads $1\n{body}\n")
            hhc.chmod(stat.S_IRWXU)
            log = Compile(NOTHING, "chm", path=f"{programs}:/usr/bin:/bin").log
            self.assertIn("\nhhc reads Nothing.hhp\n", log)
            self.assertEqual(log.count("\nERROR: Nothing.chm was not made."), complaints)


if __name__ == "__main__":
    unittest.main()
