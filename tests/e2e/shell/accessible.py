"""Reading and pressing the program's controls through the accessibility bus (AT-SPI), by
their accessible names and roles. libatspi finds the bus through the environment of this
process, which `attach` sets, and keeps that bus for the life of the process: one desktop
per process."""

import os

from desktop import wait_for

Atspi = None
GLib = None


def attach(desktop):
    global Atspi, GLib
    for key in ("DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "XDG_RUNTIME_DIR"):
        os.environ[key] = desktop.env[key]
    import gi
    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi as atspi, GLib as glib
    Atspi, GLib = atspi, glib


def role(node):
    """The node's role name; empty for a node that is gone."""
    try:
        return node.get_role_name()
    except Exception:
        return ""


def name(node):
    try:
        return node.get_name()
    except Exception:
        return ""


def children(node):
    found = (node.get_child_at_index(i) for i in range(node.get_child_count()))
    return [child for child in found if child is not None]


def walk(node):
    yield node
    for child in children(node):
        yield from walk(child)


def application(pid, timeout=20):
    """The program's node on the accessibility bus, once it has joined."""
    def find():
        desktop = Atspi.get_desktop(0)
        return next((app for app in children(desktop)
                     if app.get_process_id() == pid), None)
    return wait_for(find, timeout, "the program on the accessibility bus")


def find(root, wanted_role=None, wanted_name=None, prefix=None):
    for node in walk(root):
        if wanted_role and role(node) != wanted_role:
            continue
        if wanted_name is not None and name(node) != wanted_name:
            continue
        if prefix is not None and not name(node).startswith(prefix):
            continue
        return node
    return None


def window(app, title, timeout=20):
    return wait_for(lambda: next((w for w in children(app) if name(w) == title), None),
                    timeout, "the window " + repr(title))


def windows_named(app, title):
    return [w for w in children(app) if name(w) == title]


def has_state(node, state):
    return node.get_state_set().contains(state)


def press(node):
    """The node's first action: "Press" on a button or a tab."""
    node.do_action(0)


def extents(node):
    box = node.get_extents(Atspi.CoordType.SCREEN)
    return box.x, box.y, box.width, box.height


class PopupCatcher:
    """Popups (the tray panel, menus) are not among the application's children; they announce
    themselves when shown. This catches the top node of the next popup that shows."""

    def __init__(self, app):
        self.app = app
        self.caught = []
        self.listener = Atspi.EventListener.new(self._on_event)
        self.listener.register("object:state-changed:showing")

    def _on_event(self, event):
        if event.detail1 != 1 or event.source is None:
            return
        node = event.source
        try:
            while node.get_parent() is not None and \
                    node.get_parent().get_role_name() != "application":
                node = node.get_parent()
            if node.get_parent() is not None and \
                    node.get_parent().get_process_id() == self.app.get_process_id():
                self.caught.append(node)
        except Exception:  # a node gone while it was read
            pass

    def _pump(self):
        GLib.timeout_add(100, self._quit)
        Atspi.event_main()

    @staticmethod
    def _quit():
        Atspi.event_quit()
        return False

    def catch(self, trigger, accept, timeout=20):
        """Runs `trigger` and returns the first shown popup for which `accept(node)` holds."""
        self.caught.clear()
        trigger()

        def found():
            self._pump()
            return next((node for node in self.caught if accept(node)), None)
        return wait_for(found, timeout, "a popup")

    def close(self):
        self.listener.deregister("object:state-changed:showing")
