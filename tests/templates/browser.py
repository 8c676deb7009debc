"""A real browser, without a window, that does what people do."""
import urllib.parse

from selenium import webdriver
from selenium.webdriver.common.by import By

SWITCHES = ("--headless=new --no-sandbox --disable-gpu --disable-dev-shm-usage --disable-quic "
            "--no-first-run --disable-background-networking --disable-component-update "
            "--disable-sync").split()


class Browser:
    """A browser for the pages of one folder; it must have nothing to complain of."""

    def __init__(self, folder, width=1200, scheme="light", scripts=True):
        options = webdriver.ChromeOptions()
        for switch in SWITCHES:
            options.add_argument(switch)
        options.set_capability("goog:loggingPrefs", {"browser": "ALL"})
        if not scripts:
            options.add_experimental_option(
                "prefs", {"profile.managed_default_content_settings.javascript": 2})
        self.folder = folder
        self.driver = webdriver.Chrome(options=options)
        self.driver.execute_cdp_cmd("Emulation.setDeviceMetricsOverride", {
            "width": width, "height": 800, "deviceScaleFactor": 1, "mobile": width < 600})
        self.driver.execute_cdp_cmd("Emulation.setEmulatedMedia", {
            "features": [{"name": "prefers-color-scheme", "value": scheme}]})

    def __enter__(self):
        return self

    def __exit__(self, *failure):
        complaints = self.driver.get_log("browser")
        self.driver.quit()
        if complaints:
            raise AssertionError(complaints)

    def open(self, page):
        self.driver.get((self.folder / page).as_uri())

    def page(self):
        return urllib.parse.unquote(self.driver.current_url.rsplit("/", 1)[1])

    def all(self, selector):
        return self.driver.find_elements(By.CSS_SELECTOR, selector)

    def texts(self, selector):
        return [element.text for element in self.all(selector)]

    def press(self, *keys):
        for key in keys:
            self.driver.switch_to.active_element.send_keys(key)

    def style(self, selector, name):
        return self.all(selector)[0].value_of_css_property(name)
