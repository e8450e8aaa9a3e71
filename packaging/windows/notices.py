#!/usr/bin/env python3
"""Prints the notices of everything that is linked into orv.exe: notices.py QT-SOURCE-FOLDER

The toolkit's own records of its parts (qt_attribution.json) name them; what the compiler adds comes from Debian."""

import json
import pathlib
import sys

# The folders of the toolkit's source whose third-party parts are linked. Those left out serve other platforms, or are
# switched off when the toolkit is built.
QT_FOLDERS = [
    "src/3rdparty/double-conversion", "src/3rdparty/easing", "src/3rdparty/harfbuzz-ng", "src/3rdparty/libpng",
    "src/3rdparty/md4", "src/3rdparty/md5", "src/3rdparty/pcre2", "src/3rdparty/rfc6234", "src/3rdparty/sha1",
    "src/3rdparty/sha3", "src/3rdparty/tinycbor", "src/3rdparty/zlib", "src/corelib/codecs", "src/corelib/io",
    "src/corelib/text", "src/gui/painting",
]
COMPILER = [
    ("MinGW-w64 runtime, winpthreads", "mingw-w64-x86-64-dev"),
    ("GCC runtime (libgcc, libstdc++, libssp)", "gcc-mingw-w64-base"),
]
RULE = "=" * 78


def section(title, *texts):
    print(RULE, title, RULE, "", sep="\n")
    for text in texts:
        if text and text.strip():
            print(text.strip(), end="\n\n")


def attributions(folder):
    # Some records hold line ends inside their texts.
    content = json.loads((folder / "qt_attribution.json").read_text(encoding="utf-8"), strict=False)
    return content if isinstance(content, list) else [content]


def lines(copyright_holders):
    return "\n".join(copyright_holders) if isinstance(copyright_holders, list) else copyright_holders


def main(source):
    section("Third-party notices",
            "Orvanta for Windows is one executable. What is not Orvanta's own in it is listed here with its licence.",
            "Qt is used under the GNU Lesser General Public License, version 3. Orvanta's sources, which are under the "
            "MIT\nlicence, hold the script that builds Qt and links the program to it, so that everybody can link it to "
            "a\nchanged Qt.")
    section("Qt " + source.name.split("-")[-1].split("+")[0] + ", https://www.qt.io",
            "Copyright (C) The Qt Company Ltd. and other contributors.",
            (source / "LICENSE.LGPL3").read_text(encoding="utf-8"), (source / "LICENSE.GPL3").read_text(encoding="utf-8"))
    for name in QT_FOLDERS:
        folder = source / name
        for part in attributions(folder):
            licence = part.get("LicenseFile")
            section(" ".join(filter(None, [part["Name"], part.get("Version"), part.get("Homepage")])),
                    lines(part.get("Copyright")), part["License"],
                    (folder / licence).read_text(encoding="utf-8", errors="replace") if licence else "")
    for name, package in COMPILER:
        section(name, pathlib.Path("/usr/share/doc", package, "copyright").read_text(encoding="utf-8"))


main(pathlib.Path(sys.argv[1]))
