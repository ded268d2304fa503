"""What assistive tools do: find a running program on the accessibility bus, read what it shows, and use it."""

import contextlib
import os
import subprocess
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402 (the version comes first)

PATIENCE = 60  # seconds; only a machine that is busy with other things takes more than one

PRESSES = ("Press", "Toggle", "ShowMenu")
PRESSED_ROLES = {
    "push button", "toggle button", "check box", "radio button", "link", "menu item", "combo box", "page tab",
    "list item", "canvas",
}
VALUE_ROLES = {"slider", "spin button", "progress bar"}
TEXT_ROLES = {"text", "entry"}


def wait(what, condition):
    """Returns what the condition returns, once that is not false."""
    end = time.monotonic() + PATIENCE
    while True:
        with contextlib.suppress(GLib.Error):  # what was there may just have gone
            found = condition()
            if found:
                return found
        if time.monotonic() > end:
            raise AssertionError(f"{what}: waited for {PATIENCE} seconds")
        time.sleep(0.02)


class Node:
    """One thing that the program shows."""

    def __init__(self, accessible):
        self.accessible = accessible

    def __str__(self):
        return f'{self.role} "{self.name}"'

    @property
    def role(self):
        return self.accessible.get_role_name()

    @property
    def name(self):
        return self.accessible.get_name()

    def has(self, *states):
        held = self.accessible.get_state_set()
        return all(held.contains(getattr(Atspi.StateType, state)) for state in states)

    @property
    def shows(self):
        return self.has("SHOWING")

    @property
    def actions(self):
        if not self.offers("Action"):
            return []
        count = Atspi.Action.get_n_actions(self.accessible)
        return [Atspi.Action.get_action_name(self.accessible, i) for i in range(count)]

    def offers(self, interface):
        return interface in self.accessible.get_interfaces()

    def press(self, action=None):
        """Does the action, or else the press that the thing has."""
        actions = self.actions
        wanted = action or next((name for name in PRESSES if name in actions), None)
        if wanted not in actions:
            raise AssertionError(f"{self} has no {action or 'press'}, only {actions}")
        Atspi.Action.do_action(self.accessible, actions.index(wanted))

    @property
    def value(self):
        return Atspi.Value.get_current_value(self.accessible)

    def set_value(self, value):
        Atspi.Value.set_current_value(self.accessible, value)

    @property
    def text(self):
        return Atspi.Text.get_text(self.accessible, 0, Atspi.Text.get_character_count(self.accessible))

    def set_text(self, text):
        Atspi.EditableText.set_text_contents(self.accessible, text)

    @property
    def children(self):
        children = (self.accessible.get_child_at_index(i) for i in range(self.accessible.get_child_count()))
        return [Node(child) for child in children if child]

    def shown(self):
        """Everything below that shows, in the order in which it is read."""
        for child in self.children:
            if child.shows:
                yield child
                yield from child.shown()

    def search(self, role, name=None):
        """All that show with this role, and with this name if it is given."""
        return [node for node in self.shown() if node.role == role and (name is None or node.name == name)]

    def find(self, role, name=None):
        """The first of them, once there is one."""
        return wait(f'{role} "{name}"', lambda: self.search(role, name))[0]

    def find_none(self, role, name=None):
        wait(f'no {role} "{name}"', lambda: not self.search(role, name))

    def texts(self, name):
        """All that show with this name and can be read."""
        return [node for node in self.shown() if node.name == name and node.offers("Text")]

    def faults(self):
        """What cannot be used, or of which nobody could tell what it is."""
        return [f"{node}: {fault}" for node in self.shown() if node.has("SENSITIVE") and (fault := fault_of(node))]


def fault_of(node):
    role = node.role
    if role in PRESSED_ROLES:
        if not any(name in node.actions for name in PRESSES):
            return "no press"
        if role == "combo box" and not node.offers("Text"):
            return "no text"
    elif role in VALUE_ROLES:
        if not node.offers("Value"):
            return "no value"
        node.value  # has to come
    elif role in TEXT_ROLES:
        if not node.offers("Text"):
            return "no text"
    elif any(name in node.actions for name in PRESSES):
        return "a press, but no role to be pressed"
    else:
        return None
    return None if node.name.strip() else "no name"


@contextlib.contextmanager
def running(program, *arguments, settings):
    """The program while it runs, with settings of its own."""
    environment = dict(os.environ, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", XDG_CONFIG_HOME=str(settings))
    with subprocess.Popen([program, *map(str, arguments)], env=environment) as process:
        try:
            yield wait("the program", lambda: application_of(process)), process
        finally:
            process.kill()


def application_of(process):
    if process.poll() is not None:
        raise AssertionError(f"The program has ended with {process.returncode}")
    desktop = Node(Atspi.get_desktop(0))
    for application in desktop.children:
        if application.accessible.get_process_id() == process.pid and application.children:
            return application
    return None
