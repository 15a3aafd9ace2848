# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""Every dialog of the program, opened, looked at and answered."""

import datetime
import http.server
import re
import struct
import threading
import unittest

import harness
from harness import Window, WindowsCase, until, wine

# Places in the settings dialog.
PAGES = {"General": (90, 38), "Add-ons": (90, 74), "Localisation": (90, 110), "Donate": (90, 145), "Info": (90, 181)}
PAGE = (180, 10, 420, 290)
CHECK_NOW, GERMAN, PROGRAM_FOLDER, DATA_FOLDER = (503, 200), (270, 70), (385, 133), (385, 171)
# In the notice.
NEVER_AGAIN = (63, 96)

CONNECTIONS = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Internet Settings\Connections"


class UpdateService:
    """Answers on this machine as a proxy, which also keeps the name of the real service from being resolved."""

    def __init__(self, answer):
        self.requests = []
        service = self

        class Handler(http.server.BaseHTTPRequestHandler):
            def do_POST(self):
                body = self.rfile.read(int(self.headers["Content-Length"]))
                service.requests.append((self.path, body.decode()))
                self.send_response(200)
                self.send_header("Content-Length", str(len(answer)))
                self.end_headers()
                self.wfile.write(answer)

            def log_message(self, *_):
                pass

        self._server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Handler)
        self._thread = threading.Thread(target=self._server.serve_forever, daemon=True)
        self._thread.start()
        self.address = f"127.0.0.1:{self._server.server_port}".encode()

    def stop(self):
        self._server.shutdown()
        self._server.server_close()
        self._thread.join()


class Dialogs(WindowsCase):
    def open_settings(self, window):
        window.click(harness.SETTINGS_BUTTON)
        dialog = Window("Global Settings")
        dialog.until_still()
        return dialog

    def turn_to(self, dialog, page):
        """The picture of the page, once it has faded in."""
        dialog.click(PAGES[page])
        return dialog.until_still(PAGE)

    def close_settings(self, dialog):
        dialog.keys("Escape")
        dialog.until_closed()

    def use_as_proxy(self, address):
        """As the system's own settings for the internet do: a header, flags (2: use the proxy), texts with lengths."""
        data = struct.pack("<III", 0x46, 0, 2) + struct.pack("<I", len(address)) + address + bytes(8)
        value = (CONNECTIONS, "/v", "DefaultConnectionSettings")
        code, text = wine("reg", "add", *value, "/t", "REG_BINARY", "/d", data.hex(), "/f")
        self.assertEqual(code, 0, text)
        self.addCleanup(wine, "reg", "delete", *value, "/f")

    def test_every_page_of_the_settings(self):
        program, window = self.start_settled()
        dialog = self.open_settings(window)
        seen = set()
        for page in PAGES:
            seen.add(self.turn_to(dialog, page))
            self.screenshot(f"settings {page}")
        self.assertEqual(len(seen), len(PAGES), "every page looks different")
        self.close_settings(dialog)
        self.close(program, window)

    def test_folders_are_opened_by_the_shell(self):
        program, window = self.start_settled(traced="exec")
        dialog = self.open_settings(window)
        self.turn_to(dialog, "Info")
        for place in (PROGRAM_FOLDER, DATA_FOLDER):
            there = harness.windows()
            dialog.click(place)
            explorer = Window("Orvanto", besides=there)
            self.screenshot("opened folder")
            explorer.close_until_gone()
        asked = re.findall(r'^SHELL_execute mask=.*? verb=L"(.*?)" file=L"(.*?)" parm=L"(.*?)"',
                           "\n".join(program.calls()), re.M)
        self.assertEqual(asked, [("open", "C:/Orvanto", ""),
                                 ("open", harness.windows_path(self.data).replace("\\", "/"), "")])
        self.close_settings(dialog)
        self.close(program, window)

    def test_language_changes_at_once(self):
        program, window = self.start_settled()
        dialog = self.open_settings(window)
        self.turn_to(dialog, "Localisation")
        dialog.click(GERMAN)
        german = Window("Globale Einstellungen")
        german.until_still()
        self.screenshot("settings in German")
        self.close_settings(german)
        self.close(program, window)
        self.assertEqual(self.settings()["Misc.Language"], "de_DE")

    def test_notice_is_answered(self):
        program, window = self.start_settled(SupportUsHint="true")
        window.close()
        notice = Window("Advice")
        notice.until_still(NEVER_AGAIN + (200, 20))
        self.screenshot("notice")
        notice.click(NEVER_AGAIN)
        notice.keys("Return")
        notice.until_closed()
        self.assertEqual(program.exit_code(), 0)
        self.assertEqual(self.settings()["SupportUsHint"], "false")

    def test_version_check_asks_the_service_through_the_proxy_of_the_system(self):
        service = UpdateService(b"outdated=1\nlatest=2.0.0.0\ndownload=http://127.0.0.1/\nchanges=http://127.0.0.1/\n")
        self.addCleanup(service.stop)
        self.use_as_proxy(service.address)
        program, window = self.start_settled()
        dialog = self.open_settings(window)
        there = harness.windows()
        dialog.click(CHECK_NOW)
        until(lambda: service.requests, "the question")
        ((address, body),) = service.requests
        self.assertEqual(address, "http://update.kavrondel.example/")
        self.assertIn(f"itm_name=orvanto&itm_vers={harness.VERSION}&sys_type=windows&sys_arch=x64&usr_lang=", body)
        box = Window("Orvanto", besides=there)
        box.until_still()
        self.screenshot("version box")
        box.keys("Escape")
        box.until_closed()
        self.close_settings(dialog)
        self.close(program, window)
        self.assertEqual(self.settings()["VersionCheck.Last"], f"{datetime.date.today():%d.%m.%Y}")


if __name__ == "__main__":
    unittest.main()
