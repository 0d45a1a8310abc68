#!/usr/bin/python3
"""Plants small faults in the module and the SDK, one at a time, and lists those that no test catches.

    mutants.py [COUNT] [--seed N]

Works in a copy of the tree, build/mutants/tree, with a build of its own. Every test must pass there before anything is planted. A seed
gives the same faults again as long as the sources are the same.
"""

import argparse
import collections
import concurrent.futures
import json
import os
import pathlib
import random
import re
import shutil
import signal
import subprocess
import sys
import threading
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
WORK = ROOT / "build" / "mutants"
TREE = WORK / "tree"
BUILD = TREE / "build" / "mutants"  # as the preset has it
ROOMS = {"batchCfg": "module", "clientlibs/vms_client_sdk": "sdk"}  # the tests that are likely to know
# Minutes of work, or all processors, for what the others tell as well.
LEFT_OUT = {"install_test", "attack", "bench_smoke"}
JOBS = 2 * os.cpu_count()  # tests wait more than they compute

# Comments, and what stands in quotes.
QUOTED = re.compile(r'//.*|/\*.*?\*/|"(?:\\.|[^"\\])*"|\'(?:\\.|[^\'\\])\'')
# What no test can judge: lines for the log, declarations that only the compiler reads.
UNJUDGED = re.compile(r"setTimerType|\bqC?(Debug|Info|Warning|Critical|Fatal)\b|\bQ_[A-Z_]+\b|\bstatic_assert\b|\bassert\b|^\s*(#|using |namespace |template)")
OTHER = {"==": "!=", "!=": "==", "<": "<=", "<=": "<", ">": ">=", ">=": ">", "&&": "||", "||": "&&", "true": "false", "false": "true"}
OPERATOR = re.compile(r"(?<= )(==|!=|<=|>=|<|>|&&|\|\|)(?= |$)")
CONSTANT = re.compile(r"(?<![\w.'])(\d+)(?=(?:ms|s|min|h|u|U|L|LL)?\b)(?![.']\d)|\b(true|false)\b")
CONDITION = re.compile(r"\bif \((.*)\)(?= \{$|$)")
# Pixels: judged by eye, on the screenshots.
PIXELS = re.compile(r"[mM]argin|Spacing|sizeHint|SizeHint|[Pp]ainter")
DRAWING = re.compile(r"^\S.*::(paintEvent|sizeHint|\w*[rR]ect)\(")
KEYWORD = r"(?!(?:return|const|auto|static|case|break|continue|else|throw|if|for|while|default|delete)\b)"
STATEMENT = re.compile(KEYWORD + r"(?:emit )?(?:[A-Za-z_][\w:]*(?:<[\w:, *]+>)?(?:\(|->|\.|\[)|\*?[\w:.>()\[\]-]+ [-+|&]?= |(?:\+\+|--)).*;$")
START_OF_STATEMENT = re.compile(r"(?:[;{})]|\belse|\w:)$")

Fault = collections.namedtuple("Fault", "kind path line before after")


def faults_in(path, text):
    previous, logging, drawing = ";", False, False
    for number, line in enumerate(text.splitlines()):
        # Comments blank and quoted text masked, each character in its place.
        code = QUOTED.sub(lambda found: (" " if found[0].startswith("/") else "_") * len(found[0]), line)
        if not code.strip():
            continue
        logging = logging or UNJUDGED.search(code) is not None
        drawing = (drawing and code[0] != "}") or DRAWING.search(code) is not None
        if not logging and not drawing and not PIXELS.search(code):
            for kind, after in changes(line, code, previous):
                yield Fault(kind, path, number, line, after)
        logging = logging and not code.lstrip().startswith("#") and not code.rstrip().endswith((";", "{", "}", ")"))
        previous = code.rstrip()


def changes(line, code, previous):
    """Each (kind, changed line) that the line gives."""
    def put(start, end, text):
        return line[:start] + text + line[end:]
    for found in OPERATOR.finditer(code):
        kind = "and/or exchanged" if found[1] in ("&&", "||") else "comparison turned"
        yield kind, put(*found.span(), OTHER[found[1]])
    for found in CONSTANT.finditer(code):
        number = int(found[1] or 0)
        yield "constant changed", put(*found.span(), OTHER.get(found[0]) or str(number + 1 if number < 10 else 2 * number))
    for found in QUOTED.finditer(line):
        # A sentence that is not translated is for the log.
        if found[0].startswith('"') and (" " not in found[0] or "tr(" in code):
            yield "text changed", put(found.end() - 1, found.end(), '~"')
    condition = CONDITION.search(code)
    if condition and condition[1].count("(") == condition[1].count(")") and not re.search(r" = |;", condition[1]):
        yield "condition negated", put(*condition.span(1), "!(%s)" % line[slice(*condition.span(1))])
    statement = code.strip()
    if STATEMENT.match(statement) and statement.count("(") == statement.count(")") and START_OF_STATEMENT.search(previous):
        yield "statement removed", line[:len(line) - len(line.lstrip())] + "{}"


def chosen(seed):
    """All faults there are, in the order of the seed, one kind after the other."""
    kinds = collections.defaultdict(list)
    for room in ROOMS:
        for path in sorted((TREE / room).rglob("*.cpp")):
            for fault in faults_in(path.relative_to(TREE), path.read_text()):
                kinds[fault.kind].append(fault)
    order = random.Random(seed)
    queues = [order.sample(kinds[kind], len(kinds[kind])) for kind in sorted(kinds)]
    while any(queues):
        yield from (queue.pop() for queue in queues if queue)


def copy_tree():
    """What differs only, so that the build does not begin anew."""
    listed = subprocess.check_output(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"], cwd=ROOT, text=True)
    wanted = {name for name in listed.split("\0") if name and (ROOT / name).is_file()}
    for name in wanted:
        target = TREE / name
        if not target.exists() or target.read_bytes() != (ROOT / name).read_bytes():
            target.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(ROOT / name, target)
    for path in TREE.rglob("*"):
        name = path.relative_to(TREE)
        if path.is_file() and name.parts[0] != "build" and str(name) not in wanted:
            path.unlink()


def build(**environment):
    return subprocess.run(["cmake", "--build", BUILD, "--parallel"], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                          env={**os.environ, **environment}, check=False)


class Test:
    def __init__(self, description):
        properties = {entry["name"]: entry["value"] for entry in description["properties"]}
        self.name = description["name"]
        self.command = description.get("command")
        self.labels = properties.get("LABELS", [])
        self.directory = properties["WORKING_DIRECTORY"]
        self.environment = {**os.environ, **dict(entry.split("=", 1) for entry in properties.get("ENVIRONMENT", []))}
        self.skipped = properties.get("SKIP_RETURN_CODE", 0)
        self.limit = properties.get("TIMEOUT", 300)
        self.seconds = 0

    def run(self, stop):
        """What went wrong: "" for nothing, "failed", "crashed" or "timed out"; None when it was stopped."""
        output = WORK / (self.name + ".txt")
        start = time.monotonic()
        with output.open("wb") as file:
            process = subprocess.Popen(self.command, cwd=self.directory, env=self.environment, stdout=file, stderr=file,
                                       start_new_session=True)
        try:
            while process.poll() is None:
                time.sleep(0.05)
                if stop.is_set():
                    return None
                if b"\nFAIL!" in output.read_bytes():  # the rest of the program would not change it
                    return "failed"
                if time.monotonic() > start + self.limit:
                    return "timed out"
        finally:
            if process.poll() is None:
                os.killpg(process.pid, signal.SIGKILL)
            process.wait()
        self.seconds = time.monotonic() - start
        if process.returncode in (0, self.skipped):
            return ""
        return "crashed" if process.returncode < 0 else "failed"

    def fails(self, stop):
        """As run(), but a test that failed once and passes then has not caught anything: the machine was busy."""
        result = self.run(stop)
        return self.run(stop) if result == "failed" else result


def first_failure(tests):
    """(name, what went wrong) of the first test that fails, or None; the others are stopped then."""
    stop, failures = threading.Event(), []

    def run(test):
        result = None if stop.is_set() else test.fails(stop)
        if result:
            failures.append((test.name, result))
            stop.set()

    with concurrent.futures.ThreadPoolExecutor(JOBS) as pool:
        try:
            list(pool.map(run, tests))
        except KeyboardInterrupt:
            stop.set()
            raise
    return failures[0] if failures else None


def prepared():
    """The tests, each with the time that it takes when nothing is wrong."""
    copy_tree()
    subprocess.run(["cmake", "--preset", "mutants"], cwd=TREE, check=True, stdout=subprocess.DEVNULL)
    done = build()
    if done.returncode != 0:
        sys.exit(done.stdout)
    listed = json.loads(subprocess.check_output(["ctest", "--test-dir", BUILD, "--show-only=json-v1"]))
    tests = [Test(entry) for entry in listed["tests"] if entry["name"] not in LEFT_OUT]
    failure = first_failure(tests)
    if failure:
        sys.exit("mutants: %s %s before anything was planted, see %s" % (*failure, WORK / (failure[0] + ".txt")))
    for test in tests:
        test.limit = min(test.limit, 10 + 4 * test.seconds)
    return sorted(tests, key=lambda test: test.seconds)


def judge(fault, tests):
    """What became of the fault: "not compiled", "survived", or the test that caught it."""
    path = TREE / fault.path
    original = path.read_text()
    lines = original.splitlines(keepends=True)
    lines[fault.line] = fault.after + "\n"
    try:
        path.write_text("".join(lines))
        if build(CCACHE_READONLY="1").returncode != 0:
            return "not compiled"
        label = next(label for room, label in ROOMS.items() if fault.path.is_relative_to(room))
        failure = first_failure(sorted(tests, key=lambda test: label not in test.labels))
        return "%s (%s)" % failure if failure else "survived"
    finally:
        path.write_text(original)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("count", nargs="?", type=int, default=100, help="faults that compile (100)")
    parser.add_argument("--seed", type=int, default=1, help="which sample (1)")
    wanted = parser.parse_args()
    signal.signal(signal.SIGTERM, signal.default_int_handler)  # as with Ctrl+C: what was found so far is listed
    tests = prepared()
    survivors, count, not_compiled = [], 0, 0
    try:
        for fault in chosen(wanted.seed):
            if count == wanted.count:
                break
            result = judge(fault, tests)
            if result == "not compiled":
                not_compiled += 1
                continue
            count += 1
            print("%3d %-28s %s:%d %s" % (count, result, fault.path, fault.line + 1, fault.kind), flush=True)
            if result == "survived":
                survivors.append(fault)
    except KeyboardInterrupt:
        print("mutants: interrupted", file=sys.stderr)
    caught = count - len(survivors)
    print("\n%d of %d caught (%d %%), seed %d; %d more did not compile" % (
        caught, count, 100 * caught // max(1, count), wanted.seed, not_compiled))
    for fault in survivors:
        print("  %s:%d  %s\n      - %s\n      + %s" % (fault.path, fault.line + 1, fault.kind, fault.before.strip(), fault.after.strip()))


if __name__ == "__main__":
    main()
