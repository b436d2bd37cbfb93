"""Fails when an include breaks the order in which the folders of src/ may know one another.

A folder includes what stands before it in ORDER; folders of one set are neighbours that do not know each other
(docs/architecture.md). Pages never include a page of another area, nor another page of their own: the page directory
alone knows them all. Only src/app includes Qt, and nothing includes the front ends. What is a page, or belongs to pages,
stands in src/pages and nowhere else. Nothing uses what is private to Qt, which the next release may change: neither its
headers nor its libraries.
"""

import pathlib
import re
import sys

ORDER = [
    {"core"},
    {"shell"},
    {"analysis"},
    {"network"},
    {"synthesis"},
    {"diplexer"},
    {"optimise", "timedomain", "coils"},
    {"schematic"},
    {"display"},
    {"files"},
    {"reports"},
    {"desk"},
    {"pages"},
    {"app", "script"},
]
FOLDERS = ["src", "tests", "tools", "bench", "fuzz", "cmake", "packaging", "help"]
SOURCES = (".h", ".cpp")
RANK = {folder: rank for rank, folders in enumerate(ORDER) for folder in folders}
INCLUDE = re.compile(r'^\s*#\s*include\s+([<"])([^>"]+)[>"]', re.MULTILINE)
PRIVATE_LIBRARY = re.compile(r"\bQt6::\w+Private\b")
PAGE_DIRECTORY = "src/pages/PageDirectory.cpp"


def is_page(stem):
    return stem.startswith("frm")


def is_its_own_page(path, stem):
    """A page may be spread over sources that bear its name and more: frmDesign and frmDesignLayout."""
    return path.stem.startswith(stem)


def fault_between_pages(path, included):
    """Says why one file of src/pages must not include another, or returns None."""
    target = pathlib.PurePath(included)
    if str(path) == PAGE_DIRECTORY:
        return None
    if is_page(target.stem) and not is_its_own_page(path, target.stem):
        return "pages never include one another"
    if path.parts[1:3] != ("pages", target.parts[1]) or len(target.parts) != 3:
        return "areas of pages do not know each other"
    return None


def fault(path, included):
    """Says why `path` must not include `included`, or returns None."""
    folder = path.parts[1]
    target = included.split("/")[0]
    if target not in RANK:
        return "there is no such folder in the order of layers"
    if folder == target:
        return fault_between_pages(path, included) if folder == "pages" else None
    if target in ("app", "script"):
        return "nothing includes the front ends"
    if folder in ("app", "script") and target == "pages" and included != "pages/PageDirectory.h":
        return "the front ends know the page directory alone"
    if RANK[target] >= RANK[folder]:
        return f"{folder} may not know {target}"
    return None


def is_private(included):
    return "private" in pathlib.PurePath(included).parts[:-1] or included.endswith("_p.h")


def private_faults_of(path, text):
    """What a source outside src/, or a build file, takes of Qt's own."""
    taken = [included for _, included in INCLUDE.findall(text) if is_private(included)]
    return [f"{path}: {name} is private to Qt" for name in taken + PRIVATE_LIBRARY.findall(text)]


def faults_of(path, text):
    """All faults of one file, whose text is given."""
    folder = path.parts[1]
    faults = []
    if folder not in RANK:
        return [f"{path}: the folder has no place in the order of layers"]
    if is_page(path.stem) and folder != "pages":
        faults.append(f"{path}: a page outside src/pages")
    for bracket, included in INCLUDE.findall(text):
        if is_private(included):
            faults.append(f"{path}: includes {included}: private to Qt")
        elif bracket == "<":
            if included.startswith("Q") and folder != "app":
                faults.append(f"{path}: includes <{included}>: only src/app includes Qt")
        elif why := fault(path, included):
            faults.append(f'{path}: includes "{included}": {why}')
    return faults


def checked():
    """The sources and build files of all folders that have any."""
    for folder in FOLDERS:
        for path in sorted(pathlib.Path(folder).rglob("*")):
            if path.suffix in SOURCES or path.suffix == ".cmake" or path.name == "CMakeLists.txt":
                yield path


def main():
    faults = []
    for path in checked():
        layered = path.parts[0] == "src" and path.suffix in SOURCES
        faults += (faults_of if layered else private_faults_of)(path, path.read_text(encoding="utf-8"))
    for line in faults:
        print(line, file=sys.stderr)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
