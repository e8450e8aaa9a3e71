"""The installer and its uninstaller, silent."""

import os
import pathlib

from support import (MD5_OF_ABC, SETTINGS_OF_A_USED_PROGRAM, Desktop, Program, TestCase, only, portable_files, registry,
                     run_command_lines, wait_for, windows_path, wine)

DRIVE = pathlib.Path(os.environ["WINEPREFIX"]) / "drive_c"
UNINSTALL = r"\Software\Microsoft\Windows\CurrentVersion\Uninstall\Orvanta"
VERB = r"\Software\Classes\*\shell\Orvanta"


def unix_path(path):
    """Of a path on C:, as the system gives it."""
    return DRIVE / path.strip("\"").removeprefix("C:\\").replace("\\", "/")


def all_files(folder):
    return {str(file.relative_to(folder)) for file in folder.rglob("*") if file.is_file()}


class Installer(TestCase):
    def setUp(self):
        super().setUp()
        [name] = [name for name in os.listdir(DRIVE / "users") if name != "Public"]
        self.user = DRIVE / "users" / name
        self.menu = self.user / "AppData/Roaming/Microsoft/Windows/Start Menu/Programs/Orvanta.lnk"
        self.common_menu = DRIVE / "ProgramData/Microsoft/Windows/Start Menu/Programs/Orvanta.lnk"
        self.before = all_files(DRIVE)
        self.addCleanup(self.remove_what_is_left)

    def install(self, options=""):
        return wine(str(only("*-setup.exe")), "/S", *options.split())[0]

    def uninstall(self, root):
        """As Windows does it, by the command in the registry. The uninstaller goes on in a process of its own."""
        command = registry(root + UNINSTALL, "QuietUninstallString")
        [(code, _, _)] = run_command_lines([command], self.place)
        self.assertEqual(code, 0)
        wait_for(lambda: not registry(root + UNINSTALL), "the uninstaller to end")

    def remove_what_is_left(self):
        for root in ("HKCU", "HKLM"):
            wine("reg", "delete", root + VERB, "/f")
            wine("reg", "delete", root + UNINSTALL, "/f")
        for name in self.new_files():
            (DRIVE / name).unlink()

    def write_settings(self):
        settings = self.user / "AppData/Roaming/Kelvory/Orvanta/config/global.xml"
        settings.parent.mkdir(parents=True, exist_ok=True)
        settings.write_text(SETTINGS_OF_A_USED_PROGRAM % "")
        return settings

    def assert_nothing_is_left(self, root):
        self.assertEqual(self.new_files(), set())
        self.assertFalse(registry(root + VERB))
        self.assertFalse(registry(root + UNINSTALL))

    def new_files(self):
        """What stands on the disk and did not before, but for what Windows itself writes meanwhile."""
        return {name for name in all_files(DRIVE) - self.before if not name.startswith("windows/")
                and "/Temp/" not in name}

    def test_it_installs_for_the_user_and_uninstalls(self):
        self.assertEqual(self.install(), 0)
        folder = self.user / "AppData/Local/Programs/Orvanta"
        files = portable_files()
        self.assertEqual(all_files(folder), set(files) - {"portable"} | {"uninstall.exe"})
        for name in set(files) - {"portable"}:
            self.assertEqual((folder / name).read_bytes(), files[name], name)
        self.assertTrue(self.menu.exists())
        location = registry("HKCU" + UNINSTALL, "InstallLocation")
        self.assertEqual(unix_path(location), folder)
        self.assertEqual(registry("HKCU" + UNINSTALL, "DisplayVersion"), "1.1.6.2")
        self.assertEqual(registry("HKCU" + UNINSTALL, "UninstallString"), f"\"{location}\\uninstall.exe\" /CurrentUser")
        self.assertFalse(registry("HKLM" + UNINSTALL))
        # Without quotes around %1.
        self.assertEqual(registry("HKCU" + VERB + "\\command", ""), f"\"{location}\\orv.exe\" %1")
        self.assertEqual(registry("HKCU" + VERB, ""), "Check with Orvanta")

        self.write("sample.bin", "abc")
        self.assertEqual(run_command_lines([f"\"{location}\\orv.exe\" /a md5 /c {MD5_OF_ABC} /f sample.bin"],
                                           self.place)[0][0], 0)

        # What the user has put there stays, and only that.
        (folder / "notes.txt").write_text("mine")
        (folder / "locale" / "mine.qm").write_text("mine")
        self.uninstall("HKCU")
        wait_for(lambda: not (folder / "orv.exe").exists(), "the program to go")
        self.assertEqual(all_files(folder), {"notes.txt", "locale/mine.qm"})
        (folder / "notes.txt").unlink()
        (folder / "locale" / "mine.qm").unlink()
        self.assert_nothing_is_left("HKCU")

    def test_it_installs_for_all_users_where_told_and_without_the_verb(self):
        self.assertEqual(self.install("/AllUsers /VERB=0 /D=C:\\Some Programs\\Orvanta here"), 0)
        folder = DRIVE / "Some Programs/Orvanta here"
        self.assertTrue((folder / "orv.exe").exists())
        self.assertTrue(self.common_menu.exists())
        self.assertFalse(self.menu.exists())
        self.assertTrue(registry("HKLM" + UNINSTALL))
        self.assertFalse(registry("HKLM" + VERB))
        self.assertFalse(registry("HKCU" + VERB))
        self.uninstall("HKLM")
        wait_for(lambda: not folder.exists(), "the folder to go")
        self.assert_nothing_is_left("HKLM")

    def test_the_verb_opens_a_file_with_blanks_in_its_name(self):
        self.assertEqual(self.install(), 0)
        settings = self.write_settings()
        file = self.write("two words.bin", "abc")
        command = registry("HKCU" + VERB + "\\command", "")
        program = unix_path(command.split("\" ")[0])
        text = command.split("\" ")[1].replace("%1", windows_path(file))
        with Program(program, text, cwd=self.place) as run:
            Desktop.focus("Orvanta")
            Desktop.press("Tab")
            self.assertEqual(Desktop.copied_text(), windows_path(file))
            self.assertEqual(run.close(), 0)
        self.uninstall("HKCU")
        wait_for(lambda: not program.parent.exists(), "the folder to go")
        # The settings are the user's.
        self.assertTrue(settings.exists())
        settings.unlink()
        self.assert_nothing_is_left("HKCU")

    def test_another_programs_verb_of_this_name_stays(self):
        self.assertEqual(self.install("/VERB=0"), 0)
        wine("reg", "add", "HKCU" + VERB + "\\command", "/ve", "/d", "another.exe %1", "/f")
        self.uninstall("HKCU")
        self.assertEqual(registry("HKCU" + VERB + "\\command", ""), "another.exe %1")

    def test_a_running_program_is_not_replaced(self):
        self.assertEqual(self.install("/VERB=0"), 0)
        program = unix_path(registry("HKCU" + UNINSTALL, "InstallLocation")) / "orv.exe"
        settings = self.write_settings()
        with Program(program, "", cwd=self.place) as run:
            Desktop.focus("Orvanta")
            self.assertEqual(self.install(), 2)
            self.assertEqual(run.close(), 0)
        self.assertEqual(self.install("/VERB=0"), 0)
        self.uninstall("HKCU")
        wait_for(lambda: not program.parent.exists(), "the folder to go")
        settings.unlink()
        self.assert_nothing_is_left("HKCU")
