"""The executable as a script sees it: exit codes, boxes, standard error. Runs without a display and with one."""

import os
import subprocess
import unittest

from support import (HAS_DISPLAY, MD5_OF_ABC, PATIENCE, WINE, TestCase, command_lines, run_command_lines, unpack,
                     windows_path)

RULE = "---------------------------\\n"
# What cmd or "start" would take for its own.
CMD_CHARACTERS = set("\"%&<>|^\t")


def box(text):
    """A box as its text is copied."""
    return RULE + "Command Line Interface\\n" + RULE + text.replace("\t", "\\t") + "\\n" + RULE + "OK   \\n" + RULE


def expected_box(line, kind):
    if kind == "none":
        return ""
    if kind == "usage":
        return box(f"<p>Error in arguments</b>: '{line}'</p><b>Usage:</b><br/><em>start /wait orv.exe /a ALGORITHM /c "
                   "CHECKSUM /f FILE</em><br/>Error Level: Valid=0 | Invalid=1 | Error=-1")
    return box(f"File '{kind}' not found.")


def expected_error(line, kind):
    if kind == "none":
        return ""
    if kind == "usage":
        line = line.replace("\t", "\\t")
        return (f"Error in arguments: '{line}'\\nUsage:\\nstart /wait orv.exe /a ALGORITHM /c CHECKSUM /f FILE\\n"
                "Error Level: Valid=0 | Invalid=1 | Error=-1\\n")
    return f"File '{kind}' not found.\\n".replace("\t", "\\t")


class CommandLines(TestCase):
    def setUp(self):
        super().setUp()
        unpack(self.place)
        for name in ("sample.bin", "two words.bin", "größe-文件.bin", "-style", "secret.bin"):
            self.write(name, "abc")
        os.chmod(self.place / "secret.bin", 0)
        (self.place / "folder").mkdir()

    def assert_rows(self, rows, prefix):
        self.assertGreater(len(rows), 40)
        results = run_command_lines([prefix + line for _, line, _, _ in rows], self.place)
        for (name, line, code, kind), (seen_code, seen_box, seen_error) in zip(rows, results):
            with self.subTest(name, line=line):
                self.assertEqual(seen_code, code)
                self.assertEqual(seen_box, expected_box(line, kind) if HAS_DISPLAY else "")
                if not HAS_DISPLAY:
                    # In the machine's code page, which need not have every letter.
                    self.assertEqual(seen_error.decode("cp1252"),
                                     expected_error(line, kind).encode("cp1252", "replace").decode("cp1252"))

    # Blanks in front never reach a program on Windows.
    def reaching_rows(self):
        return [row for row in command_lines() if not row[1].startswith(" ")]

    def test_every_command_line_has_its_code_and_box(self):
        self.assert_rows(self.reaching_rows(), "orv.exe ")

    @unittest.skipUnless(HAS_DISPLAY, "what is started with \"start\" has a standard error of its own")
    def test_every_command_line_has_its_code_through_start_wait(self):
        rows = [row for row in self.reaching_rows() if not CMD_CHARACTERS & set(row[1]) and not row[1].endswith(" ")]
        self.assert_rows(rows, "cmd /c start /wait orv.exe ")

    def codes(self, *lines):
        return [code for code, box, _ in run_command_lines(lines, self.place) if box == ""]

    def test_blanks_before_the_text_are_skipped(self):
        text = f"/a md5 /c {MD5_OF_ABC} /f sample.bin"
        self.assertEqual(self.codes(f"orv.exe   \t {text}", f"\"orv.exe\" {text}"), [0, 0])

    def test_the_program_name_may_be_quoted_and_hold_blanks(self):
        program = windows_path(self.place / "orv.exe")
        self.assertIn(" ", program)
        self.assertEqual(self.codes(f"\"{program}\" /a md5 /c {MD5_OF_ABC} /f two words.bin"), [0])

    def test_paths_longer_than_260_characters_are_opened(self):
        folder = "\\".join(["a-folder-with-a-name-of-forty-characters"] * 7)
        file = self.write(folder.replace("\\", "/") + "/sample.bin", "abc")
        self.assertGreater(len(folder), 260)
        self.assertEqual(self.codes(f"orv.exe /a md5 /c {MD5_OF_ABC} /f {folder}\\sample.bin",
                                    f"orv.exe /a md5 /c {MD5_OF_ABC} /f {windows_path(file)}"), [0, 0])

    def test_what_is_no_file_is_an_error_at_once(self):
        empty = "d41d8cd98f00b204e9800998ecf8427e"
        for name in ("NUL", "CON", "CONIN$", "COM1", "\\\\.\\pipe\\none"):
            [(code, _, _)] = run_command_lines([f"orv.exe /a md5 /c {empty} /f {name}"], self.place)
            self.assertEqual(code, -1, name)

    def test_no_plugin_is_looked_for_beside_it(self):
        trace = self.place.parent / "trace"
        self.write("qt.conf", "[Paths]\nPlugins = elsewhere\n")
        for folder in ("platforms", "styles", "elsewhere/platforms", "elsewhere/styles"):
            self.write(folder + "/planted.dll", "")
        subprocess.run(["strace", "-f", "-e", "trace=file", "-o", str(trace), WINE, str(self.place / "orv.exe"), "/a", "md5",
                        "/c", "0", "/f", "sample.bin"], cwd=self.place, stdout=subprocess.DEVNULL,
                       stderr=subprocess.DEVNULL, timeout=PATIENCE)
        asked = trace.read_text(errors="replace").lower()
        self.assertIn("sample.bin", asked)
        for name in ("qt.conf", "planted.dll", "elsewhere", "/platforms", "/styles", "/imageformats"):
            self.assertNotIn(name, asked)

    def test_every_run_saves_settings_without_a_name_where_it_stands(self):
        self.assertEqual(self.codes("orv.exe /a md5 /c 0 /f sample.bin"), [1])
        self.assertEqual([file.name for file in (self.place / "config").iterdir()], [".xml"])
        # No version has been set by then, but here the toolkit knows that of the executable.
        self.assertEqual((self.place / "config" / ".xml").read_bytes(),
                         b"<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<Settings version=\"1.1.6.2\"/>\n")

    @unittest.skipUnless(HAS_DISPLAY, "a window run ends before it comes to that")
    def test_a_portable_folder_that_cannot_be_written_is_an_error(self):
        text = ("Error Type: You must have write permission to the application directory for portable use.\n\n"
                "If you need help, please contact us at: support@kelvory.example")
        start = self.write("elsewhere/orv.txt", "").parent
        os.chmod(self.place, 0o555)
        try:
            [(code, box, error)] = run_command_lines([f"\"{windows_path(self.place / 'orv.exe')}\""], start)
        finally:
            os.chmod(self.place, 0o755)
        text = text.replace("\n", "\\n")
        self.assertEqual(code, -1)
        self.assertEqual(sorted(filter(None, box.split("|"))),
                         sorted(["We are sorry, but an error has occurred", text, "OK"]))
        self.assertIn(text, error.decode())

    @unittest.skipIf(HAS_DISPLAY, "there is one")
    def test_a_window_without_a_display_is_an_error(self):
        for line in ("orv.exe", "orv.exe sample.bin"):
            [(code, box, error)] = run_command_lines([line], self.place)
            self.assertEqual((code, box), (-1, ""))
            self.assertTrue(error.startswith(b"orv: no display to open a window on."), error)
