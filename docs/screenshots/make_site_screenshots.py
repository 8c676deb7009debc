"""Takes the pictures of web sites that the README and the manual show.
usage: make_site_screenshots.py <folder of the pages> <folder of the pictures>"""
import pathlib
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path += [str(ROOT / "tests/templates"), str(ROOT / "tests/manual")]
from browser import Browser  # noqa: E402
import page_run  # noqa: E402

pages, pictures = map(pathlib.Path, sys.argv[1:])


def take(folder, name, page, words="", **options):
    with Browser(folder.resolve(), **options) as browser:
        browser.open(page)
        if words:
            browser.press("/", words)
        browser.driver.save_screenshot(str(pictures / f"{name}.png"))


take(pages, "topic", "Warehouse-Issue.html")
take(pages, "site-search", "Warehouse.html", "item")
take(pages, "site-dark", "Warehouse-Book.html", scheme="dark")
take(pages, "site-phone", "Warehouse-Book.html", width=390)
with tempfile.TemporaryDirectory() as work:
    shop = page_run.prepare(pathlib.Path(work))
    subprocess.run([page_run.PROGRAM, "compile", "Shop.vbp", "--template", "html", "--output", "site",
                    "--quiet"], cwd=shop, check=True)
    take(shop / "site", "getting-started", "Cart-Add.html")
