"""The parent windows, one function for each kind of page, and the list of all layouts."""

import plant
from layout import *
from parts import *
from windows import *

OVERVIEW = "全体監視"
PAGES = [
    (("全体監視", "Overview", "Uebersicht"), OVERVIEW, TO_PARENT),
    (("系統選択", "Systems", "Systeme"), "系統選択", SYSTEM_WINDOW),
    (("トレンド", "Trends", "Verlauf"), "温度トレンド", TO_PARENT),
    (("警報", "Alarms", "Alarme"), "タービン警報", TO_PARENT),
    (("起動停止", "Start/stop", "Start/Stopp"), "起動停止操作", TO_PARENT),
    (("運転設定", "Settings", "Einstellungen"), "運転設定", TO_PARENT),
    (("運転日報", "Daily report", "Tagesbericht"), "運転日報", TO_PARENT),
    (("バージョン", "Version", "Version"), None, VERSION),
    (("終了", "Exit", "Beenden"), "終了確認", CHILD_ONE),
]


def parent(codes, name):
    layout = Layout(codes, PARENT, name)
    navigation(layout, PAGES)
    return layout


def overview(codes):
    layout = parent(codes, (OVERVIEW, "Plant overview", "Anlagenbild"))
    layout.options["StartScreen"] = 1
    panel(layout, 16, 52, 1248, 420, ("発電工程", "Power generation", "Stromerzeugung"))
    for no in (1, 2):
        y = 90 + (no - 1) * 190
        mark = "０１２"[no]
        layout.frame(72, y + 107, 600, PIPE, CAUTION)
        layout.frame(672, y + 107, 92, PIPE, STEAM)
        for x, draw, texts in (
                (96, filter_bed, (f"吸気 {mark}号", f"Air intake {no}", f"Ansaugung {no}")),
                (246, turbine, (f"ガスタービン {mark}号", f"Gas turbine {no}", f"Gasturbine {no}")),
                (396, generator, (f"発電機 {mark}号", f"Generator {no}", f"Generator {no}")),
                (620, boiler, (f"ボイラ {mark}号", f"Boiler {no}", f"Kessel {no}"))):
            draw(layout, x, y + 110, f"PLANT{no}")
            layout.text(x - 56, y + 18, texts, NORMAL, TEXT, 150)
        field(layout, 360, y + 164, 6, 1, "PLANT_OUTPUT", "MW")
    layout.frame(764, 197, PIPE, 196, STEAM)
    layout.frame(764, 292, 380, PIPE, STEAM)
    for x, draw, texts in ((850, turbine, ("蒸気タービン", "Steam turbine", "Dampfturbine")),
                           (990, exchanger, ("復水器", "Condenser", "Kondensator")),
                           (1130, generator, ("発電機 ３号", "Generator 3", "Generator 3"))):
        draw(layout, x, 295, "PLANT3")
        layout.text(x - 44, 222, texts, NORMAL, TEXT, 132)
    field(layout, 1094, 350, 6, 1, "PLANT_OUTPUT", "MW")
    for no, (texts, length, decimals, unit, limit) in enumerate((
            (("総出力", "Total output", "Gesamtleistung"), 6, 1, "MW", 500),
            (("送電端出力", "Net output", "Nettoleistung"), 6, 1, "MW", 500),
            (("熱効率", "Efficiency", "Wirkungsgrad"), 5, 2, "%", 70),
            (("周波数", "Frequency", "Frequenz"), 6, 3, "Hz", 60),
            (("NOx 濃度", "NOx", "NOx"), 5, 1, "ppm", 20))):
        x = 16 + no * 252
        layout.frame(x, 484, 240, 104, PANEL, BORDER)
        layout.text(x + 16, 496, texts, NORMAL, LABEL, 208)
        layout.number(x + 16, 524, length, decimals, "PLANT_VALUE", TITLE)
        layout.text(x + 110, 528, same(unit), LARGE)
        layout.bar(x + 16, 560, 208, 14, "PLANT_BAR", POWER, limit=limit)
    panel(layout, 16, 600, 616, 360, ("機器状態", "Equipment", "Maschinen"))
    states(layout, 20, 636, 600, 44, "PLANT", [system["name"] for system in plant.SYSTEMS[:6]])
    panel(layout, 644, 600, 620, 360, ("最新の警報", "Latest alarms", "Letzte Alarme"))
    for no in range(8):
        y = 640 + no * 32
        layout.lamp(660, y, "NEWS_LAMP", (ALARM, CAUTION, STOPPED)[no % 3])
        layout.variable(684, y, 14, "NEWS_TIME")
        layout.variable(800, y, 60, "NEWS_TEXT")
    layout.mark(660, 912, 113, ALARM, "NEWS_BELL")
    layout.text(704, 922, ("未確認", "Open", "Offen"))
    field(layout, 776, 922, 4, 0, "NEWS_COUNT", " ")
    layout.button(1096, 908, 152, 40, ("一覧を開く", "Open the list", "Liste zeigen"),
                  ID_Type=TO_PARENT, ID_Name="タービン警報")
    return layout


def system_page(codes, system):
    layout = parent(codes, system["name"])
    prefix = system["prefix"]
    panel(layout, 16, 52, 1248, 264, ("主系統", "Main line", "Hauptstrang"))
    diagram(layout, 32, 88, 1216, prefix, system["medium"], system["equipment"])
    top, height = 328, 556
    panel(layout, 16, top, 616, height, ("計測値", "Measurements", "Messwerte"))
    measurements(layout, 16, top + 56, 616, 480 // len(system["measures"]), prefix,
                 system["measures"])
    panel(layout, 644, top, 620, height, ("機器状態", "Equipment", "Maschinen"))
    states(layout, 648, top + 36, 604, 460 // len(system["machines"]), prefix, system["machines"])
    layout.frame(16, 896, 1248, 64, PANEL, BORDER)
    layout.text(32, 920, ("運転モード", "Mode", "Betriebsart"), LARGE, TEXT, 120)
    layout.radio(170, 919, 130, (("自動", "Auto", "Auto"), ("手動", "Manual", "Hand")),
                 f"{prefix}_MODE")
    layout.check(450, 919, ("警報を止める", "Suppress alarms", "Alarme sperren"), f"{prefix}_MUTE")
    for no, (texts, name) in enumerate(((("ポンプ操作", "Pump", "Pumpe"), "ポンプ操作"),
                                        (("弁操作", "Valve", "Ventil"), "弁操作"),
                                        (("調節計", "Controller", "Regler"), "調節計"))):
        layout.button(836 + no * 140, 908, 130, 40, texts, ID_Type=CHILD_ONE, ID_Name=name)
    return layout


def generator_page(codes, prefix, name):
    layout = parent(codes, name)
    panel(layout, 16, 52, 720, 908, ("単線結線図", "Single line diagram", "Einliniendiagramm"))
    layout.frame(197, 110, PIPE, 760, POWER)
    for y, draw, texts, unit in (
            (150, breaker, ("母線遮断器", "Bus breaker", "Kuppelschalter"), "A"),
            (280, transformer, ("主変圧器", "Main transformer", "Haupttrafo"), "kV"),
            (410, breaker, ("発電機遮断器", "Generator breaker", "Generatorschalter"), "A"),
            (540, transformer, ("計器用変成器", "Instrument transformer", "Messwandler"), "V"),
            (670, breaker, ("界磁遮断器", "Field breaker", "Feldschalter"), "A"),
            (800, generator, name, "MW")):
        draw(layout, 200, y, prefix)
        layout.text(270, y - 22, texts, NORMAL, TEXT, 190)
        field(layout, 270, y + 6, 6, 1, f"{prefix}_LINE", unit)
        if draw is breaker:
            layout.button(480, y - 20, 110, 40, ("入", "Close", "Ein"), code=f"{prefix}_CMD",
                          ID_Type=TO_SELF, **RUN_FACE)
            layout.button(604, y - 20, 110, 40, ("切", "Open", "Aus"), code=f"{prefix}_CMD",
                          ID_Type=TO_SELF, **STOP_FACE)
        else:
            layout.variable(480, y - 20, 33, f"{prefix}_TEXT")
            layout.bar(480, y + 4, 234, 16, f"{prefix}_BAR", POWER)
    panel(layout, 748, 52, 516, 440, ("電気量", "Electrical values", "Elektrische Werte"))
    measurements(layout, 748, 98, 516, 62, prefix, [
        (("有効電力", "Active power", "Wirkleistung"), 1, "MW", 200),
        (("無効電力", "Reactive power", "Blindleistung"), 1, "Mvar", 100),
        (("電圧", "Voltage", "Spannung"), 2, "kV", 20), (("電流", "Current", "Strom"), 1, "A", 9000),
        (("力率", "Power factor", "Leistungsfaktor"), 3, " ", 1),
        (("周波数", "Frequency", "Frequenz"), 3, "Hz", 60)])
    panel(layout, 748, 504, 516, 456, ("同期投入", "Synchronising", "Synchronisierung"))
    layout.ellipse(776, 560, 240, 240, WALL, FIELD, 3)
    for x1, y1, x2, y2 in ((896, 566, 896, 580), (1010, 680, 996, 680), (896, 794, 896, 780),
                           (782, 680, 796, 680)):
        layout.line(x1, y1, x2, y2, WALL, thickness=2)
    layout.line(896, 680, 940, 600, ALARM, thickness=3)
    layout.text(884, 812, same("S/S"), BOLD, HEADING)
    for no, texts in enumerate((("周波数差", "Frequency diff.", "Frequenzdiff."),
                                ("電圧差", "Voltage diff.", "Spannungsdiff."),
                                ("位相差", "Phase diff.", "Phasendiff."))):
        layout.text(1040, 560 + no * 74, texts, NORMAL, LABEL, 200)
        field(layout, 1040, 588 + no * 74, 7, 3, f"{prefix}_SYNC", ("Hz", "kV", "deg")[no], LARGE)
    layout.check(776, 850, ("自動同期", "Automatic", "Automatik"), f"{prefix}_AUTO")
    layout.button(776, 896, 220, 44, ("同期投入", "Synchronise", "Synchronisieren"),
                  code=f"{prefix}_CMD", ID_Type=TO_SELF, **RUN_FACE)
    layout.button(1020, 896, 220, 44, ("解列", "Disconnect", "Trennen"), code=f"{prefix}_CMD",
                  ID_Type=TO_SELF, **STOP_FACE)
    return layout


def trend_page(codes, prefix, name, unit, limit, colour, series):
    layout = parent(codes, name)
    for half, texts in enumerate(series):
        top = 52 + half * 458
        panel(layout, 16, top, 1248, 446, texts)
        for step in range(6):
            y = top + 60 + step * 62
            layout.text(32, y - 6, same(f"{limit * (5 - step) / 5:5.4g}".strip()), SMALL, LABEL, 40)
            layout.line(84, y, 1040, y, RULE, 2)
        for no in range(12):
            x = 96 + no * 78
            layout.bar(x, top + 60, 50, 310, f"{prefix}_TREND", colour, True, limit, PANEL)
            if no % 3 == 0:
                layout.text(x + 10, top + 384, same(f"{no * 2}:00"), SMALL)
        for no, label in enumerate((("現在", "Now", "Jetzt"), ("最大", "Maximum", "Maximum"),
                                    ("最小", "Minimum", "Minimum"), ("平均", "Average", "Mittel"))):
            layout.text(1068, top + 62 + no * 72, label)
            field(layout, 1068, top + 90 + no * 72, 8, 2, f"{prefix}_VALUE", unit, LARGE)
        layout.scroll(84, top + 408, 956, 22, f"{prefix}_SCROLL")
    for no, (_, title, *_) in enumerate(plant.TRENDS):
        layout.button(1068, 400 + no * 30, 180, 26, title, NORMAL, ID_Type=TO_PARENT,
                      ID_Name=title[0])
    return layout


def alarm_page(codes, prefix, name):
    layout = parent(codes, name)
    panel(layout, 16, 52, 1248, 908, name)
    layout.radio(40, 96, 150, (("すべて", "All", "Alle"), ("未確認", "Open", "Offen"),
                               ("復帰済み", "Cleared", "Erledigt")), f"{prefix}_FILTER")
    layout.check(520, 96, ("自動更新", "Follow", "Mitlaufen"), f"{prefix}_FOLLOW")
    for no, (_, title) in enumerate(plant.ALARM_LISTS):
        layout.button(760 + no * 164, 88, 156, 34, title, NORMAL, ID_Type=TO_PARENT,
                      ID_Name=title[0])
    for x, texts in ((76, ("番号", "No.", "Nr.")), (136, ("発生時刻", "Time", "Zeit")),
                     (290, ("内容", "Message", "Meldung")), (800, ("値", "Value", "Wert")),
                     (900, ("確認者", "Operator", "Bediener")),
                     (1040, ("復帰時刻", "Cleared", "Erledigt"))):
        layout.text(x, 142, texts, NORMAL, HEADING)
    layout.line(32, 164, 1220, 164, BORDER)
    for no in range(7):
        y = 188 + no * 100
        layout.mark(32, y - 8, 112, (ALARM, CAUTION, STOPPED)[no % 3], f"{prefix}_LAMP")
        layout.number(76, y, 4, 0, f"{prefix}_NO", KeepZeros=1)
        layout.variable(136, y, 18, f"{prefix}_TIME")
        layout.variable(290, y, 64, f"{prefix}_MESSAGE")
        layout.number(800, y, 8, 2, f"{prefix}_VALUE")
        layout.variable(900, y, 16, f"{prefix}_OPERATOR")
        layout.variable(1040, y, 18, f"{prefix}_CLEARED")
        layout.line(32, y + 58, 1220, y + 58, RULE, 1)
    layout.scroll(1232, 172, 24, 700, f"{prefix}_SCROLL", True)
    layout.button(836, 904, 190, 42, ("確認", "Acknowledge", "Quittieren"), code=f"{prefix}_CMD",
                  ID_Type=TO_SELF, **RUN_FACE)
    layout.button(1038, 904, 190, 42, ("ブザー停止", "Horn off", "Hupe aus"),
                  code=f"{prefix}_CMD", ID_Type=TO_SELF)
    return layout


def sequence_page(codes):
    layout = parent(codes, ("起動停止操作", "Start and stop", "An- und Abfahren"))
    for column, system in enumerate(plant.SYSTEMS[:3]):
        x = 16 + column * 418
        prefix = system["prefix"]
        panel(layout, x, 52, 412, 908, system["name"])
        for no, texts in enumerate((
                ("補機起動", "Auxiliaries", "Nebenanlagen"), ("パージ", "Purge", "Spuelen"),
                ("点火", "Ignition", "Zuenden"), ("昇速", "Acceleration", "Hochfahren"),
                ("定格速度", "Rated speed", "Nenndrehzahl"), ("併入", "Synchronised", "Am Netz"),
                ("定格負荷", "Rated load", "Nennlast"))):
            y = 98 + no * 82
            layout.frame(x + 20, y, 372, 44, FIELD, BORDER)
            layout.lamp(x + 32, y + 15, f"{prefix}_STEP", RUNNING if no < 5 else STOPPED)
            layout.text(x + 60, y + 15, texts, NORMAL, TEXT, 156)
            if no < 6:
                layout.mark(x + 190, y + 47, 117, STOPPED)
        layout.text(x + 20, 690, ("経過時間", "Elapsed", "Laufzeit"), NORMAL, LABEL, 90)
        field(layout, x + 160, 690, 6, 1, f"{prefix}_ELAPSED", "min")
        layout.text(x + 20, 726, ("目標負荷", "Target load", "Sollleistung"), NORMAL, LABEL, 98)
        field(layout, x + 160, 726, 6, 1, f"{prefix}_TARGET", "MW", InputAllowed=1, CursorKeys=15)
        layout.check(x + 20, 770, ("自動進行", "Automatic", "Automatik"), f"{prefix}_FOLLOW")
        for no, (texts, face) in enumerate((
                (START, RUN_FACE), (("一時停止", "Hold", "Halt"), {}), (STOP, STOP_FACE))):
            layout.button(x + 20, 806 + no * 50, 372, 42, texts, code=f"{prefix}_SEQ",
                          ID_Type=TO_SELF, **face)
    return layout


def settings_page(codes):
    layout = parent(codes, ("運転設定", "Settings", "Einstellungen"))
    for no, system in enumerate(plant.SYSTEMS[:6]):
        x = 16 + no % 3 * 418
        y = 52 + no // 3 * 456
        prefix = system["prefix"]
        panel(layout, x, y, 412, 446, system["name"])
        for row, (texts, decimals, unit, _) in enumerate(system["measures"][:4]):
            top = y + 70 + row * 96
            layout.text(x + 16, top, texts, NORMAL, LABEL, 170)
            field(layout, x + 196, top, 7, decimals, f"{prefix}_SET", unit, InputAllowed=1,
                  CursorKeys=15)
            layout.check(x + 306, top - 1, ("警報", "Alarm", "Alarm"), f"{prefix}_WATCH")
    return layout


def report_page(codes):
    layout = parent(codes, ("運転日報", "Daily report", "Tagesbericht"))
    panel(layout, 16, 52, 1248, 908, ("時間別の記録", "Hourly record", "Stundenwerte"))
    layout.text(36, 92, ("時刻", "Time", "Zeit"), NORMAL, HEADING)
    for column, texts in enumerate((
            ("総出力", "Output", "Leistung"), ("燃料", "Fuel", "Gas"), ("効率", "Effic.", "Wirkg."),
            ("蒸気", "Steam", "Dampf"), ("真空", "Vacuum", "Vakuum"), ("NOx", "NOx", "NOx"))):
        layout.text(110 + column * 90, 92, texts, NORMAL, HEADING, 84)
    layout.text(670, 92, ("記事", "Remarks", "Bemerkung"), NORMAL, HEADING)
    layout.line(32, 114, 1248, 114, BORDER)
    for row in range(13):
        y = 132 + row * 62
        layout.text(36, y, same(f"{row * 2:02}:00") if row < 12 else ("合計", "Total", "Summe"),
                    NORMAL, TEXT)
        for column in range(6):
            layout.number(110 + column * 90, y, 8, 2, "REPORT_VALUE")
        layout.variable(670, y, 80, "REPORT_REMARK", InputAllowed=1, JapaneseInput=1)
        layout.line(32, y + 36, 1248, y + 36, RULE, 1)
    return layout


def all_layouts(codes):
    systems = [system["name"] for system in plant.SYSTEMS]
    generators = [name for _, name in plant.GENERATORS]
    lists = [entry[1] for entry in plant.TRENDS + plant.ALARM_LISTS]
    return [
        overview(codes),
        *(system_page(codes, system) for system in plant.SYSTEMS),
        *(generator_page(codes, *generator) for generator in plant.GENERATORS),
        *(trend_page(codes, *trend) for trend in plant.TRENDS),
        *(alarm_page(codes, *alarm) for alarm in plant.ALARM_LISTS),
        sequence_page(codes), settings_page(codes), report_page(codes),
        machine_window(codes, ("ポンプ操作", "Pump", "Pumpe"), "PUMP", 300),
        machine_window(codes, ("弁操作", "Valve", "Ventil"), "VALVE", 104),
        machine_window(codes, ("ファン操作", "Fan", "Ventilator"), "FAN", 301),
        breaker_window(codes), keypad_window(codes), alarm_window(codes), shift_window(codes),
        controller_window(codes), confirm_window(codes), version_window(codes),
        exit_window(codes),
        selection_window(codes, ("系統選択", "Systems", "Systeme"), systems + generators),
        selection_window(codes, ("一覧選択", "Lists", "Listen"), lists),
        legend_window(codes), guide_window(codes),
    ]
