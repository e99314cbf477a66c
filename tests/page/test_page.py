"""test_page.py INDEX.html [SITE/index.html]: opens the page that ./try makes, and the pages of the site, in headless Chromium:
on a telephone and on a desk, light and dark, no picture or link leads nowhere, nothing is complained of, nothing is wider
than the screen, no text smaller than 14 px or hard to tell from its paper.  The site's search finds a function.  77: no Chromium, or no page."""
import os
import sys
import unittest
from urllib.parse import unquote, urldefrag, urlparse

try:
    from selenium import webdriver
    from selenium.webdriver.common.by import By
    from selenium.webdriver.support.ui import WebDriverWait
except ImportError as missing:
    print(f"skipped: {missing}")
    sys.exit(77)

PAGES = [p for p in sys.argv[1:] if os.path.exists(p)]
if not PAGES or not os.path.exists("/usr/bin/chromedriver"):
    print("skipped: there is no page, or no Chromium")
    sys.exit(77)
SITE = next((os.path.dirname(p) for p in PAGES if os.path.exists(os.path.join(os.path.dirname(p), "search.html"))), None)
SCREENS = [(360, "light"), (360, "dark"), (1280, "dark"), (1280, "light")]
# What is wrong with what can be seen, once all pictures are there; of text, letters and digits count.
LOOK = """
const images = [...document.images];
for (const i of images) i.loading = 'eager';
const time = new Promise(done => setTimeout(done, 200));  // for what hears that screen or scheme have changed
Promise.all([time, ...images.map(i => i.decode().then(() => null, () => i.src))]).then(
    broken => arguments[0](look(broken.filter(b => b))));
function look(broken) {
const small = [], wide = [], faint = [], room = document.documentElement.clientWidth;
const parts = c => { const [r, g, b, a = 1] = c.match(/[\\d.]+/g).map(Number); return [r, g, b, a]; };
const under = e => { const c = e ? parts(getComputedStyle(e).backgroundColor) : [255, 255, 255, 1];
                     return c[3] == 1 ? c : mixed(c, under(e.parentElement)); };
const mixed = ([r, g, b, a], [x, y, z]) => [a * r + (1 - a) * x, a * g + (1 - a) * y, a * b + (1 - a) * z, 1];
const light = c => [.2126, .7152, .0722].reduce((sum, w, i) => sum + w * (c[i] / 255) ** 2.2, .05);
const scrolls = e => e && (['auto', 'scroll', 'hidden'].includes(getComputedStyle(e).overflowX) || scrolls(e.parentElement));
for (const e of document.querySelectorAll('body *')) {
    const box = e.getBoundingClientRect();
    if (!box.width || !box.height || !e.checkVisibility() || e.closest('svg')) continue;
    if (box.right > room + 1 && box.left < room && !scrolls(e)) wide.push(e.outerHTML.slice(0, 120));
    const own = [...e.childNodes].some(n => n.nodeType == 3 && /[\\p{L}\\p{N}]/u.test(n.data));
    if (own && parseFloat(getComputedStyle(e).fontSize) < 14) small.push(e.outerHTML.slice(0, 120));
    if (own) {
        const paper = light(under(e)), ink = light(mixed(parts(getComputedStyle(e).color), under(e)));
        if (Math.max(paper, ink) / Math.min(paper, ink) < 3) faint.push(e.outerHTML.slice(0, 120));
    }
}
return {small, wide, faint, broken, dark: light(under(document.body)) < .5, over: document.documentElement.scrollWidth - room,
        links: [...document.querySelectorAll('a[href], link[href]')].map(a => a.href),
        ids: [...document.querySelectorAll('[id]')].map(e => e.id)};
}"""


class Page(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        options = webdriver.ChromeOptions()
        options.binary_location = "/usr/bin/chromium"
        for option in ("--headless=new", "--no-sandbox", "--disable-gpu", "--hide-scrollbars", "--allow-file-access-from-files"):
            options.add_argument(option)
        options.set_capability("goog:loggingPrefs", {"browser": "ALL"})
        cls.browser = webdriver.Chrome(service=webdriver.chrome.service.Service("/usr/bin/chromedriver"), options=options)

    @classmethod
    def tearDownClass(cls):
        cls.browser.quit()

    def screen(self, width, scheme):
        command = self.browser.execute_cdp_cmd
        command("Emulation.setDeviceMetricsOverride", {"width": width, "height": 900, "deviceScaleFactor": 1, "mobile": False})
        command("Emulation.setEmulatedMedia", {"features": [{"name": "prefers-color-scheme", "value": scheme}]})

    def test_pages(self):
        for first in PAGES:
            root = "file://" + os.path.realpath(os.path.dirname(first))
            todo, seen, ids, links = ["file://" + os.path.realpath(first)], set(), {}, []
            while todo and len(seen) < 20:  # the site has a page a family: those that the first pages name
                address = todo.pop(0)
                if address in seen:
                    continue
                seen.add(address)
                self.browser.get(address)
                for width, scheme in SCREENS:
                    with self.subTest(address, width=width, scheme=scheme):
                        self.screen(width, scheme)
                        said = self.browser.execute_async_script(LOOK)
                        for fault in ("small", "wide", "faint", "broken"):
                            self.assertEqual(said[fault][:5], [], fault)
                        self.assertLessEqual(said["over"], 0)
                        self.assertEqual(said["dark"], scheme == "dark")
                self.assertEqual(self.browser.get_log("browser"), [], address)
                ids[address] = set(said["ids"])
                for link in said["links"]:
                    page, part = urldefrag(link)
                    links.append((address, page, part))
                    if page.startswith(root) and page.endswith(".html"):
                        todo.append(page)
            for address, page, part in links:
                if page.startswith("file:"):
                    path = unquote(urlparse(page).path)
                    self.assertTrue(os.path.exists(path), f"{address} links to {page}")
                    self.assertTrue(not part or page not in ids or unquote(part) in ids[page], f"{address}: {page}#{part}")

    @unittest.skipUnless(SITE, "there is no site")
    def test_search(self):
        for width in 360, 1280:
            self.screen(width, "light")
            self.browser.get(f"file://{os.path.realpath(SITE)}/search.html?q=zmviAdd_8u_C1RSfs")
            found = WebDriverWait(self.browser, 10).until(
                lambda b: [a.get_attribute("href") for a in b.find_elements(By.CSS_SELECTOR, "#search-results a")])
            self.browser.get(found[0])
            self.assertIn("zmviAdd_8u_C1RSfs", self.browser.find_element(By.TAG_NAME, "body").text)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
