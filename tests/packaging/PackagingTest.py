"""What `cmake --install` and `cpack` make of a build folder: everything where other programs look for it, sound by the
checks of those who read it, free of where it was built.

Usage: PackagingTest.py BUILD SOURCE [UNITTEST ARGUMENTS], where BUILD is built with the window.
"""

import os
import pathlib
import re
import struct
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree

BUILD = pathlib.Path(sys.argv[1]).resolve()
SOURCE = pathlib.Path(sys.argv[2]).resolve()
ID = "org.quilm.Quilm"

PLACES = f"""
bin/quilm
bin/quilm-script
share/applications/{ID}.desktop
share/bash-completion/completions/quilm-script
share/doc/quilm/CHANGELOG.md
share/doc/quilm/LICENSE
share/icons/hicolor/128x128/apps/{ID}.png
share/icons/hicolor/256x256/apps/{ID}.png
share/icons/hicolor/48x48/apps/{ID}.png
share/icons/hicolor/64x64/apps/{ID}.png
share/icons/hicolor/scalable/apps/{ID}.svg
share/man/man1/quilm-script.1
share/man/man1/quilm.1
share/metainfo/{ID}.metainfo.xml
share/mime/packages/{ID}.xml
""".split()


def run(*words, **options):
    result = subprocess.run(words, capture_output=True, text=True, check=False, **options)
    if result.returncode != 0:
        raise AssertionError(f"{' '.join(map(str, words))} failed:\n{result.stdout}{result.stderr}")
    return result.stdout + result.stderr


def files_below(folder):
    return sorted(str(path.relative_to(folder)) for path in folder.rglob("*") if path.is_file())


class InFolder(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        temporary = tempfile.TemporaryDirectory()
        cls.addClassCleanup(temporary.cleanup)
        cls.folder = pathlib.Path(temporary.name)


class Installed(InFolder):
    """The tree is moved after it was installed: what it holds must find its like from where it is."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        run("cmake", "--install", BUILD, "--prefix", cls.folder / "installed")
        cls.tree = (cls.folder / "installed").rename(cls.folder / "moved")
        cls.share = cls.tree / "share"
        cls.desktop_file = cls.share / "applications" / f"{ID}.desktop"
        cls.metainfo = cls.share / "metainfo" / f"{ID}.metainfo.xml"

    def test_everything_is_where_others_look_for_it(self):
        own = "share/quilm/"
        self.assertEqual([path for path in files_below(self.tree) if not path.startswith(own)], PLACES)

    def test_help_and_examples_are_all_there(self):
        help_pages = [path for path in files_below(BUILD / "help") if not path.startswith("pictures.")]
        self.assertEqual(files_below(self.share / "quilm" / "help"), help_pages)
        self.assertEqual(files_below(self.share / "quilm" / "examples"), files_below(SOURCE / "examples"))

    def test_the_moved_program_runs_its_examples(self):
        (self.folder / "out").mkdir()
        example = self.share / "quilm" / "examples" / "first-design.qsc"
        run(self.tree / "bin" / "quilm-script", example, cwd=self.folder)
        self.assertTrue(any((self.folder / "out").iterdir()))

    def test_no_file_tells_where_it_was_built(self):
        places = [str(place).encode(code) for place in (BUILD, SOURCE) for code in ("utf-8", "utf-16-le")]
        for path in files_below(self.tree):
            content = (self.tree / path).read_bytes()
            self.assertFalse(any(place in content for place in places), path)

    def test_the_menu_entry_is_sound(self):
        self.assertEqual(run("desktop-file-validate", self.desktop_file), "")
        entry = dict(line.split("=", 1) for line in self.desktop_file.read_text().splitlines() if "=" in line)
        self.assertEqual(entry["Exec"], "quilm %f")
        self.assertEqual(entry["Categories"], "Science;Engineering;Electronics;")
        self.assertEqual(entry["Icon"], ID)
        self.assertEqual(entry["MimeType"].rstrip(";"), self.mime_type().get("type"))

    def test_the_metainfo_is_sound(self):
        run("appstreamcli", "validate", "--strict", "--no-net", self.metainfo)
        component = xml.etree.ElementTree.parse(self.metainfo).getroot()
        self.assertEqual(component.findtext("id"), ID)
        self.assertEqual(component.findtext("launchable"), self.desktop_file.name)
        version = re.search(r"^project\(quilm VERSION ([\d.]+)", (SOURCE / "CMakeLists.txt").read_text(), re.MULTILINE)
        self.assertEqual(component.find("releases/release").get("version"), version[1])

    def mime_type(self):
        space = "{http://www.freedesktop.org/standards/shared-mime-info}"
        return xml.etree.ElementTree.parse(self.share / "mime" / "packages" / f"{ID}.xml").getroot().find(space + "mime-type")

    def test_a_design_file_is_known_by_its_first_line(self):
        """The magic is compared with what the program writes."""
        space = "{http://www.freedesktop.org/standards/shared-mime-info}"
        magic = self.mime_type().find(f"{space}magic/{space}match")
        script = "press cmdDesignNew\npress optButterworth\npress optCapInLowpass\ntype txtBandwidth 1M\n"
        script += "type txtInputTerm 50\npress cmdPlot\nfile save design.QLM\npress cmdSave\n"
        run(self.tree / "bin" / "quilm-script", input=script, cwd=self.folder)
        start = int(magic.get("offset"))
        design = (self.folder / "design.QLM").read_text()
        self.assertEqual(design[start : start + len(magic.get("value"))], magic.get("value"))
        self.assertIn("*.QLM", [glob.get("pattern") for glob in self.mime_type().findall(space + "glob")])

    def test_icons_have_their_sizes(self):
        icons = self.share / "icons" / "hicolor"
        for size in (48, 64, 128, 256):
            head = (icons / f"{size}x{size}" / "apps" / f"{ID}.png").read_bytes()[:24]
            self.assertEqual(struct.unpack(">8x4x4sII", head), (b"IHDR", size, size))
        drawing = xml.etree.ElementTree.parse(icons / "scalable" / "apps" / f"{ID}.svg").getroot()
        box = [float(word) for word in drawing.get("viewBox").split()]
        self.assertEqual(box[2], box[3])
        self.assertGreater(len(list(drawing.iter())), 3)

    def test_manual_pages_are_sound(self):
        for page in ("quilm", "quilm-script"):
            self.assertEqual(run("mandoc", "-Tlint", "-Wwarning", self.share / "man" / "man1" / f"{page}.1"), "")

    def completed(self, *words):
        file = self.share / "bash-completion" / "completions" / "quilm-script"
        line = f'. {file}; COMP_WORDS=({" ".join(words)}); COMP_CWORD={len(words) - 1}; _quilm_script; echo "${{COMPREPLY[@]}}"'
        return subprocess.run(["bash", "-c", line], cwd=SOURCE / "examples", capture_output=True, text=True).stdout.split()

    def test_the_shell_completes_options_and_scripts(self):
        self.assertEqual(self.completed("quilm-script", "--fo"), ["--folder"])
        self.assertEqual(self.completed("quilm-script", "first"), ["first-design.qsc"])
        self.assertEqual(self.completed("quilm-script", "--folder", "first"), [])


class Packed(InFolder):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.packages = cls.pack("first")

    @classmethod
    def pack(cls, name):
        folder = cls.folder / name
        run("cpack", "--config", BUILD / "CPackConfig.cmake", "-B", folder, cwd=cls.folder,
            env={**os.environ, "SOURCE_DATE_EPOCH": "1700000000"})  # 2023-11-14 22:13
        return {path.name.split("_")[0]: path for path in folder.glob("*.deb")}

    def field(self, package, name):
        return run("dpkg-deb", "--field", self.packages[package], name).strip()

    def test_there_are_two(self):
        self.assertEqual(sorted(self.packages), ["quilm", "quilm-script"])

    def test_what_they_need_is_computed(self):
        self.assertIn("libqt6widgets6 (>= ", self.field("quilm", "Depends"))
        self.assertIn("libstdc++6 (>= ", self.field("quilm-script", "Depends"))
        self.assertNotIn("qt", self.field("quilm-script", "Depends"))

    def test_no_file_is_in_both(self):
        files = [set(run("dpkg-deb", "--contents", path).splitlines()) for path in self.packages.values()]
        both = {line.split()[-1] for line in files[0]} & {line.split()[-1] for line in files[1]}
        self.assertEqual([path for path in both if not path.endswith("/")], [])

    def test_debians_checks_find_nothing(self):
        run("lintian", "--fail-on", "error,warning", "--allow-root", *self.packages.values())

    def test_every_file_bears_the_time_of_the_sources(self):
        for path in self.packages.values():
            lines = run("dpkg-deb", "--contents", path, env={**os.environ, "TZ": "UTC"}).splitlines()
            self.assertEqual({" ".join(line.split()[3:5]) for line in lines}, {"2023-11-14 22:13"})

    def test_a_second_time_gives_the_same_bytes(self):
        for name, path in self.pack("second").items():
            self.assertEqual(path.read_bytes(), self.packages[name].read_bytes(), name)


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], *sys.argv[3:]])
