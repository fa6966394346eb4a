"""A user who does something at random, again and again."""

import html
import re

KEYS = ("Enter Escape Delete Insert Backspace Tab Shift+Tab Space Left Right Up Down Home End PageUp PageDown Menu F1 F6 "
        "Shift+F6 F11 CapsLock Tonos Ctrl+C Ctrl+X Ctrl+V Ctrl+Z Ctrl+N Ctrl+O Ctrl+S Ctrl+P Ctrl+F Ctrl+A Ctrl+Ins "
        "Shift+Del Shift+Ins Alt+Backspace Alt+Left Alt+Right Ctrl+Plus Ctrl+Minus Ctrl+0 Shift+Down Ctrl+End Alt+Down").split()
WORDS = ("νερό οξ Ύδωρ ά η ΧΗΜΕΙΑ μεθάνιο NaCl H2O 12 3,5 x -1 1e9 Σελιδοδείκτης % <b> ΐ&ΰ".split() + [" ", "α" * 300])
MODIFIERS = ("", "", "", "", " Ctrl", " Shift", " Alt", " Ctrl+Shift")
EXIT = 57665
WEB, SELECT, ENLARGE = 1025, 1035, 9821


class User:
    """Chooses with `random`, does it with `ask`, a function that takes a command and gives the answer."""

    def __init__(self, random, places, ask):
        self.random, self.places, self.ask = random, places, ask

    def act(self):
        """One action, with the dialog that is open or with the program."""
        dialog = self.ask("dialog")
        if dialog.get("ok") and self.random.random() < 0.8:
            return self.use_dialog(dialog["controls"])
        chances = {self.point: 22, self.drag: 8, self.key: 16, self.type: 6, self.choose_command: 14, self.open_page: 12,
                   self.follow_link: 10, self.resize: 4, self.wait: 3, self.enlarge: 3, self.find: 2}
        return self.random.choices(list(chances), chances.values())[0]()

    def one_of(self, choices):
        return self.random.choice(choices)

    def spot(self):
        """A window that is on show, and a point of it or just beside it."""
        windows = [window for window in flat(self.ask("windows").get("windows", [])) if window["visible"]]
        if not windows:
            return "view", [0, 0]
        window = self.one_of(windows)
        left, top, right, bottom = window["rect"]
        return window["handle"], [self.random.randint(-2, max(size, 0)) for size in (right - left, bottom - top)]

    def point(self):
        window, (x, y) = self.spot()
        place = f"{x} {y} {window}{self.one_of(MODIFIERS)}"
        for how in self.one_of((["click"], ["click"], ["click"], ["mouse move"], ["click", "mouse double", "mouse up"],
                                ["mouse rdown", "mouse rup"], ["mouse wheeldown"], ["mouse wheelup"])):
            self.ask(f"{how} {place}")

    def drag(self):
        window, (x, y) = self.spot()
        self.ask(f"mouse down {x} {y} {window}")
        for _ in range(self.random.randint(1, 4)):
            x, y = x + self.random.randint(-150, 150), y + self.random.randint(-100, 100)
            self.ask(f"mouse move {x} {y} {window}")
        self.ask(f"mouse up {x} {y} {window}")

    def key(self):
        key = self.one_of(KEYS)
        for _ in range(self.one_of((1, 1, 1, 5))):
            self.ask(f"key {key}")

    def type(self):
        self.ask(f"type {quoted(self.one_of(WORDS))}")

    def choose_command(self):
        menus = self.ask("menu").get("menus", [])
        items = [item["id"] for menu in menus for item in menu["items"] if item.get("id") not in (None, EXIT)]
        if items:
            self.ask(f"command {self.one_of(items)}")

    def open_page(self):
        topic, entry = self.one_of(self.places)
        self.ask(f"control {SELECT} ShowItem {topic} {entry} true")

    def follow_link(self):
        page = self.ask("page").get("html", "")
        texts = [text for link in re.findall(r"<a\b[^>]*>(.*?)</a>", page, re.DOTALL | re.IGNORECASE)
                 if (text := " ".join(html.unescape(re.sub("<[^>]*>", " ", link)).split()))]
        if texts:
            self.ask(f"link {quoted(self.one_of(texts))}")

    def resize(self):
        left, top, width, height = (self.random.randint(low, high) for low, high in
                                    ((-200, 900), (-50, 700), (1, 1400), (1, 1000)))
        self.ask(self.one_of((f"size {width} {height}", f"place {left} {top} {left + width} {top + height}", "minimize",
                              "maximize", "restore", "key F11")))

    def wait(self):
        self.ask(f"wait {self.random.randint(0, 700)}")

    def enlarge(self):
        self.ask(f"notify {ENLARGE + self.one_of((0, 1))}")

    def find(self):
        for command in (f'focus "#{WEB}"', "key Ctrl+F", f"type {quoted(self.one_of(WORDS))}", "key Enter",
                        self.one_of(("key Escape", "key Shift+Enter"))):
            self.ask(command)

    def use_dialog(self, controls):
        controls = [control for control in controls if control["enabled"] and control["visible"]]
        self.ask("answer " + " ".join(self.one_of(("ok", "yes", "no", "cancel")) for _ in range(2)))
        if not controls:
            return self.ask("key Escape")
        control = self.one_of(controls)
        number, items = control["id"], names_of(control)
        if control["kind"] == "control":
            return self.point()
        if control["kind"] == "edit":
            self.ask(f"set {number} {quoted(self.one_of(WORDS))}")
        elif "columns" in control and self.random.random() < 0.3:
            self.ask(f"header {number} {self.random.randrange(len(control['columns']))}")
        elif not items:
            self.ask(f"press {number}")
        else:
            how = self.one_of(("pick", "activate", "expand", "drag"))
            self.ask(f"{how} {number} {self.one_of(items)}{' ' + self.one_of(items) if how == 'drag' else ''}")


def names_of(control):
    """What commands call the items of a list, tree or combo box."""
    items = control.get("items", control.get("rows", []))
    if control["kind"] != "tree":
        return [str(index) for index in range(len(items))]
    return [quoted(path) for path in paths(items, "")]


def paths(items, above):
    for item in items:
        yield above + item["text"]
        yield from paths(item["children"], above + item["text"] + "/")


def flat(windows):
    """The windows and all those in them."""
    for window in windows:
        yield window
        yield from flat(window["children"])


def quoted(text):
    escaped = text.replace("\\", "\\\\").replace('"', '\\"')
    return f'"{escaped}"'
