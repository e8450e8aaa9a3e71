"""What the tests of the Windows editions share: Wine, a display, and the table of command lines.

scripts/test-windows.sh sets everything up and names it in the environment:
ORVANTA_PACKAGES  the folder with the zip and the installer
ORVANTA_TOOLS     the folder with commandrunner.exe and planted.dll
ORVANTA_DATA      the folder with command-lines.tsv
WINEPREFIX        the folder of this run's Windows, with a Wine in it that has been set up"""

import os
import pathlib
import shutil
import subprocess
import tempfile
import time
import unittest
import zipfile

PACKAGES = pathlib.Path(os.environ["ORVANTA_PACKAGES"])
TOOLS = pathlib.Path(os.environ["ORVANTA_TOOLS"])
DATA = pathlib.Path(os.environ["ORVANTA_DATA"])
WINE = "/usr/lib/wine/wine64"
PATIENCE = 60
HAS_DISPLAY = "DISPLAY" in os.environ

MD5_OF_ABC = "900150983cd24fb0d6963f7d28e17f72"
SHA1_OF_ABC = "a9993e364706816aba3e25717850c26c9cd0d89d"
SETTINGS_OF_A_USED_PROGRAM = """<Settings><IsFirstStart>false</IsFirstStart>
<DisableSplashScreen>true</DisableSplashScreen>%s</Settings>"""


def only(pattern):
    """The one package of this name."""
    found = list(PACKAGES.glob(pattern))
    assert len(found) == 1, found
    return found[0]


def portable_files():
    """Name inside the zip's one folder, and content."""
    with zipfile.ZipFile(only("*-portable.zip")) as archive:
        names = [name for name in archive.namelist() if not name.endswith("/")]
        folders = {name.split("/")[0] for name in names}
        assert len(folders) == 1, folders
        return {name.split("/", 1)[1]: archive.read(name) for name in names}


def unpack(folder):
    """The portable edition in `folder`."""
    for name, content in portable_files().items():
        file = folder / name
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_bytes(content)


def filled_in(text):
    """A cell of the table with its placeholders replaced."""
    for placeholder, value in (("{md5}", MD5_OF_ABC), ("{MD5}", MD5_OF_ABC.upper()), ("{sha1}", SHA1_OF_ABC),
                               ("{SHA1}", SHA1_OF_ABC.upper()), ("{blank}", " "), ("{tab}", "\t")):
        text = text.replace(placeholder, value)
    return text


def command_lines():
    """The rows of the table: name, command line, exit code, box."""
    for line in (DATA / "command-lines.tsv").read_text(encoding="utf-8").split("\n"):
        if line and not line.startswith("#"):
            name, text, code, box = line.split("\t")
            yield name, filled_in(text), int(code), filled_in(box)


def windows_path(path):
    return "Z:" + str(path).replace("/", "\\")


def wait_for(condition, what):
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        value = condition()
        if value:
            return value
        time.sleep(0.05)
    raise AssertionError("waited in vain for " + what)


def wine(*arguments, cwd=None):
    """Runs a program to its end; its exit code (0 to 255) and standard output."""
    done = subprocess.run([WINE, *arguments], cwd=cwd, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, timeout=PATIENCE)
    return done.returncode, done.stdout.decode("utf-8", "replace")


def run_command_lines(lines, cwd):
    """Runs whole command lines as they stand. For each: exit code, text of the box, standard error."""
    runner = subprocess.run([WINE, str(TOOLS / "commandrunner.exe")], cwd=cwd, input="\n".join(lines).encode(),
                            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, timeout=10 * PATIENCE)
    answers = runner.stdout.replace(b"\r", b"").split(b"\n")[:-1]
    results = []
    for line, answer in zip(lines, answers):
        cells = answer.split(b"\t", 2)
        if len(cells) != 3:
            raise AssertionError(f"{line}: {answer!r}")
        results.append((int(cells[0]), cells[1].decode(), cells[2]))
    if len(results) != len(lines):
        raise AssertionError(f"{lines[len(results)]}: no answer")
    return results


def registry(key, value=None):
    """What Windows' registry says: the value (the default one for ""), or whether the key is there."""
    arguments = ["reg", "query", key] + ([] if value is None else ["/ve"] if value == "" else ["/v", value])
    code, output = wine(*arguments)
    if value is None:
        return code == 0
    lines = [line for line in output.splitlines() if "    REG_" in line]
    return lines[0].split("    ", 3)[3].rstrip("\r") if code == 0 and lines else None


def x(*arguments):
    return subprocess.run(arguments, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, timeout=PATIENCE).stdout.decode()


class Desktop:
    """The display as a person sees it and types on it."""

    @staticmethod
    def window(title):
        found = x("xdotool", "search", "--onlyvisible", "--name", "^" + title + "$").split()
        return found[-1] if found else None

    @classmethod
    def wait_for_window(cls, title):
        return wait_for(lambda: cls.window(title), f"the window \"{title}\"")

    @classmethod
    def focus(cls, title):
        """Brings the window to the front. Others may come and go meanwhile, the splash for one."""

        def is_focused():
            window = cls.window(title)
            if window:
                x("xdotool", "windowactivate", window)
                time.sleep(0.1)
            return window if window and x("xdotool", "getactivewindow").strip() == window else None

        return wait_for(is_focused, f"\"{title}\" to be active")

    @staticmethod
    def press(*keys):
        for key in keys:
            x("xdotool", "key", "--clearmodifiers", key)
            time.sleep(0.05)

    @staticmethod
    def type(text):
        x("xdotool", "type", "--clearmodifiers", "--delay", "15", text)

    @classmethod
    def copied_text(cls):
        """What the focused field holds, by way of the clipboard."""
        subprocess.run(["xclip", "-selection", "clipboard"], input=b"", timeout=PATIENCE)
        cls.press("ctrl+a", "ctrl+c")
        return wait_for(lambda: x("xclip", "-selection", "clipboard", "-o"), "a copied text")

    @staticmethod
    def picture(window):
        """The window's pixels, three bytes each."""
        return subprocess.run(["import", "-silent", "-window", window, "-depth", "8", "rgb:-"], stdout=subprocess.PIPE,
                              timeout=PATIENCE).stdout

    @classmethod
    def count_pixels(cls, window, colour):
        """How many pixels of the window have exactly this colour."""
        picture = cls.picture(window)
        return sum(picture[i:i + 3] == bytes(colour) for i in range(0, len(picture), 3))

    @classmethod
    def wait_for_another_picture(cls, window, before):
        """Until the window looks different and has come to rest."""

        def is_another():
            picture = cls.picture(window)
            time.sleep(0.3)
            return picture != before and picture == cls.picture(window)

        wait_for(is_another, "the window to look different")


class Program:
    """A run of orv.exe with its windows, and a command line without quotes and double blanks. Ends with the block."""

    def __init__(self, executable, text, cwd):
        # Wine would put an argument with a blank in it into quotes.
        self.process = subprocess.Popen([WINE, str(executable), *text.split()], cwd=cwd, stdout=subprocess.DEVNULL,
                                        stderr=subprocess.DEVNULL)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        if self.process.poll() is None:
            subprocess.run([WINE, "taskkill", "/f", "/im", "orv.exe"], stdout=subprocess.DEVNULL,
                           stderr=subprocess.DEVNULL, timeout=PATIENCE)
            self.process.wait(PATIENCE)

    def close(self):
        Desktop.focus("Orvanta")
        Desktop.press("alt+F4")
        return self.process.wait(PATIENCE)


class TestCase(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        # A name that needs Unicode and has a blank in it.
        self.place = pathlib.Path(tempfile.mkdtemp()) / "Größe 文件"
        self.place.mkdir()
        self.addCleanup(shutil.rmtree, self.place.parent, ignore_errors=True)

    def write(self, name, content):
        file = self.place / name
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_bytes(content if isinstance(content, bytes) else content.encode())
        return file
