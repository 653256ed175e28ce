# SPDX-License-Identifier: Apache-2.0
"""Opens the reports of the examples in a browser, as their readers do.

    report_in_browser.py PROGRAM EXAMPLES [PICTURES]

Pictures of every report go to the folder PICTURES, if there is one. Without a browser the tests are
skipped and say so. To draw all figures of a report is what takes time: each is opened once and goes
through all steps of its reader, as many reports at a time as there are processors.
"""

import json
import os
import subprocess
import sys
import tempfile
import threading
import unittest
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

import browser

PROGRAM = ""
EXAMPLES = Path()
PICTURES: Path | None = None

WIDE = (1280, 900)
PHONE = (390, 844)
READERS = min(4, os.cpu_count() or 1)
PAPER = "getComputedStyle(document.body).backgroundColor"


def write_report(project: Path, folder: Path) -> Path:
    page = folder / f"{project.stem}.html"
    subprocess.run([PROGRAM, "report", str(project), "-o", str(page), "--lang", "en"], check=True,
                   stdout=subprocess.DEVNULL)
    return page


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


def questionable_project(folder: Path) -> Path:
    """An example whose only slip circles stand around one centre."""
    project = json.loads((EXAMPLES / "cantilever.json").read_text(encoding="utf-8"))
    project["slope"]["centre_box"] = {"x_m": [-1, -1], "y_m": [3, 3], "spacing_m": 2,
                                      "depths_below_foot_m": [0, 4]}
    file = folder / "questionable.json"
    file.write_text(json.dumps(project), encoding="utf-8")
    return file


@unittest.skipUnless(browser.program(), "no browser: script/setup --test installs one")
class ReportInBrowser(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.folder.cleanup)
        folder = Path(cls.folder.name)
        projects = sorted(EXAMPLES.glob("*.json"))
        projects.append(hostile_project(projects[0], folder))
        projects.append(questionable_project(folder))
        with ThreadPoolExecutor(os.cpu_count()) as writers:
            *cls.reports, cls.hostile, cls.questionable = writers.map(lambda one: write_report(one, folder), projects)

    def picture(self, report: Path, name: str, page: browser.Page):
        if PICTURES:
            page.screenshot(PICTURES / f"{report.stem}-{name}.png", "body")

    def test_every_report_is_read_by_everybody(self):
        lock = threading.Lock()
        waiting = list(self.reports)
        failures = []

        def reader():
            with browser.Browser(browser.program()) as window:
                while True:
                    with lock:
                        if not waiting:
                            return
                        report = waiting.pop()
                    failures.extend(self.read(report, window.page()))

        with ThreadPoolExecutor(READERS) as readers:
            for done in [readers.submit(reader) for _ in range(READERS)]:
                done.result()
        for report, step, error in failures:
            with self.subTest(report, step=step):
                raise error
        self.assertEqual(waiting, [])

    def read(self, report: Path, page: browser.Page) -> list[tuple[str, str, Exception]]:
        """What went wrong with one report, and in which step."""
        page.view(*WIDE)
        page.open(report)
        failures = []
        for step in (self.opens_without_a_complaint, self.tells_values_at_the_pointer,
                     self.tells_what_governs, self.follows_the_theme_of_the_system,
                     self.goes_to_paper, self.changes_the_language_on_a_phone,
                     self.has_nothing_to_complain_of):
            try:
                step(report, page)
            except Exception as error:
                failures.append((report.stem, step.__name__, error))
        page.close()
        return failures

    def opens_without_a_complaint(self, report: Path, page: browser.Page):
        self.assertEqual(page.complaints, [])
        self.assertEqual(page.fetched, [report.resolve().as_uri()])
        canvases = page.evaluate("document.querySelectorAll('.canvas').length")
        drawn = page.evaluate("document.querySelectorAll('.canvas .main-svg .trace').length")
        self.assertGreater(canvases, 5)
        self.assertGreaterEqual(drawn, canvases)
        self.picture(report, "light", page)

    def tells_values_at_the_pointer(self, _: Path, page: browser.Page):
        label = "document.querySelector('[id=\"01-moment\"] .hoverlayer').textContent"
        place = page.evaluate(
            "(() => { const plot = document.getElementById('01-moment');"
            "plot.scrollIntoView({behavior: 'instant', block: 'center'});"
            "const r = plot.querySelector('.nsewdrag').getBoundingClientRect();"
            "return [r.x + r.width / 2, r.y + r.height / 2]; })()")
        page.move(place[0] - 3, place[1])
        page.move(*place)
        page.wait_for(label)
        self.assertRegex(page.evaluate(label), r"[-−]?\d+\.\d kNm")

    def tells_what_governs(self, _: Path, page: browser.Page):
        """At the top, and beside every factor, in words as well as in colour."""
        self.assertRegex(page.evaluate("document.querySelector('.overall').textContent"),
                         r"^[✓✗] .+ Governs: .+\(smallest factor [\d.∞?]+\)\.$")
        outcomes = page.evaluate(
            "[...document.querySelectorAll('#all-verifications .verdict')].map((v) => v.textContent)")
        self.assertGreater(len(outcomes), 1)
        for outcome in outcomes:
            self.assertRegex(outcome, "^(✓ satisfied|✗ not satisfied)$")

    def follows_the_theme_of_the_system(self, report: Path, page: browser.Page):
        light = page.evaluate(PAPER)
        page.view(*WIDE, dark=True)
        dark = page.evaluate(PAPER)
        self.assertNotEqual(light, dark)
        self.picture(report, "dark", page)
        page.evaluate("document.getElementById('theme').click()")
        self.assertEqual(page.evaluate(PAPER), light)
        page.evaluate("document.getElementById('theme').click()")
        self.assertEqual(page.evaluate(PAPER), dark)

    def goes_to_paper(self, report: Path, page: browser.Page):
        """With what is folded on the screen, and only there."""
        page.evaluate("window.onPaper = null; for (const one of document.querySelectorAll('details')) one.open = false;"
                      "window.addEventListener('beforeprint', () => {"
                      "window.onPaper = document.querySelectorAll('details:not([open])').length; });")
        file = (PICTURES or Path(self.folder.name)) / f"{report.stem}.pdf"
        page.print_to(file)
        self.assertTrue(file.read_bytes().startswith(b"%PDF"))
        self.assertEqual(page.evaluate("window.onPaper"), 0)
        self.assertEqual(page.evaluate("document.querySelectorAll('details[open]').length"), 0)

    def changes_the_language_on_a_phone(self, report: Path, page: browser.Page):
        """Where long Italian words have the least room; nothing is wider than the phone."""
        self.assertIn("Bending moment", page.evaluate("document.body.innerText"))
        page.view(*PHONE)
        page.evaluate("document.getElementById('language').click()")
        page.wait_until_drawn(PHONE[0])
        self.assertEqual(page.evaluate("document.documentElement.lang"), "it")
        text = page.evaluate("document.body.innerText")
        self.assertIn("Momento flettente", text)
        self.assertNotIn("Bending moment", text)
        titles = page.evaluate("[...document.querySelectorAll('.ytitle')].map((t) => t.textContent)")
        self.assertIn("Profondità [m]", titles)
        self.assertNotIn("Depth [m]", titles)
        self.assertLessEqual(page.evaluate("document.documentElement.scrollWidth"), PHONE[0])
        self.picture(report, "phone", page)

    def has_nothing_to_complain_of(self, _: Path, page: browser.Page):
        self.assertEqual(page.complaints, [])

    def test_a_warning_about_the_results_is_read_in_either_language(self):
        said = "document.querySelector('.messages').innerText"
        with browser.Browser(browser.program()) as window:
            page = window.page()
            page.view(*WIDE)
            page.open(self.questionable)
            self.assertIn("lies on the border of its search", page.evaluate(said))
            page.evaluate("document.getElementById('language').click()")
            self.assertIn("sta sul bordo della ricerca", page.evaluate(said))

    def test_names_are_shown_and_not_run(self):
        with browser.Browser(browser.program()) as window:
            self.shows_names(window.page())

    def shows_names(self, page: browser.Page):
        page.view(*PHONE)
        page.open(self.hostile)
        self.assertEqual(page.complaints, [])
        self.assertFalse(page.evaluate("'broken' in window"))
        self.assertEqual(page.evaluate("document.querySelectorAll('img').length"), 0)
        self.assertIn("</script><img", page.evaluate("document.querySelector('h1').textContent"))
        self.assertLessEqual(page.evaluate("document.documentElement.scrollWidth"), PHONE[0])


if __name__ == "__main__":
    PROGRAM, EXAMPLES = sys.argv[1], Path(sys.argv[2])
    if len(sys.argv) > 3:
        PICTURES = Path(sys.argv[3])
        PICTURES.mkdir(parents=True, exist_ok=True)
    unittest.main(argv=sys.argv[:1], verbosity=2)
