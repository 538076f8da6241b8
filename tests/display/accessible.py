"""The windows as assistive technology sees them: a real client on a real accessibility bus."""

import os
from contextlib import contextmanager

import gi
from tests.display.display import Display, DisplayTest, soon

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

GONE = ("No such object", "no longer exists", "was not provided by any", "disconnected from message bus")


class SpokenDisplay(Display):
    """A display with an accessibility bus. A test process can have only one: its client library connects only once."""

    def __enter__(self):
        super().__enter__()
        try:
            read, write = os.pipe()
            self.launch("dbus-daemon", "--session", "--nofork", f"--print-address={write}", pass_fds=[write])
            os.close(write)
            with os.fdopen(read) as pipe:
                self.env["DBUS_SESSION_BUS_ADDRESS"] = pipe.readline().strip()
            self.env["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
            os.environ.update({name: self.env[name] for name in (
                "DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "XDG_RUNTIME_DIR", "HOME")})
            Atspi.init()
            Atspi.set_timeout(5000, 10000)
        except BaseException:
            self.__exit__()
            raise
        return self

    def application(self, process):
        """The process's accessible object; waits until the bus knows it."""

        def known():
            for application in Node(Atspi.get_desktop(0)).children():
                if application.handle.get_process_id() == process.pid:
                    return application
            return None

        application = soon("the program is known on the accessibility bus", known)
        application.handle.set_cache_mask(Atspi.Cache.NONE)  # ask anew each time
        return application


class SpokenTest(DisplayTest):
    display_class = SpokenDisplay
    shared = True

    def application(self):
        """The program's accessible object."""
        return self.display.application(self.process)

    def charted(self, name):
        """Waits until a window has the focus on a chart of that name; returns the window."""
        def there():
            for window in self.application().children():
                focus = window.focused() if window.has("SHOWING") else None
                if focus and focus.role == "chart" and name in focus.name:
                    return window
            return None

        return soon(f"{name} is charted", there)


@contextmanager
def heard(kind, roles):
    """Gives a function that returns the names of the objects of these roles of which such events have been announced
    since."""
    announced = []

    def note(event):
        if "state-changed" in kind and not event.detail1:
            return  # the object has lost that state
        with unless_gone():
            if event.source.get_role_name() in roles:
                announced.append(event.source.get_name())

    def names():
        while GLib.MainContext.default().iteration(False):
            pass
        return announced

    listener = Atspi.EventListener.new(note)
    listener.register(kind)
    try:
        yield names
    finally:
        listener.deregister(kind)


def renamed():
    """The new names of charts and points."""
    return heard("object:property-change:accessible-name", ("chart", "list item"))


def appeared(role):
    """The names of objects that have appeared."""
    return heard("object:state-changed:showing", (role,))


def focused(role):
    """The names of objects that have got the focus."""
    return heard("object:state-changed:focused", (role,))


@contextmanager
def unless_gone():
    """Ignores the failure of a question to an object that no longer exists; any other failure is raised."""
    try:
        yield
    except GLib.Error as error:
        if not any(words in error.message for words in GONE):
            raise


class Node:
    """One accessible object."""

    def __init__(self, handle):
        self.handle = handle
        self.role = handle.get_role_name()
        self.name = handle.get_name()

    def __repr__(self):
        return f"{self.role} {self.name!r}"

    def children(self):
        """The child objects; some may disappear while they are asked for one by one."""
        found = []
        with unless_gone():
            for i in range(self.handle.get_child_count()):
                with unless_gone():
                    child = self.handle.get_child_at_index(i)
                    if child:
                        found.append(Node(child))
        return found

    def has(self, state):
        """Whether the object is in that state; one that is gone is in none."""
        with unless_gone():
            return self.handle.get_state_set().contains(getattr(Atspi.StateType, state))
        return False

    def walk(self):
        """The visible objects below, in their order, without the cells of tables."""
        for child in self.children():
            if child.has("SHOWING"):
                yield child
                if child.role != "table":
                    yield from child.walk()

    def parent(self):
        return Node(self.handle.get_parent())

    def description(self):
        return self.handle.get_description()

    def text(self):
        return Atspi.Text.get_text(self.handle, 0, -1)

    def rows_and_columns(self):
        return Atspi.Table.get_n_rows(self.handle), Atspi.Table.get_n_columns(self.handle)

    def heading(self, column):
        return Node(Atspi.Table.get_column_header(self.handle, column))

    def cell(self, row, column):
        return Node(Atspi.Table.get_accessible_at(self.handle, row, column))

    def press(self):
        count = Atspi.Action.get_n_actions(self.handle)
        names = [Atspi.Action.get_action_name(self.handle, i) for i in range(count)]
        Atspi.Action.do_action(self.handle, names.index("Toggle" if self.role == "radio button" else "Press"))

    def shown(self, title, role="frame"):
        """Waits for the application's window of that title."""
        return soon(f"{role} {title!r} shows", lambda: next(
            (window for window in self.children()
             if (window.role, window.name) == (role, title) and window.has("SHOWING")), None))

    def first(self, role, name=None):
        """The first visible object below that has the role, and the name if one is given."""
        for node in self.walk():
            if node.role == role and name in (None, node.name):
                return node
        raise AssertionError(f"{self} holds no {role} {name or ''}")

    def focused(self):
        """The innermost object below that has the focus."""
        found = None
        for node in self.walk():
            # The current item of a list has that state even when the list has not the focus.
            if node.has("FOCUSED") and (node.role != "list item" or node.parent().has("FOCUSED")):
                found = node
        return found
