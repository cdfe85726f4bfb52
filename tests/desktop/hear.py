# SPDX-License-Identifier: MIT
# A screen reader's ears: prints what gets the focus as long as it runs, or with "tree" all that the
# programs on the accessibility bus show, a line each of role, name and states.
import sys

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402

STATES = [Atspi.StateType.FOCUSED, Atspi.StateType.CHECKED, Atspi.StateType.ACTIVE]


def told(part):
    states = part.get_state_set()
    held = [state.value_nick for state in STATES if states.contains(state)]
    return f"{part.get_role_name()}|{part.get_name()}|{','.join(held)}"


def print_tree(part):
    if part is None or not part.get_state_set().contains(Atspi.StateType.SHOWING):
        return
    print(told(part))
    for i in range(part.get_child_count()):
        print_tree(part.get_child_at_index(i))


def tell(event):
    if event.detail1:
        print(told(event.source), flush=True)


Atspi.init()
if "tree" in sys.argv:
    desktop = Atspi.get_desktop(0)
    for i in range(desktop.get_child_count()):
        program = desktop.get_child_at_index(i)
        for window in range(program.get_child_count()):
            print_tree(program.get_child_at_index(window))
else:
    listener = Atspi.EventListener.new(tell)
    listener.register("object:state-changed:focused")
    print("listening", flush=True)
    Atspi.event_main()
