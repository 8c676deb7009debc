"""The manual: its examples do what they show, its links lead somewhere, and it tells everything."""
import pathlib
import re
import subprocess
import tempfile
import unittest

from page_run import PROGRAM, ROOT, PageRun, manual_pages

NO_EXAMPLES = ["architecture.md"]  # for those who work on the program: pictures, nothing to run


def output(*arguments):
    return subprocess.run([PROGRAM, *arguments], check=True, capture_output=True,
                          text=True).stdout


def page(name):
    return manual_pages.Page(manual_pages.DOCS / name)


class ManualTest(unittest.TestCase):
    def test_examples_do_what_their_page_shows(self):
        shown = 0
        for each in manual_pages.pages():
            if each.name in NO_EXAMPLES:
                continue
            shown += len(each.blocks)
            with self.subTest(each.name), tempfile.TemporaryDirectory() as folder:
                PageRun(each, pathlib.Path(folder)).go()
        print("blocks:", *(f"{count} {kind}" for kind, count in sorted(PageRun.done.items())))
        self.assertEqual(sum(PageRun.done.values()), shown)
        for kind in ("sh", "text", "vb", "tamrik", "tamrik-body", "yaml"):
            self.assertGreater(PageRun.done[kind], 0, kind)

    def test_links_lead_somewhere(self):
        names = {each.name for each in manual_pages.pages()}
        self.assertEqual(names, {path.name for path in manual_pages.DOCS.glob("*.md")},
                         "manual.md must lead to every page")
        for path in [ROOT / "README.md", ROOT / "CONTRIBUTING.md",
                     *(manual_pages.DOCS / name for name in sorted(names))]:
            each = manual_pages.Page(path)
            self.assertEqual(len(each.anchors()), len(each.headings()), f"{path}: a heading twice")
            for _, target in each.links():
                with self.subTest(page=path.name, target=target):
                    if "://" in target:
                        continue
                    name, _, anchor = target.partition("#")
                    place = path.parent / name if name else path
                    self.assertTrue(place.exists())
                    if anchor:
                        self.assertIn(anchor, manual_pages.Page(place).anchors())

    def test_each_command_and_option_is_told_in_its_section(self):
        sections = dict(re.findall(r"(?ms)^## (.*?)\n(.*?)(?=^## |\Z)", page("command-line.md").text))
        commands = re.findall(r"(?m)^  (\w+) +[A-Z]", output("--help").split("Subcommands:")[1])
        self.assertGreater(len(commands), 4)
        sections[""] = ""  # of the program itself
        for command in ["", *commands]:
            told = sections["For every command"] + sections[command]
            for option in re.findall(r"(?m)^ +(?:-\w,)?(--[a-z-]+)",
                                     output(*filter(None, [command]), "--help")):
                with self.subTest(command=command, option=option):
                    self.assertTrue(f"`{option}`" in told)

    def test_each_setting_is_told_with_its_default(self):
        told = {}
        for keys, values in re.findall(r"(?m)^\| (`[^|]*) \| \w+ \| ([^|]*) \|",
                                       page("settings.md").text):
            keys, values = re.findall(r"`(\w+)`", keys), values.split(", ")
            told.update(zip(keys, values * len(keys) if len(values) == 1 else values))
        with tempfile.TemporaryDirectory() as folder:
            project = pathlib.Path(folder) / "Bare.vbp"
            project.write_text('Type=Exe\nName="Bare"\n')
            for line in output("settings", project).splitlines():
                key, _, value = line.partition(" = ")
                key = re.sub(r"(?<=[Uu]ser)\d", "1", key)  # the first one stands for all five
                with self.subTest(key):
                    self.assertIn(key, told)
                    if value.isdigit():
                        self.assertEqual(told[key], value)

    def test_each_macro_of_the_program_is_told(self):
        told = page("template-language.md").text
        sources = "".join(path.read_text() for folder in ("template", "model", "compiler")
                          for path in (ROOT / "src" / folder).glob("*.cpp"))
        names = set(re.findall(r'"((?:tamrik-[a-z-]+)|(?:[A-Z]+[0-9]*-?(?:-[A-Z0-9]+)+))"', sources))
        self.assertGreater(len(names), 80)
        for name in sorted(names):
            with self.subTest(name):
                short = re.sub(r"^CONT-\w+-LINK-LIST$|^MEMBER-USER\d$", "", name)
                self.assertTrue(short in told)


if __name__ == "__main__":
    unittest.main()
