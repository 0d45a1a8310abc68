#!/usr/bin/python3
"""First steps and one run of the client as a blind operator's tools see them: by names, states and actions of its AT-SPI tree alone.

atspi_journey.py ORDA_CLIENT; starts itself again on a display and a session bus of its own. Exit code 77: a tool is
missing.
"""

import sys

from support.journey import (Atspi, act, answer, choose_menu_entry, client_window, find, has, open_page, set_state,
                             start_on_own_display_and_bus, travel, wait_for)

DEVICES = 12
NO_INVENTORY = "/no/such/inventory.json"


def configure_audio(client):
    window = client_window(client)
    page = open_page(window, "Audio Parameters")
    configure = find(page, "push button", "Configure")
    set_state(find(page, "check box", "All parameters"), "CHECKED", False)
    wait_for("disabled button", lambda: not has(configure, "ENABLED"))
    volume_box = find(page, "check box", "Configure Audio In Volume")
    set_state(find(page, "check box", "Configure Audio Enable"), "CHECKED", True)
    act(find(page, "check box", "All parameters"), "Toggle")
    wait_for("ticks at all parameters where one was ticked", lambda: has(volume_box, "CHECKED"))
    set_state(find(page, "check box", "All parameters"), "CHECKED", False)
    set_state(find(page, "check box", "Configure Audio Enable"), "CHECKED", True)
    set_state(volume_box, "CHECKED", True)
    wait_for("enabled button", lambda: has(configure, "ENABLED"))
    set_state(find(page, "check box", "Audio Enable"), "CHECKED", True)
    volume = find(page, "slider", "Audio In Volume").get_value_iface()
    volume.set_current_value(80)
    number = find(page, "text", "Audio In Volume, number")
    wait_for("volume beside the slider", lambda: Atspi.Text.get_text(number, 0, -1) == "80")

    act(configure, "Press")  # too early
    answer(client, "Notice", "Please select the devices to be configured", "OK")

    devices = find(window, "table", "Online Device List")
    table = devices.get_table_iface()
    rows = wait_for("devices", lambda: table.get_n_rows() >= DEVICES // 2 and table.get_n_rows())
    headers = [table.get_column_description(column) for column in range(table.get_n_columns())]
    if headers != ["Number", "Dev Name", "Dev Sn", "Ip"]:
        sys.exit(f"failed: the columns are called {headers}")
    every = find(window, "check box", "All devices")
    for row in range(rows):
        set_state(table.get_accessible_at(row, 0), "CHECKED", True)
    wait_for("tick at All", lambda: has(every, "CHECKED"))
    set_state(table.get_accessible_at(0, 0), "CHECKED", False)
    wait_for("partial tick at All", lambda: has(every, "INDETERMINATE"))
    act(every, "Toggle")
    wait_for("ticks at all devices where one was not ticked", lambda: has(table.get_accessible_at(0, 0), "CHECKED"))
    for row in range(2, rows):
        set_state(table.get_accessible_at(row, 0), "CHECKED", False)
    wait_for("partial tick at All", lambda: has(every, "INDETERMINATE"))

    act(configure, "Press")
    answer(client, "Audio Parameters Configuration Result",
           "A total of 2 devices have been configured, success:2, failure:0", "Cancel")
    find(page, "push button", "Report")


def first_steps(client):
    """The inventory of the command line is not there: the client says so, and offers other ways."""
    answer(client, "Notice", f"{NO_INVENTORY}: cannot be read: No such file or directory", "OK")
    find(client, "spin button", "Number of devices").get_value_iface().set_current_value(DEVICES)
    act(find(client, "push button", "Start the demo"), "Press")


def journey(client):
    first_steps(client)
    configure_audio(client)
    choose_menu_entry(client, "Quit")


if __name__ == "__main__":
    start_on_own_display_and_bus()
    sys.exit(travel([sys.argv[1], "--inventory", NO_INVENTORY, "--language", "en"], journey))
