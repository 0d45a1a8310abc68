"""What the journeys share: a display and a session bus of their own, and the client's AT-SPI tree by names and states."""

import os
import re
import shutil
import subprocess
import sys
import tempfile
import time
import warnings

LIMIT = 30  # seconds for any single step; a device that does not answer takes 15
SKIPPED = 77
MANY = 50  # more devices are asked about
WINDOWS = ("alert", "dialog", "frame")  # roles of what an application has at the top


def skip(reason):
    print("skipped:", reason)
    sys.exit(SKIPPED)


def start_on_own_display_and_bus(*more_tools):
    """Starts the program again on a display and a session bus of its own, and ends with its exit code."""
    if "ORDA_JOURNEY_HOME" in os.environ:
        return
    for tool in ("xvfb-run", "xauth", "xprop", "dbus-run-session", "dbus-daemon", *more_tools):
        if not shutil.which(tool):
            skip(f"{tool} is missing (see packages.txt)")
    if not any(os.path.exists(f"{directory}/at-spi2-registryd") for directory in ("/usr/libexec", "/usr/lib/at-spi2-core")):
        skip("at-spi2-core is missing (see packages.txt)")
    with tempfile.TemporaryDirectory(prefix="journey.") as home:
        environment = dict(os.environ, ORDA_JOURNEY_HOME=home, HOME=home, TMPDIR=home, XDG_RUNTIME_DIR=home, XDG_STATE_HOME=home, XDG_CONFIG_HOME=home,
                           QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_QPA_PLATFORM="xcb", LC_ALL="C.UTF-8")
        for inherited in ("DISPLAY", "WAYLAND_DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "AT_SPI_BUS_ADDRESS"):
            environment.pop(inherited, None)
        # A display that is reset when its last window closes would forget the accessibility bus.
        command = ["xvfb-run", "--auto-servernum", "--server-args=-screen 0 1600x1200x24 -dpi 96 -noreset",
                   "dbus-run-session", "--", sys.executable, *sys.argv]
        sys.exit(subprocess.run(command, env=environment, check=False).returncode)


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
    for child in children(node):
        yield child
        if child.get_role_name() != "table":  # whose cells are asked for by row and column
            yield from descendants(child)


def find(root, role, name, shown=True, state=None):
    """The control of that name, or of a name that a compiled pattern fits, as soon as it is there and as wanted."""
    fits = name.fullmatch if isinstance(name, re.Pattern) else name.__eq__

    def look():
        for node in children(root) if role in WINDOWS else descendants(root):
            is_it = node.get_role_name() == role and fits(name_of(node))
            if is_it and (not shown or has(node, "SHOWING")) and (not state or has(node, state)):
                return node
        return None

    return wait_for(f'{role} "{getattr(name, "pattern", name)}"', look)


def devices(count):
    """How texts name so many, before and after they were translated into proper English."""
    return f"{count} device(?:s|\\(s\\))?"


def client_window(client):
    """The client's own window, whose title begins with what is open in it."""
    return find(client, "frame", re.compile(".*– Batch Configuration"))


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


def open_page(window, title):
    entry = find(window, "page tab", title)
    act(entry, "Press")
    wait_for("open page", lambda: has(entry, "SELECTED"))
    return find(window, "filler", title)


def choose_menu_entry(client, title):
    """Of the window's menu bar; an entry is there for assistive technology while its menu is closed, too."""
    act(find(client, "menu item", title, shown=False), "Press")


def rows_of(table):
    table = table.get_table_iface()
    return [[table.get_accessible_at(row, column).get_name() for column in range(table.get_n_columns())]
            for row in range(table.get_n_rows())]


def tick_all(window):
    """Ticks all devices, when no more of them come, and returns the rows of the list."""
    table = find(window, "table", "Online Device List")
    counts = []  # a look each second

    def are_all_there():
        time.sleep(1)
        counts.append(table.get_table_iface().get_n_rows())
        return counts[-1] > MANY and counts[-2:-1] == counts[-1:]

    wait_for(f"more than {MANY} devices", are_all_there)
    set_state(find(window, "check box", "All devices"), "CHECKED", True)
    return rows_of(table)


def answer(client, title, text, button):
    dialog = find(client, "alert", title)
    find(dialog, "label", text)
    act(find(dialog, "push button", button), "Press")
    wait_for("answered dialog", lambda: not dialogs(client))


def children(node):
    return [child for child in map(node.get_child_at_index, range(node.get_child_count())) if child]


def dialogs(client):
    return [window for window in children(client) if window.get_role_name() in ("alert", "dialog")]


def application():
    desktop = Atspi.get_desktop(0)
    for index in range(desktop.get_child_count()):
        child = desktop.get_child_at_index(index)
        if child and child.get_name() == "orda_client":
            return child
    return None


def travel(command, journey):
    """Starts the client, makes the journey through its tree, and ends with the client's exit code."""
    desktop = Atspi.get_desktop(0)
    desktop.set_cache_mask(Atspi.Cache.NONE)  # each answer is to be what is so now
    # Qt 5 looks for the bus at the display; only when it is there already does it wait until it is connected.
    wait_for("accessibility bus", lambda: "unix:" in subprocess.run(
        ["xprop", "-root", "AT_SPI_BUS"], capture_output=True, text=True, check=True).stdout)
    with subprocess.Popen(command) as process:
        try:
            journey(wait_for("client", application))
            return process.wait(LIMIT)
        finally:
            process.kill()
