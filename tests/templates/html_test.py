"""html.tmkt: walks the links of the site, and reads it in a real browser as people do."""
import re
import subprocess
import unittest
import urllib.parse

from selenium.webdriver.common.keys import Keys

from browser import Browser
from program import AZBUKA, GROUP, ODD, ODD_TOPICS, Compile, Page, topic_names

OUTSIDE = re.compile("https?:|[.][.]/|notes[.]txt|Odd_example[.]txt")


class SiteTest(unittest.TestCase):
    def browse(self, compiled, **options):
        return self.enterContext(Browser(compiled.folder, **options))

    def test_every_link_leads_somewhere_and_every_page_is_valid(self):
        for project in (GROUP, ODD, AZBUKA):
            compiled = Compile(project, "html")
            pages = compiled.names(".html")
            reached = set()
            for name in pages:
                text = compiled.text(name)
                complaints = subprocess.run(
                    ["tidy", "-quiet", "-errors", "--drop-empty-elements", "no", "-utf8"],
                    input=text.encode(), capture_output=True, check=False).stderr.decode()
                # It is older than that attribute, and than addresses with all letters.
                complaints = [line for line in complaints.splitlines()
                              if not re.search("aria-current|malformed URI", line)]
                self.assertEqual(complaints, [], name)
                for link in Page(text).links + re.findall('(?:src|rel="stylesheet" href)="(.*?)"', text):
                    if not OUTSIDE.match(link):
                        file = urllib.parse.unquote(link).split("#")[0]
                        self.assertTrue((compiled.folder / file).exists() or not file,
                                        f"{name}: {link}")
                        reached.add(file)
            self.assertEqual(pages - reached, set(), "a page that no other leads to")

    def test_search_finds_parts_of_names_and_opens_what_is_chosen(self):
        browser = self.browse(Compile(GROUP, "html"))
        browser.open("Stock+title.html")
        browser.press("/", "item")
        found = browser.texts("#results li")
        self.assertEqual([line.split("\n")[0] for line in found],
                         ["Item", "Item", "Items", "FindItem", "LowItems", "StockItem", "StockItems"])
        for words, first in (("level", "BelowLevel\nStockItem Event"), ("eci", "ErrCodeInUse\n"),
                             ("stockitem.va", "Value\nStockItem "), ("nosuch", "Nothing found")):
            browser.press(Keys.CONTROL + "a", words)
            self.assertTrue(browser.texts("#results li")[0].startswith(first), words)
        browser.press(Keys.CONTROL + "a", "issue", Keys.ARROW_DOWN, Keys.ENTER)
        self.assertEqual(browser.page(), "Warehouse-Issue.html")
        browser.press("/", "x", Keys.ESCAPE)
        self.assertFalse(browser.all("#results")[0].is_displayed())

    def test_side_bar_marks_the_page_and_leads_from_topic_to_topic(self):
        compiled = Compile(ODD, "html")
        browser = self.browse(compiled)
        browser.open("frmOdd.html")
        seen = []
        while True:
            seen.append(browser.page()[:-5])
            self.assertEqual(browser.texts(".side [aria-current]"), [seen[-1].split("-")[-1]])
            self.assertEqual(browser.texts(".path a"), ["Odd", *seen[-1].split("-")[:-1]])
            following = browser.all(".around [rel=next]")
            if not following:
                break
            following[0].click()
        self.assertEqual(sorted(seen), sorted(topic_names(ODD_TOPICS)))
        toggle = browser.all('[aria-label="Members of Oddity"]')[0]
        toggle.send_keys(Keys.ENTER)
        self.assertIn("Told", browser.texts(".side a"))
        toggle.send_keys(Keys.ENTER)
        self.assertNotIn("Told", browser.texts(".side a"))

    def test_code_is_coloured_and_copied(self):
        browser = self.browse(Compile(ODD, "html"))
        browser.driver.execute_cdp_cmd("Browser.grantPermissions", {
            "permissions": ["clipboardReadWrite", "clipboardSanitizedWrite"]})
        browser.open("Oddity-Run.html")
        self.assertIn('"a & b $5 ␂"', browser.texts("main .string"))
        self.assertEqual(browser.texts("main pre .comment")[-1], "' </pre> ``` {x}")
        browser.open("Oddity.html")
        browser.all(".code button")[-1].click()
        copied = browser.driver.execute_script("return navigator.clipboard.readText()")
        self.assertEqual(copied, "Dim Odd As Oddity\n\nIf a < b And c > d Then\n"
                                 "    Odd.Run \"x & y\", 5 * 2 ' *note*\nEnd If")

    def test_colours_follow_the_system_until_the_reader_chooses(self):
        compiled = Compile(ODD, "html")
        for scheme, system, other in (("light", "rgba(255, 255, 255, 1)", "rgba(20, 24, 31, 1)"),
                                      ("dark", "rgba(20, 24, 31, 1)", "rgba(255, 255, 255, 1)")):
            browser = self.browse(compiled, scheme=scheme)
            browser.open("Oddity.html")
            self.assertEqual(browser.style("body", "background-color"), system)
            browser.all(".theme")[0].click()
            browser.open("Oddity-Run.html")
            self.assertEqual(browser.style("body", "background-color"), other)

    def test_nothing_is_wider_than_a_phone(self):
        browser = self.browse(Compile(GROUP, "html"), width=360)
        for page in ("Warehouse-Book.html", "Stock+title.html", "Stock.contents.html"):
            browser.open(page)
            self.assertLessEqual(
                browser.driver.execute_script("return document.documentElement.scrollWidth"), 360)
        browser.open("Warehouse-Book.html")
        self.assertFalse(browser.all(".side")[0].is_displayed())
        browser.all(".menu")[0].click()
        self.assertEqual(browser.texts(".side [aria-current]"), ["Book"])

    def test_without_scripts_a_frame_shows_the_contents(self):
        browser = self.browse(Compile(GROUP, "html"), scripts=False)
        browser.open("Warehouse-Book.html")
        browser.driver.switch_to.frame(browser.all("iframe")[0])
        self.assertFalse(browser.all(".bar")[0].is_displayed())
        browser.all('a[href="StockItem-Issue.html"]')[0].click()
        browser.driver.switch_to.default_content()
        self.assertEqual(browser.page(), "StockItem-Issue.html")

    def test_names_take_little_room_and_read_right_in_every_code_page(self):
        compiled = Compile(AZBUKA, "html")
        browser = self.browse(compiled)
        browser.open("Азбука+title.html")
        browser.press("/", "доб", Keys.ENTER)
        self.assertEqual(browser.page(), "Склад-Добавить.html")
        lines = Compile(GROUP, "html").text("Stock.js").split("`")[-2].split("\n")
        self.assertLess(max(map(len, lines)), 100)


if __name__ == "__main__":
    unittest.main()
