# SPDX-License-Identifier: Apache-2.0
"""A browser without a window, driven through its DevTools over two pipes."""

import base64
import json
import os
import select
import shutil
import subprocess
import tempfile
import time
from pathlib import Path

NAMES = ("chromium-headless-shell", "chromium", "chromium-browser", "google-chrome")
PATIENCE_S = 120.0


def program() -> str | None:
    """The browser of this machine, or None."""
    return next((found for name in NAMES if (found := shutil.which(name))), None)


class Browser:
    """One page of a browser; what goes wrong in the page is kept in `complaints`."""

    def __init__(self, path: str):
        self._folder = tempfile.TemporaryDirectory(prefix="ostrel-browser-", ignore_cleanup_errors=True)
        to_browser, self._out = os.pipe()
        self._in, from_browser = os.pipe()
        self._process = self._start(path, to_browser, from_browser)
        os.close(to_browser)
        os.close(from_browser)
        self._buffer = b""
        self._count = 0
        self._session = None
        self.complaints: list[str] = []
        self.fetched: list[str] = []
        target = self.send("Target.createTarget", url="about:blank")["targetId"]
        self._session = self.send("Target.attachToTarget", targetId=target, flatten=True)["sessionId"]
        for domain in ("Page", "Runtime", "Log", "Network"):
            self.send(f"{domain}.enable")

    def _start(self, path: str, read: int, write: int) -> subprocess.Popen:
        # The browser reads from descriptor 3 and writes to 4.
        high = [os.dup2(read, 203), os.dup2(write, 204)]
        shell = 'exec "$@" 3<&203 4>&204 203<&- 204>&-'
        command = [path, "--headless", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage",
                   "--remote-debugging-pipe", "--hide-scrollbars", "--force-color-profile=srgb",
                   f"--user-data-dir={self._folder.name}"]
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

    def _message(self, until: float) -> dict:
        while b"\0" not in self._buffer:
            ready, _, _ = select.select([self._in], [], [], max(0.0, until - time.monotonic()))
            piece = os.read(self._in, 1 << 20) if ready else b""
            if not piece:
                raise TimeoutError("the browser does not answer")
            self._buffer += piece
        text, self._buffer = self._buffer.split(b"\0", 1)
        return json.loads(text)

    def _note(self, message: dict):
        method, data = message.get("method"), message.get("params", {})
        if method == "Runtime.exceptionThrown":
            self.complaints.append(json.dumps(data["exceptionDetails"]))
        elif method == "Runtime.consoleAPICalled" and data["type"] in ("error", "warning", "assert"):
            self.complaints.append(json.dumps(data["args"]))
        elif method == "Log.entryAdded" and data["entry"]["level"] in ("error", "warning"):
            self.complaints.append(data["entry"]["text"])
        elif method == "Network.requestWillBeSent":
            self.fetched.append(data["request"]["url"])

    def send(self, method: str, **params) -> dict:
        self._count += 1
        number = self._count
        message = {"id": number, "method": method, "params": params}
        if self._session:
            message["sessionId"] = self._session
        os.write(self._out, json.dumps(message).encode() + b"\0")
        until = time.monotonic() + PATIENCE_S
        while True:
            answer = self._message(until)
            if answer.get("id") != number:
                self._note(answer)
            elif "error" in answer:
                raise RuntimeError(f"{method}: {answer['error']['message']}")
            else:
                return answer["result"]

    def evaluate(self, expression: str):
        result = self.send("Runtime.evaluate", expression=expression, returnByValue=True,
                           awaitPromise=True)
        if "exceptionDetails" in result:
            raise RuntimeError(json.dumps(result["exceptionDetails"]))
        return result["result"].get("value")

    def wait_for(self, condition: str):
        """Waits until an expression of the page is true."""
        until = time.monotonic() + PATIENCE_S
        while not self.evaluate(f"Boolean({condition})"):
            if time.monotonic() > until:
                raise TimeoutError(condition)
            time.sleep(0.05)

    def view(self, width: int, height: int, dark: bool = False):
        """The size of the window in CSS pixels, and the theme that the system asks for."""
        self.send("Emulation.setDeviceMetricsOverride", width=width, height=height,
                  deviceScaleFactor=1, mobile=width < 500)
        self.send("Emulation.setEmulatedMedia",
                  features=[{"name": "prefers-color-scheme", "value": "dark" if dark else "light"}])

    def open(self, page: Path):
        """Opens a page and waits until its figures are drawn; what was noted before is forgotten."""
        self.send("Page.navigate", url="about:blank")
        self.complaints.clear()
        self.fetched.clear()
        self.send("Page.navigate", url=page.resolve().as_uri())
        self.wait_for("document.documentElement?.dataset.ready === 'yes'")

    def move(self, x: float, y: float):
        self.send("Input.dispatchMouseEvent", type="mouseMoved", x=x, y=y)

    def screenshot(self, file: Path, selector: str | None = None):
        """A picture of the window, or of all that an element takes, in view or not."""
        params = {"format": "png"}
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
