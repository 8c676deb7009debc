"""Runs the program on the example and test projects with one of the templates."""
import atexit
import html.parser
import os
import pathlib
import shutil
import subprocess
import tempfile
import urllib.parse

ROOT = pathlib.Path(__file__).resolve().parents[2]
STOCK = ROOT / "examples/Inventory/Stock.vbp"
GROUP = ROOT / "examples/Inventory/Inventory.vbg"
ODD = ROOT / "tests/data/templates/Odd.vbp"
AZBUKA = ROOT / "tests/data/templates/Azbuka.vbp"
DOUBLES = ROOT / "tests/data/compile/groups/All.vbg"  # names that projects share
NOTHING = ROOT / "tests/data/compile/single-file/Empty.vbp"

# The topics of Odd, by module; those of Other and of the procedures of Value are that of Value.
ODD_TOPICS = {
    "Bare": [], "Lonely": [], "frmOdd": ["Depth", "Present"],
    "Tools": ["Limit", "Mood", "Sleep", "Total", "Twice"],
    "Oddity": ["Bell", "Quiet", "Run", "Tag", "Told", "Value", "mCount"]}
PROGRAM = os.environ.get("TAMRIKON", ROOT / "build/dev/bin/tamrikon")
# Scripts beside the templates are found whatever the folder is called.
BASE = tempfile.mkdtemp()
atexit.register(shutil.rmtree, BASE)
TEMPLATES = shutil.copytree(ROOT / "data/Templates", pathlib.Path(BASE) / "it's \"$(here) `")


class Compile:
    """One compile into a folder of its own."""

    def __init__(self, project, template, *arguments, path=None, files=()):
        base = tempfile.mkdtemp()
        atexit.register(shutil.rmtree, base)
        self.folder = pathlib.Path(base) / "it's $out"
        self.folder.mkdir()
        for name in files:
            (self.folder / name).write_text("outside")
        if project == AZBUKA:
            arguments += ("--codepage", "1251")
        self.encoding = "cp1251" if project == AZBUKA else "cp1252"
        run = subprocess.run(
            [PROGRAM, "compile", project, "--template", TEMPLATES / f"{template}.tmkt",
             "--output", self.folder, *arguments],
            env=dict(os.environ, PATH=path or os.environ["PATH"]), capture_output=True, check=True)
        self.log = run.stdout.decode()

    def text(self, name, folder=None):
        data = ((folder or self.folder) / name).read_bytes()
        return data.decode(self.encoding).replace("\r\n", "\n")

    def names(self, ending=""):
        return {file.name for file in self.folder.iterdir() if file.name.endswith(ending)}


def topic_names(topics, separator="-"):
    return {module + separator + member for module, members in topics.items() for member in members
            } | set(topics)


class Page(html.parser.HTMLParser):
    """The links of a page, and the text of its body with a blank for each run of white space."""

    def __init__(self, text):
        super().__init__()
        self.links = []
        self.said = ""
        self.feed(text)
        self.said = " ".join(self.said.split())

    def handle_starttag(self, tag, attributes):
        if tag == "body":
            self.said = ""
        if tag == "a":
            self.links.append(urllib.parse.unquote(dict(attributes)["href"]))

    def handle_data(self, data):
        self.said += data + " "
