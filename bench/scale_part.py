"""The part "scale" of bench.py: what orda_batch needs on one machine, all at once and in shares that run in turn."""

import collections
import contextlib
import json
import os
import subprocess
import sys
import tempfile
import threading
import time

from site_part import OSD

SHARES = 10
FLEET_SHARE = 0.86  # of simulated devices can be written to; the others are off line, of another kind, or have weak passwords
SAMPLE_S = 0.02  # between two looks at the open files of a process
REST_S = 0.2  # and a second for 4,000 devices, until the connections of the run before are gone
MIB = 1024 * 1024


class Fleet:
    """A process of simulated devices, and those of them that orda_batch configures."""

    def __init__(self, stack, options, size, seed, directory, env, others=()):
        """@param others: fleets of the same site, which has each serial number once"""
        inventory = directory / ("fleet%d.json" % seed)
        command = [options.bin / "orda_fleet", "--devices", int(size / FLEET_SHARE) + 20, "--seed", seed, "--inventory", inventory]
        self.process = subprocess.Popen([str(word) for word in command], env=env, stdout=subprocess.PIPE, text=True)
        stack.callback(self.process.wait)
        stack.callback(self.process.terminate)
        self.process.stdout.readline()  # "listening on …"
        read = subprocess.run([str(options.bin / "orda_batch"), "read", "osd", "--inventory", str(inventory), "--format", "json",
                               "--connect-timeout", "300"], env=env, stdout=subprocess.PIPE, text=True)
        known = {device["serialNumber"] for fleet in others for device in fleet.devices}
        reached = {line["device"] for line in map(json.loads, read.stdout.splitlines()) if line.get("outcome") == "done"}
        with open(inventory, encoding="utf-8") as file:
            self.devices = [dict(device, id="%d-%s" % (seed, device["id"])) for device in json.load(file)["devices"]
                            if device["id"] in reached and device["serialNumber"] not in known][:size]
        if len(self.devices) < size:
            sys.exit("bench.py: only %d of %d devices can be configured" % (len(self.devices), size))


def write_inventory(path, devices):
    with open(os.open(path, os.O_CREAT | os.O_TRUNC | os.O_WRONLY, 0o600), "w", encoding="utf-8") as file:
        json.dump({"devices": devices}, file)
    return path


class Watch(threading.Thread):
    """Looks at a process from time to time, for the most memory, open files and threads that it has."""

    def __init__(self, pid):
        super().__init__()
        self.memory, self.files, self.threads = 0, 0, 0
        self.pid, self.has_ended = pid, threading.Event()
        self.start()

    def run(self):
        while not self.has_ended.wait(SAMPLE_S):
            with open("/proc/%d/status" % self.pid, encoding="ascii") as file:  # wait4() would count what Python had before it
                peaks = [int(line.split()[1]) / 1024 for line in file if line.startswith("VmHWM")]
            self.memory = max([self.memory, *peaks])  # none is there when the process has ended
            self.files = max(self.files, len(os.listdir("/proc/%d/fd" % self.pid)))
            self.threads = max(self.threads, len(os.listdir("/proc/%d/task" % self.pid)))

    def end(self):
        self.has_ended.set()
        self.join()


def usage_of(command, env):
    """Runs orda_batch. @return what it needed, and how many devices it was about"""
    with tempfile.TemporaryFile("w+", encoding="utf-8") as results:
        start = time.monotonic()
        process = subprocess.Popen([str(word) for word in command], env=env, stdout=results)
        watch = Watch(process.pid)
        os.waitid(os.P_PID, process.pid, os.WEXITED | os.WNOWAIT)  # its entry in /proc stays until the watch has ended
        seconds = time.monotonic() - start
        watch.end()
        _, status, usage = os.wait4(process.pid, 0)
        process.returncode = os.waitstatus_to_exitcode(status)
        results.seek(0)
        summary = json.loads(results.readlines()[-1])["summary"]
    if process.returncode != 0:
        sys.exit("bench.py: %s: exit code %d: %s" % (command[1], process.returncode, summary))
    return {"seconds": seconds, "cpu": usage.ru_utime + usage.ru_stime, "memory": watch.memory, "files": watch.files,
            "threads": watch.threads, "devices": summary["devices"]}


class Site:
    """orda_batch over an inventory, with a history of its own."""

    def __init__(self, options, directory, inventory, values, env):
        self.batch, self.directory, self.inventory = options.bin / "orda_batch", directory, inventory
        self.values = [word for value in values for word in ("--set", value)]
        self.env = dict(env, XDG_STATE_HOME=str(directory))

    def apply(self, *options):
        return usage_of([self.batch, "apply", "osd", "--inventory", self.inventory, "--format", "json", "--yes", *self.values, *options], self.env)

    def read(self, *options):
        return usage_of([self.batch, "read", "osd", "--inventory", self.inventory, "--format", "json", *options], self.env)

    def history_mib(self):
        return sum(file.stat().st_size for file in self.directory.glob("orda/history.db*")) / MIB

    def move_run(self, directory):
        """Brings the last run to another history. @return the size of what travels, in MiB, and how many seconds it takes"""
        directory.mkdir()
        file = directory / "run.json"
        start = time.monotonic()
        with open(file, "wb") as output:
            subprocess.run([str(self.batch), "history", "export", "last"], env=self.env, check=True, stdout=output)
        subprocess.run([str(self.batch), "history", "import", str(file)], env=dict(self.env, XDG_STATE_HOME=str(directory)), check=True,
                       stdout=subprocess.DEVNULL)
        return file.stat().st_size / MIB, time.monotonic() - start


def add_usage(table, what, size, figures):
    for name, key, unit in (("start to end", "seconds", "s"), ("processor time", "cpu", "s"), ("memory, at most", "memory", "MiB"),
                            ("open files, at most", "files", ""), ("threads, at most", "threads", ""), ("history", "history", "MiB"),
                            ("the run exported", "exported", "MiB"), ("exported and imported", "moved", "s")):
        if figures[key]:
            table.add("%s: %s" % (what, name), size, figures[key], unit)


def measure_at_once(stack, options, env, directory, table, values):
    fleet = Fleet(stack, options, max(options.sizes), 1, directory, env)
    for size in options.sizes:
        inventory = write_inventory(directory / "scale.json", fleet.devices[:size])
        figures = collections.defaultdict(list)
        for turn in range(options.repeat):
            time.sleep(REST_S + size / 4000)
            state = directory / ("state-%d-%d" % (size, turn))
            site = Site(options, state, inventory, values + ("channelName=Turn %d" % turn,), env)
            for key, value in site.apply().items():
                figures[key].append(value)
            figures["history"].append(site.history_mib())
            for key, value in zip(("exported", "moved"), site.move_run(directory / ("other-%d-%d" % (size, turn)))):
                figures[key].append(value)
        add_usage(table, "orda_batch apply", size, figures)


def measure_in_turn(stack, options, env, directory, table, values):
    size = max(options.sizes)
    fleets = []
    for number in range(SHARES):
        fleets.append(Fleet(stack, options, size, number + 1, directory, env, fleets))
    devices = [device for fleet in fleets for device in fleet.devices]
    inventory = write_inventory(directory / "scale.json", devices)
    site = Site(options, directory / "state-in-turn", inventory, values, env)
    figures = collections.defaultdict(list)
    for key, value in site.read("--devices", devices[0]["id"]).items():
        figures[key].append(value)
    add_usage(table, "One device of an inventory of so many", len(devices), figures)
    figures.clear()
    for share in range(1, SHARES + 1):
        time.sleep(REST_S + size / 4000)
        for key, value in site.apply("--shard", "%d/%d" % (share, SHARES)).items():
            figures[key].append(value)
    figures["history"].append(site.history_mib())
    if sum(figures["devices"]) != len(devices):
        sys.exit("bench.py: the shares have %d devices of %d" % (sum(figures["devices"]), len(devices)))
    add_usage(table, "One of %d shares in turn" % SHARES, len(devices), figures)
    table.add("All %d shares, start to end" % SHARES, len(devices), [sum(figures["seconds"])], "s")


def measure_scale(options, env, directory, table):
    directory = directory / "scale"
    directory.mkdir()
    values = tuple(value for value in OSD if not value.startswith("channelName"))
    with contextlib.ExitStack() as stack:
        measure_at_once(stack, options, env, directory, table, values)
    with contextlib.ExitStack() as stack:
        measure_in_turn(stack, options, env, directory, table, values + ("channelName=In turn",))
