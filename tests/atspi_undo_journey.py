#!/usr/bin/python3
"""Preview, run and undo over a fleet with faults as a blind operator's tools see them, by names, roles, states and
actions of the client's AT-SPI tree alone. What the devices hold is taken from the fleet and not from the client.

atspi_undo_journey.py ORDA_CLIENT; starts itself again on a display and a session bus of its own. Exit code 77: a tool
is missing.
"""

import copy
import json
import os
import re
import signal
import subprocess
import sys

from support.journey import (Atspi, act, answer, choose_menu_entry, client_window, devices, dialogs, find, open_page,
                             rows_of, set_state, start_on_own_display_and_bus, tick_all, travel, wait_for)

DEVICES = 120
WANTED = {"bShowOSD": True, "bLargeOSD": True}
# All of them are listed and would change. The silent one costs the time-out of 15 s, once.
REFUSING = ["dev-0004", "dev-0011", "dev-0023"]
UNREADABLE = "dev-0030"
GARBLING = "dev-0031"  # it writes what it is told, but nobody can read its answer
SILENT = "dev-0037"  # it does not even write
FAULTS = [{"devices": REFUSING, "methods": ["chnosd_set_param"], "fault": "error-code", "errorcode": -12},
          {"devices": [UNREADABLE], "methods": ["chnosd_get_param"], "fault": "error-code", "errorcode": -7},
          {"devices": [GARBLING], "methods": ["chnosd_set_param"], "fault": "garbage"},
          {"devices": [SILENT], "methods": ["chnosd_set_param"], "fault": "no-answer"}]


class Fleet:
    """The simulated devices in a process of their own, whose memory is the measure of what the client has done."""

    def __init__(self, program, home):
        self.inventory, self.dumped, faults = (os.path.join(home, f"{name}.json") for name in ("site", "dump", "faults"))
        with open(faults, "w", encoding="utf-8") as file:
            json.dump({"faults": FAULTS}, file)
        self.process = subprocess.Popen([program, "--devices", str(DEVICES), "--inventory", self.inventory, "--faults",
                                         faults, "--dump", self.dumped], stdout=subprocess.PIPE)
        self.process.stdout.readline()  # which says that they can be dialled
        with open(self.inventory, encoding="utf-8") as file:
            self.ids = {device["serialNumber"]: device["id"] for device in json.load(file)["devices"]}

    def dump(self):
        if os.path.exists(self.dumped):
            os.remove(self.dumped)
        self.process.send_signal(signal.SIGUSR1)
        wait_for("dump", lambda: os.path.exists(self.dumped))
        with open(self.dumped, encoding="utf-8") as file:
            return json.load(file)["devices"]


def expect(what, found, wanted):
    if found != wanted:
        sys.exit(f"failed: {what}: {found} instead of {wanted}")


def differing(held, other):
    """By device: the groups of parameters of which the other one holds something else."""
    return {dev_id: {name: group for name, group in groups.items() if other[dev_id].get(name) != group}
            for dev_id, groups in held.items() if other[dev_id] != groups}


def expect_held(fleet, wanted, when):
    """All that all devices hold, not only what was to change."""
    held = fleet.dump()
    expect(f"what devices hold {when}", differing(held, wanted), differing(wanted, held))


def fill_page(window):
    page = open_page(window, "OSD Parameters")
    set_state(find(page, "check box", "All parameters"), "CHECKED", False)
    for parameter in ("OSD Visible", "Large Font"):
        set_state(find(page, "check box", f"Configure {parameter}"), "CHECKED", True)
        set_state(find(page, "check box", parameter), "CHECKED", True)
    return page


def cancel_question(client, page, count):
    act(find(page, "push button", "Configure"), "Press")
    question = find(client, "dialog", "Configure devices")
    find(question, "label", re.compile(rf"Configure {devices(count)}\?"))
    values = find(question, "text", "Values that would be written:")
    expect("values of the question", Atspi.Text.get_text(values, 0, -1), "OSD Visible: on\nLarge Font: on")
    act(find(question, "push button", "Cancel"), "Press")
    wait_for("answered question", lambda: not dialogs(client))


class Plan:
    """What is to become of the ticked devices, by what they hold."""

    def __init__(self, held, ticked):
        osd = {dev_id: held[dev_id]["osd"] for dev_id in ticked if dev_id != UNREADABLE}
        self.ticked = len(ticked)
        self.changing = {dev_id for dev_id, keys in osd.items() if any(keys.get(key, value) != value for key, value in WANTED.items())}
        self.lacking = {dev_id for dev_id, keys in osd.items() if not WANTED.keys() <= keys.keys()}
        self.done = len(self.changing - {*REFUSING, GARBLING, SILENT})
        self.held = copy.deepcopy(held)  # after the run
        for dev_id in self.changing - {*REFUSING, SILENT}:
            self.held[dev_id]["osd"].update({key: value for key, value in WANTED.items() if key in osd[dev_id]})


def preview_and_configure(client, plan):
    choose_menu_entry(client, "Preview")
    preview = find(client, "frame", "Preview")
    configure = find(preview, "push button", "Configure the ones that change", state="ENABLED")
    groups = find(preview, "table", "Show")
    counts = {"All devices": plan.ticked, "Would change": len(plan.changing), "Lack a parameter": len(plan.lacking),
              "Have it already": plan.ticked - 1 - len(plan.changing | plan.lacking), "Not reached": 0,
              "Could not be read": 1, "Not read": 0}
    expect("counts of the preview", {name: int(count) for name, count in rows_of(groups)}, counts)
    table = find(preview, "table", "Devices and what would change on them")
    groups.get_table_iface().add_row_selection(list(counts).index("Could not be read"))
    wait_for("only the device that cannot be read", lambda: rows_of(table)[0][-1].endswith("(-7)") and len(rows_of(table)) == 1)
    act(configure, "Press")
    answer(client, "OSD Parameters Configuration Result", f"A total of {len(plan.changing)} devices have been configured, "
           f"success:{plan.done}, failure:{len(plan.changing) - plan.done}", "Cancel")


def look_at_runs(client, *wanted):
    """The window of the runs, as soon as these are all, latest first, and when the latest one began."""
    choose_menu_entry(client, "Runs")
    runs = find(client, "frame", "Runs")
    table = find(runs, "table", "Runs, latest first")
    wait_for(f"runs {wanted}", lambda: [tuple(row[1:4]) for row in rows_of(table)] == [("OSD Parameters", *run) for run in wanted])
    return runs, rows_of(table)[0][0]


def undo(client, runs, plan):
    act(find(runs, "push button", "Undo…", state="ENABLED"), "Press")
    window = find(client, "frame", re.compile("Undo: OSD Parameters, .*"))
    find(window, "label", f"Devices: {plan.done + 2}   Goes back: {plan.done + 1}   Already back: 1")
    going_back = devices(plan.done + 1)
    act(find(window, "push button", re.compile(f"Undo on {going_back}…"), state="ENABLED"), "Press")
    question = find(client, "alert", "Undo")
    find(question, "label", re.compile(rf"Undo the run on {going_back}\?"))
    act(find(question, "push button", "Undo", state="ENABLED"), "Press")


def journey(client, fleet):
    window = client_window(client)
    before = fleet.dump()
    page = fill_page(window)
    ticked = [fleet.ids[row[2]] for row in tick_all(window)]
    plan = Plan(before, ticked)

    cancel_question(client, page, len(ticked))
    expect_held(fleet, before, "after the question")
    preview_and_configure(client, plan)
    expect_held(fleet, plan.held, "after the run")
    configured = ("Configured", f"Done: {plan.done}, Failed: {len(REFUSING)}, Unknown: 2")
    runs, began = look_at_runs(client, configured)
    undo(client, runs, plan)
    look_at_runs(client, (f"Undo of {began}", f"Done: {plan.done}, Unknown: 1"), configured)
    expect_held(fleet, before, "after the undo")  # all of it: a write of this page adds nothing to a device
    choose_menu_entry(client, "Quit")


def main(program):
    fleet = Fleet(os.path.join(os.path.dirname(program), "orda_fleet"), os.environ["ORDA_JOURNEY_HOME"])
    try:
        return travel([program, "--inventory", fleet.inventory, "--language", "en"], lambda client: journey(client, fleet))
    finally:
        fleet.process.kill()


if __name__ == "__main__":
    start_on_own_display_and_bus()
    sys.exit(main(sys.argv[1]))
