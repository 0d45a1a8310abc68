#!/usr/bin/python3
"""Runs the client among hostile devices, and a fleet among hostile clients: memory, time, and what the healthy ones got.

    attack.py --short | --long | NAME…  BINDIR      attack.py --list

One line per attack, in the form of the table in docs/reliability.md. Exit code 1: a limit was exceeded. A program that
passes 2 GB is killed, so the script can be pointed at a build without any defence.
"""

import argparse
import asyncio
import contextlib
import ctypes
import dataclasses
import json
import os
import resource
import signal
import sys
import tempfile
import time
from dataclasses import dataclass

from hostile import ATTACKS
from wire import HostileSite

MEMORY_LIMIT, DEADLY = 300, 2000  # MB
FLEET_DEVICES, FLEET_SEED = 14, 1
HEALTHY_AT_LEAST = 10             # of the fleet's devices; the others are offline or not to be configured
MAX_LATENCY = 11                  # seconds; the client waits 15 for an answer
REQUESTS = {"audio": 4, "image": 6}  # of a run, one after the other; 2 for the other families
COMMANDS = {"orda_client": ["--run"], "orda_batch": ["--no-journal", "--format", "json", "--connect-timeout", "12", "--set",
                                                     "encType=g711u", "--set", "sampleRate=8000", "--set", "aoGain=30", "apply"]}
PARTLY = (0, 1, 5)  # exit codes where hostile devices are ticked, too, and may not be reached
PR_SET_PDEATHSIG = 1


def limit_child():
    """Dies with this script, however that ends, and never takes the machine's memory."""
    ctypes.CDLL(None).prctl(PR_SET_PDEATHSIG, signal.SIGKILL)
    resource.setrlimit(resource.RLIMIT_AS, (8 << 30, 8 << 30))


class Program:
    """A program under watch: its peak of memory, killed when that is deadly."""

    def __init__(self, *command, home):
        self.command, self.home, self.peak, self.process, self.output = command, home, 0, None, b""

    async def __aenter__(self):
        environment = dict(os.environ, TMPDIR=self.home, XDG_RUNTIME_DIR=self.home, XDG_STATE_HOME=self.home, HOME=self.home, LC_ALL="C.UTF-8",
                           QT_QPA_PLATFORM="offscreen")
        with open(f"{self.home}/{os.path.basename(self.command[0])}.log", "wb") as log:
            self.process = await asyncio.create_subprocess_exec(*self.command, env=environment, stdout=asyncio.subprocess.PIPE,
                                                                stderr=log, preexec_fn=limit_child, limit=1 << 20)
        self.watcher = asyncio.create_task(self.watch())
        return self

    async def __aexit__(self, *_):
        self.watcher.cancel()
        self.kill()
        await self.process.communicate()

    def kill(self):
        if self.process.returncode is None:
            with contextlib.suppress(ProcessLookupError):
                os.kill(self.process.pid, signal.SIGKILL)  # asyncio's own kill() can take the exit code from its own watcher

    def look(self):
        with contextlib.suppress(OSError), open(f"/proc/{self.process.pid}/status", encoding="ascii") as status:
            for line in status:
                if line.startswith("VmHWM"):
                    self.peak = max(self.peak, int(line.split()[1]) // 1024)
        if self.peak > DEADLY:
            self.kill()

    async def watch(self):
        while True:
            self.look()
            await asyncio.sleep(0.02)

    async def wait(self, seconds):
        """The exit code, None when it had to be ended."""
        with contextlib.suppress(asyncio.TimeoutError):
            self.output, _ = await asyncio.wait_for(self.process.communicate(), seconds)
            return self.process.returncode
        self.kill()
        return None


def configured(home):
    """Serial numbers of the devices that the record calls a success."""
    serials = set()
    for name in os.listdir(home):
        if name.endswith("_batch_cfg_record.txt"):
            with open(f"{home}/{name}", encoding="utf-8", errors="replace") as record:
                for entry in record.read().split("\n\n"):
                    fields = entry.split("    ")
                    if len(fields) > 3 and entry[len("    ".join(fields[:2])) + 4 + 16 + 4:].startswith("success    "):
                        serials.add(fields[1])
    return serials


def done(output):
    """The same of what orda_batch prints."""
    devices = map(json.loads, output.splitlines())
    return {device["serialNumber"] for device in devices if device.get("outcome") in ("done", "unchanged")}


@dataclass
class Outcome:
    client_mb: int
    fleet_mb: int
    seconds: float
    exit_code: int   # None: it had to be ended
    configured: set  # serial numbers
    healthy: set
    attack_faults: set


async def run(attack, bin_dir, seconds, healthy):
    site = HostileSite()
    async with contextlib.AsyncExitStack() as stack:
        home = stack.enter_context(tempfile.TemporaryDirectory(prefix="orda_attack."))
        stack.push_async_callback(site.close)
        latency = min(seconds / REQUESTS.get(attack.family, 2), MAX_LATENCY)
        fleet = await stack.enter_async_context(Program(
            f"{bin_dir}/orda_fleet", "--devices", str(FLEET_DEVICES), "--seed", str(FLEET_SEED), "--latency",
            str(int(latency * 1000)), "--inventory", f"{home}/fleet.json", *attack.fleet, home=home))
        await asyncio.wait_for(fleet.process.stdout.readline(), 10)
        with open(f"{home}/fleet.json", encoding="utf-8") as file:
            entries = json.load(file)["devices"]
        good = [entry for entry in entries if entry["serialNumber"] in healthy] or entries

        victims = []  # a fleet's device answers only the newest of its clients: hostile ones get devices of their own
        if attack.on_fleet:
            victims = [entry for entry in good if "ip" in entry][:2]
            good = [entry for entry in good if entry not in victims]
        bad = []
        for number in range(attack.each):
            for behaviour in attack.hostile:
                if attack.on_fleet:
                    site.dial(behaviour, victims[number % 2])
                else:
                    entry = await site.listen(behaviour)
                    if not hasattr(behaviour, "address"):  # nobody is to know of the others
                        (good if hasattr(behaviour, "healthy") else bad).append(entry)
        inventory = f"{home}/site.json"
        with open(os.open(inventory, os.O_CREAT | os.O_WRONLY, 0o600), "w", encoding="utf-8") as file:
            json.dump({"devices": bad + good}, file)

        ids = [] if attack.ticked == "all" or not healthy else ["--devices", ",".join(entry["id"] for entry in good)]
        began = time.monotonic()
        client = await stack.enter_async_context(Program(
            f"{bin_dir}/{attack.program}", "--inventory", inventory, "--yes", *COMMANDS[attack.program], attack.family, *ids, home=home))
        code = await client.wait(seconds + attack.margin)
        duration = time.monotonic() - began
        fleet.look()
        if attack.hostile and not site.connections:
            site.faults.add("nobody was attacked")
        return Outcome(client.peak, fleet.peak, duration, code,
                       done(client.output) if attack.program == "orda_batch" else configured(home), {entry["serialNumber"] for entry in good},
                       site.faults)


def verdict(attack, outcome):
    faults, code = sorted(outcome.attack_faults), outcome.exit_code
    if max(outcome.client_mb, outcome.fleet_mb) > MEMORY_LIMIT:
        faults.append(f"over {MEMORY_LIMIT} MB")
    if code is None:
        faults.append(f"did not end within {outcome.seconds:.0f} s")
    elif code < 0:
        faults.append(f"client died of signal {-code}" + (" (ours)" if outcome.client_mb > DEADLY else ""))
    elif code not in (PARTLY if attack.ticked == "all" else (0,)):
        faults.append(f"exit code {code}")
    if not outcome.healthy <= outcome.configured:
        faults.append("healthy devices failed")
    return "; ".join(faults)


async def attack_all(attacks, bin_dir):
    """How many attacks did harm. What succeeds where nothing happens is healthy."""
    for ending in (signal.SIGTERM, signal.SIGINT):  # what is open is closed then too
        asyncio.get_running_loop().add_signal_handler(ending, asyncio.current_task().cancel)
    healthy = {}
    for fleet in {attack.fleet for attack, _ in attacks}:
        healthy[fleet] = (await run(dataclasses.replace(ATTACKS["nothing"], fleet=fleet), bin_dir, 0, set())).configured
        if len(healthy[fleet]) < HEALTHY_AT_LEAST + 3 * len(fleet):
            print(f"only {len(healthy[fleet])} devices are configured without any attack")
            return 1
    print("| Attack | Earlier | Client, MB | Fleet, MB | Seconds | Healthy | Now |\n|---|---|---|---|---|---|---|")
    harmful = 0
    for attack, seconds in attacks:
        now = await run(attack, bin_dir, seconds, healthy[attack.fleet])
        faults = verdict(attack, now)
        print(f"| `{attack.name}`: {attack.what} | {attack.earlier} | {now.client_mb} | {now.fleet_mb} | {now.seconds:.1f} | "
              f"{len(now.healthy & now.configured)} of {len(now.healthy)} | {faults or 'held'} |", flush=True)
        harmful += bool(faults)
    return harmful


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--short", action="store_true", help="those of ./dev test")
    parser.add_argument("--long", action="store_true", help="those of ./dev attack; with NAME: these at length")
    parser.add_argument("--list", action="store_true", help="names and meanings")
    parser.add_argument("words", nargs="*", metavar="NAME… BINDIR")
    options = parser.parse_args()
    if options.list:
        print("\n".join(f"{attack.name:20} {attack.what}" for attack in ATTACKS.values()))
        return 0
    *names, bin_dir = options.words or [""]
    unknown = [name for name in names if name not in ATTACKS]
    if unknown or not os.access(f"{bin_dir}/orda_client", os.X_OK) or not (names or options.short or options.long):
        parser.error(f"there is no attack {unknown[0]}" if unknown else "attacks and the directory of the programs, please")

    def length(attack):
        return attack.long if options.long or attack.short is None else attack.short

    chosen = [attack for attack in ATTACKS.values()
              if (attack.name in names if names else (attack.long if options.long else attack.short) is not None)]
    resource.setrlimit(resource.RLIMIT_NOFILE, (resource.getrlimit(resource.RLIMIT_NOFILE)[1],) * 2)
    return 1 if asyncio.run(attack_all([(attack, length(attack) or 0) for attack in chosen], bin_dir)) else 0


if __name__ == "__main__":
    try:
        sys.exit(main())
    except asyncio.CancelledError:
        sys.exit(130)
