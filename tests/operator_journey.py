#!/usr/bin/python3
"""What an operator does by accident, with real events under a window manager: the wheel over a page, a menu left by
Esc, the window closed in mid-run. Events that a program sends to a widget pass where these fail.

operator_journey.py ORDA_CLIENT; starts itself again on a display and a session bus of its own. Exit code 77: a tool is
missing.
"""

import json
import os
import subprocess
import sys
import time

from support.journey import (LIMIT, Atspi, act, client_window, descendants, dialogs, find, has, name_of, open_page,
                             set_state, start_on_own_display_and_bus, travel, wait_for)

DEVICES = 12
SILENT = 2
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


def question(client, ticked):
    for dialog in dialogs(client):
        for node in descendants(dialog):
            if node.get_role_name() == "label" and node.get_name() == f"{SILENT} of {ticked} devices have not answered":
                return dialog
    return None


def closing_in_mid_run_asks(client, window, window_id):
    open_page(window, "Audio Parameters")
    table = find(window, "table", "Online Device List").get_table_iface()
    wait_for("devices", lambda: table.get_n_rows() >= DEVICES // 2)
    set_state(find(window, "check box", "All devices"), "CHECKED", True)
    ticked = table.get_n_rows()
    xdotool("windowactivate", "--sync", window_id, "key", "ctrl+Return")
    for keys in ("alt+F4", "ctrl+q"):  # the window manager's, and the client's
        xdotool("windowactivate", "--sync", window_id, "key", keys)
        wait_for(f"question after {keys}", lambda: question(client, ticked))
        xdotool("key", "Escape")
        wait_for("answered question", lambda: not question(client, ticked))
    xdotool("key", "ctrl+q")
    act(find(wait_for("question", lambda: question(client, ticked)), "push button", "Close anyway"), "Press")


def journey(client):
    window = client_window(client)
    window_id = wait_for("window", lambda: xdotool("search", "--onlyvisible", "--name", "– Batch Configuration$").split()[:1])[0]
    xdotool("windowactivate", "--sync", window_id)
    xdotool("windowsize", window_id, 1500, 1150)
    wheel_changes_nothing(window)
    wheel_works_after_a_click(window)
    page_scrolls_under_the_wheel(window, window_id)
    search_works_after_a_menu(window)
    closing_in_mid_run_asks(client, window, window_id)


def main(program):
    faults = os.path.join(os.environ["ORDA_JOURNEY_HOME"], "faults.json")
    with open(faults, "w", encoding="utf-8") as file:
        json.dump({"faults": [{"devices": ["dev-0003", "dev-0005"], "methods": ["ai_get_param"], "fault": "no-answer"}]}, file)
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
