#!/usr/bin/env python3
"""What the pages for integrators quote, beside what it is taken from: code that is compiled, packages, names of widgets."""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
SAMPLES = ("tests/consumer/main.cpp", "tests/consumer/CMakeLists.txt", "tests/consumer/tree/CMakeLists.txt")
NOT_FOR_ADOPTERS = {"ccache", "libbenchmark-dev", "libboost-dev", "libqt5websockets5-dev"}  # for tests and benchmarks


def read(path):
    return (ROOT / path).read_text()


def lines(text):
    """Without what depends on where the text stands."""
    return "\n".join(line.strip() for line in text.strip().splitlines()) + "\n"


def faults():
    integration, scripting = read("docs/integration.md"), read("docs/scripting.md")
    samples = [lines(read(path)) for path in SAMPLES]
    for language, block in re.findall(r"^```(\w+)\n(.*?)^```", integration + scripting, re.MULTILINE | re.DOTALL):
        if not any(lines(block) in sample for sample in samples):
            yield f"no sample has this {language} text:\n{block}"

    wanted = set(re.search(r"\[build\]\n(.*?)\n\[", read("packages.txt"), re.DOTALL)[1].split()) - NOT_FOR_ADOPTERS
    named = set(re.search(r"apt-get install (.*)", integration)[1].split())
    if wanted != named:
        yield f"docs/integration.md and packages.txt differ in {sorted(wanted ^ named)}"

    names = {name for form in ROOT.glob("batchCfg/**/*.ui") for name in re.findall(r'<widget [^>]*name="(\w+)"', form.read_text())}
    parameters = re.search(r"^## Parameters\n(.*?)^## ", scripting, re.MULTILINE | re.DOTALL)[1]
    for row in re.findall(r"^\|.*", parameters, re.MULTILINE):
        for name in re.findall(r"`(\w+)`", "".join(row.split("|")[1:4])):
            if name not in names:
                yield f"docs/scripting.md: no form has a widget {name}"


if __name__ == "__main__":
    found = list(faults())
    print("\n".join(found))
    sys.exit(1 if found else 0)
