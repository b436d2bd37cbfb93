"""Runs clang-tidy over the sources of src/, several at once: tools/tidy.py [FOLDER OR FILE ...]

A source that passed is not looked at again until it, a header that it includes, or .clang-tidy changes: what the
preprocessor makes of it is the key.

Headers take most of the time, so sources of one folder are looked at as one text that includes them all. Where that text
has a finding, or does not compile because two sources use one name for things of their own, those that it names are
looked at apart, in the end each by itself; so what is told is always what a source by itself gives.
"""

import concurrent.futures
import dataclasses
import hashlib
import itertools
import json
import os
import pathlib
import shlex
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[1]
BUILD = ROOT / "build" / "tidy"
PASSED = BUILD / "passed"
MOST_TOGETHER = 8  # more gain little, and share more names


@dataclasses.dataclass
class Source:
    path: pathlib.Path
    flags: list  # those of the compiler, without the source

    def key(self):
        """The file that tells that it passed, named after what the result rests on."""
        # Comments stay, since they may silence a check.
        preprocess = ["clang++-16", *self.flags, "-E", "-C", str(self.path)]
        text = subprocess.run(preprocess, cwd=BUILD, check=True, stdout=subprocess.PIPE).stdout
        return PASSED / hashlib.sha256(text + (ROOT / ".clang-tidy").read_bytes()).hexdigest()


def sources_below(wanted):
    """The sources that are compiled, of these files and folders."""
    subprocess.run(["cmake", "--preset", "tidy"], cwd=ROOT, check=True, stdout=subprocess.DEVNULL)
    for entry in json.loads((BUILD / "compile_commands.json").read_text(encoding="utf-8")):
        path = pathlib.Path(entry["file"])
        if any(path.is_relative_to(name) for name in wanted):
            words = shlex.split(entry["command"])
            compiler = next(i for i, word in enumerate(words) if word.endswith("clang++-16"))
            yield Source(path, words[compiler + 1 : words.index("-o")])


def batches(sources):
    """The sources by folder and flags, a few at a time."""

    def kind(source):
        return (str(source.path.parent), source.flags)

    for _, group in itertools.groupby(sorted(sources, key=kind), kind):
        members = list(group)
        count = -(-len(members) // MOST_TOGETHER)
        yield from (members[i::count] for i in range(count))


def clang_tidy(path, flags):
    command = ["clang-tidy-16", "--config-file", str(ROOT / ".clang-tidy"), "--quiet", str(path), "--", *flags]
    return subprocess.run(command, cwd=BUILD, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)


def look_at(sources):
    """How clang-tidy ends over the sources, taken together."""
    if len(sources) == 1:
        return clang_tidy(sources[0].path, sources[0].flags)
    with tempfile.NamedTemporaryFile("w", suffix=".cpp", dir=BUILD) as together:
        together.writelines(f'#include "{source.path}"\n' for source in sources)
        together.flush()
        return clang_tidy(together.name, sources[0].flags)


def findings(sources, keys):
    """What clang-tidy has to say of each of the sources that does not pass."""
    run = look_at(sources)
    text = run.stdout.decode(errors="replace")
    if run.returncode == 0:
        for source in sources:
            keys[source.path].touch()
        return []
    if len(sources) == 1:
        return [text or f"{sources[0].path}: clang-tidy failed\n"]
    errors = [line for line in text.splitlines() if " error: " in line]
    named = [source for source in sources if any(line.startswith(f"{source.path}:") for line in errors)]
    others = [source for source in sources if source not in named]
    apart = [named, others] if named and others else [[source] for source in sources]
    return [told for part in apart for told in findings(part, keys)]


def main():
    wanted = [(ROOT / name).resolve() for name in sys.argv[1:]] or [ROOT / "src"]
    sources = list(sources_below(wanted))
    PASSED.mkdir(exist_ok=True)
    told = set()
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        keys = dict(zip((source.path for source in sources), pool.map(Source.key, sources)))
        left = [source for source in sources if not keys[source.path].exists()]
        for texts in pool.map(lambda batch: findings(batch, keys), batches(left)):
            # A finding in a header is told by every source that includes it.
            for text in texts:
                if text not in told:
                    told.add(text)
                    print(text, flush=True)
    return 1 if told else 0


if __name__ == "__main__":
    sys.exit(main())
