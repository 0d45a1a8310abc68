#!/usr/bin/python3
"""One run of the client as a blind operator's tools see it: by names, states and actions of its AT-SPI tree alone.

atspi_journey.py ORDA_CLIENT; starts itself again on a display and a session bus of its own. Exit code 77: a tool is
missing.
"""

import os
import shutil
import subprocess
import sys
import tempfile
import time
import warnings

LIMIT = 20  # seconds for any single step
DEVICES = 12
SKIPPED = 77


def skip(reason):
    print("skipped:", reason)
    sys.exit(SKIPPED)


def start_on_own_display_and_bus():
    for tool in ("xvfb-run", "xauth", "xprop", "dbus-run-session", "dbus-daemon"):
        if not shutil.which(tool):
            skip(f"{tool} is missing (see packages.txt)")
    if not any(os.path.exists(f"{directory}/at-spi2-registryd") for directory in ("/usr/libexec", "/usr/lib/at-spi2-core")):
        skip("at-spi2-core is missing (see packages.txt)")
    with tempfile.TemporaryDirectory(prefix="atspi_journey.") as home:
        environment = dict(os.environ, ORDA_JOURNEY_HOME=home, HOME=home, TMPDIR=home, XDG_RUNTIME_DIR=home,
                           QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_QPA_PLATFORM="xcb", LC_ALL="C.UTF-8")
        for inherited in ("DISPLAY", "WAYLAND_DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "AT_SPI_BUS_ADDRESS"):
            environment.pop(inherited, None)
        # A display that is reset when its last window closes would forget the accessibility bus.
        command = ["xvfb-run", "--auto-servernum", "--server-args=-screen 0 1600x1000x24 -noreset",
                   "dbus-run-session", "--", sys.executable, *sys.argv]
        return subprocess.run(command, env=environment, check=False).returncode


if __name__ == "__main__" and "ORDA_JOURNEY_HOME" not in os.environ:
    sys.exit(start_on_own_display_and_bus())

try:
    import gi
    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi, GLib
except (ImportError, ValueError) as missing:
    skip(f"{missing} (see packages.txt)")

warnings.simplefilter("ignore", DeprecationWarning)  # the interfaces as functions of the object; there is no other way


def wait_for(what, look):
    """Asks again and again until there is an answer; the tree is the client's, which has its own pace."""
    deadline = time.monotonic() + LIMIT
    while time.monotonic() < deadline:
        while GLib.MainContext.default().iteration(False):
            pass  # what the client has reported meanwhile
        try:
            found = look()
        except GLib.Error:  # the object asked has gone meanwhile
            found = None
        if found:
            return found
        time.sleep(0.02)
    sys.exit(f"failed: no {what} within {LIMIT} s")


def name_of(node):
    """As a screen reader says it: the caption that labels a control goes before its own name."""
    for relation in node.get_relation_set():
        if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY:
            return relation.get_target(0).get_name()
    return node.get_name()


def descendants(node):
    for index in range(node.get_child_count()):
        child = node.get_child_at_index(index)
        if child:
            yield child
            yield from descendants(child)


def find(root, role, name, shown=True):
    def look():
        for node in descendants(root):
            if node.get_role_name() == role and name_of(node) == name and (not shown or has(node, "SHOWING")):
                return node
        return None

    return wait_for(f'{role} "{name}"', look)


def has(node, state):
    return node.get_state_set().contains(getattr(Atspi.StateType, state))


def act(node, action):
    interface = node.get_action_iface()
    names = [interface.get_action_name(i) for i in range(interface.get_n_actions())] if interface else []
    if action not in names:
        sys.exit(f'failed: "{name_of(node)}" has no action {action}, only {names}')
    interface.do_action(names.index(action))


def set_state(node, state, wanted):
    """Toggles a control unless it is as wanted."""
    if has(node, state) != wanted:
        act(node, "Toggle")
    wait_for(f'"{name_of(node)}" {state}={wanted}', lambda: has(node, state) == wanted)


def application():
    desktop = Atspi.get_desktop(0)
    for index in range(desktop.get_child_count()):
        child = desktop.get_child_at_index(index)
        if child and child.get_name() == "orda_client":
            return child
    return None


def answer(client, title, text, button):
    dialog = find(client, "dialog", title)
    find(dialog, "label", text)
    act(find(dialog, "push button", button), "Press")
    wait_for("answered dialog", lambda: not any(child.get_role_name() == "dialog" for child in descendants(client)))


def configure_audio(client):
    window = find(client, "frame", "Batch Configuration")
    entry = find(window, "page tab", "Audio Parameters")
    act(entry, "Press")
    wait_for("open page", lambda: has(entry, "SELECTED"))
    page = find(window, "filler", "Audio Parameters")

    configure = find(page, "push button", "Configure")
    set_state(find(page, "check box", "All parameters"), "CHECKED", False)
    wait_for("disabled button", lambda: not has(configure, "ENABLED"))
    set_state(find(page, "check box", "Configure Audio Enable"), "CHECKED", True)
    set_state(find(page, "check box", "Configure Audio In Volume"), "CHECKED", True)
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
    for row in range(2, rows):
        set_state(table.get_accessible_at(row, 0), "CHECKED", False)
    wait_for("untick at All", lambda: not has(every, "CHECKED"))

    act(configure, "Press")
    answer(client, "Audio Parameters Configuration Result",
           "A total of 2 devices have been configured, success:2, failure:0", "Cancel")
    find(page, "push button", "Report")


def main(program):
    desktop = Atspi.get_desktop(0)
    desktop.set_cache_mask(Atspi.Cache.NONE)  # each answer is to be what is so now
    # Qt 5 looks for the bus at the display; only when it is there already does it wait until it is connected.
    wait_for("accessibility bus", lambda: "unix:" in subprocess.run(
        ["xprop", "-root", "AT_SPI_BUS"], capture_output=True, text=True, check=True).stdout)
    with subprocess.Popen([program, "--demo", str(DEVICES), "--language", "en"]) as process:
        try:
            client = wait_for("client", application)
            configure_audio(client)
            act(find(client, "menu item", "Quit", shown=False), "Press")
            return process.wait(LIMIT)
        finally:
            process.kill()


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
