"""Child windows and the windows that are neither parent nor child."""

from layout import *
from parts import *

BACK = ("戻る", "Back", "Weiter")
CLOSE = ("閉じる", "Close", "Schliessen")


def child(codes, name, size, **header):
    w, h = size
    layout = Layout(codes, CHILD, name, size, ((DISPLAY[0] - w) // 2, (DISPLAY[1] - h) // 2),
                    **header)
    layout.frame(3, 32, w - 6, h - 35, PANEL)
    return layout


def machine_window(codes, name, prefix, mark):
    layout = child(codes, name, (420, 400))
    layout.mark(32, 60, mark, RUNNING, f"{prefix}_LAMP")
    layout.text(124, 60, ("機器", "Machine", "Maschine"), NORMAL, LABEL, 80)
    layout.variable(214, 60, 24, f"{prefix}_NAME")
    layout.text(124, 92, ("状態", "State", "Zustand"), NORMAL, LABEL, 80)
    layout.variable(214, 92, 24, f"{prefix}_TEXT")
    layout.line(20, 140, 400, 140, RULE)
    layout.text(32, 156, ("運転モード", "Mode", "Betriebsart"), NORMAL, LABEL, 100)
    layout.radio(150, 154, 110, (("自動", "Auto", "Auto"), ("手動", "Manual", "Hand")),
                 f"{prefix}_MODE")
    layout.text(32, 198, ("設定値", "Set point", "Sollwert"), NORMAL, LABEL, 100)
    field(layout, 150, 198, 6, 1, f"{prefix}_SET", "%", LARGE, InputAllowed=1, CursorKeys=15)
    layout.spin(250, 190, f"{prefix}_SPIN")
    layout.scroll(32, 240, 356, 22, f"{prefix}_SCROLL")
    layout.button(32, 280, 170, 44, START, code=f"{prefix}_CMD", ID_Type=TO_OWNER, **RUN_FACE)
    layout.button(218, 280, 170, 44, STOP, code=f"{prefix}_CMD", ID_Type=TO_OWNER, **STOP_FACE)
    layout.button(140, 344, 140, 40, CLOSE, ID_Type=CLOSE_SELF)
    return layout


def breaker_window(codes):
    layout = child(codes, ("遮断器操作", "Breaker", "Schalter"), (380, 240))
    layout.mark(32, 60, 124, POWER, "BREAKER_LAMP")
    layout.variable(90, 60, 38, "BREAKER_NAME")
    layout.check(90, 96, ("同期条件を確かめる", "Check synchronism", "Synchronpruefung"),
                 "BREAKER_CHECK")
    layout.button(32, 136, 150, 40, ("投入", "Close", "Ein"), code="BREAKER_CMD", ID_Type=TO_OWNER,
                  **RUN_FACE)
    layout.button(198, 136, 150, 40, ("開放", "Open", "Aus"), code="BREAKER_CMD", ID_Type=TO_OWNER,
                  **STOP_FACE)
    layout.button(130, 188, 120, 38, CLOSE, ID_Type=CLOSE_SELF)
    return layout


def keypad_window(codes):
    layout = child(codes, ("数値入力", "Key pad", "Zifferneingabe"), (260, 380), ParentInput=1)
    layout.number(40, 50, 10, 2, "KEY_VALUE", TITLE, BackEnabled=1, InputAllowed=1, CursorKeys=15)
    for no, key in enumerate("789456123"):
        layout.button(20 + no % 3 * 76, 90 + no // 3 * 60, 68, 52, same(key), BOLD_LARGE,
                      code="KEY_CODE", ID_Type=TO_OWNER)
    for no, key in enumerate(("0", ".", "BS")):
        layout.button(20 + no * 76, 270, 68, 44, same(key), BOLD_LARGE, code="KEY_CODE",
                      ID_Type=TO_OWNER)
    layout.button(20, 326, 220, 40, CLOSE, ID_Type=CLOSE_SELF)
    return layout


def alarm_window(codes):
    layout = child(codes, ("警報詳細", "Alarm detail", "Alarmdetail"), (560, 280))
    layout.mark(24, 56, 302, ALARM, "DETAIL_LAMP")
    for no, texts in enumerate((("内容", "Message", "Meldung"), ("原因", "Cause", "Ursache"),
                                ("処置", "Action", "Abhilfe"))):
        layout.text(110, 56 + no * 46, texts, NORMAL, LABEL, 80)
        layout.variable(196, 56 + no * 46, 48, "DETAIL_TEXT")
    layout.button(110, 220, 160, 42, ("確認", "Acknowledge", "Quittieren"), code="DETAIL_CMD",
                  ID_Type=TO_OWNER, **RUN_FACE)
    layout.button(290, 220, 160, 42, CLOSE, ID_Type=CLOSE_SELF)
    return layout


def shift_window(codes):
    layout = child(codes, ("引継事項", "Shift notes", "Schichtbuch"), (640, 260))
    layout.text(28, 52, ("当直", "On duty", "Schicht"), NORMAL, LABEL, 80)
    layout.variable(120, 52, 24, "SHIFT_NAME", InputAllowed=1, JapaneseInput=1)
    for no in range(4):
        layout.variable(28, 88 + no * 28, 82, "SHIFT_NOTE", InputAllowed=1, JapaneseInput=1)
    layout.button(180, 206, 130, 40, ("保存", "Save", "Speichern"), code="SHIFT_CMD",
                  ID_Type=TO_OWNER, **RUN_FACE)
    layout.button(330, 206, 130, 40, CLOSE, ID_Type=CLOSE_SELF)
    return layout


def controller_window(codes):
    layout = child(codes, ("調節計", "Controller", "Regler"), (360, 480))
    layout.variable(28, 48, 40, "PID_NAME")
    for no, (texts, colour) in enumerate(((same("PV"), WATER), (same("SV"), POWER),
                                          (same("MV"), CHEMICAL))):
        x = 28 + no * 108
        layout.text(x, 80, texts, BOLD_LARGE, HEADING)
        layout.bar(x + 16, 104, 48, 200, "PID_BAR", colour, True)
        field(layout, x, 322, 6, 1, "PID_VALUE", "%", **({} if no == 0 else {
            "InputAllowed": 1, "CursorKeys": 15}))
    layout.radio(28, 360, 104, (("自動", "Auto", "Auto"), ("手動", "Manual", "Hand"),
                                ("遠隔", "Remote", "Fern")), "PID_MODE")
    layout.scroll(28, 392, 304, 22, "PID_SCROLL")
    layout.button(28, 428, 146, 38, ("設定", "Set", "Setzen"), code="PID_CMD", ID_Type=TO_OWNER,
                  **RUN_FACE)
    layout.button(186, 428, 146, 38, CLOSE, ID_Type=CLOSE_SELF)
    return layout


def confirm_window(codes):
    layout = child(codes, ("操作確認", "Confirm", "Bedienung"), (460, 236), Fixed=1)
    layout.mark(32, 60, 302, CAUTION)
    layout.text(124, 62, ("次の操作を実行しますか。", "Carry out this operation?",
                          "Aktion wirklich starten?"), BOLD_LARGE, TEXT, 320)
    layout.variable(124, 104, 34, "CONFIRM_TEXT", LARGE)
    layout.button(100, 176, 120, 42, ("実行", "Execute", "Starten"), code="CONFIRM_CMD",
                  ID_Type=TO_OWNER, **RUN_FACE)
    layout.button(240, 176, 120, 42, BACK, ID_Type=CLOSE_SELF)
    return layout


def version_window(codes):
    layout = child(codes, ("バージョン情報", "Version information", "Programmversion"), (480, 260),
                   Fixed=1)
    layout.bitmap(32, 60, 80, 80, "logo.png")
    layout.text(136, 60, ("潮見火力発電所 監視システム", "Shiomi Power Station",
                          "Kraftwerk Shiomi"), BOLD_LARGE, HEADING, 320)
    layout.text(136, 92, ("版", "Version", "Version"), NORMAL, LABEL)
    layout.text(220, 92, same("3.1.0"), NORMAL, TEXT)
    layout.text(136, 120, ("端末番号", "Terminal", "Station"), NORMAL, LABEL)
    layout.number(220, 120, 4, 0, "VERSION_STATION", KeepZeros=1)
    layout.text(136, 148, ("検査", "Check", "Kennung"), NORMAL, LABEL)
    layout.number(220, 148, 8, 0, "VERSION_CRC", KeepZeros=1, Hexadecimal=1)
    layout.button(180, 200, 120, 42, CLOSE, ID_Type=CLOSE_SELF)
    return layout


def exit_window(codes):
    layout = child(codes, ("終了確認", "Exit", "Beenden"), (460, 220), Fixed=1)
    layout.options["StopScreen"] = 1
    layout.mark(32, 60, 303, HEADING)
    layout.text(124, 66, ("監視を終了しますか。", "Exit monitoring?", "Programm beenden?"), TITLE,
                TEXT, 320)
    layout.text(124, 104, ("設備は現在の状態で運転を続けます。", "The plant keeps running.",
                           "Die Anlage arbeitet weiter."), NORMAL, LABEL, 320)
    layout.button(100, 156, 120, 44, ("終了", "Exit", "Beenden"), ID_Type=EXIT, **STOP_FACE)
    layout.button(240, 156, 120, 44, BACK, ID_Type=CLOSE_SELF)
    return layout


def selection_window(codes, name, names):
    layout = Layout(codes, OTHER, name, (320, 40 + 40 * len(names)),
                    (940, 120))
    layout.text(20, 12, ("画面を選んでください", "Choose a screen", "Bild waehlen"), NORMAL, TEXT)
    for no, texts in enumerate(names):
        layout.button(20, 36 + no * 40, 280, 34, texts, ID_Type=TO_PARENT, ID_Name=texts[0])
    return layout


def legend_window(codes):
    layout = Layout(codes, OTHER, ("凡例", "Legend", "Legende"), (300, 300), (960, 60))
    layout.text(20, 12, ("記号と色", "Symbols and colours", "Symbole und Farben"), BOLD, HEADING)
    for no, (colour, texts) in enumerate((
            (RUNNING, ("運転中", "Running", "Betrieb")), (STOPPED, ("停止中", "Stopped", "Stillstand")),
            (CAUTION, ("注意", "Caution", "Warnung")), (ALARM, ("警報", "Alarm", "Alarm")))):
        layout.lamp(28, 44 + no * 30, None, colour)
        layout.text(80, 44 + no * 30, texts, NORMAL, TEXT)
    for no, (colour, texts) in enumerate((
            (WATER, ("水", "Water", "Wasser")), (STEAM, ("蒸気", "Steam", "Dampf")),
            (CAUTION, ("燃料", "Fuel", "Brennstoff")), (POWER, ("電力", "Power", "Strom")))):
        layout.frame(20, 172 + no * 30, 40, PIPE, colour)
        layout.text(80, 166 + no * 30, texts, NORMAL, TEXT)
    return layout


def guide_window(codes):
    layout = Layout(codes, OTHER, ("操作案内", "Guide", "Hilfe"), (440, 200), (820, 60))
    layout.text(20, 12, ("操作案内", "Guide", "Hilfe"), BOLD, HEADING)
    for no, texts in enumerate((
            ("黄色のボタンは今の画面です。", "The yellow button is this screen.",
             "Gelb ist das aktuelle Bild."),
            ("設定の値は直接入力できます。", "Set points can be typed in.",
             "Sollwerte sind Eingaben."),
            ("赤は停止、緑は起動です。", "Red stops, green starts.", "Rot stoppt, gruen startet."),
            ("警報は確認するまで点滅します。", "Alarms blink until acknowledged.",
             "Alarme blinken bis zur Quittung."))):
        layout.mark(20, 36 + no * 38, 129, HEADING)
        layout.text(66, 46 + no * 38, texts, NORMAL, TEXT, 360)
    return layout
