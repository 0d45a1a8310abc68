"""What the journeys share: a display and a session bus of their own, and the client's AT-SPI tree by names and states."""

import os
import shutil
import subprocess
import sys
import tempfile
import time
import warnings

LIMIT = 20  # seconds for any single step
SKIPPED = 77


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


def client_window(client):
    """The client's own window, whose title begins with what is open in it."""
    return wait_for("client's window", lambda: next(
        (node for node in descendants(client) if node.get_role_name() == "frame" and has(node, "SHOWING")
         and node.get_name().endswith("– Batch Configuration")), None))


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


def dialogs(client):
    return [node for node in descendants(client) if node.get_role_name() in ("dialog", "alert")]


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
