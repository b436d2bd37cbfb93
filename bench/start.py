#!/usr/bin/env python3
"""What it costs to start the program: from exec to the page of a design and to the first key obeyed, and its memory.

Usage: xvfb-run -a -s "-screen 0 1400x1000x24 -noreset" bench/start.py QUILM [QUILM ...] DESIGN.QLM
Several builds are started by turns, so that they meet the same machine; the medians are told. The first key
asks for the dialog that saves the design.
"""

import os
import pathlib
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

ROUNDS = 15
SECONDS = 30


def wait(true):
    end = time.monotonic() + SECONDS
    while not (found := true()):
        if time.monotonic() > end:
            raise TimeoutError("the program does not answer")
        time.sleep(0.002)
    return found


def windows(title):
    words = ["xdotool", "search", "--onlyvisible", "--name", f"^{title}$"]
    return subprocess.run(words, capture_output=True, text=True, check=False).stdout.split()


def megabytes(process):
    status = pathlib.Path(f"/proc/{process.pid}/status").read_text(encoding="utf-8")
    return int(status.split("VmRSS:")[1].split()[0]) / 1024


def start(program, design, folder):
    """Seconds to the page, seconds to the first key's effect, megabytes then."""
    begin = time.monotonic()
    process = subprocess.Popen([program, str(design)], env={**os.environ, "HOME": folder, "XDG_RUNTIME_DIR": folder})
    try:
        window = wait(lambda: windows(f"{design.name} - Quilm"))[0]
        shown = time.monotonic() - begin
        subprocess.run(["xdotool", "windowfocus", "--sync", window, "key", "ctrl+s"], check=True)
        wait(lambda: windows("Save Quilm File"))
        return shown, time.monotonic() - begin, megabytes(process)
    finally:
        process.terminate()
        process.wait()


def main():
    programs, original = sys.argv[1:-1], pathlib.Path(sys.argv[-1])
    figures = {program: [] for program in programs}
    with tempfile.TemporaryDirectory() as folder:
        design = pathlib.Path(folder) / original.name
        shutil.copy(original, design)
        for _ in range(ROUNDS):
            for program in programs:
                figures[program].append(start(program, design, folder))
    for program in programs:
        page, key, memory = (statistics.median(column) for column in zip(*figures[program]))
        print(f"{program}: page {page * 1000:.0f} ms, first key {key * 1000:.0f} ms, {memory:.1f} MB")


if __name__ == "__main__":
    main()
