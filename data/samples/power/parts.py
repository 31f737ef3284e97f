"""What several layouts have in common: panels, rows of values, plant equipment, navigation."""

from layout import *

# What buttons do, and how those look that start and stop something.
TO_SELF, TO_OWNER, CHILD_ONE, SYSTEM_WINDOW, TO_PARENT, CLOSE_SELF, VERSION, EXIT = (
    1, 4, 5, 7, 8, 9, 13, 16)
RUN_FACE, STOP_FACE = {"face": 8, "text": (5, 5)}, {"face": 9, "text": (5, 5)}
START = ("起動", "Start", "Start")
STOP = ("停止", "Stop", "Stopp")

# Equipment of a flow diagram is drawn around the middle of its pipe.
PIPE = 6


def panel(layout, x, y, w, h, title):
    layout.frame(x, y, w, h, PANEL, BORDER)
    layout.frame(x + 1, y + 1, w - 2, 25, STRIP)
    layout.text(x + 12, y + 7, title, BOLD, HEADING, w - 24)


def field(layout, x, y, length, decimals, code, unit, font=NORMAL, **parm):
    """A number on its own ground with its unit behind it."""
    layout.number(x, y, length, decimals, code, font, BackEnabled=1, **parm)
    layout.text(x + length * FONT_HEIGHT[font] // 2 + 8, y + FONT_HEIGHT[font] - 13, same(unit),
                SMALL)


def navigation(layout, pages):
    """The row of buttons at the foot of a parent window; pages: (texts, layout name, processing)."""
    layout.frame(0, 40, DISPLAY[0], DISPLAY[1] - 96, SCREEN)
    for no, (texts, name, processing) in enumerate(pages):
        layout.button(20 + 138 * no, 976, 130, 40, texts,
                      face=7 if name == layout.name[0] else 93, ID_Type=processing,
                      **({"ID_Name": name} if name else {}))


def tag(layout, x, y, name, texts, room):
    layout.text(x, y, same(name), BOLD, HEADING, room)
    layout.text(x, y + 18, texts, SMALL, LABEL, room)


# Each draws one piece of equipment with its middle at (x, y); `unit` begins its codes.

def pump(layout, x, y, unit):
    layout.mark(x - 32, y - 32, 300, RUNNING, f"{unit}_STATE")


def fan(layout, x, y, unit):
    layout.mark(x - 32, y - 32, 301, RUNNING, f"{unit}_STATE")


def mixer(layout, x, y, unit):
    layout.mark(x - 32, y - 32, 305, RUNNING, f"{unit}_STATE")


def valve(layout, x, y, unit):
    layout.mark(x - 16, y - 24, 104, RUNNING, f"{unit}_STATE")


def meter(layout, x, y, unit):
    layout.mark(x - 16, y - 48, 108, HEADING)
    layout.line(x, y - 16, x, y - 3, HEADING)


def tank(layout, x, y, unit):
    layout.rectangle(x - 36, y - 60, 72, 108, WALL, EMPTY, 3)
    layout.bar(x - 33, y - 57, 66, 102, f"{unit}_LEVEL", WATER, True)


def drum(layout, x, y, unit):
    layout.ellipse(x - 52, y - 32, 104, 64, WALL, FIELD, 3)
    layout.bar(x - 12, y - 22, 24, 44, f"{unit}_LEVEL", STEAM, True)


def exchanger(layout, x, y, unit):
    layout.ellipse(x - 36, y - 36, 72, 72, WALL, FIELD, 3)
    for left, top, right, bottom in ((-36, 0, -14, 0), (-14, 0, -6, -16), (-6, -16, 8, 16),
                                     (8, 16, 16, 0), (16, 0, 36, 0)):
        layout.line(x + left, y + top, x + right, y + bottom, ALARM, thickness=2)


def filter_bed(layout, x, y, unit):
    layout.rectangle(x - 40, y - 44, 80, 88, WALL, FIELD, 3)
    for row in (-36, 4):
        layout.mark(x - 32, y + row, 200, WATER)


def turbine(layout, x, y, unit):
    corners = ((-44, -18), (44, -46), (44, 46), (-44, 18))
    for one, other in zip(corners, corners[1:] + corners[:1]):
        layout.line(x + one[0], y + one[1], x + other[0], y + other[1], WALL, thickness=3)
    layout.lamp(x - 7, y - 7, f"{unit}_STATE")


def generator(layout, x, y, unit):
    layout.ellipse(x - 36, y - 36, 72, 72, WALL, FIELD, 3, f"{unit}_STATE")
    layout.text(x - 6, y - 12, same("G"), 8, TEXT)


def boiler(layout, x, y, unit):
    layout.rectangle(x - 48, y - 64, 96, 116, WALL, FIELD, 3)
    for coil in (-40, -8, 24):
        layout.line(x - 36, y + coil + 12, x + 36, y + coil, CHEMICAL, thickness=3)


def stack(layout, x, y, unit):
    layout.frame(x - 12, y - 76, 24, 128, EMPTY, WALL, 3)
    layout.frame(x - 11, y - 64, 22, 10, ALARM)


def transformer(layout, x, y, unit):
    layout.ellipse(x - 40, y - 24, 48, 48, POWER, None, 3)
    layout.ellipse(x - 8, y - 24, 48, 48, POWER, None, 3)


def breaker(layout, x, y, unit):
    layout.rectangle(x - 16, y - 16, 32, 32, POWER, RUNNING, 3, f"{unit}_STATE")


EQUIPMENT = {draw.__name__: draw for draw in (
    pump, fan, mixer, valve, meter, tank, drum, exchanger, filter_bed, turbine, generator, boiler,
    stack, transformer, breaker)}


def diagram(layout, x, y, w, prefix, medium, equipment):
    """A pipe from left to right through the equipment: (drawing, tag, texts, decimals, unit)."""
    cell = w // len(equipment)
    middle = y + 110
    layout.frame(x, middle - PIPE // 2, w, PIPE, medium)
    for no, (drawing, name, texts, decimals, unit) in enumerate(equipment):
        left = x + no * cell
        EQUIPMENT[drawing](layout, left + cell // 2, middle, prefix)
        tag(layout, left + 14, y, name, texts, cell - 16)
        field(layout, left + 14, y + 184, 6, decimals, f"{prefix}_FLOW", unit)


def measurements(layout, x, y, w, step, prefix, rows):
    """Rows of label, number, unit and bar."""
    for no, (texts, decimals, unit, limit) in enumerate(rows):
        top = y + no * step
        layout.text(x + 16, top, texts, NORMAL, LABEL, 200)
        field(layout, x + 226, top, 7, decimals, f"{prefix}_VALUE", unit)
        layout.bar(x + 370, top - 1, w - 386, 16, f"{prefix}_BAR", POWER, limit=limit)


def states(layout, x, y, w, step, prefix, machines):
    """A table of machines with lamp, state, current and running time."""
    for column, texts in ((40, ("機器", "Machine", "Maschine")), (230, ("状態", "State", "Zustand")),
                          (370, ("電流 A", "Current A", "Strom A")),
                          (480, ("運転時間 h", "Running h", "Laufzeit h"))):
        layout.text(x + column, y, texts, SMALL)
    layout.line(x + 16, y + 18, x + w - 16, y + 18, RULE)
    for no, texts in enumerate(machines):
        top = y + 30 + no * step
        layout.lamp(x + 16, top, f"{prefix}_LAMP", STOPPED if no % 3 == 2 else RUNNING)
        layout.text(x + 40, top, texts, NORMAL, TEXT, 186)
        layout.variable(x + 230, top, 16, f"{prefix}_TEXT")
        layout.number(x + 370, top, 6, 1, f"{prefix}_AMPERE")
        layout.number(x + 480, top, 7, 0, f"{prefix}_HOURS", Grouping=1)
