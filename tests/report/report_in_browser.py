# SPDX-License-Identifier: Apache-2.0
"""Opens the reports of the examples in a browser, as their readers do.

    report_in_browser.py PROGRAM EXAMPLES [PICTURES]

Pictures of every report go to the folder PICTURES, if there is one. Without a browser the tests are
skipped and say so.
"""

import json
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

import browser

PROGRAM = ""
EXAMPLES = Path()
PICTURES: Path | None = None

WIDE = (1280, 900)
PHONE = (390, 844)


def write_report(project: Path, folder: Path) -> Path:
    page = folder / f"{project.stem}.html"
    subprocess.run([PROGRAM, "report", str(project), "-o", str(page), "--lang", "en"], check=True,
                   stdout=subprocess.DEVNULL)
    return page


@unittest.skipUnless(browser.program(), "no browser: script/setup --test installs one")
class ReportInBrowser(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.folder.cleanup)
        folder = Path(cls.folder.name)
        projects = sorted(EXAMPLES.glob("*.json"))
        cls.pages = [write_report(project, folder) for project in projects]
        cls.hostile = write_report(cls.hostile_project(projects[0], folder), folder)
        cls.questionable = write_report(cls.questionable_project(folder), folder)
        cls.browser = browser.Browser(browser.program()).__enter__()
        cls.addClassCleanup(cls.browser.__exit__)

    @staticmethod
    def questionable_project(folder: Path) -> Path:
        """An example whose only slip circles stand around one centre."""
        project = json.loads((EXAMPLES / "cantilever.json").read_text(encoding="utf-8"))
        project["slope"]["centre_box"] = {"x_m": [-1, -1], "y_m": [3, 3], "spacing_m": 2,
                                          "depths_below_foot_m": [0, 4]}
        file = folder / "questionable.json"
        file.write_text(json.dumps(project), encoding="utf-8")
        return file

    @staticmethod
    def hostile_project(example: Path, folder: Path) -> Path:
        """An example whose names try to break out of wherever they stand."""
        project = json.loads(example.read_text(encoding="utf-8"))
        name = "</script><img src=x onerror=\"window.broken=1\"> & 'A' @{data} <b>B</b>"
        project["name"] = project["combinations"][0]["name"] = name
        project["description"] = name
        old = project["soils"][0]["name"]
        project["soils"][0]["name"] = name
        for layer in project["ground"]["layers"]:
            layer["soil"] = name if layer["soil"] == old else layer["soil"]
        file = folder / "hostile.json"
        file.write_text(json.dumps(project), encoding="utf-8")
        return file

    def open(self, page: Path, size=WIDE, dark=False):
        self.browser.view(*size, dark=dark)
        self.browser.open(page)

    def picture(self, page: Path, name: str, selector: str | None = None):
        if PICTURES:
            self.browser.screenshot(PICTURES / f"{page.stem}-{name}.png", selector)

    def test_every_report_opens_without_a_complaint_and_fetches_nothing(self):
        for page in self.pages:
            with self.subTest(page.stem):
                self.open(page)
                self.assertEqual(self.browser.complaints, [])
                self.assertEqual(self.browser.fetched, [page.resolve().as_uri()])
                canvases = self.browser.evaluate("document.querySelectorAll('.canvas').length")
                drawn = self.browser.evaluate("document.querySelectorAll('.canvas .main-svg .trace').length")
                self.assertGreater(canvases, 5)
                self.assertGreaterEqual(drawn, canvases)
                self.picture(page, "light", "body")
                self.open(page, dark=True)
                self.picture(page, "dark", "body")

    def test_a_figure_tells_its_values_at_the_pointer(self):
        for page in self.pages:
            with self.subTest(page.stem):
                self.open(page)
                place = self.browser.evaluate(
                    "(() => { const plot = document.getElementById('01-moment');"
                    "plot.scrollIntoView({behavior: 'instant', block: 'center'});"
                    "const r = plot.querySelector('.nsewdrag').getBoundingClientRect();"
                    "return [r.x + r.width / 2, r.y + r.height / 2]; })()")
                self.browser.move(place[0] - 3, place[1])
                self.browser.move(*place)
                self.browser.wait_for("document.querySelector('#\\\\30 1-moment .hoverlayer').textContent")
                label = self.browser.evaluate("document.querySelector('#\\\\30 1-moment .hoverlayer').textContent")
                self.assertRegex(label, r"[-−]?\d+\.\d kNm")

    def test_the_language_changes_everywhere(self):
        for page in self.pages:
            with self.subTest(page.stem):
                self.open(page)
                self.assertIn("Bending moment", self.browser.evaluate("document.body.innerText"))
                self.browser.evaluate("document.getElementById('language').click()")
                self.browser.wait_for("document.documentElement.dataset.ready === 'yes'")
                text = self.browser.evaluate("document.body.innerText")
                self.assertEqual(self.browser.evaluate("document.documentElement.lang"), "it")
                self.assertIn("Momento flettente", text)
                self.assertNotIn("Bending moment", text)
                titles = self.browser.evaluate(
                    "[...document.querySelectorAll('.ytitle')].map((t) => t.textContent)")
                self.assertIn("Profondità [m]", titles)
                self.assertNotIn("Depth [m]", titles)

    def test_a_warning_about_the_results_is_read_in_either_language(self):
        self.open(self.questionable)
        self.assertIn("lies on the border of its search",
                      self.browser.evaluate("document.querySelector('.messages').innerText"))
        self.browser.evaluate("document.getElementById('language').click()")
        self.assertIn("sta sul bordo della ricerca",
                      self.browser.evaluate("document.querySelector('.messages').innerText"))

    def test_the_theme_follows_the_system_until_it_is_chosen(self):
        colour = "getComputedStyle(document.body).backgroundColor"
        self.open(self.pages[0])
        light = self.browser.evaluate(colour)
        self.open(self.pages[0], dark=True)
        dark = self.browser.evaluate(colour)
        self.assertNotEqual(light, dark)
        self.browser.evaluate("document.getElementById('theme').click()")
        self.assertEqual(self.browser.evaluate(colour), light)

    def test_a_phone_scrolls_up_and_down_alone(self):
        for page in self.pages:
            with self.subTest(page.stem):
                self.open(page, PHONE)
                width = self.browser.evaluate("document.documentElement.scrollWidth")
                self.assertLessEqual(width, PHONE[0])
                self.picture(page, "phone", "body")

    def test_names_are_shown_and_not_run(self):
        self.open(self.hostile)
        self.assertEqual(self.browser.complaints, [])
        self.assertFalse(self.browser.evaluate("'broken' in window"))
        self.assertEqual(self.browser.evaluate("document.querySelectorAll('img').length"), 0)
        self.assertIn("</script><img", self.browser.evaluate("document.querySelector('h1').textContent"))

    def test_it_goes_to_paper(self):
        for page in self.pages:
            with self.subTest(page.stem):
                self.open(page, dark=True)
                file = (PICTURES or Path(self.folder.name)) / f"{page.stem}.pdf"
                self.browser.print_to(file)
                self.assertTrue(file.read_bytes().startswith(b"%PDF"))


if __name__ == "__main__":
    PROGRAM, EXAMPLES = sys.argv[1], Path(sys.argv[2])
    if len(sys.argv) > 3:
        PICTURES = Path(sys.argv[3])
        PICTURES.mkdir(parents=True, exist_ok=True)
    unittest.main(argv=sys.argv[:1], verbosity=2)
