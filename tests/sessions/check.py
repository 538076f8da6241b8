"""What must hold in every session, whatever is copied and clicked."""

import json
import os
import stat

HISTORY = ["frmProduct", "frmSalesman", "frmCustomerE", "frmCustP", "frmCustP2", "frmPware", "frmSite", "frmSJHIST",
           "frmGLexpense", "frmGLarch", "frmDriver", "frmTruck", "frmLateCharge", "frmCSTORE", "frmActive",
           "frmQXM21SXC", "frmQXM21CXS"]
LISTS = ["frmM2Mpft", "frmPastdue", "frmProfRank", "frmVendInv", "frmRatio"]
DRILL_DOWNS = [name + "A" for name in LISTS]
WINDOWS = ["startup", *HISTORY, *LISTS, *DRILL_DOWNS]

FILES = {"pvuscrn.txt", "plotvue.txt", "plotvue1.txt"}


class Wrong(Exception):
    """Something that must hold does not."""


def equal(what, one, other):
    if one != other:
        raise Wrong(f"{what}:\n  {json.dumps(one)[:2000]}\n  {json.dumps(other)[:2000]}")


def some_window_is_visible(walk):
    if walk.loaded and not walk.visible and not walk.replay.over:
        raise Wrong("no window is visible")


def states_agree_with_events(walk):
    states = walk.replay.tell(*(f"dump {window}" for window in WINDOWS))
    for state in states if not walk.replay.over else []:
        equal(f"{state['window']} is loaded", state["loaded"], state["window"] in walk.loaded)
        equal(f"{state['window']} is visible", state.get("visible", False), state["window"] in walk.visible)


def error_is_a_plain_sentence(event):
    text = event["text"]
    if not (text[:1].isupper() and text.endswith(".")) or text.startswith("PlotVue made a mistake"):
        raise Wrong(f"the error report says: {text}")


def only_its_files_are_there(directory):
    for name in os.listdir(directory):
        mode = os.lstat(os.path.join(directory, name)).st_mode
        if name not in FILES or not stat.S_ISREG(mode) or stat.S_IMODE(mode) != 0o600:
            raise Wrong(f"in the working directory is {name}, {stat.filemode(mode)}")


def twice_refreshed_is_the_same(walk, window):
    """A second Refresh changes nothing."""
    walk.do(f"click {window} cmdRefresh")
    once = window in walk.visible and walk.replay.state(window)
    if not once:
        return
    walk.do(f"click {window} cmdRefresh")
    equal("a second Refresh", once, walk.replay.state(window))


def back_then_down_is_the_same(walk, window, click_row):
    """One step back shows another record, and one down the same again, where no end is reached."""
    chart = window + "A"
    if {"event": "load", "window": chart} not in walk.do(click_row):
        return  # it was open already and shows what it showed
    before = walk.replay.state(chart)
    walk.do(f"click {chart} cmdBack")
    if chart not in walk.visible:
        return
    if walk.replay.state(chart) == before:
        raise Wrong(f"Back stays where it was: {json.dumps(before)[:2000]}")
    walk.do(f"click {chart} cmdNext")
    equal("Back, then Down", before, walk.replay.state(chart))


def shown_again_is_the_same(walk, window):
    """A window that is left and shown again shows what it showed."""
    before = walk.replay.state(window)
    walk.do(f"click {window} cmdExit")
    events = walk.do("click startup Command1")
    if {"event": "show", "window": window} in events:
        equal("shown again", before, walk.replay.state(window))
