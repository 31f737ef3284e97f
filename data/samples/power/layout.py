"""One layout of the project: items placed by role, language texts, and codes that number themselves.

A colour role r stands for the palette numbers [10+r, 30+r, 50+r, 70+r], one for each colour system;
data/README.md lists the roles. Texts are (Japanese, English, German)."""

SCREEN, PANEL, STRIP, BORDER, RULE, TEXT, LABEL, HEADING, VALUE, FIELD = range(10)
WATER, STEAM, CHEMICAL, POWER, RUNNING, STOPPED, CAUTION, ALARM, WALL, EMPTY = range(10, 20)

# Height of each font and width of half a Japanese character in it.
FONT_HEIGHT = {0: 12, 1: 14, 2: 16, 3: 12, 4: 14, 5: 16, 6: 20, 7: 20, 8: 24}
SMALL, NORMAL, LARGE, BOLD, BOLD_LARGE, TITLE = 0, 1, 2, 4, 5, 7

DISPLAY = (1280, 1024)
PARENT, CHILD, OTHER = range(3)


def role(number):
    return [10 + number, 30 + number, 50 + number, 70 + number]


def same(text):
    """A text that is the same in every language."""
    return (text, text, text)


def columns(text):
    """Bytes of a text in EUC-JP, which are its half-width columns but for half-width katakana."""
    return len(text.encode("euc_jp"))


def width(texts, font):
    return max(columns(text) for text in texts) * FONT_HEIGHT[font] // 2


class Codes:
    """The slots of each identification code over all layouts."""

    def __init__(self):
        self.slots = {}

    def use(self, code, number):
        if len(code) > 20 or not code.isidentifier():
            raise ValueError(f"{code} is no identification code")
        self.slots[code] = max(self.slots.get(code, 0), number + 1)

    def next(self, code):
        """The first number of the code that no item has yet."""
        return self.slots.get(code, 0)

    def registry(self):
        records = [{"ID_Code": "SYSTEM", "DataCount": 100}]
        for code in sorted(self.slots):
            records.append({"ID_Code": code, "DataCount": self.slots[code]})
        return records


class Layout:
    def __init__(self, codes, kind, name, size=DISPLAY, place=(0, 0), **header):
        self.codes = codes
        self.name = name
        self.kind = kind
        self.width, self.height = size
        self.items = []
        self.header = {"Kind": kind, "Width": self.width, "Height": self.height,
                       "WindowX": place[0], "WindowY": place[1], "KeyColour": 6, "KeyBackColour": 7}
        looks = {
            PARENT: {"DisplaySize": 2, "TitleHeight": 40, "TitleColour": 91, "TitleAreaColour": 90,
                     "TitleFont": TITLE, "LogoShown": 1, "HardCopyShown": 1, "VersionScreen": 1,
                     "DebugScreen": 1, "DateFormat": 3, "DateFont": LARGE, "WorkAreaColour": 10,
                     "ButtonAreaHeight": 56, "ButtonAreaColour": 92},
            CHILD: {"TitlePosition": 1, "TitleHeight": 32, "TitleColour": 91, "TitleAreaColour": 98,
                    "TitleFont": BOLD_LARGE, "TitleCentred": 1, "WorkAreaColour": 11,
                    "FrameWidth": 3, "FrameColour": 98},
            OTHER: {"WorkAreaColour": 11, "FrameWidth": 2, "FrameColour": 98, "ParentInput": 1},
        }
        self.header |= looks[kind] | header
        self.options = {"Zoom": 2, "GridX": 4, "GridY": 4, "GridColour": 99}

    def source(self):
        """What `varnixtool build` reads; build scripts take the file's name from the PtrnName1 line."""
        logo = {"LogoName": "logo.png"} if self.kind == PARENT else {}
        return {"Parm1": self.header, "Parm2": self.options,
                "PtrnName1": self.name[0], "PtrnName2": self.name[1], "PtrnName3": self.name[2],
                **logo, "Items": self.items}

    def add(self, kind, parm, texts=None, code=None, number=None, **other):
        if not (0 <= parm["X1"] < self.width and 0 <= parm["Y1"] < self.height and
                parm.get("X2", 0) <= self.width and parm.get("Y2", 0) <= self.height):
            raise ValueError(f"{self.name[0]}: {kind} lies outside at {parm['X1']}, {parm['Y1']}")
        item = {"Type": kind, "Parm": {**parm, "EraseColour": 10}}
        if texts:
            item |= {f"Text{no}": text for no, text in enumerate(texts, 1)}
        if code:
            if number is None:
                number = self.codes.next(code)
            self.codes.use(code, number)
            item |= {"ID_Code": code, "ID_No": number}
        self.items.append(item | other)

    # Areas and lines.

    def frame(self, x, y, w, h, area, border=None, thickness=1):
        parm = {"X1": x, "Y1": y, "X2": x + w, "Y2": y + h, "AreaColour": role(area)}
        if border is not None:
            for side in ("Top", "Bottom", "Left", "Right"):
                parm |= {f"{side}Colour": role(border), f"{side}Width": thickness}
        self.add("Frame", parm)

    def line(self, x1, y1, x2, y2, colour, style=0, thickness=1):
        self.add("Line", {"X1": x1, "Y1": y1, "X2": x2, "Y2": y2, "Colour": role(colour),
                          "Style": style, "Width": thickness})

    def rectangle(self, x, y, w, h, line, fill=None, thickness=1, code=None):
        self.shape("Rectangle", x, y, w, h, line, fill, thickness, code)

    def ellipse(self, x, y, w, h, line, fill=None, thickness=1, code=None):
        self.shape("Ellipse", x, y, w, h, line, fill, thickness, code)

    def shape(self, kind, x, y, w, h, line, fill, thickness, code):
        filled = fill is not None
        self.add(kind, {"X1": x, "Y1": y, "X2": x + w, "Y2": y + h, "LineColour": role(line),
                        "FillColour": role(fill if filled else PANEL), "Filled": int(filled),
                        "Position": 1 if thickness == 1 else 0, "Width": thickness}, code=code)

    def lamp(self, x, y, code, colour=RUNNING):
        self.ellipse(x, y, 14, 14, WALL, colour, code=code)

    def bar(self, x, y, w, h, code, colour=WATER, upright=False, limit=100, back=EMPTY):
        self.add("BarGraph", {"X1": x, "Y1": y, "X2": x + w, "Y2": y + h, "BarColour": role(colour),
                              "BackColour": role(back), "OutlineColour": 2,
                              "Direction": 0 if upright else 1, "BarWidth": 0, "OutlineWidth": 1,
                              "LowerLimit": 0, "UpperLimit": limit}, code=code)

    # Texts and values.

    def text(self, x, y, texts, font=NORMAL, colour=LABEL, room=None):
        if room is not None and width(texts, font) > room:
            raise ValueError(f"{self.name[0]}: {texts} is wider than {room} dots")
        self.add("FixedString", {"X1": x, "Y1": y, "TextColour": role(colour),
                                 "BackColour": role(PANEL), "Font": font,
                                 "Length": columns(texts[0])}, texts)

    def variable(self, x, y, length, code, font=NORMAL, **parm):
        self.add("VariableString", {"X1": x, "Y1": y, "TextColour": role(VALUE),
                                    "BackColour": role(FIELD), "Font": font, "Length": length,
                                    **parm}, code=code)

    def number(self, x, y, length, decimals, code, font=NORMAL, **parm):
        self.add("Numeric", {"X1": x, "Y1": y, "TextColour": role(VALUE), "BackColour": role(FIELD),
                             "Font": font, "Length": length, "Decimals": decimals, **parm},
                 code=code)

    # Controls.

    def button(self, x, y, w, h, texts, font=LARGE, face=93, text=(96, 97), code=None, **other):
        if width(texts, font) + 4 > w:
            raise ValueError(f"{self.name[0]}: {texts} is wider than its button")
        self.add("Button", {"X1": x, "Y1": y, "X2": x + w, "Y2": y + h, "TopLeftColour": 94,
                            "BottomRightColour": 95, "FaceColour": face, "TextColour": list(text),
                            "Font": font, "BorderWidth": 2}, texts, code, **other)

    def choice(self, kind, x, y, texts, code, number=None, **parm):
        self.add(kind, {"X1": x, "Y1": y, "TextColour": [15, 35], "BackColour": [11, 31],
                        "Font": LARGE, "Length": columns(texts[0]), **parm}, texts, code, number)

    def radio(self, x, y, step, choices, code):
        group = self.codes.next(code)
        for no, texts in enumerate(choices):
            self.choice("RadioButton", x + step * no, y, texts, code, group, Number=no)

    def check(self, x, y, texts, code):
        self.choice("CheckBox", x, y, texts, code)

    def mark(self, x, y, number, colour, code=None):
        w, h = ((16, 32), (16, 32), (32, 32), (32, 32), (64, 32), (32, 64), (64, 64))[number // 50]
        self.add("Mark", {"X1": x, "Y1": y, "X2": x + w, "Y2": y + h, "MarkColour": role(colour),
                          "BackColour": role(PANEL), "Mark": [number] * 4}, code=code)

    def bitmap(self, x, y, w, h, file):
        self.add("Bitmap", {"X1": x, "Y1": y, "X2": x + w, "Y2": y + h, "TransparentColour": 90,
                            "Transparent": 1}, (file,))

    def scroll(self, x, y, w, h, code, upright=False):
        self.add("ScrollBar", {"X1": x, "Y1": y, "X2": x + w, "Y2": y + h, "TopLeftColour": 94,
                               "BottomRightColour": 95, "TroughColour": 4, "ThumbColour": 93,
                               "SingleArrows": 1, "Direction": int(upright), "FrameWidth": 2,
                               "DisplayAmount": 10, "DataAmount": 100, "SingleStep": 1,
                               "PageStep": 10, "MouseWheel": 1, "FunctionKeys": 1}, code=code)

    def spin(self, x, y, code, limit=100):
        self.add("SpinButton", {"X1": x, "Y1": y, "X2": x + 16, "Y2": y + 32, "LowerLimit": 0,
                                "UpperLimit": limit}, code=code)
