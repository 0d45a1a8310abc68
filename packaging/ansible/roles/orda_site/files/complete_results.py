"""Gives each device of a host's run its one line: complete_results.py HOST GROUP RESULTS OUT [RUN…]

RESULTS are the JSON lines of orda_batch, which may end anywhere when it was killed or the connection was lost. What a killed run
sent to the devices that have no line is in the exported RUN of the host's history. OUT has the lines of both, each with "host" and
"group". The standard output is an object for the playbook: "devices", "outcomes" (how many have each), "isComplete" (orda_batch has
told all), and the summary's "run", "stopped" and "error" where there are.
"""

import collections
import json
import os
import sys

SHOWN = ("code", "device", "ip", "message", "name", "outcome", "serialNumber")  # a run has these as a result line has them


def lines_of(path):
    """The objects of a file of JSON lines that may be missing, or cut off in its last line."""
    if not os.path.exists(path):
        return
    with open(path, encoding="utf-8") as file:
        for line in file:
            if line.endswith("\n"):
                yield json.loads(line)


def left_in(runs, has_line):
    """What became of the devices that have no line, by the history."""
    for path in runs:
        with open(path, encoding="utf-8") as file:
            run = json.load(file)
        for device in run["devices"]:
            if device["device"] not in has_line:
                yield {**{key: device[key] for key in SHOWN}, "changes": [], "run": run["run"]}


def main(host, group, results, out, *runs):
    told = {"devices": 0, "isComplete": False}
    outcomes = collections.Counter()
    has_line = set()
    with open(os.open(out, os.O_CREAT | os.O_TRUNC | os.O_WRONLY, 0o600), "w", encoding="utf-8") as file:

        def put(line):
            has_line.add(line["device"])
            outcomes[line["outcome"]] += 1
            told["run"] = line["run"]
            print(json.dumps({"host": host, "group": group, **line}, ensure_ascii=False), file=file)

        for line in lines_of(results):
            if "summary" in line:
                told.update(line["summary"], isComplete=True)
            else:
                put(line)
        if not told["isComplete"]:
            for line in left_in(runs, has_line):
                put(line)
    print(json.dumps({**told, "devices": len(has_line), "outcomes": outcomes}))


if __name__ == "__main__":
    main(*sys.argv[1:])
