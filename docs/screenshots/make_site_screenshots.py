"""Takes the pictures of the web site that the README shows.
usage: make_site_screenshots.py <folder of the pages> <folder of the pictures>"""
import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tests/templates"))
from browser import Browser  # noqa: E402

pages, pictures = map(pathlib.Path, sys.argv[1:])
for name, page, words, options in (
        ("topic", "Warehouse-Issue.html", "", {}),
        ("site-search", "Warehouse.html", "item", {}),
        ("site-dark", "Warehouse-Book.html", "", {"scheme": "dark"}),
        ("site-phone", "Warehouse-Book.html", "", {"width": 390})):
    with Browser(pages.resolve(), **options) as browser:
        browser.open(page)
        if words:
            browser.press("/", words)
        browser.driver.save_screenshot(str(pictures / f"{name}.png"))
