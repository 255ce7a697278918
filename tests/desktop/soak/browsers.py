# SPDX-License-Identifier: MIT
"""Browsers with a page that reports what its field holds."""

from http.server import BaseHTTPRequestHandler, ThreadingHTTPServer
from pathlib import Path
from threading import Thread

from harness.session import Session
from harness.waiting import wait_until

from .programs import Program

_PAGE = b"""<!DOCTYPE html>
<meta charset="utf-8"><title>Field</title>
<textarea rows="20" cols="60" autofocus></textarea>
<script>
const field = document.querySelector("textarea");
let reported = Promise.resolve();
function report() {
    const text = field.value;
    reported = reported.then(() => fetch("/", {method: "POST", body: text}));
}
field.addEventListener("input", report);
// Before the first frame is on the screen a browser may drop keys.
function announce() { requestAnimationFrame(() => requestAnimationFrame(report)); }
window.addEventListener("focus", announce);
field.focus();
if (document.hasFocus()) announce();
</script>
"""

_FIREFOX_SETTINGS = {
    "browser.shell.checkDefaultBrowser": "false",
    "browser.aboutwelcome.enabled": "false",
    "browser.startup.homepage_override.mstone": '"ignore"',
    "browser.tabs.warnOnClose": "false",
    "datareporting.policy.dataSubmissionEnabled": "false",
    "toolkit.telemetry.reportingpolicy.firstRun": "false",
    "network.captive-portal-service.enabled": "false",
    "network.connectivity-service.enabled": "false",
    "browser.safebrowsing.malware.enabled": "false",
    "browser.safebrowsing.phishing.enabled": "false",
    "app.normandy.enabled": "false",
    "extensions.update.enabled": "false",
}


class _Page:
    """A server of one page, on this machine only."""

    def __init__(self) -> None:
        self.text: str | None = None
        page = self

        class Handler(BaseHTTPRequestHandler):
            """Gives the page out and takes its reports."""

            def do_GET(self) -> None:
                self._answer(_PAGE if self.path == "/" else b"")

            def do_POST(self) -> None:
                page.text = self.rfile.read(int(self.headers["Content-Length"])).decode()
                self._answer(b"")

            def log_message(self, *_: object) -> None:
                pass

            def _answer(self, content: bytes) -> None:
                self.send_response(200)
                self.send_header("Content-Type", "text/html")
                self.send_header("Content-Length", str(len(content)))
                self.end_headers()
                self.wfile.write(content)

        self._server = ThreadingHTTPServer(("127.0.0.1", 0), Handler)
        self.address = f"http://127.0.0.1:{self._server.server_port}/"
        Thread(target=self._server.serve_forever, daemon=True).start()

    def close(self) -> None:
        """Ends the server."""
        self._server.shutdown()
        self._server.server_close()


class Browser(Program):
    """A browser whose page is open and has the focus in its field."""

    def __init__(self, session: Session, command: list[str], window_class: str) -> None:
        self._page = _Page()
        super().__init__(session, [*command, self._page.address], window_class)
        self.focus()
        wait_until(lambda: self._page.text is not None, "the page's field", seconds=90)

    def text(self) -> str | None:
        return self._page.text

    def stop(self) -> None:
        super().stop()
        self._page.close()


def chromium(session: Session) -> Program:
    """Chromium with a profile of its own."""
    return Browser(
        session,
        ["chromium", "--no-sandbox", "--no-first-run", "--no-default-browser-check"]
        + ["--disable-gpu", "--disable-dev-shm-usage", "--disable-background-networking"]
        + ["--disable-component-update", "--password-store=basic"]
        + [f"--user-data-dir={session.directory('chromium')}"],
        "chromium",
    )


def firefox(session: Session) -> Program:
    """Firefox ESR with a profile of its own."""
    profile: Path = session.directory("firefox")
    lines = (f'user_pref("{name}", {value});' for name, value in _FIREFOX_SETTINGS.items())
    (profile / "user.js").write_text("\n".join(lines) + "\n")
    return Browser(
        session, ["firefox-esr", "--no-remote", "--profile", str(profile)], "firefox"
    )
