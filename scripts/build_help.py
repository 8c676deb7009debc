"""Makes the help file of the workbench and the add-in from the pages of the manual.
usage: build_help.py HELP_FILE.chm

Needs python3-markdown and chmcmd, on Debian from the package fp-utils."""
import html
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

import markdown

from manual_pages import DOCS, LINK, anchor, manual

# Tables whose first column holds words that people look up.
INDEXED = {"Command", "Key", "List", "Macro", "Name", "Option", "Section", "Tag", "Template",
           "Variable"}

STYLE = """
body { margin: 0; padding: .5em 1.5em 2em; color: #1d2430; background: #ffffff;
  font: 90%/1.5 "Segoe UI", Tahoma, "DejaVu Sans", Arial, sans-serif; }
a { color: #0b5cad; text-decoration: none; }
a:hover, a:focus { text-decoration: underline; }
h1 { margin: .4em 0; font-size: 1.6em; line-height: 1.25; }
h2 { margin: 1.6em 0 .4em; padding-bottom: .15em; border-bottom: 1px solid #d9dfe7; font-size: 1.25em; }
h3 { margin: 1.4em 0 .3em; font-size: 1.05em; }
p, ul { max-width: 52em; margin: .6em 0; }
ul { padding-left: 1.4em; }
pre, code { font-family: Consolas, "DejaVu Sans Mono", "Courier New", monospace; font-size: .95em; }
p code, li code, td:first-child code { white-space: nowrap; }
pre { margin: .7em 0; padding: .6em .9em; border: 1px solid #d9dfe7; background: #f4f6f9;
  line-height: 1.4; overflow-x: auto; }
pre.text { border-left: 4px solid #0f766e; background: #ffffff; }
table { margin: .8em 0; border-collapse: collapse; }
th, td { padding: .25em .8em; border: 1px solid #d9dfe7; text-align: left; vertical-align: top; }
th { background: #f4f6f9; }
img { max-width: 100%; border: 1px solid #d9dfe7; }
.next { margin-top: 2em; padding-top: .5em; border-top: 1px solid #d9dfe7; }
"""


def page_file(page):
    return page.path.stem + ".html"


class Help:
    """The sources of the help file, in a folder of their own."""

    def __init__(self, folder):
        self.folder = folder
        self.chapters = manual()
        self.pages = [page for _, pages in self.chapters for page in pages]
        self.names = {page.name for page in self.pages}
        self.files = ["style.css"]

    def write(self, name, text):
        """All files are ASCII, so that no viewer has to know of an encoding."""
        (self.folder / name).write_bytes(text.encode("ascii", "xmlcharrefreplace"))

    def write_all(self):
        self.write("style.css", STYLE)
        for number, page in enumerate(self.pages):
            following = self.pages[number + 1] if number + 1 < len(self.pages) else None
            self.write(page_file(page), self.page_html(page, following))
            self.files.append(page_file(page))
        self.write("tamrikon.hhc", sitemap(self.contents()))
        self.write("tamrikon.hhk", sitemap("".join(entry(*item) for item in self.index())))
        self.write("tamrikon.hhp", "\n".join([
            "[OPTIONS]", "Title=Tamrikon", "Compatibility=1.1 or later",
            "Compiled file=tamrikon.chm", "Contents file=tamrikon.hhc", "Index file=tamrikon.hhk",
            "Default topic=" + page_file(self.pages[0]), "Full-text search=Yes", "Binary Index=No",
            "Binary TOC=No", "Language=0x809", "", "[FILES]", *self.files, ""]))

    def page_html(self, page, following):
        source = re.sub(r"(?m)^(```[\w-]+) .*$", r"\1", page.text)  # what the fence says to the tests
        body = markdown.markdown(
            self.with_links_inside(source), output_format="html",
            extensions=["tables", "fenced_code", "toc"],
            extension_configs={"toc": {"slugify": lambda text, _: anchor(text)}})
        body = re.sub(r'<pre><code class="language-([\w-]+)">', r'<pre class="\1"><code>', body)
        if following:
            body += (f'\n<p class="next">Next: <a href="{page_file(following)}">'
                     f"{html.escape(following.title())}</a></p>")
        return (f'<!DOCTYPE html>\n<html lang="en">\n<head>\n<meta charset="us-ascii">\n'
                f"<title>{html.escape(page.title())}</title>\n"
                f'<link rel="stylesheet" href="style.css">\n</head>\n<body>\n{body}\n</body>\n</html>\n')

    def with_links_inside(self, source):
        """Leads links to the pages of the help file, and leaves the text of those to other files."""

        def inside(match):
            target, hash_mark, place = match["target"].partition("#")
            if match[0].startswith("!"):
                self.add_picture(target)
            elif target in self.names:
                target = pathlib.Path(target).stem + ".html" + hash_mark + place
                return f"[{match['text']}]({target})"
            elif target and "://" not in target:
                return match["text"]
            return match[0]

        parts = re.split(r"(?ms)(^```.*?^```$)", source)  # every other one is a block of code
        return "".join(part if number % 2 else LINK.sub(inside, part)
                       for number, part in enumerate(parts))

    def add_picture(self, name):
        if name in self.files:
            return
        (self.folder / name).parent.mkdir(exist_ok=True)
        shutil.copy(DOCS / name, self.folder / name)
        self.files.append(name)

    def contents(self):
        text = ""
        for number, (chapter, pages) in enumerate(self.chapters):
            items = "".join(self.contents_of(page) for page in pages)
            text += items if number == 0 else entry(chapter) + f"<ul>\n{items}</ul>\n"
        return text

    def contents_of(self, page):
        text = entry(page.title(), page_file(page))
        headings = [heading for level, heading in page.headings() if level == 2]
        if not headings or page is self.pages[0]:
            return text
        return text + "<ul>\n" + "".join(
            entry(plain(heading), f"{page_file(page)}#{anchor(heading)}")
            for heading in headings) + "</ul>\n"

    def index(self):
        """(word, address) of each heading and of the words that tables explain."""
        found = {}  # the addresses of a word by page
        for page in self.pages[1:]:
            place, column = "", None
            for _, line in page.prose:
                heading = re.fullmatch(r"#+ (.*)", line)
                words = []
                if heading:
                    place = "#" + anchor(heading[1])
                    words = [plain(heading[1])] if not heading[1][0].isdigit() else []
                elif not line.startswith("|"):
                    column = None
                elif column is None:
                    column = line.split("|")[1].strip()
                elif column in INDEXED:
                    words = [word.strip("$")
                             for word in re.findall("`([^`.]+[^`.-])`", line.split(" | ")[0])]
                for word in words:
                    found.setdefault(word, {}).setdefault(page.title(), page_file(page) + place)
        items = []
        for word, places in found.items():
            for title, address in places.items():
                items.append((word if len(places) == 1 else f"{word} ({plain(title)})", address))
        return sorted(items, key=lambda item: (item[0].lstrip("-@.").lower(), item[0]))


def plain(heading):
    return heading.replace("`", "")


def quoted(text):
    """For viewers that know the four oldest entities alone."""
    return html.escape(text, quote=False).replace('"', "&quot;")


def entry(name, address=None):
    local = f'<param name="Local" value="{quoted(address)}">' if address else ""
    return (f'<li><object type="text/sitemap"><param name="Name" value="{quoted(name)}">'
            f"{local}</object>\n")


def sitemap(entries):
    return ('<!DOCTYPE HTML PUBLIC "-//IETF//DTD HTML//EN">\n<html>\n<head>\n</head>\n<body>\n'
            f"<ul>\n{entries}</ul>\n</body>\n</html>\n")


def main(target):
    with tempfile.TemporaryDirectory() as work:
        folder = pathlib.Path(work)
        Help(folder).write_all()
        run = subprocess.run(["chmcmd", "tamrikon.hhp"], cwd=folder, stdout=subprocess.PIPE,
                             stderr=subprocess.STDOUT, check=False)
        compiled = folder / "tamrikon.chm"
        if run.returncode != 0 or not compiled.exists():
            sys.exit(run.stdout.decode(errors="replace") + "build_help.py: no help file was made")
        pathlib.Path(target).parent.mkdir(parents=True, exist_ok=True)
        shutil.move(compiled, target)


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    main(sys.argv[1])
