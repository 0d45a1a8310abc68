#!/usr/bin/python3
"""All figures of docs/performance.md: runs the benchmark programs, each beside its floor, and prints one table.

    bench.py BIN [--sizes 100,1000,10000] [--repeat 3] [--json OUT] [--only run,list,site,engine,batch,windows,start,onvif]

BIN is the directory of the built programs. A figure is the median of its repetitions; a ratio is that of the medians of
two programs that ran in turn.
"""

import argparse
import collections
import json
import os
import pathlib
import statistics
import subprocess
import sys
import tempfile
import time

import onvif_part

HERE = pathlib.Path(__file__).parent
PARTS = ("run", "list", "site", "engine", "batch", "windows", "start", "onvif")
BATCH_SIZE = 1000  # devices, at most, for whole commands
OSD = ("bShowOSD=false", "timeFormat=YYYY-MM-DD hh:mm:ss", "timePos=left_top", "channelName=HD IPC",
       "position=left_top", "bLargeOSD=false")
NETWORK_SIZES = {10000: (5000, 9000, 10000)}  # where the table of one size has several rows over the network
MAX_PYTHON = 1000  # the script's figure is asked for here, and it is slow
LISTED_SHARE = 0.8  # of a simulated site: some devices are offline, of another kind, or have weak passwords


class Table:
    """Rows of figures: what, N, measured, floor, ratio, goal."""

    def __init__(self):
        self.rows = []

    def add(self, what, size, value, unit, floor=None, goal=None):
        ratio = value / floor if floor else None
        self.rows.append({"what": what, "n": size, "value": value, "unit": unit, "floor": floor, "ratio": ratio,
                          "goal": goal})

    def print(self):
        widths = (60, 7, 12, 12, 7)
        line = "| " + " | ".join("%%-%ds" % width if i == 0 else "%%%ds" % width for i, width in enumerate(widths))
        print(line % ("What", "N", "measured", "floor", "ratio") + " | to reach |")
        print("|" + "|".join("-" * (width + 2) for width in widths) + "|---|")
        for row in self.rows:
            number = lambda value: "" if value is None else "%.3g" % value if value < 100 else "%.0f" % value
            print(line % (row["what"], row["n"], number(row["value"]) + " " + row["unit"],
                          number(row["floor"]) + (" " + row["unit"] if row["floor"] else ""),
                          "" if row["ratio"] is None else "%.2f" % row["ratio"]) + " | %s |" % (row["goal"] or ""))


def environment(directory):
    return dict(os.environ, QT_QPA_PLATFORM="offscreen", QT_LOGGING_RULES="*.debug=false", TMPDIR=directory,
                XDG_RUNTIME_DIR=directory, XDG_STATE_HOME=directory)


def run(command, env):
    done = subprocess.run([str(part) for part in command], env=env, stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                          text=True)
    if done.returncode != 0:
        sys.exit("%s: exit code %d\n%s%s" % (command[0], done.returncode, done.stdout[-2000:], done.stderr[-2000:]))
    return done.stdout


def google_benchmark(program, sizes, repeat, env):
    """The repetitions of each benchmark, in milliseconds of CPU time or by the name of a counter."""
    options = ["--benchmark_format=json", "--benchmark_repetitions=%d" % repeat, "--benchmark_min_time=%g" % (0.1 if repeat > 1 else 0.01),
               "--benchmark_enable_random_interleaving=true", "--benchmark_filter=/(%s)$" % "|".join(map(str, sizes))]
    figures = collections.defaultdict(list)
    for entry in json.loads(run([program, *options], env))["benchmarks"]:
        if entry.get("error_occurred"):
            sys.exit("%s: %s" % (entry["name"], entry["error_message"]))
        if entry["run_type"] == "iteration":
            figures[entry["run_name"]].append(entry["cpu_time"])
            for counter in ("comeMs", "goMs", "pauseMs"):
                if counter in entry:
                    figures[entry["run_name"] + "/" + counter].append(entry[counter])
    return {name: statistics.median(values) for name, values in figures.items()}


def measure_run(options, env, table):
    figures = google_benchmark(options.bin / "run_bench", [1, *options.sizes], options.repeat, env)
    per_device = {}
    for size in options.sizes:
        per_device[size] = figures["osdRun/%d" % size] * 1000 / size
        table.add("OSD run, UI-thread time per device", size, per_device[size], "µs",
                  figures["osdFloor/%d" % size] * 1000 / size, {1000: "1.7x", 10000: "3.0x"}.get(size))
        table.add("  the same, every device holding something else", size,
                  figures["osdRunDifferent/%d" % size] * 1000 / size, "µs",
                  figures["osdFloor/%d" % size] * 1000 / size)
        drawing = figures["osdRun/1"]
        table.add("  the same without the painting of one run", size,
                  (figures["osdRun/%d" % size] - drawing) * 1000 / size, "µs",
                  figures["osdFloor/%d" % size] * 1000 / size)
    if {100, 10000} <= set(per_device):
        table.add("  at 10,000 against 100, per device", 10000, per_device[10000], "µs", per_device[100], "2.5x")


def measure_list(options, env, table):
    figures = google_benchmark(options.bin / "list_bench", options.sizes, options.repeat, env)
    for what, name in (("fill", "listFill"), ("search, a key stroke", "listSearch"), ("sort and renumber", "listSort")):
        for size in options.sizes:
            table.add("List: " + what, size, figures["%s/%d" % (name, size)], "ms",
                      figures["%sFloor/%d" % (name, size)], "1.5x" if size == 10000 else None)
    # With a search text the rows are Qt's own work, and these what it was found to cost.
    for what, name, comes, goes in (("", "all", "2000 ms", "2000 ms"),
                                    (", with a search text", "searched", "3000 ms", "6100 ms")):
        for size in options.sizes:
            at = lambda counter: figures["listComesAndGoes/%s/%d/%s" % (name, size, counter)]
            is_goal = size == 10000
            table.add("List: online one by one" + what, size, at("comeMs"), "ms", None, comes if is_goal else None)
            table.add("List: offline one by one" + what, size, at("goMs"), "ms", None, goes if is_goal else None)
            table.add("List: longest pause of these" + what, size, at("pauseMs"), "ms", None,
                      "100 ms" if is_goal else None)


class Fleet:
    """A fleet process, and the inventories of the devices in it that a client lists."""

    def __init__(self, options, size, directory, env):
        self.options, self.directory, self.env = options, directory, env
        inventory = directory / "all.json"
        command = [options.bin / "orda_fleet", "--devices", int(size / LISTED_SHARE) + 20, "--inventory", inventory]
        self.process = subprocess.Popen([str(part) for part in command], env=env, stdout=subprocess.PIPE, text=True)
        self.process.stdout.readline()  # "listening on …"
        record = Client(options, inventory, env).record
        listed = {line.split("    ")[1] for line in record if "    " in line}
        with open(inventory, encoding="utf-8") as file:
            self.devices = [dev for dev in json.load(file)["devices"] if dev["serialNumber"] in listed]
        if len(self.devices) < size:
            sys.exit("bench.py: only %d of %d devices were configured" % (len(self.devices), size))

    def inventory(self, size):
        path = self.directory / ("%d.json" % size)
        if not path.exists():
            with open(os.open(path, os.O_CREAT | os.O_WRONLY, 0o600), "w", encoding="utf-8") as file:
                json.dump({"devices": self.devices[:size]}, file)
        return path

    @staticmethod
    def rest(size):
        """The connections of the client before are gone, and what they held is free again."""
        time.sleep(0.2 + size / 4000)

    def end(self):
        self.process.terminate()
        self.process.wait()


class Client:
    """One OSD run of the client over an inventory, from the start of the program to its end."""

    def __init__(self, options, inventory, env, size=None):
        """@param size so many devices are there, and all of them must be configured; None: some are not"""
        command = [options.bin / "orda_client", "--language", "en", "--inventory", inventory, "--yes", "--run",
                   "osd"]
        start = time.monotonic()
        process = subprocess.Popen([str(part) for part in command], env=env, stdout=subprocess.PIPE, text=True)
        self.record = []
        for line in process.stdout:
            if "devices online" in line:
                self.connect_ms = (time.monotonic() - start) * 1000
                self.memory = resident_kib(process.pid)
            elif line.startswith("run: "):
                self.run_ms = float(line.split()[1])
            elif line.startswith("longest pause: "):
                self.pause_ms = float(line.split()[2])
            elif not line.startswith("Configuring("):
                self.record.append(line)
        result = process.wait()
        counts = "A total of %s devices have been configured, success:%s, failure:0" % (size, size)
        if size and (result != 0 or counts + "\n" not in self.record):
            sys.exit("bench.py: the client did not configure all of %d devices (exit code %d)" % (size, result))


def resident_kib(pid):
    with open("/proc/%d/status" % pid, encoding="ascii") as file:
        return int(next(line for line in file if line.startswith("VmRSS")).split()[1])


def network_sizes(sizes):
    return sorted({n for size in sizes for n in NETWORK_SIZES.get(size, (size,))})


def measure_site(options, env, directory, table):
    sizes = network_sizes(options.sizes)
    fleet = Fleet(options, max(sizes), directory, env)
    for size in sizes:
        inventory = fleet.inventory(size)
        ours, bare, script = [], [], []
        for _ in range(options.repeat):
            fleet.rest(size)
            ours.append(Client(options, inventory, env, size))
            fleet.rest(size)
            bare.append(json.loads(run([options.bin / "bare_client", inventory], env)))
            if size <= MAX_PYTHON:
                fleet.rest(size)
                script.append(json.loads(run([HERE / "asyncio_client.py", inventory], env))["runMs"])
        median = lambda of: statistics.median(of(client) for client in ours)
        floor = lambda key: statistics.median(figures[key] for figures in bare)
        run_ms = median(lambda client: client.run_ms)
        goal = {100: "15 ms more", 1000: "1.5x", 5000: "1.5x"}.get(size)
        table.add("Network run, against bare QtWebSockets", size, run_ms, "ms", floor("runMs"), goal)
        if script:
            table.add("Network run, against a Python script", size, run_ms, "ms", statistics.median(script),
                      "0.4x" if size == 1000 else None)
        table.add("Network run, longest pause of the window", size, median(lambda client: client.pause_ms), "ms", None,
                  {1000: "50 ms", 10000: "300 ms"}.get(size))
        goal = "1.5x" if size == 9000 else None
        table.add("Program started to all devices connected", size, median(lambda client: client.connect_ms), "ms", floor("connectMs"),
                  goal)
        table.add("Memory with all devices connected", size, median(lambda client: client.memory) / 1024, "MiB",
                  floor("memoryKiB") / 1024, goal)
    fleet.end()


def measure_engine(options, env, directory, table):
    directory = directory / "engine"  # another fleet, and so other inventories
    directory.mkdir()
    fleet = Fleet(options, max(options.sizes), directory, env)
    for size in options.sizes:
        inventory = fleet.inventory(size)
        figures = collections.defaultdict(list)
        for _ in range(options.repeat):
            for mode in ("tasks", "apply", "plan"):
                fleet.rest(size)
                figures[mode].append(json.loads(run([options.bin / "engine_client", mode, inventory], env)))
            fleet.rest(size)
            figures["read"].append(json.loads(run([options.bin / "bare_client", inventory, "--read"], env)))
        median = lambda mode, key="runMs": statistics.median(one[key] for one in figures[mode])
        table.add("Run by the engine with the history (every commit synced), against the tasks alone", size,
                  median("apply"), "ms", median("tasks"),
                  {1000: "50 ms more or 1.3x", 10000: "1.15x"}.get(size))
        table.add("Plan, against the reads of bare QtWebSockets", size, median("plan"), "ms", median("read"), "1.3x")
        table.add("Memory of a run by the engine, at most", size, median("apply", "peakKiB") / 1024, "MiB",
                  None, "400 MiB" if size == 10000 else None)
    fleet.end()
    runs, devices = (100, 1000) if options.repeat > 1 else (10, 100)
    listed = json.loads(run([options.bin / "engine_client", "history", runs, devices],
                            dict(env, XDG_STATE_HOME=str(directory / "list"))))
    table.add("List of %d runs over so many devices, read from the history" % runs, devices, listed["listMs"], "ms",
              None, "100 ms")


def wall_ms(command, env, expected=(0,)):
    """From the start of a program to its end, its output thrown away."""
    start = time.monotonic()
    done = subprocess.run([str(part) for part in command], env=env, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE,
                          text=True)
    if done.returncode not in expected:
        sys.exit("%s: exit code %d\n%s" % (command[0], done.returncode, done.stderr[-2000:]))
    return (time.monotonic() - start) * 1000


def measure_batch(options, env, directory, table):
    directory = directory / "batch"
    directory.mkdir()
    size = min(max(options.sizes), BATCH_SIZE)
    fleet = Fleet(options, size, directory, env)
    inventory = fleet.inventory(size)
    batch = [options.bin / "orda_batch"]
    values = [word for value in OSD for word in ("--set", value)]
    on_devices = lambda *command: batch + [*command, "--inventory", inventory, "--format", "json"]
    commands = {"start": (batch + ["families"], (0,)),
                "plan": (on_devices("plan", "osd", *values), (0, 10)),
                "apply": (on_devices("apply", "osd", *values, "--yes"), (0,)),
                "script": ([HERE / "asyncio_client.py", inventory], (0,))}
    figures = collections.defaultdict(list)
    for _ in range(options.repeat):
        for name, (command, expected) in commands.items():
            fleet.rest(size if name != "start" else 0)
            figures[name].append(wall_ms(command, env, expected))
        for name, mode in (("bare reads", ["--read"]), ("bare", [])):  # between connecting and its run it rests 200 ms
            fleet.rest(size)
            bare = json.loads(run([options.bin / "bare_client", inventory, *mode], env))
            figures[name].append(bare["connectMs"] + bare["runMs"])
    fleet.end()
    median = lambda name: statistics.median(figures[name])
    table.add("orda_batch started, and ended without devices", 0, median("start"), "ms", None, "60 ms")
    table.add("orda_batch plan, start to end, against a bare client that reads", size, median("plan"), "ms", median("bare reads"))
    table.add("orda_batch apply with the history, against a bare client", size, median("apply"), "ms", median("bare"))
    table.add("orda_batch apply with the history, against a Python script", size, median("apply"), "ms", median("script"))


def measure_start(options, env, table):
    times = []
    for _ in range(options.repeat):
        start = time.monotonic()
        process = subprocess.Popen([str(options.bin / "orda_client"), "--language", "en", "--demo", "200",
                                    "--run", "osd"], env=env,
                                   stdout=subprocess.PIPE, text=True)
        for line in process.stdout:
            if line.startswith("window shown"):
                times.append((time.monotonic() - start) * 1000)
        process.wait()
    table.add("Start of the client to the form shown", 200, statistics.median(times), "ms", None, "1000 ms")


def measure_windows(options, env, directory, table):
    size = max(options.sizes)
    directory = directory / "windows"  # another fleet, and a history of its own
    directory.mkdir()
    env = dict(env, XDG_STATE_HOME=str(directory), XDG_CONFIG_HOME=str(directory))
    fleet = Fleet(options, size, directory, env)
    try:
        inventory = fleet.inventory(size)
        run([options.bin / "engine_client", "apply", inventory], env)  # a run over all of them, to be shown
        fleet.rest(size)
        pauses = collections.defaultdict(list)
        for _ in range(options.repeat):
            for what, pause in json.loads(run([options.bin / "windows_bench", inventory], env)).items():
                pauses[what].append(pause)
            fleet.rest(size)
        for what, found in pauses.items():
            table.add("Window " + what + ", longest pause", size, statistics.median(found), "ms", None, "100 ms" if size == 10000 else None)
    finally:
        fleet.end()


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("bin", type=pathlib.Path)
    parser.add_argument("--sizes", default="100,1000,10000", type=lambda text: [int(n) for n in text.split(",")])
    parser.add_argument("--repeat", default=3, type=int)
    parser.add_argument("--json", type=pathlib.Path)
    parser.add_argument("--only", default=",".join(PARTS), type=lambda text: text.split(","))
    options = parser.parse_args()

    table = Table()
    with tempfile.TemporaryDirectory() as name:
        directory = pathlib.Path(name)
        env = environment(name)
        for part in options.only:
            if part == "run":
                measure_run(options, env, table)
            elif part == "list":
                measure_list(options, env, table)
            elif part == "site":
                measure_site(options, env, directory, table)
            elif part == "engine":
                measure_engine(options, env, directory, table)
            elif part == "batch":
                measure_batch(options, env, directory, table)
            elif part == "windows":
                measure_windows(options, env, directory, table)
            elif part == "start":
                measure_start(options, env, table)
            elif part == "onvif":
                onvif_part.measure_onvif(options, env, directory, table, run)
            else:
                parser.error("--only takes some of %s, not \"%s\"" % (", ".join(PARTS), part))
    table.print()
    if options.json:
        options.json.write_text(json.dumps(table.rows, indent=2), encoding="utf-8")


if __name__ == "__main__":
    main()
