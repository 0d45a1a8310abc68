#!/usr/bin/python3
"""clang-tidy over our sources, each file only when something that it reads has changed since it was clean.

    lint.py BUILD FILE.cpp…

Files of one directory that are compiled alike are looked at together, as one source that includes them all: most of the time goes
into the headers that they share. Where that finds something, or where names of two files clash, each is looked at by itself.

BUILD is a directory that has just been built: Ninja knows there which headers each file is made of. A file is known by what it
and these headers contain, comments included (a NOLINT is one), by its compile commands, clang-tidy's version, arguments and
.clang-tidy. What was clean is remembered outside the tree, so that a fresh clone profits; a finding is never remembered.

ORDA_LINTED may name a commit at which all files were clean (.ci/linted): what has not changed since is not looked at again, on a
machine too that remembers nothing. Where the commit is not known, or what says how files are compiled and looked at has changed, it
counts for nothing.
"""

import collections
import concurrent.futures
import functools
import hashlib
import json
import os
import pathlib
import shlex
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
CACHE = pathlib.Path(os.environ.get("XDG_CACHE_HOME") or pathlib.Path.home() / ".cache") / "orda-dev" / "lint"
KEPT_DAYS = 60  # after the last use
TOOL = ["clang-tidy", "--quiet", "--extra-arg=-Wno-gnu-zero-variadic-macro-arguments",
        # The analyzer looks at one function after the other: following each call takes as long again as all other checks.
        *("--extra-arg=" + option for option in ("-Xclang", "-analyzer-config", "-Xclang", "mode=shallow"))]
# Otherwise the analyzer would pass over what is included.
TOGETHER = [*TOOL, "--extra-arg=-Xclang", "--extra-arg=-analyzer-opt-analyze-headers"]
MOST_TOGETHER = 12


class Build:
    def __init__(self, directory):
        self.directory = pathlib.Path(directory).resolve()
        self.commands = collections.defaultdict(list)  # of each file: a file may belong to several targets
        for entry in json.loads((self.directory / "compile_commands.json").read_text()):
            self.commands[entry["file"]].append(entry)
        self.headers = {}
        deps = subprocess.run(["ninja", "-C", self.directory, "-t", "deps"], check=True, stdout=subprocess.PIPE, text=True)
        for line in deps.stdout.splitlines():
            if line.startswith(" "):
                self.headers[output].append(self.directory / line.strip())
            elif ": #deps" in line:
                output = line.split(": #deps")[0]
                self.headers[output] = []


@functools.lru_cache(maxsize=None)
def content_hash(path, _modified, _size):
    return hashlib.sha256(path.read_bytes()).hexdigest()


@functools.lru_cache(maxsize=None)
def version():
    return subprocess.run([TOOL[0], "--version"], check=True, stdout=subprocess.PIPE, text=True).stdout


def key(build, source):
    """What the verdict over a file depends on, with paths as seen from the tree: clones share what they know."""
    parts = [version(), *TOOL]
    paths = [directory / ".clang-tidy" for directory in source.parents if directory.is_relative_to(ROOT)]
    paths = [path for path in paths if path.exists()]
    for entry in build.commands[str(source)]:
        parts.append(entry["command"])
        arguments = shlex.split(entry["command"])
        paths += build.headers[arguments[arguments.index("-o") + 1]]  # the source itself is among them
    for path in paths:
        status = path.stat()
        parts += [str(path), content_hash(path, status.st_mtime_ns, status.st_size)]
    return hashlib.sha256("\0".join(parts).replace(str(ROOT), ".").encode()).hexdigest()


def flags(build, source):
    """How the file is compiled, without the compiler, its plug-ins, and what names it and its result."""
    arguments = iter(shlex.split(build.commands[str(source)][0]["command"]))
    kept = []
    for argument in arguments:
        if argument in ("-o", "-Xclang", "-MT", "-MF"):
            next(arguments)
        elif argument not in ("-c", "-MD", str(source)) and not argument.startswith("-fsanitize"):
            kept.append(argument)
    return tuple(kept[next(place for place, argument in enumerate(kept) if argument.startswith("-")):])


def groups(build, sources):
    alike = collections.defaultdict(list)
    for source in sources:
        alike[source.parent, flags(build, source)].append(source)
    return [(how, found[first:first + MOST_TOGETHER]) for (_, how), found in alike.items()
            for first in range(0, len(found), MOST_TOGETHER)]


def lint(build, how, sources):
    """Those of the files that have findings; prints these."""
    before = [key(build, source) for source in sources]
    if len(sources) == 1:
        command = [*TOOL, sources[0], "--", *how]
    else:
        # In the tree, so that .clang-tidy is found.
        with tempfile.NamedTemporaryFile("w", dir=build.directory, prefix="together.", suffix=".cpp", delete=False) as together:
            together.writelines('#include "%s" // NOLINT\n' % source for source in sources)
        command = [*TOGETHER, together.name, "--", *how]
    done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
    if len(sources) > 1:
        os.unlink(together.name)
    if done.returncode == 0:
        for source, known in zip(sources, before):
            if key(build, source) == known:  # otherwise somebody is editing it
                (CACHE / known).touch()
        return []
    if len(sources) > 1:
        half = len(sources) // 2
        return lint(build, how, sources[:half]) + lint(build, how, sources[half:])
    print(done.stdout, flush=True)
    return sources


@functools.lru_cache(maxsize=None)
def changed_since_all_were_clean():
    """Paths; None: everything may have."""
    commit = os.environ.get("ORDA_LINTED")
    git = ["git", "-C", ROOT]
    if not commit or subprocess.run([*git, "cat-file", "-e", commit + "^{commit}"], stderr=subprocess.DEVNULL).returncode != 0:
        return None
    names = []
    for command in (["diff", "--name-only", commit], ["ls-files", "--others", "--exclude-standard"]):
        names += subprocess.run([*git, *command], check=True, stdout=subprocess.PIPE, text=True).stdout.splitlines()
    if any(name.startswith("cmake/") or name in ("CMakeLists.txt", "CMakePresets.json") or name.endswith(".clang-tidy") for name in names):
        return None
    return {ROOT / name for name in names}


def is_unchanged(build, source):
    changed = changed_since_all_were_clean()
    if changed is None or any(directory / "CMakeLists.txt" in changed for directory in source.parents):
        return False
    outputs = (shlex.split(entry["command"]) for entry in build.commands[str(source)])
    return all(changed.isdisjoint(path.resolve() for path in build.headers[arguments[arguments.index("-o") + 1]]) for arguments in outputs)


def is_known(build, source):
    if is_unchanged(build, source):
        return True
    known = CACHE / key(build, source)
    if known.exists():
        known.touch()
    return known.exists()


def main():
    build = Build(sys.argv[1])
    sources = [ROOT / name for name in sys.argv[2:]]
    CACHE.mkdir(parents=True, exist_ok=True)
    unused = [entry for entry in CACHE.iterdir() if entry.stat().st_mtime < time.time() - KEPT_DAYS * 86400]
    for entry in unused:
        entry.unlink(missing_ok=True)
    unknown = [source for source in sources if not is_known(build, source)]
    findings = []
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for found in pool.map(lambda group: lint(build, *group), groups(build, unknown)):
            findings += found
    print("lint: clang-tidy looked at %d of %d files, %d with findings" % (len(unknown), len(sources), len(findings)), file=sys.stderr)
    sys.exit(1 if findings else 0)


if __name__ == "__main__":
    main()
