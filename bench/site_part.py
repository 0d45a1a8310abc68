"""The parts "site", "engine", "batch" and "windows" of bench.py: all that needs a simulated site."""

import collections
import json
import os
import pathlib
import subprocess
import sys
import time

from figures import run

SCRIPT = pathlib.Path(__file__).parent / "asyncio_client.py"
BATCH_SIZE = 1000  # devices, at most, for whole commands
OSD = ("bShowOSD=false", "timeFormat=YYYY-MM-DD hh:mm:ss", "timePos=left_top", "channelName=HD IPC",
       "position=left_top", "bLargeOSD=false")
NETWORK_SIZES = {10000: (5000, 9000, 10000)}  # where the table of one size has several rows over the network
FLAT = (1000, 9000)  # between these the time per device may grow by a third
MAX_PYTHON = 1000  # the script's figure is asked for here, and it is slow
LISTED_SHARE = 0.8  # of a simulated site: some devices are offline, of another kind, or have weak passwords


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


def take_turns(options, env, fleet, size):
    """The same run by the client and by each of its floors. What each took: {client: {figure: [of each repetition]}}."""
    inventory = fleet.inventory(size)
    floors = {"bare": options.bin / "bare_client", "epoll": options.bin / "beast_client"}
    if size <= MAX_PYTHON:
        floors["script"] = SCRIPT
    figures = collections.defaultdict(lambda: collections.defaultdict(list))
    for _ in range(options.repeat):
        fleet.rest(size)
        ours = Client(options, inventory, env, size)
        found = {"ours": {"runMs": ours.run_ms, "pauseMs": ours.pause_ms, "connectMs": ours.connect_ms, "memoryKiB": ours.memory}}
        for name, program in floors.items():
            fleet.rest(size)
            found[name] = json.loads(run([program, inventory], env))
        for name, each in found.items():
            for figure, value in each.items():
                figures[name][figure].append(value)
    return figures


def measure_site(options, env, directory, table):
    sizes = network_sizes(options.sizes)
    fleet = Fleet(options, max(sizes), directory, env)
    per_device = {}
    for size in sizes:
        figures = take_turns(options, env, fleet, size)
        ours = figures["ours"]
        for name, other, goals in (("bare", "bare QtWebSockets", {100: "15 ms more", 1000: "1.5x", 5000: "1.5x", 10000: "0.9x"}),
                                   ("epoll", "an epoll client", {}), ("script", "a Python script", {1000: "0.33x"})):
            if name in figures:
                table.add("Network run, against " + other, size, ours["runMs"], "ms", figures[name]["runMs"], goals.get(size))
        table.add("Network run, longest pause of the window", size, ours["pauseMs"], "ms", None,
                  {1000: "50 ms", 10000: "50 ms"}.get(size))
        for name, other, connect, memory in (("bare", "bare QtWebSockets", {9000: "0.5x"}, {9000: "1.25x"}),
                                             ("epoll", "an epoll client", {}, {})):
            mib = lambda client: [kib / 1024 for kib in figures[client]["memoryKiB"]]
            table.add("Started to all connected, against " + other, size, ours["connectMs"], "ms", figures[name]["connectMs"],
                      connect.get(size))
            table.add("Memory with all connected, against " + other, size, mib("ours"), "MiB", mib(name), memory.get(size))
        per_device[size] = [ms * 1000 / size for ms in ours["runMs"]]
    fleet.end()
    few, many = FLAT
    if few in per_device and many in per_device:
        table.add("Network run per device, against the same at {:,}".format(few), many, per_device[many], "µs", per_device[few], "1.3x")


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
        values = lambda mode, key="runMs": [one[key] for one in figures[mode]]
        table.add("Run by the engine with the history, against the tasks alone", size,
                  values("apply"), "ms", values("tasks"),
                  {1000: "50 ms more or 1.3x", 10000: "1.15x"}.get(size))
        table.add("Plan, against the reads of bare QtWebSockets", size, values("plan"), "ms", values("read"), "1.3x")
        table.add("Memory of a run by the engine, at most", size, [kib / 1024 for kib in values("apply", "peakKiB")], "MiB",
                  None, "400 MiB" if size == 10000 else None)
    fleet.end()
    runs, devices = (100, 1000) if options.repeat > 1 else (10, 100)
    listed = json.loads(run([options.bin / "engine_client", "history", runs, devices],
                            dict(env, XDG_STATE_HOME=str(directory / "list"))))
    table.add("List of %d runs over so many devices each, from the history" % runs, devices, [listed["listMs"]], "ms",
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
    sizes = sorted({min(size, BATCH_SIZE) for size in options.sizes})
    fleet = Fleet(options, max(sizes), directory, env)
    batch = [options.bin / "orda_batch"]
    table.add("`orda_batch` started, and ended without devices", None,
              [wall_ms(batch + ["families"], env) for _ in range(options.repeat)], "ms", None, "60 ms")
    values = [word for value in OSD for word in ("--set", value)]
    for size in sizes:
        inventory = fleet.inventory(size)
        on_devices = lambda *command: batch + [*command, "--inventory", inventory, "--format", "json"]
        commands = {"plan": (on_devices("plan", "osd", *values), (0, 10)),
                    "apply": (on_devices("apply", "osd", *values, "--yes"), (0,)),
                    "script, plan": ([SCRIPT, inventory, "--read"], (0,)),
                    "script, apply": ([SCRIPT, inventory], (0,))}
        figures = collections.defaultdict(list)
        for _ in range(options.repeat):
            for name, (command, expected) in commands.items():
                fleet.rest(size)
                figures[name].append(wall_ms(command, env, expected))
            for name, mode in (("bare, plan", ["--read"]), ("bare, apply", [])):
                fleet.rest(size)
                bare = json.loads(run([options.bin / "bare_client", inventory, *mode], env))
                figures[name].append(bare["connectMs"] + bare["runMs"])  # without its rest between the two
        for what, name in (("`orda_batch plan`", "plan"), ("`orda_batch apply`", "apply")):
            for other, floor in (("a bare client", "bare, "), ("a Python script", "script, ")):
                table.add("%s, start to end, against %s" % (what, other), size, figures[name], "ms", figures[floor + name])
    fleet.end()


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
            table.add("Window " + what + ", longest pause", size, found, "ms", None, "100 ms" if size == 10000 else None)
    finally:
        fleet.end()
