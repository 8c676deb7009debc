"""rtf.tmkt: read back by a small reader of RTF, as a word processor is too big for a test."""
import re
import unittest

from program import AZBUKA, GROUP, NOTHING, ODD, ODD_TOPICS, STOCK, Compile

TOKEN = re.compile(r"\\u(-?\d+)\?|\\([a-z]+)(-?\d+)? ?|\\([\\{}*])|([{}])|[\r\n]+|([^\\{}\r\n]+)")
SILENT = {"fonttbl", "colortbl", "stylesheet", "info", "footer"}  # destinations beside the text


class Document:
    """The text of a document by paragraph with its style, rows of tables, bookmarks and links."""

    def __init__(self, data):
        self.paragraphs, self.rows, self.bookmarks, self.links = [], [], [], []
        self._text, self._cells = "", []
        groups, style, at = [], 0, 0
        text = data.decode("ascii")
        while at < len(text):
            token = TOKEN.match(text, at)
            if not token:
                raise ValueError(f"no RTF: {text[at:at + 40]!r}")
            at = token.end()
            code, word, number, symbol, brace, plain = token.groups()
            if brace == "{":
                groups.append([None, ""])
            elif brace == "}":
                self._close(*groups.pop())
                if not groups and text[at:].strip():
                    raise ValueError("text behind the document")
            elif code:
                if not -32768 <= int(code) <= 32767:
                    raise ValueError("a number beyond 16 bits")
                self._say(groups, chr(int(code) % 65536))
            elif symbol == "*":
                continue
            elif symbol or plain:
                self._say(groups, symbol or plain)
            elif word in SILENT | {"bkmkstart", "bkmkend", "fldinst"}:
                groups[-1][0] = word
            elif word in ("pard", "s"):
                style = int(number or 0)
            elif word in ("line", "tab"):
                self._say(groups, {"line": "\n", "tab": "\t"}[word])
            elif word == "par" and not any(kind in SILENT for kind, _ in groups):
                self.paragraphs.append((style, self._text))
                self._text = ""
            elif word == "cell":
                self._cells.append(self._text.strip())
                self._text = ""
            elif word == "row":
                self.rows.append(tuple(self._cells))
                self._cells = []
        if groups:
            raise ValueError("a group isn't closed")

    def _say(self, groups, text):
        kind = next((group for group in reversed(groups) if group[0]), None)
        if kind:
            kind[1] += text
        else:
            self._text += text

    def _close(self, kind, said):
        if kind == "bkmkstart":
            self.bookmarks.append(said)
        elif kind == "fldinst" and said.startswith("HYPERLINK"):
            self.links.append(re.match(r'HYPERLINK (\\l )?"(.*)"$', said).groups())

    def texts(self, style):
        return [text for its_style, text in self.paragraphs if its_style == style]


def read(project, name, *arguments):
    return Document((Compile(project, "rtf", *arguments).folder / (name + ".rtf")).read_bytes())


class RtfTest(unittest.TestCase):
    def test_every_topic_has_its_place_and_each_link_leads_to_one(self):
        for project, title, count in ((STOCK, "Stock", 75), (ODD, "Odd", 19), (AZBUKA, "Азбука", 4),
                                      (NOTHING, "Nothing", 0)):
            with self.subTest(title):
                document = read(project, title)
                self.assertEqual(len(set(document.bookmarks)), count)
                self.assertEqual(len(document.bookmarks), count)
                inside = {target for is_inside, target in document.links if is_inside}
                self.assertEqual(inside, set(document.bookmarks))
        self.assertEqual(read(GROUP, "Group+").links, [(None, "Desk.rtf"), (None, "Stock.rtf")])

    def test_topics_stand_behind_their_module(self):
        document = read(ODD, "Odd")
        self.assertEqual(set(document.bookmarks),
                         {f"{module}__{member}" for module, members in ODD_TOPICS.items()
                          for member in [*members, ""]})
        self.assertEqual(document.texts(1), ["Contents", "frmOdd", "Bare", "Oddity", "Lonely",
                                             "Tools", "Index"])
        headings = [text for style, text in document.paragraphs if style in (1, 2)]
        self.assertEqual(headings[4:13], ["Bare", "Oddity", "Quiet", "Run", "Tag", "Value", "Told",
                                          "Bell", "mCount"])

    def test_texts_and_tables_read_as_they_were_written(self):
        document = read(ODD, "Odd")
        self.assertIn('Odd & <useful>\n\n"quoted" * \\ {x} for 5 $ in Orléans', document.texts(5))
        said = "\n".join(document.texts(5))
        for words in ("a \\path\\, {braces}, 100 % of 5 $.\n# no heading", "the euro €.",
                      "\n If a < b And c > d Then\n     Odd.Run", "Not before noon: &lt; stays.\nA second"):
            self.assertIn(words, said)
        codes = "\n".join(document.texts(6))
        self.assertIn('"<␁␇␛␡&>"', codes)
        self.assertIn('    Run = Kind < Mode And Third_One = "a & b $5 ␂" \' </pre> ``` {x}\nEnd '
                      "Function", codes)
        for row in (("Parameter", "Meaning"), ("Constant", "Value", "Meaning"), ("Third_One", ""),
                    ("Kind", "What kind. It goes on here,\nand breaks here."), ("mdOnly", "0", ""),
                    ("kdOne", "1", "The first | one."), ("toThis", "&H1F", "Hexadecimal <&>.")):
            self.assertIn(row, document.rows)
        self.assertIn((None, "https://example.org/a_b?c=1&d=2"), document.links)
        self.assertIn(" Склад «Юг» – всё, что в нём есть. Цена в €. ",
                      read(AZBUKA, "Азбука").texts(5))


if __name__ == "__main__":
    unittest.main()
