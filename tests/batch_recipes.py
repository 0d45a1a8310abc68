#!/usr/bin/env python3
"""The recipes of docs/batch.md, each run as it is written over a fleet of its own: batch_recipes.py BIN"""
import contextlib
import csv
import hashlib
import json
import os
import pathlib
import re
import signal
import subprocess
import sys
import tempfile
import time

PAGE = pathlib.Path(__file__).resolve().parent.parent / "docs" / "batch.md"
BIN = pathlib.Path(sys.argv[1]).resolve()
AWAY = {"dev-0029", "dev-0034", "dev-0039"}  # selected and not reached
FAILING = {"devices": ["dev-0001", "dev-0009"], "methods": ["chnosd_set_param"], "fault": "error-code", "errorcode": -5}
LAST_NIGHT = "orda_batch apply osd --inventory site.json --yes --set position=right_bottom --set timePos=left_top"
SOMEBODY = "XDG_STATE_HOME=$PWD/other orda_batch apply osd --inventory site.json --yes --devices dev-0001 --set position=hide"


class Site:
    """A directory with site.json, and the fleet behind it until the stack is closed."""

    def __init__(self, stack, directory, faults, port=0):
        self.path = pathlib.Path(directory)
        self.env = dict(os.environ, PATH=f"{BIN}:{os.environ['PATH']}", HOME=directory, XDG_STATE_HOME=f"{directory}/state",
                        XDG_CONFIG_HOME=directory, LC_ALL="C.UTF-8")
        self.path.joinpath("faults.json").write_text(json.dumps({"faults": faults}))
        self.fleet = subprocess.Popen([str(BIN / "orda_fleet"), "--devices", "60", "--inventory", "site.json", "--dump", "dump.json",
                                       "--faults", "faults.json", "--port", str(port)], cwd=directory, stdout=subprocess.PIPE, text=True)
        stack.callback(self.fleet.wait)
        stack.callback(self.fleet.terminate)
        self.fleet.stdout.readline()  # the devices can be dialled

    def shell(self, text):
        """@return exit code and what was printed"""
        done = subprocess.run(["bash", "-eu", "-c", text], cwd=self.path, env=self.env, stdin=subprocess.DEVNULL,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, timeout=60)
        return done.returncode, done.stdout

    def held(self):
        """What each device holds."""
        dump = self.path / "dump.json"
        dump.unlink(missing_ok=True)
        self.fleet.send_signal(signal.SIGUSR1)
        while not dump.exists():
            time.sleep(0.01)
        return json.loads(dump.read_text())["devices"]

    def table(self, name):
        return list(csv.DictReader(self.path.joinpath(name).read_text("utf-8-sig").splitlines()))

    def changes(self, before, **others):
        """What the devices hold is what they held, but for the members of @p others: a family's object and its new members by device."""
        expected = json.loads(json.dumps(before))
        for name, members in others.items():
            for device, values in members.items():
                (expected[device]["video"]["streams"][0] if name == "stream0" else expected[device][name]).update(values)
        return [f"{device} holds {held}" for device, held in self.held().items() if held != expected[device]]


def rename(site, devices, before, said):
    names = {row["device"]: {"channelName": row["channelName"]} for row in site.table("names.csv")}
    yield from [] if len(names) == len(devices) and names["dev-0002"] == {"channelName": "Camera 0002"} else [f"names: {names}"]
    yield from site.changes(before, osd=names)


def bit_rate(site, devices, before, said):
    yield from site.changes(before, stream0={device: {"bitRate": 1024, "rcMode": "cbr"} for device, entry in devices.items()
                                             if entry["group"] == "north" and entry["kindCode"] == 1})


def differing(site, devices, before, said):
    standard = {"bShowOSD": True, "timeFormat": "YYYY-MM-DD hh:mm:ss"}
    differ = {device for device in devices if {**before[device]["osd"], **standard} != before[device]["osd"]}
    yield from site.changes(before)
    yield from {row["device"] for row in site.table("differs.csv")} ^ differ  # names of those that are in one of them only


def retry(site, devices, before, said):
    yield from site.changes(before, osd={device: {"position": "right_bottom"} for device in FAILING["devices"]})
    yield from [] if "some are left" in said else ["nothing is said of those that are away"]


def undo(site, devices, before, said):
    yield from site.changes(before, osd={"dev-0001": {"position": "hide"}})
    yield from [] if 'changed since and left as it is: position: "hide"' in said else ["nobody is told what was left"]


def spreadsheets(site, devices, before, said):
    held = {row["device"]: row["channelName"] for row in site.table("osd.csv") if row["outcome"] == "done"}
    yield from [] if held == {device: before[device]["osd"]["channelName"] for device in devices} else [f"osd.csv: {held}"]
    yield from [name for name in ("audio", "video", "image", "network", "platform") if len(site.table(f"{name}.csv")) != len(devices.keys() | AWAY)]


def cron(site, devices, before, said):
    mail = site.path.joinpath("mail.txt").read_text()
    yield from [] if mail.startswith("Subject: cameras not reached") and set(re.findall("dev-....", mail)) == set(AWAY) else [mail]
    yield from site.changes(before, osd={device: {"bShowOSD": True} for device in devices})


def replaced(site, devices, before, said):
    known = {"osd": ("bShowOSD", "timeFormat", "timePos", "channelName", "position"), "imageAdjust": ("flip",),
             "imageDayNight": ("lightmode",), "imageExpert": ("expertmode",)}
    yield from site.changes(before, **{name: {"dev-0006": {key: before["dev-0003"][name][key] for key in keys}}
                                       for name, keys in known.items()})


def shares(site, devices, before, said):
    yield from site.changes(before, osd={device: {"position": "left_top"} for device in devices})
    for k in (1, 2, 3):
        run = json.loads(site.path.joinpath(f"run-{k}.json").read_text())["run"]
        shown = site.shell(f"orda_batch history {run} --format csv | cut -d, -f1")[1].split()[1:]
        yield from {device for device in devices.keys() | AWAY
                    if int.from_bytes(hashlib.sha256(device.encode()).digest()[:8], "big") % 3 == k - 1} ^ set(shown)


def gate(site, devices, before, said):
    wanted = {"imageAdjust": {"flip": "off"}, "imageDayNight": {"lightmode": "smart"}}
    yield from site.changes(before, **{name: {device: {key: value for key, value in values.items() if key in before[device][name]}
                                              for device, entry in devices.items() if entry["kindCode"] == 1}
                                       for name, values in wanted.items()})


CHECKS = dict(enumerate((rename, bit_rate, differing, retry, undo, spreadsheets, cron, replaced, shares, gate), 1))


def faults(check, block):
    with tempfile.TemporaryDirectory() as directory, contextlib.ExitStack() as stack:
        site = Site(stack, directory, [FAILING] if check == retry else [])
        entries = json.loads(site.path.joinpath("site.json").read_text())["devices"]
        devices = {entry["id"]: entry for entry in entries if entry["accessCode"] == 1 and entry["id"] not in AWAY}
        before = site.held()
        site.shell({retry: LAST_NIGHT, undo: f"{LAST_NIGHT} || {SOMEBODY}"}.get(check, ""))
        if check == retry:  # the devices are mended, and as they were
            stack.close()
            site = Site(stack, directory, [], entries[0]["port"])
        code, said = site.shell(block)
        found = list(check(site, devices, before, said)) if code == 0 else [f"ended with {code}"]
        yield from found + [said] if found else []


def main():
    found = re.findall(r"^## (\d+)\. .*?^```sh\n(.*?)^```$", PAGE.read_text(), re.MULTILINE | re.DOTALL)
    recipes = {int(number): block for number, block in found}
    found = [f"recipe or check {number} is missing" for number in recipes.keys() ^ CHECKS.keys()]
    for number in recipes.keys() & CHECKS.keys():
        found += [f"{number}: {fault}" for fault in faults(CHECKS[number], recipes[number])]
    sys.exit("\n".join(found) or 0)


if __name__ == "__main__":
    main()
