"""The layer check itself: what it must turn away, and what it must let pass."""

import importlib.util
import pathlib
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
SPEC = importlib.util.spec_from_file_location("check_layers", ROOT / "tools" / "check-layers.py")
check_layers = importlib.util.module_from_spec(SPEC)
SPEC.loader.exec_module(check_layers)


def faults(path, *lines):
    return check_layers.faults_of(pathlib.PurePath(path), "\n".join(lines) + "\n")


class Layers(unittest.TestCase):
    def assert_fault(self, why, path, *lines):
        found = faults(path, *lines)
        self.assertEqual(len(found), 1, found)
        self.assertIn(why, found[0])

    def assert_sound(self, path, *lines):
        self.assertEqual(faults(path, *lines), [])

    def test_a_folder_may_include_those_before_it(self):
        self.assert_sound("src/files/A.cpp", '#include "core/B.h"', '#include "display/C.h"', "#include <string>")

    def test_a_folder_may_include_itself(self):
        self.assert_sound("src/core/A.cpp", '#include "core/B.h"')

    def test_a_folder_may_not_include_one_behind_it(self):
        self.assert_fault("core may not know shell", "src/core/A.cpp", '#include "shell/B.h"')
        self.assert_fault("shell may not know analysis", "src/shell/A.h", '#include "analysis/B.h"')
        self.assert_fault("display may not know files", "src/display/A.cpp", '#include "files/B.h"')
        self.assert_fault("desk may not know pages", "src/desk/A.cpp", '#include "pages/PageDirectory.h"')

    def test_neighbours_of_one_rank_do_not_know_each_other(self):
        self.assert_fault("may not know", "src/optimise/A.cpp", '#include "timedomain/B.h"')
        self.assert_fault("may not know", "src/coils/A.cpp", '#include "optimise/B.h"')

    def test_an_include_may_stand_behind_blanks(self):
        self.assert_fault("core may not know shell", "src/core/A.cpp", '  #  include "shell/B.h"')

    def test_only_the_window_includes_the_toolkit(self):
        self.assert_fault("only src/app includes Qt", "src/pages/plot/A.cpp", "#include <QString>")
        self.assert_fault("only src/app includes Qt", "src/core/A.h", "#include <QtCore/QString>")
        self.assert_sound("src/app/A.cpp", "#include <QString>")

    def test_nothing_uses_what_is_private_to_the_toolkit(self):
        for private in ("<private/qwidget_p.h>", "<QtGui/private/qguiapplication_p.h>", '"qwidget_p.h"'):
            self.assert_fault("private to Qt", "src/app/A.cpp", f"#include {private}")
            self.assertEqual(len(check_layers.private_faults_of("tests/app/A.cpp", f"#include {private}\n")), 1)
        for link, count in (("Qt6::Gui Qt6::WidgetsPrivate)", 1), ("Qt6::Gui Qt6::Widgets)", 0)):
            self.assertEqual(len(check_layers.private_faults_of("src/app/CMakeLists.txt", link)), count)

    def test_nothing_includes_the_front_ends(self):
        self.assert_fault("nothing includes the front ends", "src/pages/PageDirectory.cpp", '#include "app/A.h"')
        self.assert_fault("nothing includes the front ends", "src/app/main.cpp", '#include "script/A.h"')

    def test_front_ends_know_the_page_directory_alone(self):
        self.assert_sound("src/app/main.cpp", '#include "pages/PageDirectory.h"')
        self.assert_fault("directory alone", "src/app/main.cpp", '#include "pages/plot/frmPlotted.h"')

    def test_pages_do_not_include_one_another(self):
        self.assert_fault("pages never", "src/pages/design/frmDesign.cpp", '#include "pages/design/frmBailout.h"')
        self.assert_fault("areas of pages", "src/pages/design/A.cpp", '#include "pages/plot/PlotMouse.h"')
        self.assert_sound("src/pages/design/frmDesignLayout.cpp", '#include "pages/design/frmDesign.h"')
        self.assert_sound("src/pages/design/frmDesign.cpp", '#include "pages/design/DesignControls.h"')
        self.assert_sound("src/pages/PageDirectory.cpp", '#include "pages/plot/frmPlotted.h"')

    def test_pages_stand_in_the_folder_of_pages(self):
        self.assert_fault("a page outside src/pages", "src/display/frmPlotted.cpp", "#include <string>")

    def test_a_folder_without_a_place_is_a_fault(self):
        self.assert_fault("no place in the order", "src/extras/A.cpp", "#include <string>")
        self.assert_fault("no such folder", "src/core/A.cpp", '#include "extras/B.h"')

    def test_a_file_without_a_folder_is_a_fault(self):
        self.assert_fault("no place in the order", "src/A.cpp", "#include <string>")


if __name__ == "__main__":
    unittest.main()
