#!/usr/bin/python3
"""What an operator does by accident, with real events under a window manager: the wheel over a page, a menu left by
Esc, Return on a question, the window closed in mid-run; and the keys of windows and of Stop. Events that a program
sends to a widget pass where these fail.

operator_journey.py ORDA_CLIENT; starts itself again on a display and a session bus of its own. Exit code 77: a tool is
missing.
"""

import json
import os
import re
import subprocess
import sys
import time

from support.journey import (LIMIT, Atspi, act, answer, children, client_window, descendants, devices, dialogs, find, has,
                             name_of, open_page, start_on_own_display_and_bus, tick_all, travel, wait_for)

DEVICES = 80
LATE = ["dev-0003", "dev-0005"]
FAULTS = [{"devices": LATE, "methods": ["ai_get_param", "chnosd_set_param"], "fault": "late-answer", "delayMs": 7000}]
TOOL_WINDOWS = {"F7": "Preview", "F8": "Devices", "F9": "Runs", "F6": "Compare with a standard", "F1": "Manual"}
PAGES = ("Audio Parameters", "Video Parameters", "Image Parameters", "Cloud Service Parameters",
         "Platform 9100 Parameters", "Network Parameters", "OSD Parameters")
WHEELED = {"combo box": 21, "spin button": 2, "slider": 2}  # that all pages have together
UP, DOWN = "4", "5"


def xdotool(*arguments):
    return subprocess.run(["xdotool", *map(str, arguments)], check=True, capture_output=True, text=True,
                          timeout=LIMIT).stdout.strip()


def fail(text):
    sys.exit(f"failed: {text}")


def extents(node):
    return node.get_component_iface().get_extents(Atspi.CoordType.SCREEN)


def point_at(node):
    box = extents(node)
    xdotool("mousemove", box.x + box.width // 2, box.y + box.height // 2)


def wheel(node, button, times=3):
    point_at(node)
    xdotool("click", "--repeat", times, "--delay", 20, button)


def value(editor):
    """What an editor shows: a combo box is called by its choice."""
    number = editor.get_value_iface()
    return number.get_current_value() if number else editor.get_name()


def editors(page):
    return [node for node in descendants(page) if node.get_role_name() in WHEELED and has(node, "SHOWING")]


def wheel_changes_nothing(window):
    found = dict.fromkeys(WHEELED, 0)
    for title in PAGES:
        page = open_page(window, title)
        for editor in editors(page):
            found[editor.get_role_name()] += 1
            before = value(editor)
            for button in (DOWN, UP):
                wheel(editor, button)
                time.sleep(0.1)  # that nothing happens cannot be waited for
                if value(editor) != before:
                    fail(f'the wheel changed "{name_of(editor)}" on "{title}" from {before} to {value(editor)}')
                if has(editor, "FOCUSED"):
                    fail(f'the wheel gave the focus to "{name_of(editor)}" on "{title}"')
    if found != WHEELED:
        fail(f"looked at {found}, not at {WHEELED}")


def wheel_works_after_a_click(window):
    """Without this the check above would pass where no wheel arrives at all."""
    page = open_page(window, "Video Parameters")
    for role in ("combo box", "spin button"):
        editor = next(node for node in editors(page) if node.get_role_name() == role)
        point_at(editor)
        xdotool("click", 1)
        if role == "combo box":
            xdotool("key", "Escape")  # its list
        wait_for("focus by a click", lambda node=editor: has(node, "FOCUSED"))
        before = value(editor)
        wheel(editor, DOWN, 1)
        wait_for(f"change of the {role} in focus", lambda node=editor, old=before: value(node) != old)


def page_scrolls_under_the_wheel(window, window_id):
    xdotool("windowsize", window_id, 1200, 640)
    page = open_page(window, "Video Parameters")
    xdotool("key", "ctrl+f")  # takes the focus away from the editors
    combo = next(node for node in editors(page) if node.get_role_name() == "combo box")
    before = (value(combo), extents(combo).y)
    wheel(combo, DOWN, 2)
    wait_for("scrolled page", lambda: extents(combo).y < before[1])
    if value(combo) != before[0]:
        fail("the wheel that scrolls the page changed the combo box under it")


def search_works_after_a_menu(window):
    search = find(window, "text", "Search")
    open_page(window, "Audio Parameters")
    xdotool("key", "alt+d")
    wait_for("open menu", lambda: any(node.get_role_name() == "popup menu" and has(node, "SHOWING")
                                      for node in descendants(window)))
    xdotool("key", "Escape")
    time.sleep(0.2)  # an operator is no faster
    xdotool("key", "ctrl+f")
    wait_for("focus in the search", lambda: has(search, "FOCUSED"))


def windows_leave_the_focus_where_it_was(client, window):
    search = find(window, "text", "Search")
    for key, title in TOOL_WINDOWS.items():
        xdotool("key", key)
        find(client, "frame", title, state="ACTIVE")
        xdotool("key", "Escape")
        wait_for(f"focus after {title}", lambda: has(search, "FOCUSED") and has(window, "ACTIVE") and len(children(client)) == 1)


def ask(client, window_id):
    xdotool("windowactivate", "--sync", window_id, "key", "ctrl+Return")
    return find(client, "dialog", "Configure devices")


def return_does_not_configure(client, window, window_id):
    ask(client, window_id)
    xdotool("keydown", "Return")
    time.sleep(1)  # it is held, and so comes again and again
    xdotool("keyup", "Return")
    wait_for("answered question", lambda: not dialogs(client))
    time.sleep(0.3)  # that nothing happens cannot be waited for
    if any(node.get_name() in ("Stop", "Show run") and has(node, "SHOWING") for node in descendants(window)):
        fail("Return on the question has configured devices")


def configure(client, window, window_id):
    find(ask(client, window_id), "push button", "Configure", state="ENABLED")
    xdotool("key", "alt+o")
    return find(window, "filler", "Configuring...", state="FOCUSED")


def close_question(client, ticked):
    question = find(client, "dialog", "A run is going on")
    find(question, "label", re.compile(f"{len(LATE)} of {devices(ticked)} have not answered"))
    return question


def closing_in_mid_run_asks(client, window_id, ticked):
    for keys in ("alt+F4", "ctrl+q"):  # the window manager's, and the client's
        xdotool("windowactivate", "--sync", window_id, "key", keys)
        close_question(client, ticked)
        xdotool("key", "Escape")
        wait_for("answered question", lambda: not dialogs(client))


def key_stops_run(client, window, overlay, ticked):
    if not has(overlay, "FOCUSED"):
        fail("the form is not covered any more")
    xdotool("key", "shift+Escape")
    find(window, "label", re.compile(".*Stopped.*"))
    find(client, "alert", "Audio Parameters Configuration Result")
    find(window, "label", re.compile(f".*Written: {ticked - len(LATE)}, not written: {len(LATE)}.*"))
    xdotool("key", "Escape")
    wait_for("answered summary", lambda: not dialogs(client))


def closing_in_undo_asks(client, window, window_id, ticked):
    open_page(window, "OSD Parameters")
    configure(client, window, window_id)
    answer(client, "OSD Parameters Configuration Result",
           f"A total of {ticked} devices have been configured, success:{ticked}, failure:0", "Cancel")
    xdotool("windowactivate", "--sync", window_id, "key", "F9")
    act(find(find(client, "frame", "Runs"), "push button", "Undo…", state="ENABLED"), "Press")
    undo = find(client, "frame", re.compile("Undo: OSD Parameters, .*"))
    act(find(undo, "push button", re.compile(f"Undo on {devices(ticked)}…"), state="ENABLED"), "Press")
    act(find(find(client, "alert", "Undo"), "push button", "Undo", state="ENABLED"), "Press")
    find(window, "push button", "Stop")
    xdotool("windowactivate", "--sync", window_id, "key", "ctrl+q")
    act(find(close_question(client, ticked), "push button", "Close anyway"), "Press")


def journey(client):
    window = client_window(client)
    window_id = wait_for("window", lambda: xdotool("search", "--onlyvisible", "--name", "– Batch Configuration$").split()[:1])[0]
    xdotool("windowactivate", "--sync", window_id)
    xdotool("windowsize", window_id, 1500, 1150)
    xdotool("key", "ctrl+f")
    find(window, "text", "Search", state="FOCUSED")  # the form's keys work before anything was clicked
    windows_leave_the_focus_where_it_was(client, window)
    wheel_changes_nothing(window)
    wheel_works_after_a_click(window)
    page_scrolls_under_the_wheel(window, window_id)
    search_works_after_a_menu(window)
    ticked = len(tick_all(window))
    open_page(window, "Audio Parameters")
    return_does_not_configure(client, window, window_id)
    overlay = configure(client, window, window_id)
    closing_in_mid_run_asks(client, window_id, ticked)
    key_stops_run(client, window, overlay, ticked)
    closing_in_undo_asks(client, window, window_id, ticked)


def main(program):
    faults = os.path.join(os.environ["ORDA_JOURNEY_HOME"], "faults.json")
    with open(faults, "w", encoding="utf-8") as file:
        json.dump({"faults": FAULTS}, file)
    with subprocess.Popen(["openbox"], stderr=subprocess.DEVNULL) as manager:
        try:
            wait_for("window manager", lambda: "window id" in subprocess.run(
                ["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], capture_output=True, text=True, check=True).stdout)
            return travel([program, "--demo", str(DEVICES), "--faults", faults, "--language", "en"], journey)
        finally:
            manager.terminate()


if __name__ == "__main__":
    start_on_own_display_and_bus("openbox", "xdotool")
    sys.exit(main(sys.argv[1]))
