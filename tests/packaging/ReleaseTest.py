"""What a release writes into the project's files, and when there is none."""

import importlib.machinery
import importlib.util
import pathlib
import unittest
import xml.etree.ElementTree

ROOT = pathlib.Path(__file__).resolve().parents[2]
LOADER = importlib.machinery.SourceFileLoader("release", str(ROOT / "tools" / "release"))
release = importlib.util.module_from_spec(importlib.util.spec_from_loader("release", LOADER))
LOADER.exec_module(release)

CHANGELOG = """# Changelog

## Unreleased

Coils & more,
at last.

- Toroids.
- Air cores, `R < 1`.

## 0.1.0 (2026-01-02)

- The first.
"""

METAINFO = """<component>
  <releases>
    <release version="0.2.0" date="2026-03-01" type="development"/>
    <release version="0.1.0" date="2026-01-02"></release>
  </releases>
</component>
"""


class Release(unittest.TestCase):
    def test_the_changelogs_news_get_a_heading_and_room_for_the_next(self):
        changed = release.changelog_of(CHANGELOG, "0.2.0", "2026-04-05")
        self.assertIn("## Unreleased\n\n## 0.2.0 (2026-04-05)\n\nCoils & more,\nat last.\n\n- Toroids.\n", changed)
        self.assertTrue(changed.endswith(CHANGELOG[CHANGELOG.index("- Toroids") :]))

    def test_the_next_release_has_only_what_came_since(self):
        changed = release.changelog_of(CHANGELOG, "0.2.0", "2026-04-05")
        with self.assertRaisesRegex(release.Refused, "nothing new"):
            release.news(changed)
        again = changed.replace("## Unreleased\n", "## Unreleased\n\n- Wire.\n")
        self.assertEqual(release.news(again), "- Wire.")

    def test_the_metainfo_tells_of_the_release_first(self):
        changed = release.metainfo_of(METAINFO, "0.2.0", "2026-04-05", release.news(CHANGELOG))
        entries = xml.etree.ElementTree.fromstring(changed).findall("releases/release")
        self.assertEqual([(e.get("version"), e.get("date"), e.get("type")) for e in entries],
                         [("0.2.0", "2026-04-05", None), ("0.1.0", "2026-01-02", None)])
        self.assertEqual(entries[0].findtext("description/p"), "Coils & more, at last.")

    def test_without_an_introduction_the_entry_has_no_description(self):
        changed = release.metainfo_of(METAINFO, "0.2.0", "2026-04-05", "- Wire.")
        self.assertIsNone(xml.etree.ElementTree.fromstring(changed).find("releases/release/description"))

    def test_the_tag_has_the_news(self):
        text = release.tag_text("0.2.0", release.news(CHANGELOG))
        self.assertEqual(text, "Quilm 0.2.0\n\nCoils & more,\nat last.\n\n- Toroids.\n- Air cores, `R < 1`.\n")

    def test_the_build_gets_version_and_date(self):
        changed = release.build_file_of(release.BUILD_FILE.read_text(), "3.4.5", "2026-04-05")
        self.assertIn("project(quilm VERSION 3.4.5 ", changed)
        self.assertIn('set(QUILM_RELEASE_DATE "2026-04-05")', changed)

    def test_the_projects_own_files_are_as_they_have_to_be(self):
        section = "- Something new."
        changed = release.metainfo_of(release.METAINFO.read_text(), "3.4.5", "2026-04-05", section)
        self.assertEqual(xml.etree.ElementTree.fromstring(changed).find("releases/release").get("version"), "3.4.5")
        text = release.CHANGELOG.read_text().replace("## Unreleased\n", "## Unreleased\n\n" + section + "\n")
        self.assertTrue(release.news(text).startswith(section))

    def test_only_three_numbers_are_a_version(self):
        self.assertEqual(release.numbers("1.20.3"), (1, 20, 3))
        for wrong in ("1.2", "v1.2.3", "1.2.03", "1.2.3-1", ""):
            with self.assertRaises(release.Refused):
                release.numbers(wrong)


if __name__ == "__main__":
    unittest.main()
