# SPDX-License-Identifier: Apache-2.0
"""A browser without a window, driven through its DevTools over two pipes."""

import base64
import json
import os
import select
import shutil
import subprocess
import tempfile
import threading
import time
from pathlib import Path

NAMES = ("chromium-headless-shell", "chromium", "chromium-browser", "google-chrome")
PATIENCE_S = 120.0

# The descriptors that a browser starts with have fixed numbers.
STARTING = threading.Lock()

# Pages that are not in front are drawn as fast as the one that is.
AWAKE = ("--disable-background-timer-throttling", "--disable-backgrounding-occluded-windows",
         "--disable-renderer-backgrounding")


def program() -> str | None:
    """The browser of this machine, or None."""
    return next((found for name in NAMES if (found := shutil.which(name))), None)


class Browser:
    """A browser with any number of pages."""

    def __init__(self, path: str):
        self._folder = tempfile.TemporaryDirectory(prefix="ostrel-browser-", ignore_cleanup_errors=True)
        to_browser, self._out = os.pipe()
        self._in, from_browser = os.pipe()
        self._process = self._start(path, to_browser, from_browser)
        os.close(to_browser)
        os.close(from_browser)
        self._buffer = b""
        self._count = 0
        self._pages: dict[str, Page] = {}

    def _start(self, path: str, read: int, write: int) -> subprocess.Popen:
        # The browser reads from descriptor 3 and writes to 4.
        with STARTING:
            return self._start_alone(path, read, write)

    def _start_alone(self, path: str, read: int, write: int) -> subprocess.Popen:
        high = [os.dup2(read, 203), os.dup2(write, 204)]
        shell = 'exec "$@" 3<&203 4>&204 203<&- 204>&-'
        command = [path, "--headless", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage",
                   "--remote-debugging-pipe", "--hide-scrollbars", "--force-color-profile=srgb",
                   *AWAKE, f"--user-data-dir={self._folder.name}"]
        try:
            return subprocess.Popen(["bash", "-c", shell, "bash", *command], pass_fds=high,
                                    stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                    stderr=subprocess.DEVNULL)
        finally:
            for descriptor in high:
                os.close(descriptor)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        os.close(self._out)
        os.close(self._in)
        self._process.terminate()
        self._process.wait(timeout=20)
        self._folder.cleanup()

    def page(self) -> "Page":
        """A new page, empty."""
        target = self.send("Target.createTarget", url="about:blank")["targetId"]
        session = self.send("Target.attachToTarget", targetId=target, flatten=True)["sessionId"]
        self._pages[session] = Page(self, session, target)
        return self._pages[session]

    def _message(self, until: float) -> dict:
        while b"\0" not in self._buffer:
            ready, _, _ = select.select([self._in], [], [], max(0.0, until - time.monotonic()))
            piece = os.read(self._in, 1 << 20) if ready else b""
            if not piece:
                raise TimeoutError("the browser does not answer")
            self._buffer += piece
        text, self._buffer = self._buffer.split(b"\0", 1)
        return json.loads(text)

    def heed(self, until: float):
        """Takes one message that answers nothing to the page that it comes from."""
        self._pass_on(self._message(until))

    def _pass_on(self, message: dict):
        page = self._pages.get(message.get("sessionId", ""))
        if page and "method" in message:
            page.note(message["method"], message.get("params", {}))

    def send(self, method: str, session: str | None = None, **params) -> dict:
        self._count += 1
        number = self._count
        message = {"id": number, "method": method, "params": params}
        if session:
            message["sessionId"] = session
        os.write(self._out, json.dumps(message).encode() + b"\0")
        until = time.monotonic() + PATIENCE_S
        while True:
            answer = self._message(until)
            if answer.get("id") != number:
                self._pass_on(answer)
            elif "error" in answer:
                raise RuntimeError(f"{method}: {answer['error']['message']}")
            else:
                return answer["result"]


class Page:
    """One page of a browser; what goes wrong in it is kept in `complaints`."""

    def __init__(self, browser: Browser, session: str, target: str):
        self._browser = browser
        self._session = session
        self._target = target
        self._address = ""
        self._arrived = False  # the file is what the page shows now
        self._loaded = False
        self.complaints: list[str] = []
        self.fetched: list[str] = []
        for domain in ("Page", "Runtime", "Log", "Network"):
            self.send(f"{domain}.enable")

    def close(self):
        self._browser.send("Target.closeTarget", targetId=self._target)

    def send(self, method: str, **params) -> dict:
        return self._browser.send(method, self._session, **params)

    def note(self, method: str, data: dict):
        if method == "Runtime.exceptionThrown":
            self.complaints.append(json.dumps(data["exceptionDetails"]))
        elif method == "Runtime.consoleAPICalled" and data["type"] in ("error", "warning", "assert"):
            self.complaints.append(json.dumps(data["args"]))
        elif method == "Log.entryAdded" and data["entry"]["level"] in ("error", "warning"):
            self.complaints.append(data["entry"]["text"])
        elif method == "Network.requestWillBeSent":
            self.fetched.append(data["request"]["url"])
        elif method == "Page.frameNavigated":
            self._arrived = data["frame"]["url"] == self._address
        elif method == "Page.loadEventFired":
            self._loaded = self._arrived

    def evaluate(self, expression: str):
        """The value of an expression; of a promise, once it is kept."""
        result = self.send("Runtime.evaluate", expression=expression, returnByValue=True,
                           awaitPromise=True)
        if "exceptionDetails" in result:
            raise RuntimeError(json.dumps(result["exceptionDetails"]))
        return result["result"].get("value")

    def wait_for(self, condition: str):
        """Waits until an expression is true, which is looked at whenever the page changes."""
        seen = self.evaluate(
            "new Promise((tell) => { let watch; let late;"
            f"const look = () => {{ if (!({condition})) return; watch.disconnect();"
            "clearTimeout(late); tell(true); };"
            "watch = new MutationObserver(look);"
            "watch.observe(document, {subtree: true, childList: true, attributes: true, characterData: true});"
            f"late = setTimeout(() => {{ watch.disconnect(); tell(false); }}, {PATIENCE_S * 1000});"
            "look(); })")
        if not seen:
            raise TimeoutError(condition)

    def view(self, width: int, height: int, dark: bool = False):
        """The size of the window in CSS pixels, and the theme that the system asks for."""
        self.send("Emulation.setDeviceMetricsOverride", width=width, height=height,
                  deviceScaleFactor=1, mobile=width < 500)
        self.send("Emulation.setEmulatedMedia",
                  features=[{"name": "prefers-color-scheme", "value": "dark" if dark else "light"}])

    def begin_to_open(self, file: Path):
        """Opens a file without waiting for it; what was noted before is forgotten."""
        self.complaints.clear()
        self.fetched.clear()
        self._address = file.resolve().as_uri()
        self._arrived = self._loaded = False
        self.send("Page.navigate", url=self._address)

    def open(self, file: Path):
        self.begin_to_open(file)
        self.wait_until_drawn()

    def wait_until_drawn(self, width: int | None = None):
        """Waits until all figures are drawn for the size of the window, and for `width` if given."""
        until = time.monotonic() + PATIENCE_S
        while not self._loaded:
            self._browser.heed(until)
        drawn = "document.documentElement.dataset"
        self.wait_for(f"{drawn}.ready === 'yes' && {drawn}.width === "
                      + (f"'{width}'" if width else "String(window.innerWidth)"))

    def move(self, x: float, y: float):
        self.send("Input.dispatchMouseEvent", type="mouseMoved", x=x, y=y)

    def screenshot(self, file: Path, selector: str | None = None):
        """A picture of the window, or of all that an element takes, in view or not."""
        params = {"format": "png", "optimizeForSpeed": True}
        if selector:
            params["captureBeyondViewport"] = True
            params["clip"] = {"scale": 1, **self.evaluate(
                f"(() => {{ const r = document.querySelector({json.dumps(selector)})"
                ".getBoundingClientRect(); return {x: r.x + scrollX, y: r.y + scrollY, "
                "width: r.width, height: r.height}; })()")}
        file.write_bytes(base64.b64decode(self.send("Page.captureScreenshot", **params)["data"]))

    def print_to(self, file: Path):
        """The page as it goes to paper, as PDF."""
        data = self.send("Page.printToPDF", preferCSSPageSize=True, printBackground=True)["data"]
        file.write_bytes(base64.b64decode(data))
