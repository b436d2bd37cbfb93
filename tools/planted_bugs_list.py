"""The bugs that tools/planted-bugs plants.

Each stands for a kind of mistake that tests have missed before: a sign, an exact threshold, a forgotten reset, state
left over from the design before, the second act after the first. `old` must stand in the file exactly once; `tests` are
the programs that ought to notice.
"""

from typing import NamedTuple


class Bug(NamedTuple):
    file: str
    old: str
    new: str
    what: str
    tests: tuple


BUGS = [
    Bug(
        "src/core/modGeneral.cpp",
        "constexpr f32 largestEntry = 1e10F;",
        "constexpr f32 largestEntry = 1e11F;",
        "entries are held at ten times their limit",
        ("test-core",),
    ),
    Bug(
        "src/core/NumberText.cpp",
        "decimal.digits[significantDigits] >= '5'",
        "decimal.digits[significantDigits] > '5'",
        "a half is rounded down",
        ("test-core",),
    ),
    Bug(
        "src/core/Configuration.cpp",
        "if (!in.bad() && TakeSettings(",
        "if (TakeSettings(",
        "a configuration that cannot be read to its end is taken as far as it goes",
        ("test-core",),
    ),
    Bug(
        "src/core/TextFile.cpp",
        "    unlink(temporary.c_str());\n",
        "",
        "a failing write leaves its temporary file behind",
        ("test-core",),
    ),
    Bug(
        "src/core/TextFile.cpp",
        "fchmod(fd, old.st_mode & permissionBits) == 0",
        "true",
        "a file that is replaced loses its permissions",
        ("test-core",),
    ),
    Bug(
        "src/shell/EntryStep.cpp",
        "number.negative ? -direction : direction",
        "direction",
        "stepping a negative number up lowers its digits",
        ("test-shell",),
    ),
    Bug(
        "src/shell/Acts.cpp",
        "    option->Set();\n",
        "",
        "a click on an option does not choose it",
        ("test-shell",),
    ),
    Bug(
        "src/synthesis/SinglyTerminated.cpp",
        "Gj[order + 1 - i] = scope.Store(g);",
        "Gj[i] = scope.Store(g);",
        "the values are not reversed",
        ("test-synthesis",),
    ),
    Bug(
        "src/synthesis/EndSections.cpp",
        "section(SeriesPLC, next * 0.5 * m, rest * own / m, own + m * own)",
        "section(SeriesPLC, next * 0.5 * m, rest * own / m, m * own)",
        "the old end element loses its own share",
        ("test-synthesis",),
    ),
    Bug(
        "src/schematic/modSchematic.cpp",
        "if (SchemX + loadWidth > pageRight) PrintMore();",
        "if (SchemX > pageRight) PrintMore();",
        "the load does not count for the room at the right",
        ("test-schematic",),
    ),
    Bug(
        "src/schematic/DesignData.cpp",
        '"Largest inductor: " + (inductors ? Text(inductors->largest,',
        '"Largest inductor: " + (inductors ? Text(inductors->smallest,',
        "the smallest inductor is told for the largest",
        ("test-schematic",),
    ),
    Bug(
        "src/display/modTabulate.cpp",
        'value < lowestPrinted ? "<-120"',
        'value <= lowestPrinted ? "<-120"',
        "exactly -120 dB has no figure in the table",
        ("test-display",),
    ),
    Bug(
        "src/files/ReadDesign.cpp",
        "  record.MarkerFreq.Fill(0);\n",
        "",
        "markers of the former design stay",
        ("test-files",),
    ),
    Bug(
        "src/files/ReadDesign.cpp",
        "  record.Hj.Fill(0);\n",
        "",
        "the prototype of a longer design stays behind a shorter one",
        ("test-files",),
    ),
    Bug(
        "src/files/ReadDesign.cpp",
        "<= 0.001F ? whole",
        "<= 0.01F ? whole",
        "steps that are no whole number are rounded to one",
        ("test-files",),
    ),
    Bug(
        "src/files/WriteDesign.cpp",
        "record.NrIntervals >= 8 ?",
        "record.NrIntervals > 8 ?",
        "eight intervals are written as none",
        ("test-files",),
    ),
    Bug(
        "src/reports/Report.cpp",
        "if (line_ >= grid_.lines) {",
        "if (line_ > grid_.lines) {",
        "a sheet takes a line too many",
        ("test-reports",),
    ),
    Bug(
        "src/reports/Report.cpp",
        "    line_ = 0;\n",
        "",
        "the second sheet begins below its foot",
        ("test-reports",),
    ),
    Bug(
        "src/desk/modCheckEntries.cpp",
        "report.findings.back().focus",
        "report.findings.front().focus",
        "the caret goes to the first finding, not to the one that stopped the check",
        ("test-desk", "test-pages"),
    ),
    Bug(
        "src/pages/tabulate/frmTabulated.cpp",
        "if (!(intervals > rowsPerSheet)) return true;",
        "if (!(intervals >= rowsPerSheet)) return true;",
        "forty intervals ask before they print",
        ("test-pages",),
    ),
]
