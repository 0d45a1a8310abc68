"""Gives each device of a host's run its one line: complete_results.py HOST GROUP RESULTS OUT [RUN…]

RESULTS are the JSON lines of orda_batch, which may end anywhere when it was killed or the connection was lost. What a killed run
sent to the devices that have no line is in the exported RUN of the host's history. OUT has the lines of both, each with "host" and
"group". The standard output is an object for the playbook: "devices", "outcomes" (how many have each), "isComplete" (orda_batch has
told all), "run", "faults" (texts about what could not be read), and the summary's "stopped" and "error" where there are.
"""

import collections
import json
import os
import sys

SHOWN = ("code", "device", "ip", "message", "name", "outcome", "serialNumber")  # a run has these as a result line has them
FAULTS = (OSError, ValueError, LookupError, TypeError)  # of a file or line that cannot be read or is not what it should be


def lines_of(path):
    """The lines of a file that may be missing, or cut off in its last line."""
    if os.path.exists(path):
        with open(path, "rb") as file:
            yield from (line for line in file if line.endswith(b"\n"))


def left_in(path, has_line):
    """What became of the devices that have no line, by the history."""
    with open(path, "rb") as file:
        run = json.load(file)
    return [{**{key: device[key] for key in SHOWN}, "changes": [], "run": run["run"]}
            for device in run["devices"] if device["device"] not in has_line]


def main(host, group, results, out, *runs):
    told = {"devices": 0, "isComplete": False, "run": None, "faults": []}
    outcomes = collections.Counter()
    has_line = set()
    with open(os.open(out, os.O_CREAT | os.O_TRUNC | os.O_WRONLY, 0o600), "w", encoding="utf-8") as file:

        def put(line):
            device, outcome, told["run"] = line["device"], line["outcome"], line["run"]
            print(json.dumps({"host": host, "group": group, **line}, ensure_ascii=False), file=file)
            has_line.add(device)
            outcomes[outcome] += 1

        for number, text in enumerate(lines_of(results), 1):
            try:
                line = json.loads(text)
                if "summary" in line:
                    told.update(line["summary"], isComplete=True, run=line["run"])
                else:
                    put(line)
            except FAULTS as fault:
                told["faults"].append(f"{results}:{number}: {fault!r}")
        for path in runs if not told["isComplete"] else ():
            try:
                for line in left_in(path, has_line):
                    put(line)
            except FAULTS as fault:
                told["faults"].append(f"{path}: {fault!r}")
    print(json.dumps({**told, "devices": len(has_line), "outcomes": outcomes}))


if __name__ == "__main__":
    main(*sys.argv[1:])
