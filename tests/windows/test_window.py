"""The program with its windows, as a person uses it: the keyboard, the clipboard, and eyes for colours."""

import http.server
import os
import pathlib
import shutil
import struct
import threading
import xml.etree.ElementTree

from support import (MD5_OF_ABC, SETTINGS_OF_A_USED_PROGRAM, TOOLS, Desktop, Program, TestCase, unpack, wait_for, wine,
                     windows_path)

GREEN = (0x33, 0xaa, 0x33)
RED = (0xaa, 0x33, 0x33)
# What the toolkit and the system load while a window is open, by name. (Wine itself would take the libraries that a
# program is linked to from beside it; Windows does not, and the program is linked to none but those.)
LIBRARIES_TO_PLANT = ["dwmapi", "iphlpapi", "netapi32", "userenv", "version", "winmm", "wtsapi32", "uxtheme", "dwrite",
                      "wintab32", "d3d9", "dxgi", "propsys", "qwindows", "platforms/qwindows",
                      "styles/qwindowsvistastyle", "imageformats/qico", "plugins/platforms/qwindows", "bearer/qgenericbearer"]


class UpdateServer(http.server.BaseHTTPRequestHandler):
    """Stands where the machine's settings say that its proxy is, and so gets every request whole."""

    requests = []

    def do_GET(self):
        self.requests.append(self.path)
        body = b"version|1.1.6.3#changes|Fixes#log|http://log.example/#url|http://get.example/"
        self.send_response(200)
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)

    def log_message(self, *_):
        pass


class Window(TestCase):
    def setUp(self):
        super().setUp()
        unpack(self.place)
        self.program = self.place / "orv.exe"

    def write_settings(self, more=""):
        self.write("config/global.xml", SETTINGS_OF_A_USED_PROGRAM % more)

    def saved(self, name, folder=None):
        root = xml.etree.ElementTree.parse((folder or self.place) / "config/global.xml").getroot()
        return root.findtext(name)

    def start(self, text=""):
        return Program(self.program, text, cwd=self.place)

    def test_the_first_start_greets_and_keeps_everything_beside_the_program(self):
        with self.start() as program:
            window = Desktop.focus("Orvanta")
            languages = Desktop.picture(window)
            Desktop.press("Escape")  # is refused
            Desktop.press("Return")
            Desktop.wait_for_another_picture(window, languages)
            Desktop.press("Return")
            wait_for(lambda: Desktop.window("Orvanta") not in (None, window), "the main window")
            self.assertEqual(program.close(), 0)
        self.assertEqual(self.saved("IsFirstStart"), "false")
        self.assertEqual(self.saved("Language"), "en_UK")
        self.assertFalse((self.place / "writable").exists())

    def test_a_file_on_the_command_line_is_checked(self):
        self.write_settings()
        self.write("two words.bin", "abc")
        with self.start("two words.bin") as program:
            window = Desktop.focus("Orvanta")
            Desktop.press("Tab")
            self.assertEqual(Desktop.copied_text(), windows_path(self.place / "two words.bin"))
            Desktop.press("Tab", "Tab")
            Desktop.type(MD5_OF_ABC.upper())
            wait_for(lambda: Desktop.count_pixels(window, GREEN), "VALID")
            self.assertEqual(Desktop.count_pixels(window, RED), 0)
            Desktop.press("BackSpace")
            wait_for(lambda: Desktop.count_pixels(window, RED), "INVALID")
            self.assertEqual(Desktop.count_pixels(window, GREEN), 0)
            self.assertEqual(program.close(), 0)

    def test_a_file_with_a_path_longer_than_260_characters_is_checked(self):
        self.write_settings()
        file = self.write("/".join(["a-folder-with-a-name-of-forty-characters"] * 7) + "/sample.bin", "abc")
        with self.start(windows_path(file)) as program:
            window = Desktop.focus("Orvanta")
            Desktop.press("Tab", "Tab", "Tab")
            Desktop.type(MD5_OF_ABC)
            wait_for(lambda: Desktop.count_pixels(window, GREEN), "VALID")
            self.assertEqual(program.close(), 0)

    def test_the_language_is_switched_in_the_options(self):
        self.write_settings()
        with self.start() as program:
            Desktop.focus("Orvanta")
            Desktop.press(*["Tab"] * 5, "space")
            Desktop.focus("Settings")
            Desktop.press("Down", "Tab", "Home")
            Desktop.wait_for_window("设置")  # sorted, zh_CN comes first
            Desktop.press("End")
            Desktop.wait_for_window("Einstellungen")
            Desktop.press("Escape")
            wait_for(lambda: not Desktop.window("Einstellungen"), "the options to close")
            Desktop.focus("Orvanta")
            Desktop.press("shift+Tab", "shift+Tab", "shift+Tab", "space")
            Desktop.wait_for_window("Zieldatei auswählen")
            Desktop.press("Escape")
            wait_for(lambda: not Desktop.window("Zieldatei auswählen"), "the choice of a file to close")
            self.assertEqual(program.close(), 0)
        self.assertEqual(self.saved("Language"), "de_DE")

    def test_check_now_asks_the_server(self):
        UpdateServer.requests.clear()
        server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), UpdateServer)
        threading.Thread(target=server.serve_forever, daemon=True).start()
        self.addCleanup(server.server_close)
        self.addCleanup(server.shutdown)
        # Version, count, "by a proxy", the proxy and its length, no exceptions, no script.
        proxy = f"127.0.0.1:{server.server_port}".encode()
        setting = struct.pack("<4I", 0x46, 1, 3, len(proxy)) + proxy + struct.pack("<2I", 0, 0) + bytes(32)
        network = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Internet Settings\Connections"
        name = "DefaultConnectionSettings"
        wine("reg", "add", network, "/v", name, "/t", "REG_BINARY", "/d", setting.hex(), "/f")
        self.addCleanup(wine, "reg", "delete", network, "/v", name, "/f")

        self.write_settings()
        with self.start() as program:
            Desktop.focus("Orvanta")
            Desktop.press(*["Tab"] * 5, "space")
            Desktop.focus("Settings")
            Desktop.press(*["Tab"] * 5, "space")
            Desktop.focus("BrimTale 1.1.6.2")
            Desktop.press("Escape")
            wait_for(lambda: not Desktop.window("BrimTale 1.1.6.2"), "the box to close")
            Desktop.focus("Settings")
            Desktop.press("Escape")
            wait_for(lambda: not Desktop.window("Settings"), "the options to close")
            self.assertEqual(program.close(), 0)
        self.assertEqual(UpdateServer.requests,
                         ["http://update.kelvory.example/latest.php?id=orvanta&version=1.1.6.2&fresh=0&lang=en_US&beta=1"
                          "&arch=64"])

    def test_an_installed_program_keeps_its_settings_where_windows_says(self):
        (self.place / "portable").unlink()  # without the marker it is an installed one
        folders = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Explorer\User Shell Folders"
        before = wine("reg", "query", folders, "/v", "AppData")[1]
        elsewhere = pathlib.Path(os.environ["WINEPREFIX"]) / "drive_c" / "Größe 文件" / "Roaming"
        wine("reg", "add", folders, "/v", "AppData", "/d", "C:\\Größe 文件\\Roaming", "/f")
        self.addCleanup(shutil.rmtree, elsewhere.parent, ignore_errors=True)
        self.addCleanup(wine, "reg", "add", folders, "/v", "AppData", "/t", "REG_EXPAND_SZ", "/d",
                        r"%USERPROFILE%\AppData\Roaming", "/f")
        self.assertIn(r"%USERPROFILE%\AppData\Roaming", before)

        settings = elsewhere / "Kelvory/Orvanta/config/global.xml"
        settings.parent.mkdir(parents=True)
        settings.write_text(SETTINGS_OF_A_USED_PROGRAM % "")
        with self.start() as program:
            self.assertEqual(program.close(), 0)
        self.assertEqual(self.saved("VersionCheck/Auto", elsewhere / "Kelvory/Orvanta"), "true")
        self.assertFalse((self.place / "config").exists())

    def test_nothing_that_lies_beside_the_program_is_loaded(self):
        self.write_settings()
        for name in LIBRARIES_TO_PLANT:
            (self.place / name).parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(TOOLS / "planted.dll", self.place / (name + ".dll"))
        with self.start() as program:
            Desktop.focus("Orvanta")
            Desktop.press(*["Tab"] * 2, "space")
            Desktop.wait_for_window("Select target file")
            Desktop.press("Escape")
            wait_for(lambda: not Desktop.window("Select target file"), "the choice of a file to close")
            self.assertEqual(program.close(), 0)
        self.assertEqual([str(file) for file in self.place.rglob("*.loaded")], [])

    def test_the_planted_library_would_say_that_it_is_loaded(self):
        library = self.place / "planted.dll"
        shutil.copy(TOOLS / "planted.dll", library)
        wine("rundll32", windows_path(library) + ",nothing")
        self.assertTrue((self.place / "planted.dll.loaded").exists())
