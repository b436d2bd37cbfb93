"""Fails when an include breaks the order in which the folders of src/ may know one another.

Modules go one way between folders (docs/architecture.md). Pages, the files named frm* and those of src/pages, may
include any module and never another page; the page directory alone knows them all. Only src/app includes Qt, and
nothing includes src/app or src/script.
"""

import pathlib
import re
import sys

ORDER = ["core", "shell", "analysis", "schematic", "synthesis", "files", "display"]
LAST = ["transforms", "optimize", "timedomain", "editing", "inductors", "diplexer", "guidance"]
FRONT_ENDS = ["app", "script"]
INCLUDE = re.compile(r'^\s*#\s*include\s+([<"])([^>"]+)[>"]', re.MULTILINE)
PAGE_DIRECTORY = "src/pages/PageDirectory.cpp"
# Pages that share one file pair because they share one class.
PAGE_PAIRS = ("frm", "EntryForms")


def rank(folder):
    return ORDER.index(folder) if folder in ORDER else len(ORDER)


def is_page(stem):
    return stem.startswith(PAGE_PAIRS)


def fault(path, included):
    """Says why `path` must not include `included`, or returns None."""
    folder = path.parts[1]
    target = included.split("/")[0]
    page_file = is_page(path.stem) or path.stem.endswith("Layout") or folder == "pages"
    target_stem = pathlib.PurePath(included).stem
    if target in FRONT_ENDS and folder != target:
        return "nothing includes the front ends"
    if folder in FRONT_ENDS:
        return None
    if is_page(target_stem) and target_stem != path.stem.removesuffix("Layout") and str(path) != PAGE_DIRECTORY:
        return "pages never include one another"
    if page_file:
        return None
    if target == "pages" or is_page(target_stem):
        return "modules know no pages"
    if target in ORDER + LAST and target != folder and rank(target) >= rank(folder):
        return f"{folder} may not know {target}"
    return None


def main():
    faults = []
    for path in sorted(pathlib.Path("src").rglob("*")):
        if path.suffix not in (".h", ".cpp"):
            continue
        for bracket, included in INCLUDE.findall(path.read_text(encoding="utf-8")):
            if bracket == "<":
                if included.startswith("Q") and path.parts[1] != "app":
                    faults.append(f"{path}: includes <{included}>: only src/app includes Qt")
                continue
            why = fault(path, included)
            if why:
                faults.append(f'{path}: includes "{included}": {why}')
    for line in faults:
        print(line, file=sys.stderr)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
