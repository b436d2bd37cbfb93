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
        "IsThere(file) && file.Lock()",
        "IsThere(file)",
        "the temporary file of a writer on another machine is taken away",
        ("test-core",),
    ),
    Bug(
        "src/core/TextFile.cpp",
        "kill(writer, 0) == 0 || errno != ESRCH",
        "false",
        "the temporary file of a living process is taken away",
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
        "if (SchemX + loadWidth > canvas_.ScaleLeft",
        "if (SchemX > canvas_.ScaleLeft",
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
    Bug(
        "src/core/EntryLimits.h",
        'NrIntervals = {4, 2049, "4", "2049"};',
        'NrIntervals = {4, 2050, "4", "2050"};',
        "a sweep may have a point more than the responses have room for",
        ("test-core",),
    ),
    Bug(
        "src/core/ElementCatalogue.cpp",
        "> elements.size()) return nullptr;",
        ">= elements.size()) return nullptr;",
        "the last element type is not found",
        ("test-core",),
    ),
    Bug(
        "src/core/Topology.h",
        "Width / FstopNorm : Width * FstopNorm",
        "Width * FstopNorm : Width / FstopNorm",
        "the stopband of a highpass lies above its cutoff",
        ("test-core",),
    ),
    Bug(
        "src/network/DesignStanding.cpp",
        "  design.MatchAccepted = 0;\n",
        "",
        "the match of the design before still keeps its network",
        ("test-network",),
    ),
    Bug(
        "src/network/NetworkEdits.cpp",
        "for (int s = at; s <= network.Stages; ++s)",
        "for (int s = at; s < network.Stages; ++s)",
        "a deleted stage leaves its values behind the last",
        ("test-network",),
    ),
    Bug(
        "src/network/NetworkEdits.cpp",
        "  network.Rsource[1] = std::max(network.Rsource[1], leastSource);\n"
        "  std::swap(network.Rsource[1], network.Rload[1]);\n",
        "  std::swap(network.Rsource[1], network.Rload[1]);\n"
        "  network.Rsource[1] = std::max(network.Rsource[1], leastSource);\n",
        "the new source of a reversed network is raised, not the one that becomes its load",
        ("test-network",),
    ),
    Bug(
        "src/shell/History.cpp",
        "  if (group_) --group_->base;\n",
        "",
        "in a full history the acts of a group are steps of their own",
        ("test-shell",),
    ),
    Bug(
        "src/shell/History.cpp",
        "  if (tool_ && tool_->floor > 0) --tool_->floor;\n",
        "",
        "in a full history the last step of a tool cannot be taken back",
        ("test-shell",),
    ),
    Bug(
        "src/shell/PageDesk.cpp",
        "Show(id, &Page::Reload)",
        "Show(id, &Page::Load)",
        "the load step of a page touches what an undo has brought back",
        ("test-shell",),
    ),
    Bug(
        "src/shell/LongRun.cpp",
        "    plan_.stops[i]->enabled = before_[i].enabled;\n",
        "",
        "the stop buttons can still be pressed after a run",
        ("test-shell",),
    ),
    Bug(
        "src/shell/PageLock.cpp",
        "control.kind == ControlKind::Frame || control.kind == ControlKind::Label",
        "control.kind == ControlKind::Label",
        "a locked frame locks the stop button that stands in it",
        ("test-shell",),
    ),
    Bug(
        "src/shell/HitArea.cpp",
        "way.ahead + 2 * way.aside",
        "way.ahead + way.aside",
        "an arrow key leads to an area aside rather than to the one ahead",
        ("test-shell",),
    ),
    Bug(
        "src/shell/PageDesk.cpp",
        "  std::optional<PageLock> openerLock;\n"
        "  if (opener != main) openerLock.emplace(*opener, std::vector<const Control*>{});\n",
        "",
        "the first of two tools beside a page is not locked by the second",
        ("test-shell",),
    ),
    Bug(
        "src/shell/Picture.cpp",
        "drawing_.use_count() == 1",
        "drawing_.use_count() >= 1",
        "clearing a picture takes away what a view still shows of it",
        ("test-shell",),
    ),
    Bug(
        "src/shell/LiveLayer.cpp",
        "  points_ = 0;\n",
        "",
        "the points of the run before count against the next",
        ("test-shell",),
    ),
    Bug(
        "src/shell/Entry.cpp",
        "  if (Trimmed(binding_.box.text) == EntryText(value, binding_.format)) return value;\n",
        "",
        "a box that is read twice rounds its field to the digits that it shows",
        ("test-shell",),
    ),
    Bug(
        "src/analysis/SweepTable.cpp",
        "table.points > 0 && table.settings.SweepMode == settings.SweepMode &&",
        "table.points > 0 &&",
        "the frequencies stay logarithmic when the sweep becomes linear",
        ("test-analysis",),
    ),
    Bug(
        "src/analysis/SweepTable.cpp",
        "  table.points = 0;\n",
        "",
        "a sweep that fails halfway leaves its frequencies to the one before",
        ("test-analysis",),
    ),
    Bug(
        "src/analysis/SweepPoints.cpp",
        "first > 0 ? r_.RespAngle.data()[first - 1] : 0,",
        "first > blockPoints ? r_.RespAngle.data()[first - 1] : 0,",
        "the second block of a sweep does not go on from the angle of the first",
        ("test-analysis",),
    ),
    Bug(
        "src/display/HorizontalAxis.cpp",
        "kept.axis == axis.Settings() && SameNumbers(kept.values, values)",
        "SameNumbers(kept.values, values)",
        "the places of the former axis are kept for another",
        ("test-display",),
    ),
    Bug(
        "src/display/SheetDrawing.cpp",
        "  session.plot.limitEntry = {};\n",
        "",
        "the entry of a limit goes on in the next plot",
        ("test-display",),
    ),
    Bug(
        "src/display/PlotScaling.cpp",
        "std::min(scales.LossBottom, highestLossBottom)",
        "std::max(scales.LossBottom, highestLossBottom)",
        "every loss scale becomes as shallow as the shallowest",
        ("test-display",),
    ),
    Bug(
        "src/reports/Report.cpp",
        "    if (head_) head_(printer_);\n",
        "",
        "the second sheet of a report has no head",
        ("test-reports",),
    ),
    Bug(
        "src/files/StageLine.cpp",
        "stage.ElementType != SeriesOpenStub && stage.ElementType != ShuntShortStub",
        "stage.ElementType != SeriesOpenStub",
        "a shorted stub of no length across the network shorts it",
        ("test-files",),
    ),
    Bug(
        "src/script/ActCommands.cpp",
        "  run.focus.MoveTo(run.Top(), {});\n  step(run.session);\n",
        "  step(run.session);\n",
        "an undo does not leave the box that was typed in",
        ("test-script",),
    ),
]
