"""The pages of the manual as text: their order, headings, links and blocks of code."""
import dataclasses
import pathlib
import re

ROOT = pathlib.Path(__file__).resolve().parents[1]
DOCS = ROOT / "docs"
LINK = re.compile(r"!?\[(?P<text>[^\]]*)\]\((?P<target>[^)\s]+)\)")


def anchor(heading):
    """What a heading is called in addresses, as the sites that keep source code call it."""
    return re.sub(r"[^\w\- ]", "", heading.lower()).replace(" ", "-")


@dataclasses.dataclass
class Block:
    line: int  # of its fence, from 1
    kind: str  # the first word behind the fence
    words: list  # the others: a file name, and so on
    text: str


class Page:
    def __init__(self, path):
        self.path = path
        self.name = path.name
        self.text = path.read_text()
        self.blocks = []
        self.prose = []  # (number, line) of the lines outside of blocks
        block = None
        for number, line in enumerate(self.text.split("\n"), 1):
            if not line.startswith("```"):
                if block:
                    block.text += line + "\n"
                else:
                    self.prose.append((number, line))
            elif block:
                self.blocks.append(block)
                block = None
            else:
                kind, *words = line[3:].split() or [""]
                block = Block(number, kind, words, "")
        if block:
            raise ValueError(f"{path}:{block.line}: the block has no end")

    def headings(self):
        """(level, text) of each."""
        found = (re.fullmatch(r"(#+) (.*)", line) for _, line in self.prose)
        return [(len(match[1]), match[2]) for match in found if match]

    def title(self):
        return self.headings()[0][1]

    def anchors(self):
        return {anchor(heading) for _, heading in self.headings()}

    def links(self):
        """(text, target) of each link and picture."""
        text = "\n".join(line for _, line in self.prose)
        return [(match["text"], match["target"]) for match in LINK.finditer(text)]


def manual():
    """The chapters in reading order: (heading, pages in the folder of the manual)."""
    start = Page(DOCS / "manual.md")
    chapters = [(start.title(), [start])]
    seen = {start.name}
    for _, line in start.prose:
        if line.startswith("## "):
            chapters.append((line[3:], []))
        for match in LINK.finditer(line):
            name = match["target"].split("#")[0]
            if "/" not in name and name not in seen:
                seen.add(name)
                chapters[-1][1].append(Page(DOCS / name))
    return [chapter for chapter in chapters if chapter[1]]


def pages():
    return [page for _, chapter in manual() for page in chapter]
