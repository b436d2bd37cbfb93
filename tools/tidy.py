"""Runs clang-tidy over the sources of src/, several at once: tools/tidy.py [FOLDER OR FILE ...]

A source that passed is not looked at again until it, a header that it includes, or .clang-tidy changes: what the
preprocessor makes of it is the key.
"""

import concurrent.futures
import hashlib
import json
import os
import pathlib
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[1]
BUILD = ROOT / "build" / "tidy"
PASSED = BUILD / "passed"


def commands():
    """The compile command of each source of src/, by its path."""
    subprocess.run(["cmake", "--preset", "tidy"], cwd=ROOT, check=True, stdout=subprocess.DEVNULL)
    entries = json.loads((BUILD / "compile_commands.json").read_text(encoding="utf-8"))
    return {pathlib.Path(entry["file"]): entry["command"] for entry in entries}


def key_of(command):
    """What the result of a source rests on. Comments stay, since they may silence a check."""
    preprocess = command.split(" -o ")[0] + " -E -C " + command.split(" -c ")[1]
    text = subprocess.run(preprocess, shell=True, cwd=BUILD, check=True, stdout=subprocess.PIPE).stdout
    return hashlib.sha256(text + (ROOT / ".clang-tidy").read_bytes()).hexdigest()


def findings(path, command):
    """What clang-tidy has to say of a source; nothing when it passes."""
    key = PASSED / key_of(command)
    if key.exists():
        return ""
    run = subprocess.run(
        ["clang-tidy-16", "-p", str(BUILD), "--quiet", str(path)], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL
    )
    if run.returncode == 0:
        key.touch()
        return ""
    return run.stdout.decode(errors="replace") or f"{path}: clang-tidy failed\n"


def main():
    wanted = [(ROOT / name).resolve() for name in sys.argv[1:]] or [ROOT / "src"]
    by_path = commands()
    PASSED.mkdir(exist_ok=True)
    paths = [path for path in by_path if any(path.is_relative_to(folder) for folder in wanted)]
    told = set()
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for text in pool.map(lambda path: findings(path, by_path[path]), paths):
            # A finding in a header is told by every source that includes it.
            if text and text not in told:
                told.add(text)
                print(text, flush=True)
    return 1 if told else 0


if __name__ == "__main__":
    sys.exit(main())
