"""A random walk through the windows: only what a person could do at that moment, and the checks on the way."""

import check
from captures import WHOLE, damaged


class Walk:
    """Plays on a live session and keeps in mind which windows its events have loaded and shown.

    In a careful walk nothing is copied or clicked that could end the session.
    """

    def __init__(self, replay, random, captures, careful=False):
        self.replay, self.random, self.captures, self.careful = replay, random, captures, careful
        self.loaded, self.visible = set(), set()
        self.copied = 0
        self.whole = True  # everything copied so far

    def start(self):
        self.copy()
        self.do("start")

    def do(self, *lines):
        """Plays the lines; what they lead to must be what must always hold."""
        answers = self.replay.tell(*lines)
        for answer in answers:
            kind, window = answer.get("event"), answer.get("window")
            if kind == "load":
                self.loaded.add(window)
            elif kind == "show":
                self.visible.add(window)
            elif kind == "hide":
                self.visible.discard(window)
            elif kind == "unload":
                self.loaded.discard(window)
            elif kind == "error":
                check.error_is_a_plain_sentence(answer)
        check.some_window_is_visible(self)
        return answers

    def step(self):
        chance = self.random.random()
        if chance < 0.2 and (not self.careful or self.visible == {"startup"}):
            self.copy()
        elif chance < 0.25:
            self.do(self.random.choice(["printer cancel", "printer fail", "printer accept 0", "printer accept 2"]))
        else:
            self.use(self.random.choice(sorted(self.visible)))

    def copy(self):
        name = self.random.choice(list(WHOLE))
        capture = WHOLE[name]
        if not self.careful and self.random.random() < 0.05:
            return self.do("clipboard")
        if not self.careful and self.random.random() < 0.3:
            self.whole = False
            name, capture = f"damaged{self.copied}", damaged(self.random, capture)
        self.copied += 1
        self.put(name, capture)

    def put(self, name, capture):
        (self.captures / f"{name}.txt").write_bytes(capture)
        self.do(f"clipboard ../captures/{name}.txt")

    def tour(self):
        """Once through all windows and their options, from the start window back to it."""
        for name, capture in WHOLE.items():
            self.put(name, capture)
            self.do("click startup Command1")
            window, = self.visible
            for first in [offer[0] for offer in self.offers(window) if offer[0].startswith("row")]:
                self.do(first)
                for offer in self.offers(window + "A") if window + "A" in self.visible else []:
                    self.do(*(line for line in offer if line.startswith("choose")))
                self.do(*(f"close {chart}" for chart in self.visible - {window}))
            for offer in self.offers(window):
                self.do(*(line for line in offer if line.startswith("choose")))
            self.do(f"click {window} cmdExit")

    def use(self, window):
        """Does with the window one of the things that it offers, or looks at something that must hold of it."""
        if window in check.HISTORY and self.random.random() < 0.15:
            rule = self.random.choice([check.twice_refreshed_is_the_same, check.shown_again_is_the_same])
            return rule(self, window)
        offers = [*self.offers(window), [f"close {window}"]]
        if self.careful and window + "A" in self.visible:
            # Left alone, the charts would step through the files of whichever list is opened next.
            offers = [offer for offer in offers if offer[0].startswith("row")]
        if window == "startup":
            offers = [["click startup Command1"]]
            if not self.careful and self.random.random() < 0.02:
                offers = [["click startup Command2", "close startup"]]
        action = self.random.choice(self.random.choice(offers))
        if window in check.LISTS and action.startswith("row") and self.whole:
            return check.back_then_down_is_the_same(self, window, action)
        self.do(action)

    def offers(self, window):
        """What the window's controls offer, a list of lines a control."""
        state = self.replay.state(window)
        offers = []
        for name, control in state["controls"].items():
            if control["kind"] == "button":
                offers.append([f"click {window} {name}"])
            elif control["kind"] == "options":
                offers.append([f"choose {window} {name} {option['index']}"
                               for option in control["options"] if option["visible"]])
            elif control["kind"] == "grid":
                offers.append([f"row {window} {name} {row}" for row in range(1, control["rows"])])
        return [offer for offer in offers if offer]
