"""Does what a page of the manual shows, block by block, in a folder of its own.

What is done with a block follows from the words behind its fence:
  sh                      the commands are run; all have to succeed
  text                    what the block before gave: commands their output, VB and template
                          snippets their page
  text FILE, html FILE    what the file holds
  ini FILE, vb FILE, tamrik FILE
                          the file is written
  vb [KEY=VALUE...]       a member, or the head of the class Cart, with its comment: it takes the
                          place of the one in Cart.cls, and is compiled with these settings
  tamrik [PAGE]           lines of a template; PAGE is the file that a text block shows
  tamrik-body PAGE        a part of the section that makes PAGE
  yaml                    a build server's recipe: its commands are run
"""
import collections
import os
import pathlib
import re
import shutil
import subprocess
import sys

import yaml

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "scripts"))
import manual_pages  # noqa: E402

PROGRAM = pathlib.Path(os.environ.get("TAMRIKON", ROOT / "build/dev/bin/tamrikon")).resolve()
# What readers see in place of the folders of this machine.
SHOWN_FOLDER, SHOWN_DATA = "/home/ann/shop", "/usr/share/tamrikon"
# Commands that change the machine or open a window: these only look whether they could work.
STAND_INS = {
    "sudo": 'exec "$@"',
    "make": f"""exec /usr/bin/make -n -C '{ROOT}' "$@" > /dev/null""",
    "apt-get": f"""[ "$1" != update ] || exit 0
for word in "$@"; do
  case $word in install|-*) continue ;; esac
  name=$(basename "$word") && name=${{name%%_*}}
  grep -qwF -- "$name" '{ROOT}/packaging/CMakeLists.txt' '{ROOT}/scripts/install_packages.sh'
done""",
    "tamrikon-workbench": 'test -e "$1"',
    "xdg-open": 'test -e "$1"'}
SECTIONS = {"-": ("method", "function", "property", "event", "variable", "constant"),
            ".contents": ("contents",), ".index": ("index",), ".project": ("project",),
            "+title": ("title",), "": ("form", "object", "stdmodule")}
EXTENSIONS = ("$MEMBER-EXT$ .txt\n$PROJECT-EXT$ .project.txt\n$CONTENTS-EXT$ .contents.txt\n"
              "$INDEX-EXT$ .index.txt\n$EOL$ $CHR13$\n")
DECLARATION = re.compile(r"^(Public|Private|Friend) (Sub|Function|Property) ?(?:[GLS]et )?(\w+)",
                         re.MULTILINE)


def prepare(folder):
    """The example projects, the project of the first page, and the commands that are stood in for.
    Returns the folder that a reader works in."""
    shop = folder / "shop"
    shutil.copytree(ROOT / "examples/Inventory", shop / "Inventory",
                    ignore=shutil.ignore_patterns("Documentation", "Tamrik"))
    for block in manual_pages.Page(manual_pages.DOCS / "getting-started.md").blocks:
        if block.kind in ("ini", "vb"):
            (shop / block.words[0]).write_text(block.text)
    commands = folder / "bin"
    commands.mkdir()
    (commands / "tamrikon").symlink_to(PROGRAM)
    for name, body in STAND_INS.items():
        (commands / name).write_text("#!/bin/sh\nset -e\n" + body + "\n")
        (commands / name).chmod(0o755)
    return shop


def plain_template():
    """The template that the manual itself makes, as it is in the end."""
    page = manual_pages.Page(manual_pages.DOCS / "write-a-template.md")
    return [block.text for block in page.blocks if block.words == ["plain.tmkt"]][-1]


def pattern(shown):
    """A regular expression for what a block shows."""
    result = ""
    for line in shown.rstrip("\n").split("\n"):
        if line.strip() == "...":
            result += r"(?:.*\n)*?"
        elif line.endswith("..."):
            result += re.escape(line[:-3].rstrip()) + r".*\n"
        else:
            result += re.escape(line.rstrip()) + r"\n"
    return result


class Fault(AssertionError):
    pass


class PageRun:
    done = collections.Counter()  # blocks by kind, of all pages

    def __init__(self, page, folder):
        self.page = page
        self.folder = prepare(folder)
        self.environment = dict(os.environ, LC_ALL="C.UTF-8",
                                PATH=f"{folder}/bin:{os.environ['PATH']}")
        self.given = None  # what the last block gave
        self.original = (self.folder / "Cart.cls").read_text()

    def go(self):
        for number, line in self.page.prose:
            before = self.page.text.split("\n")[number - 2]
            if line.startswith("    ") and not before.strip():
                raise Fault(f"{self.page.name}:{number}: code needs a fence that says its kind")
        for block in self.page.blocks:
            handler = getattr(self, "do_" + block.kind.replace("-", "_"), None)
            if handler is None:
                raise Fault(f"{self.page.name}:{block.line}: '{block.kind}' is no kind of block")
            try:
                handler(block)
            except (AssertionError, OSError) as error:
                raise Fault(f"{self.page.name}:{block.line}: {error}") from error
            self.done[block.kind] += 1

    def run(self, commands):
        run = subprocess.run(["bash", "-euo", "pipefail", "-c", commands], cwd=self.folder,
                             env=self.environment, stdin=subprocess.DEVNULL,
                             stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
        output = run.stdout.decode()
        if run.returncode != 0:
            raise Fault(f"status {run.returncode} of\n{commands}{output}")
        return self.as_shown(output)

    def as_shown(self, text):
        return text.replace(str(self.folder), SHOWN_FOLDER).replace(str(ROOT / "data"), SHOWN_DATA)

    def compile(self, template, settings=()):
        (self.folder / "snippet.tmkt").write_text(template)
        shutil.rmtree(self.folder / "snippet", ignore_errors=True)
        options = " ".join(f"--set '{setting}'" for setting in settings)
        self.run("tamrikon compile Shop.vbp --template ./snippet.tmkt --output snippet --no-exec "
                 f"--quiet --fail-on-warnings {options}")

    def page_of_snippet(self, name):
        """None for a member that has no topic of its own."""
        path = self.folder / "snippet" / f"{name}.txt"
        return path.read_text() if path.exists() else None

    def write(self, block):
        (self.folder / block.words[0]).write_text(block.text)
        self.given = None

    def compare(self, block):
        if block.words:
            given = self.as_shown((self.folder / block.words[0]).read_text())
        else:
            given, self.given = self.given, None
        if given is None:
            raise Fault("the block shows an output of nothing")
        given = "".join(line.rstrip() + "\n" for line in given.rstrip().split("\n"))
        if not re.fullmatch(pattern(block.text), given):
            raise Fault(f"shown is\n{block.text}but there is\n{given}")

    do_text = do_html = compare
    do_ini = write

    def do_sh(self, block):
        self.given = self.run(block.text)

    def do_yaml(self, block):
        for job in yaml.safe_load(block.text).values():
            for command in job["script"]:
                self.run(command)
        self.given = None

    def do_vb(self, block):
        if block.words and "=" not in block.words[0]:
            self.write(block)
            return
        declared = DECLARATION.search(block.text)
        text = block.text
        if declared is None:  # the head of the class
            classes = re.sub(r"(?ms)^'\*\*.*?^Option Explicit\n", lambda _: text, self.original, 1)
        else:
            end = f"End {declared[2]}\n"
            text += "" if end in text else end
            classes = re.sub(
                rf"(?ms)(?:^'[^\n]*\n)*^Public {declared[2]} ?(?:Get )?{declared[3]}\(.*?^{end}",
                "", self.original) + "\n" + text
        (self.folder / "Cart.cls").write_text(classes)
        self.compile(plain_template(), block.words)
        self.given = self.page_of_snippet(f"Cart-{declared[3]}" if declared else "Cart")
        (self.folder / "Cart.cls").write_text(self.original)

    def do_tamrik(self, block):
        if block.words and block.words[0].endswith(".tmkt"):
            self.write(block)
            return
        base = [line for line in EXTENSIONS.splitlines() if line.split()[0] not in block.text]
        self.compile("\n".join(base) + "\n" + block.text)
        self.given = self.page_of_snippet(block.words[0]) if block.words else None

    def do_tamrik_body(self, block):
        page = block.words[0]
        kind = next(mark for mark in SECTIONS if mark in page)
        self.compile(EXTENSIONS + "".join(
            f"$tamrik-{section}-body$\n{block.text}$end-tamrik-{section}-body$\n"
            for section in SECTIONS[kind]))
        self.given = self.page_of_snippet(page)
