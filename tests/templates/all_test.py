"""What holds for all templates: the same pages in every run, and right links between the projects of a
group and the group, in a folder for each project."""
import json
import re
import subprocess
import unittest
import urllib.parse

from program import DOUBLES, ODD, Compile, Page

CONTROLS = re.compile("[\x00-\x08\x0b\x0c\x0e-\x1f\x7f]")


class EveryRunTest(unittest.TestCase):
    def test_gives_the_same(self):
        for template in ("chm", "html", "json", "markdown", "rtf"):
            first, second = (Compile(ODD, template, "--no-exec") for _ in range(2))
            self.assertEqual(first.names(), second.names())
            for name in first.names():
                text = first.text(name)
                self.assertEqual(text, second.text(name), name)
                self.assertNotRegex(text, CONTROLS, name)
                self.assertNotRegex(text, r"\$[A-Za-z][-A-Za-z]+\$", name)  # a macro that isn't there


class FoldersTest(unittest.TestCase):
    def check_links(self, compiled, extension, links_of):
        pages = sorted(compiled.folder.rglob("*" + extension))
        reached, waiting = set(), [compiled.folder / ("Group+.contents" + extension)]
        while waiting:
            page = waiting.pop().resolve()
            if page in reached:
                continue
            self.assertTrue(page.exists(), page)
            reached.add(page)
            if page.name.endswith(extension):
                waiting += [page.parent / link for link in links_of(page.read_text())
                            if not re.match("https?:", link)]
        self.assertEqual([page for page in pages if page not in reached], [])
        self.assertEqual({page.parent.name for page in reached} - {compiled.folder.name},
                         {"A", "a_2", "B"})

    def test_html(self):
        def links_of(text):
            found = Page(text).links + re.findall('(?:src|rel="stylesheet" href)="(.*?)"', text)
            return [urllib.parse.unquote(link.split("#")[0]) for link in found]
        self.check_links(Compile(DOUBLES, "html", "--folders"), ".html", links_of)

    def test_markdown(self):
        compiled = Compile(DOUBLES, "markdown", "--folders")
        (compiled.folder / "Group+.kinds.md").unlink()  # nothing leads to it
        self.check_links(compiled, ".md", lambda text: re.findall(r"\]\(<(.*?)>\)", text))

    def test_files_of_all_projects(self):
        compiled = Compile(DOUBLES, "json", "--folders")
        group = json.loads(compiled.text("Group+.json"))
        self.assertEqual([json.loads(compiled.text(file))["project"] for file in group["files"]],
                         group["projects"])
        self.assertEqual(sorted(group["files"]), ["A/A.json", "B/B.json", "a_2/a.json"])
        compiled = Compile(DOUBLES, "rtf", "--folders")
        for file in re.findall('HYPERLINK "(.*?)"', compiled.text("Group+.rtf")):
            self.assertIn(r"{\title " + file[-5], compiled.text(file))

    def test_help_files_stand_side_by_side(self):
        compiled = Compile(DOUBLES, "chm", "--folders")
        self.assertEqual(compiled.names(".chm"), {"Group+.chm", "A.chm", "a_2.chm", "B.chm"})
        leads = re.findall("ms-its:(.*?)::/(.*?)\"", compiled.text("Group+.hhc"))
        self.assertEqual(len(leads), 3)
        for file, page in leads:
            listing = subprocess.run(["chmls", "list", compiled.folder / file], check=True,
                                     capture_output=True, text=True).stdout
            self.assertIn("/" + page, listing)


if __name__ == "__main__":
    unittest.main()
