"""What is in the packages, and what the executable tells Windows of itself. Nothing is run."""

import re
import struct
import unittest
import xml.etree.ElementTree

import pefile

from support import only, portable_files

CODES = ["de_DE", "es_ES", "fr_FR", "it_IT", "ja_JP", "nl_NL", "pl_PL", "pt_BR", "ru_RU", "zh_CN"]

# Windows takes these from its own folder whatever lies beside a program (its "known DLLs"). Nothing else may be needed
# for the program to start.
KNOWN_LIBRARIES = {"advapi32.dll", "comdlg32.dll", "gdi32.dll", "imm32.dll", "kernel32.dll", "msvcrt.dll", "ole32.dll",
                   "oleaut32.dll", "shell32.dll", "user32.dll", "ws2_32.dll"}
ASM = "{urn:schemas-microsoft-com:asm.v%d}"


class Executable(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.content = portable_files()["orv.exe"]
        cls.pe = pefile.PE(data=cls.content)

    def resource(self, kind):
        """The contents of all resources of this kind."""
        found = []
        for entry in self.pe.DIRECTORY_ENTRY_RESOURCE.entries:
            if entry.id == pefile.RESOURCE_TYPE[kind]:
                for item in entry.directory.entries:
                    data = item.directory.entries[0].data.struct
                    found.append(self.pe.get_data(data.OffsetToData, data.Size))
        return found

    def test_it_is_a_64_bit_program_with_windows(self):
        self.assertEqual(self.pe.FILE_HEADER.Machine, pefile.MACHINE_TYPE["IMAGE_FILE_MACHINE_AMD64"])
        self.assertEqual(self.pe.OPTIONAL_HEADER.Subsystem, pefile.SUBSYSTEM_TYPE["IMAGE_SUBSYSTEM_WINDOWS_GUI"])

    def test_it_starts_with_nothing_but_known_libraries(self):
        imported = {entry.dll.decode().lower() for entry in self.pe.DIRECTORY_ENTRY_IMPORT}
        self.assertEqual(imported - KNOWN_LIBRARIES, set())

    def test_it_is_hardened(self):
        header = self.pe.OPTIONAL_HEADER
        self.assertTrue(header.IMAGE_DLLCHARACTERISTICS_HIGH_ENTROPY_VA)
        self.assertTrue(header.IMAGE_DLLCHARACTERISTICS_DYNAMIC_BASE)
        self.assertTrue(header.IMAGE_DLLCHARACTERISTICS_NX_COMPAT)
        # Without its relocations it could not be moved, whatever the flag says.
        self.assertFalse(self.pe.FILE_HEADER.IMAGE_FILE_RELOCS_STRIPPED)
        self.assertGreater(len(self.pe.DIRECTORY_ENTRY_BASERELOC), 10)
        for section in self.pe.sections:
            self.assertFalse(section.IMAGE_SCN_MEM_WRITE and section.IMAGE_SCN_MEM_EXECUTE, section.Name)
        self.assertIn(b"stack smashing detected", self.content)

    def test_its_version_is_told(self):
        fixed = self.pe.VS_FIXEDFILEINFO[0]
        for high, low in ((fixed.FileVersionMS, fixed.FileVersionLS), (fixed.ProductVersionMS, fixed.ProductVersionLS)):
            self.assertEqual(struct.unpack(">4H", struct.pack(">2I", high, low)), (1, 1, 6, 2))
        [table] = [info.StringTable[0] for info in self.pe.FileInfo[0] if hasattr(info, "StringTable")]
        self.assertEqual({key.decode(): value.decode() for key, value in table.entries.items()}, {
            "CompanyName": "Kelvory", "FileDescription": "Orvanta", "FileVersion": "1.1.6.2", "InternalName": "orv",
            "LegalCopyright": "Copyright (c) 2026 Kelvory", "OriginalFilename": "orv.exe", "ProductName": "Orvanta",
            "ProductVersion": "1.1.6.2"})

    def test_its_icon_has_every_size(self):
        [group] = self.resource("RT_GROUP_ICON")
        count = struct.unpack_from("<3H", group)[2]
        widths = [struct.unpack_from("<B", group, 6 + 14 * i)[0] or 256 for i in range(count)]
        self.assertEqual(sorted(widths), [16, 24, 32, 48, 64, 256])
        self.assertEqual(len(self.resource("RT_ICON")), count)

    def test_its_manifest_asks_for_what_it_needs(self):
        [text] = self.resource("RT_MANIFEST")
        root = xml.etree.ElementTree.fromstring(text)

        def named(name):
            return [element for element in root.iter() if element.tag.split("}")[1] == name]

        [level] = named("requestedExecutionLevel")
        self.assertEqual(level.get("level"), "asInvoker")
        self.assertEqual(level.get("uiAccess"), "false")
        self.assertEqual([element.text for element in named("longPathAware")], ["true"])
        self.assertEqual([element.text for element in named("dpiAware")], ["true/pm"])
        self.assertEqual([element.text for element in named("dpiAwareness")], ["PerMonitor"])
        self.assertEqual(len(named("supportedOS")), 4)
        self.assertIn("{8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a}", [element.get("Id") for element in named("supportedOS")])
        [controls] = [element for element in named("assemblyIdentity") if "Common-Controls" in element.get("name")]
        self.assertEqual(controls.get("version"), "6.0.0.0")
        self.assertEqual(root.find((ASM % 1) + "assemblyIdentity").get("version"), "1.1.6.2")

    def test_it_does_not_tell_where_it_was_built(self):
        # The toolkit's own idea of its place is the same on every machine.
        for found in re.findall(rb"[\x20-\x7e]*(?:/home/|/root/|/tmp/|/work/|/\.cache)[\x20-\x7e]*", self.content):
            self.fail(found)
        self.assertEqual(self.pe.FILE_HEADER.TimeDateStamp, 0)


class Packages(unittest.TestCase):
    def test_the_zip_holds_the_program_its_languages_and_the_marker(self):
        names = {"orv.exe", "portable", "license.txt", "third-party-notices.txt"}
        for code in CODES:
            names |= {f"locale/orvanta-{code}.qm", f"locale/{code}.png", f"locale/{code}@2x.png"}
        self.assertEqual(set(portable_files()), names)

    def test_the_notices_name_what_is_linked(self):
        notices = portable_files()["third-party-notices.txt"].decode()
        for name in ("Qt 5.15", "GNU LESSER GENERAL PUBLIC LICENSE", "PCRE2", "LibPNG", "zlib", "HarfBuzz",
                     "MinGW-w64", "GCC runtime"):
            self.assertIn(name, notices)

    def test_the_installer_is_a_64_bit_program_of_this_version(self):
        pe = pefile.PE(str(only("*-setup.exe")))
        self.assertEqual(pe.FILE_HEADER.Machine, pefile.MACHINE_TYPE["IMAGE_FILE_MACHINE_AMD64"])
        fixed = pe.VS_FIXEDFILEINFO[0]
        self.assertEqual(struct.unpack(">4H", struct.pack(">2I", fixed.FileVersionMS, fixed.FileVersionLS)), (1, 1, 6, 2))
