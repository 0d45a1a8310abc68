#!/usr/bin/env python3
"""The recipes of docs/batch.md, each run as it is written over a fleet of its own: batch_recipes.py BIN [NUMBER…]"""
import collections
import csv
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
# Faults of the night before, or values that were set then.
FAILING = {"faults": [{"devices": ["dev-0001", "dev-0009"], "methods": ["chnosd_set_param"], "fault": "error-code", "errorcode": -5}]}
LAST_NIGHT = "orda_batch apply osd --inventory site.json --yes --set position=right_bottom --set timePos=left_top"
SOMEBODY = "XDG_STATE_HOME=$PWD/other orda_batch apply osd --inventory site.json --yes --devices dev-0001 --set position=hide"


class Site:
    """A directory with site.json, and the fleet behind it."""

    def __init__(self, directory, faults=None, port=0):
        self.path = pathlib.Path(directory)
        self.env = dict(os.environ, PATH=f"{BIN}:{os.environ['PATH']}", HOME=directory, XDG_STATE_HOME=f"{directory}/state",
                        XDG_CONFIG_HOME=directory, LC_ALL="C.UTF-8")
        options = ["--faults", "faults.json"] if faults else []
        self.path.joinpath("faults.json").write_text(json.dumps(faults))
        self.fleet = subprocess.Popen([str(BIN / "orda_fleet"), "--devices", "60", "--inventory", "site.json", "--dump", "dump.json",
                                       "--port", str(port), *options], cwd=directory, stdout=subprocess.PIPE, text=True)
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
        with open(self.path / name, newline="", encoding="utf-8-sig") as file:
            return list(csv.DictReader(file))

    def lines(self, name):
        return [json.loads(line) for line in self.path.joinpath(name).read_text().splitlines()]

    def end(self):
        self.fleet.terminate()
        self.fleet.wait()


def changed(before, after, family):
    """@return by device what of the family's object is another one: {"dev-0001": {"position": "hide"}}"""
    members = {device: {key: value for key, value in after[device][family].items() if before[device][family].get(key) != value}
               for device in after}
    return {device: values for device, values in members.items() if values}


def reached(site):
    """The devices of the inventory that are selected by "all" and reached."""
    entries = json.loads(site.path.joinpath("site.json").read_text())["devices"]
    return {entry["id"] for entry in entries if entry["accessCode"] == 1} - AWAY
