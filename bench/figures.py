"""The table of all figures, and how the programs are run that it comes from."""

import os
import statistics
import subprocess
import sys


class Table:
    """Rows of figures, each at some numbers of devices: measured, floor, ratio, goal. A figure is the median of its repetitions, a
    ratio that of two medians."""

    def __init__(self):
        self.rows = []

    def add(self, what, size, values, unit, floors=None, goal=None):
        """@param size None: of no number of devices, or of one that stands in what
        @param values, floors one of each repetition"""
        row = {"what": what, "n": size, "unit": unit, "goal": goal, "value": statistics.median(values), "floor": None, "ratio": None}
        row["range"] = [min(values), max(values)]
        if floors:
            row["floor"] = statistics.median(floors)
            row["floorRange"] = [min(floors), max(floors)]
            row["ratio"] = row["value"] / row["floor"]
        self.rows.append(row)

    def markdown(self):
        """As docs/performance.md has it, and in the order in which the figures came."""
        by_name = {}
        for row in self.rows:
            if row["n"] is not None:
                by_name.setdefault(row["what"] + (", " + row["unit"] if row["unit"] else ""), {})[row["n"]] = row
        sizes = sorted({size for cells in by_name.values() for size in cells})
        lines = [["Figure", *("{:,}".format(size) for size in sizes), "To reach"]]
        for name, cells in by_name.items():
            lines.append([name, *(cell(cells[size]) if size in cells else "" for size in sizes), goals(cells)])
        widths = [max(map(len, column)) for column in zip(*lines)]
        lines.insert(1, ["-" * width for width in widths])
        text = ["| " + " | ".join(map(str.ljust, line, widths)) + " |" for line in lines]
        for row in self.rows:
            if row["n"] is None:
                text += ["", "%s: %s %s%s" % (row["what"], cell(row), row["unit"], " (to reach: %s)" % row["goal"] if row["goal"] else "")]
        return "\n".join(text) + "\n"


def number(value):
    return "{:.3g}".format(value) if value < 100 else "{:,.0f}".format(value)


def cell(row):
    if row["floor"] is None:
        return number(row["value"])
    return "%s : %s = **%.2f**" % (number(row["value"]), number(row["floor"]), row["ratio"])


def goals(cells):
    wanted = {size: row["goal"] for size, row in sorted(cells.items()) if row["goal"]}
    if len(wanted) == len(cells) and len(set(wanted.values())) == 1:
        return next(iter(wanted.values()))
    return "; ".join("{} at {:,}".format(goal, size) for size, goal in wanted.items())


def environment(directory):
    return dict(os.environ, QT_QPA_PLATFORM="offscreen", QT_LOGGING_RULES="*.debug=false", TMPDIR=directory,
                XDG_RUNTIME_DIR=directory, XDG_STATE_HOME=directory)


def run(command, env, expected=(0,)):
    """What the program prints."""
    done = subprocess.run([str(part) for part in command], env=env, stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                          text=True)
    if done.returncode not in expected:
        sys.exit("%s: exit code %d\n%s%s" % (command[0], done.returncode, done.stdout[-2000:], done.stderr[-2000:]))
    return done.stdout
