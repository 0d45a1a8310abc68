#!/usr/bin/env python3
"""The Ansible role over three sites of simulated devices, one of which loses its orda_batch in the middle: ansible_sites.py BIN

All hosts are this machine, each with a directory and a history of its own; two of them share a site. Ends with 77 without Ansible.
"""
import contextlib
import json
import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile
import time

PACKAGING = pathlib.Path(__file__).resolve().parent.parent / "packaging" / "ansible"
BIN = pathlib.Path(sys.argv[1]).resolve()
SITES = {"north": ["north-1"], "south": ["south-1", "south-2"], "west": ["west-1"]}
DEVICES = [f"dev-{number:04}" for number in range(1, 29) if number != 16]  # of 28, which is reached through others only
FIRST_WAVE, SECOND_WAVE, OTHERS = DEVICES[:6], DEVICES[6:12], DEVICES[12:]
# The west takes what it is sent in the second wave, and is killed before it answers.
SLOW = {"devices": SECOND_WAVE, "methods": ["chnosd_set_param"], "fault": "late-answer", "delayMs": 12000}
NAME = "Gate \"$HOME\" ~ 'a b' %"  # what a shell or Ansible would change
PLAYBOOK = [{"hosts": "sites", "gather_facts": False, "roles": ["orda_site"]}]
LIMIT = 60  # seconds
SKIPPED = 77


class Site:
    """The simulated devices that the hosts of a site configure."""

    def __init__(self, stack, directory, name, faults):
        self.inventory, self.dump = directory / f"{name}.json", directory / f"{name}-dump.json"
        told = directory / f"{name}-faults.json"
        told.write_text(json.dumps({"faults": faults}))
        self.fleet = subprocess.Popen([BIN / "orda_fleet", "--devices", "28", "--inventory", self.inventory, "--dump", self.dump,
                                       "--faults", told], stdout=subprocess.PIPE, text=True)
        stack.callback(self.fleet.wait)
        stack.callback(self.fleet.terminate)
        self.fleet.stdout.readline()  # the devices can be dialled

    def named(self):
        """The devices that hold the new name."""
        self.dump.unlink(missing_ok=True)
        self.fleet.send_signal(signal.SIGUSR1)
        wait_for(self.dump.exists)
        held = json.loads(self.dump.read_text())["devices"]
        return [device for device, values in held.items() if values["osd"]["channelName"] == NAME]


def wait_for(holds):
    end = time.monotonic() + LIMIT
    while not holds():
        if time.monotonic() > end:
            raise TimeoutError
        time.sleep(0.02)


class Control:
    """The control machine: its inventory of hosts, its playbooks and its history."""

    def __init__(self, stack, directory):
        self.directory = directory
        self.sites = {name: Site(stack, directory, name, [SLOW] if name == "west" else []) for name in SITES}
        self.env = dict(os.environ, HOME=str(directory), XDG_STATE_HOME=str(directory / "state"), XDG_CONFIG_HOME=str(directory),
                        LC_ALL="C.UTF-8", PATH=f"{BIN}:{os.environ['PATH']}", ANSIBLE_ROLES_PATH=str(PACKAGING / "roles"),
                        ANSIBLE_PIPELINING="1", ANSIBLE_RETRY_FILES_ENABLED="1")
        program = directory / "noting_orda_batch"  # notes which process the program is
        program.write_text(f"#!/bin/sh\n[ \"$1\" != apply ] || echo $$ >pid\nexec {BIN}/orda_batch \"$@\"\n")
        program.chmod(0o700)
        variables = {"ansible_connection": "local", "ansible_python_interpreter": sys.executable, "orda_site_command": "apply",
                     "orda_site_directory": str(directory / "{{ inventory_hostname }}"), "orda_site_program": str(program),
                     "orda_site_environment": {"XDG_STATE_HOME": "{{ orda_site_directory }}/state"},
                     "orda_site_family": "osd", "orda_site_values": {"channelName": NAME}, "orda_site_serial": "6,6,100%"}
        groups = {name: {"hosts": {host: {} for host in hosts},
                         "vars": {"orda_site_group": name, "orda_site_inventory": str(self.sites[name].inventory)}}
                  for name, hosts in SITES.items()}
        groups["west"]["vars"] = {"orda_site_group": "west", "orda_site_inventory_source": str(self.sites["west"].inventory)}
        directory.joinpath("hosts.json").write_text(json.dumps({"sites": {"children": groups, "vars": variables}}))
        directory.joinpath("sites.yml").write_text(json.dumps(PLAYBOOK))

    def start_play(self, *options):
        return subprocess.Popen(["ansible-playbook", "-i", "hosts.json", "sites.yml", *options], cwd=self.directory, env=self.env,
                                stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)

    def play(self, *options):
        """@return exit code and what was printed"""
        process = self.start_play(*options)
        return process.communicate(timeout=LIMIT)[0], process.returncode

    def results(self):
        """What the control machine has of all hosts: device and outcome of each line, by site."""
        lines = [json.loads(line) for line in self.directory.joinpath("results", "apply.jsonl").read_text().splitlines()]
        return {name: sorted((line["device"], line["outcome"]) for line in lines if line["group"] == name) for name in SITES}

    def runs(self):
        """The runs that its history has, the latest first: the outcome of each device, and the devices that something was sent to."""
        batch = lambda *words: subprocess.run([BIN / "orda_batch", "history", *words], env=self.env, check=True, stdout=subprocess.PIPE,
                                              text=True).stdout
        runs = [json.loads(batch("export", json.loads(line)["run"])) for line in batch("--format", "json").splitlines()]
        return [({(device["device"], device["outcome"]) for device in run["devices"]},
                 {device["device"] for device in run["devices"] if any(each["sent"] for each in device["exchanges"])}) for run in runs]


def all_of(outcome, devices=None):
    return [(device, outcome) for device in devices or DEVICES]


def differing(what, found, expected):
    if isinstance(expected, dict):
        return [fault for key in expected for fault in differing(f"{what}, {key}", found[key], expected[key])]
    if isinstance(expected, (list, set)) and sorted(found) != sorted(expected):
        found, expected = sorted(set(found) - set(expected)), sorted(set(expected) - set(found))
        return [f"{what}: too many or twice {found}, missing {expected}"]
    return [] if found == expected else [f"{what}: {found}\n  instead of {expected}"]


def kill_in_the_second_wave(control):
    """The west's orda_batch, when its devices hold what they were sent and the first wave has been told."""
    west, own = control.sites["west"], lambda name: control.directory.glob(f"west-1/play-*/{name}")
    told = lambda: sum(path.read_text().count("\n") for path in own("result.jsonl"))
    wait_for(lambda: told() == len(FIRST_WAVE) and west.named() == FIRST_WAVE + SECOND_WAVE)
    os.kill(int(next(own("pid")).read_text()), signal.SIGKILL)


def unconfirmed(control):
    said, code = control.play("--limit", "north")
    yield from differing("exit code without a confirmation", (code != 0, "orda_site_confirmed" in said), (True, True))
    yield from differing("written without a confirmation", control.sites["north"].named(), [])


def killed(control):
    process = control.start_play("-e", "orda_site_confirmed=true")
    kill_in_the_second_wave(control)
    said = process.communicate(timeout=LIMIT)[0]
    yield from differing("exit code", process.returncode != 0, True)
    told = [line for line in said.splitlines() if "west-1: orda_batch has not ended by itself (137)" in line]
    yield from differing("told of the west", [line for line in told if "6 done" in line and "27 devices" in line] or said, told)
    yield from differing("failed hosts", control.directory.joinpath("sites.retry").read_text().split(), SITES["west"])
    west = all_of("done", FIRST_WAVE) + all_of("unknown", SECOND_WAVE) + all_of("stopped", OTHERS)
    yield from differing("results", control.results(), {"north": all_of("done"), "south": all_of("done"), "west": west})
    for name, devices in (("north", DEVICES), ("south", DEVICES), ("west", FIRST_WAVE + SECOND_WAVE)):
        yield from differing(f"devices of the {name} that were configured", control.sites[name].named(), devices)
    runs = control.runs()
    yield from differing("number of runs in the history", len(runs), 4)
    yield from differing("whether the west's run is among them", [found == set(west) for found, _ in runs].count(True), 1)
    shares = [sent for _, sent in runs if len(sent) < len(DEVICES) and not sent == set(FIRST_WAVE + SECOND_WAVE)]
    yield from differing("devices of both shares of the south", sorted(device for share in shares for device in share), DEVICES)
    kept = [path.name for site in SITES.values() for host in site for path in control.directory.joinpath(host).iterdir()]
    yield from differing("left on the hosts", kept, ["lock", "state"] * 4)
    mine = control.directory.joinpath("results").rglob("*")
    yield from differing("results that others may read", [path for path in mine if path.stat().st_mode & 0o077], [])


def again(control):
    said, code = control.play("-e", '{"orda_site_confirmed": true, "orda_site_devices": ["failed:last-play"]}', "--limit", "@sites.retry")
    yield from differing("exit code", (code, said), (0, said))
    west = all_of("unchanged", SECOND_WAVE) + all_of("done", OTHERS)
    yield from differing("results", control.results(), {"north": all_of("done"), "south": all_of("done"), "west": west})
    yield from differing("devices of the west that were configured", control.sites["west"].named(), DEVICES)
    yield from differing("number of runs in the history", len(control.runs()), 5)
    yield from differing("devices that something was sent to", control.runs()[0][1], set(SECOND_WAVE + OTHERS))


def never_begun(control):
    said, code = control.play("-e", "orda_site_confirmed=true orda_site_command=undo orda_site_run=last-play")
    yield from differing("exit code, hosts without a run", (code, said.count("Nothing is done")), (0, 4))


def undone(control):
    """Twice: the second one finds that all is taken back, and does not take back the first."""
    undo = ("-e", "orda_site_confirmed=true orda_site_command=undo orda_site_run=last-play", "--limit", "west")
    for _ in range(2):
        said, code = control.play(*undo)
        yield from differing("exit code", (code, said), (0, said))
        yield from differing("devices of the west that keep the name", control.sites["west"].named(), FIRST_WAVE + SECOND_WAVE)


def unreadable(control):
    """A line and a run that are broken are told, and cost no other line."""
    results, run, out = (control.directory / name for name in ("broken.jsonl", "run-empty.json", "out.jsonl"))
    line = {"run": "1", "device": "dev-1", "outcome": "done"}
    results.write_text(f'[1\n{{"device": 2}}\n{json.dumps(line)}\n{{"run')
    run.touch()
    script = PACKAGING / "roles" / "orda_site" / "files" / "complete_results.py"
    told = json.loads(subprocess.check_output([sys.executable, script, "host", "site", results, out, run]))
    yield from differing("faults", [fault.split(": ")[0] for fault in told["faults"]], [f"{results}:1", f"{results}:2", str(run)])
    yield from differing("lines", [json.loads(text) for text in out.read_text().splitlines()], [{"host": "host", "group": "site", **line}])


def main():
    if not shutil.which("ansible-playbook"):
        print("ansible_sites: skipped: ansible-playbook is not installed")
        sys.exit(SKIPPED)
    found = []
    with tempfile.TemporaryDirectory() as name, contextlib.ExitStack() as stack:
        control = Control(stack, pathlib.Path(name))
        for check in (unreadable, unconfirmed, never_begun, killed, again, undone):
            began = time.monotonic()
            found += [f"{check.__name__}: {fault}" for fault in check(control)]
            print(f"{check.__name__}: {time.monotonic() - began:.1f} s")
    sys.exit("\n".join(found) or 0)


if __name__ == "__main__":
    main()
