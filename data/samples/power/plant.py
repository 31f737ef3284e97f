"""The plant: what its systems consist of. Texts are (Japanese, English, German without umlauts)."""

from layout import CHEMICAL, POWER, STEAM, WATER, ALARM, CAUTION

STOP_VALVE = ("遮断弁", "Stop valve", "Absperrventil")
CONTROL_VALVE = ("調節弁", "Control valve", "Regelventil")
FLOW_METER = ("流量計", "Flow meter", "Durchfluss")
STRAINER = ("ストレーナ", "Strainer", "Filtersieb")
FUEL_HEATER = ("燃料加熱器", "Fuel heater", "Gasvorwaermer")
MAIN_PUMP = ("主ポンプ", "Main pump", "Hauptpumpe")
MAIN_PUMPS = [("主ポンプ A", "Main pump A", "Hauptpumpe A"),
              ("主ポンプ B", "Main pump B", "Hauptpumpe B"),
              ("予備ポンプ", "Standby pump", "Reservepumpe")]


def gas_turbine(no):
    return dict(
        prefix=f"GT{no}", medium=CAUTION,
        name=(f"ガスタービン{'０１２'[no]}号", f"Gas turbine {no}", f"Gasturbine {no}"),
        equipment=[
            ("filter_bed", f"GT{no}-F1", ("吸気フィルタ", "Intake filter", "Luftfilter"), 1, "Pa"),
            ("turbine", f"GT{no}-C1", ("圧縮機", "Compressor", "Verdichter"), 1, "kPa"),
            ("exchanger", f"GT{no}-B1", ("燃焼器", "Combustor", "Brennkammer"), 0, "degC"),
            ("turbine", f"GT{no}-T1", ("タービン", "Turbine", "Turbine"), 0, "rpm"),
            ("generator", f"GT{no}-G1", ("発電機", "Generator", "Generator"), 1, "MW"),
            ("transformer", f"GT{no}-M1", ("主変圧器", "Main transformer", "Haupttrafo"), 1, "kV"),
            ("breaker", f"GT{no}-S1", ("主遮断器", "Main breaker", "Hauptschalter"), 1, "A")],
        measures=[
            (("排気温度", "Exhaust temp.", "Abgastemperatur"), 1, "degC", 700),
            (("圧縮機出口圧力", "Compressor pressure", "Verdichterdruck"), 3, "MPa", 3),
            (("燃料流量", "Fuel flow", "Brennstoffstrom"), 2, "t/h", 60),
            (("回転速度", "Shaft speed", "Drehzahl"), 0, "rpm", 3600),
            (("軸振動", "Shaft vibration", "Schwingung"), 1, "um", 200),
            (("軸受温度", "Bearing temp.", "Lagertemperatur"), 1, "degC", 120)],
        machines=[("潤滑油ポンプ A", "Lube oil pump A", "Oelpumpe A"),
                  ("潤滑油ポンプ B", "Lube oil pump B", "Oelpumpe B"),
                  ("非常用油ポンプ", "Emergency oil pump", "Notoelpumpe"),
                  ("冷却ファン", "Cooling fan", "Kuehlgeblaese"),
                  ("起動装置", "Starting device", "Anfahreinheit")])


def boiler(no):
    return dict(
        prefix=f"HRSG{no}", medium=STEAM,
        name=(f"排熱回収ボイラ{'０１２'[no]}号", f"Heat recovery boiler {no}", f"Abhitzekessel {no}"),
        equipment=[
            ("boiler", f"B{no}-01", ("高圧過熱器", "HP superheater", "HD-Ueberhitzer"), 1, "degC"),
            ("boiler", f"B{no}-02", ("高圧蒸発器", "HP evaporator", "HD-Verdampfer"), 1, "degC"),
            ("boiler", f"B{no}-03", ("脱硝装置", "DeNOx", "DeNOx"), 1, "ppm"),
            ("boiler", f"B{no}-04", ("低圧蒸発器", "LP evaporator", "ND-Verdampfer"), 1, "degC"),
            ("boiler", f"B{no}-05", ("節炭器", "Economiser", "Economiser"), 1, "degC"),
            ("fan", f"B{no}-06", ("通風機", "Draught fan", "Saugzug"), 1, "kPa"),
            ("stack", f"B{no}-07", ("煙突", "Stack", "Kamin"), 1, "degC")],
        measures=[
            (("高圧蒸気圧力", "HP steam pressure", "HD-Dampfdruck"), 2, "MPa", 18),
            (("高圧蒸気温度", "HP steam temp.", "HD-Dampftemperatur"), 1, "degC", 600),
            (("高圧蒸気流量", "HP steam flow", "HD-Dampfstrom"), 1, "t/h", 400),
            (("高圧ドラム水位", "HP drum level", "HD-Trommelstand"), 0, "mm", 500),
            (("低圧蒸気圧力", "LP steam pressure", "ND-Dampfdruck"), 3, "MPa", 1),
            (("出口ガス温度", "Outlet gas temp.", "Abgas nach Kessel"), 1, "degC", 200)],
        machines=[("循環ポンプ A", "Circulation pump A", "Umwaelzpumpe A"),
                  ("循環ポンプ B", "Circulation pump B", "Umwaelzpumpe B"),
                  ("通風機", "Draught fan", "Saugzug"),
                  ("アンモニアポンプ", "Ammonia pump", "Ammoniakpumpe"),
                  ("薬注ポンプ", "Dosing pump", "Dosierpumpe")])


def fluid(prefix, name, medium, equipment, measures, machines=None):
    return dict(prefix=prefix, name=name, medium=medium, equipment=equipment, measures=measures,
                machines=machines or MAIN_PUMPS)


FLUIDS = [
    fluid("ST", ("蒸気タービン", "Steam turbine", "Dampfturbine"), STEAM, [
        ("valve", "ST-V1", ("主塞止弁", "Main stop valve", "Schnellschluss"), 1, "%"),
        ("valve", "ST-V2", ("加減弁", "Governor valve", "Stellventil"), 1, "%"),
        ("turbine", "ST-T1", ("高圧タービン", "HP turbine", "HD-Turbine"), 2, "MPa"),
        ("turbine", "ST-T2", ("中圧タービン", "IP turbine", "MD-Turbine"), 2, "MPa"),
        ("turbine", "ST-T3", ("低圧タービン", "LP turbine", "ND-Turbine"), 3, "MPa"),
        ("generator", "ST-G1", ("発電機", "Generator", "Generator"), 1, "MW"),
        ("transformer", "ST-M1", ("主変圧器", "Main transformer", "Haupttrafo"), 1, "kV")], [
        (("主蒸気圧力", "Main steam pressure", "Frischdampfdruck"), 2, "MPa", 18),
        (("主蒸気温度", "Main steam temp.", "Frischdampftemp."), 1, "degC", 600),
        (("回転速度", "Shaft speed", "Drehzahl"), 0, "rpm", 3600),
        (("軸位置", "Shaft position", "Wellenlage"), 2, "mm", 1),
        (("車室伸び", "Casing expansion", "Gehaeusedehnung"), 1, "mm", 40),
        (("排気室温度", "Exhaust hood temp.", "Abdampftemperatur"), 1, "degC", 80)],
          [("制御油ポンプ A", "Control oil pump A", "Steueroelpumpe A"),
           ("制御油ポンプ B", "Control oil pump B", "Steueroelpumpe B"),
           ("ターニング装置", "Turning gear", "Drehvorrichtung"),
           ("グランド排風機", "Gland exhauster", "Wrasengeblaese")]),
    fluid("COND", ("復水系統", "Condensate", "Kondensat"), WATER, [
        ("exchanger", "CD-H1", ("復水器", "Condenser", "Kondensator"), 2, "kPa"),
        ("tank", "CD-A1", ("ホットウェル", "Hotwell", "Sammelbehaelter"), 0, "mm"),
        ("pump", "CD-P1", MAIN_PUMP, 1, "t/h"),
        ("filter_bed", "CD-F1", ("脱塩装置", "Demineraliser", "Entsalzung"), 2, "uS"),
        ("exchanger", "CD-H2", ("給水加熱器", "Feed heater", "Vorwaermer"), 1, "degC"),
        ("valve", "CD-V1", CONTROL_VALVE, 1, "%")], [
        (("復水器真空度", "Condenser vacuum", "Vakuum"), 2, "kPa", 100),
        (("復水温度", "Condensate temp.", "Kondensattemp."), 1, "degC", 80),
        (("復水流量", "Condensate flow", "Kondensatstrom"), 1, "t/h", 600),
        (("ホットウェル水位", "Hotwell level", "Fuellstand"), 0, "mm", 1500)]),
    fluid("FEED", ("給水系統", "Feed water", "Speisewasser"), WATER, [
        ("drum", "FW-D1", ("脱気器", "Deaerator", "Entgaser"), 3, "MPa"),
        ("tank", "FW-A1", ("貯水槽", "Storage tank", "Speicher"), 0, "mm"),
        ("pump", "FW-P1", ("高圧給水ポンプ", "HP feed pump", "HD-Speisepumpe"), 1, "t/h"),
        ("meter", "FW-Q1", FLOW_METER, 1, "t/h"),
        ("exchanger", "FW-H1", ("高圧加熱器", "HP heater", "HD-Vorwaermer"), 1, "degC"),
        ("valve", "FW-V1", CONTROL_VALVE, 1, "%")], [
        (("給水圧力", "Feed pressure", "Speisedruck"), 2, "MPa", 25),
        (("給水温度", "Feed temp.", "Speisetemperatur"), 1, "degC", 200),
        (("給水流量", "Feed flow", "Speisestrom"), 1, "t/h", 800),
        (("溶存酸素", "Dissolved oxygen", "Sauerstoff"), 1, "ppb", 20)]),
    fluid("COOL", ("冷却水系統", "Cooling water", "Kuehlwasser"), WATER, [
        ("filter_bed", "CW-F1", ("除塵機", "Screen", "Rechen"), 1, "kPa"),
        ("pump", "CW-P1", ("循環水ポンプ A", "Circulation pump A", "Pumpe A"), 0, "t/h"),
        ("pump", "CW-P2", ("循環水ポンプ B", "Circulation pump B", "Pumpe B"), 0, "t/h"),
        ("valve", "CW-V1", STOP_VALVE, 1, "%"),
        ("exchanger", "CW-H1", ("復水器", "Condenser", "Kondensator"), 1, "degC"),
        ("meter", "CW-Q1", FLOW_METER, 0, "t/h")], [
        (("取水温度", "Intake temp.", "Einlauftemperatur"), 1, "degC", 40),
        (("放水温度", "Outfall temp.", "Auslauftemperatur"), 1, "degC", 40),
        (("循環水圧力", "Pressure", "Druck"), 3, "MPa", 1),
        (("循環水流量", "Flow", "Durchfluss"), 0, "t/h", 40000)]),
    fluid("GAS", ("燃料ガス系統", "Fuel gas", "Brenngas"), CAUTION, [
        ("valve", "FG-V1", ("受入遮断弁", "Inlet valve", "Eingangsventil"), 1, "%"),
        ("filter_bed", "FG-F1", STRAINER, 1, "kPa"),
        ("turbine", "FG-C1", ("ガス圧縮機", "Gas compressor", "Gasverdichter"), 2, "MPa"),
        ("exchanger", "FG-H1", FUEL_HEATER, 1, "degC"),
        ("meter", "FG-Q1", FLOW_METER, 2, "t/h"),
        ("valve", "FG-V2", CONTROL_VALVE, 1, "%")], [
        (("受入圧力", "Inlet pressure", "Eingangsdruck"), 3, "MPa", 7),
        (("ガス温度", "Gas temp.", "Gastemperatur"), 1, "degC", 250),
        (("発熱量", "Heating value", "Heizwert"), 1, "MJ/kg", 60),
        (("漏洩濃度", "Leak detection", "Leckmeldung"), 1, "%LEL", 100)],
          [("ガス圧縮機 A", "Gas compressor A", "Gasverdichter A"),
           ("ガス圧縮機 B", "Gas compressor B", "Gasverdichter B"),
           ("換気ファン", "Ventilation fan", "Lueftung")]),
    fluid("OIL", ("潤滑油系統", "Lube oil", "Schmieroel"), CHEMICAL, [
        ("tank", "LO-A1", ("主油タンク", "Main oil tank", "Hauptoeltank"), 0, "mm"),
        ("pump", "LO-P1", MAIN_PUMP, 2, "MPa"),
        ("exchanger", "LO-H1", ("油冷却器", "Oil cooler", "Oelkuehler"), 1, "degC"),
        ("filter_bed", "LO-F1", ("油フィルタ", "Oil filter", "Oelfilter"), 1, "kPa"),
        ("valve", "LO-V1", CONTROL_VALVE, 1, "%"),
        ("turbine", "LO-T1", ("軸受", "Bearings", "Lager"), 2, "MPa")], [
        (("給油圧力", "Supply pressure", "Oeldruck"), 3, "MPa", 1),
        (("給油温度", "Supply temp.", "Oeltemperatur"), 1, "degC", 80),
        (("タンク油位", "Tank level", "Tankstand"), 0, "mm", 1500),
        (("水分", "Water content", "Wassergehalt"), 0, "ppm", 500)]),
    fluid("WTP", ("水処理設備", "Water treatment", "Wasseraufbereitung"), WATER, [
        ("tank", "WT-A1", ("原水槽", "Raw water tank", "Rohwasser"), 0, "mm"),
        ("pump", "WT-P1", MAIN_PUMP, 1, "m3/h"),
        ("filter_bed", "WT-F1", ("ろ過器", "Filter", "Filter"), 1, "kPa"),
        ("filter_bed", "WT-F2", ("イオン交換塔", "Ion exchanger", "Ionentauscher"), 2, "uS"),
        ("meter", "WT-Q1", FLOW_METER, 1, "m3/h"),
        ("tank", "WT-A2", ("純水槽", "Pure water tank", "Reinwasser"), 0, "mm")], [
        (("純水導電率", "Conductivity", "Leitwert"), 3, "uS", 1),
        (("シリカ", "Silica", "Kieselsaeure"), 1, "ppb", 50),
        (("原水流量", "Raw water flow", "Rohwasserstrom"), 1, "m3/h", 200),
        (("純水槽水位", "Pure water level", "Reinwasserstand"), 0, "mm", 8000)]),
    fluid("WWT", ("排水処理設備", "Waste water", "Abwasser"), WATER, [
        ("tank", "WW-A1", ("集水槽", "Collecting tank", "Sammelbecken"), 0, "mm"),
        ("pump", "WW-P1", MAIN_PUMP, 1, "m3/h"),
        ("mixer", "WW-M1", ("中和槽", "Neutralisation", "Neutralisation"), 2, "pH"),
        ("mixer", "WW-M2", ("凝集槽", "Flocculation", "Flockung"), 1, "rpm"),
        ("filter_bed", "WW-F1", ("ろ過器", "Filter", "Filter"), 1, "kPa"),
        ("meter", "WW-Q1", ("放流", "Discharge", "Ablauf"), 1, "m3/h")], [
        (("放流 pH", "Outfall pH", "Ablauf pH"), 2, "pH", 14),
        (("濁度", "Turbidity", "Truebung"), 1, "NTU", 20),
        (("放流量", "Outfall flow", "Ablaufmenge"), 1, "m3/h", 100),
        (("油分", "Oil in water", "Oelgehalt"), 2, "ppm", 5)]),
]

SYSTEMS = [gas_turbine(1), gas_turbine(2), boiler(1), boiler(2)] + FLUIDS

GENERATORS = [(f"GEN{no}", (f"発電機{'０１２３'[no]}号", f"Generator {no}", f"Generator {no}"))
              for no in (1, 2, 3)]

TRENDS = [
    ("TEMP", ("温度トレンド", "Temperature trend", "Temperaturverlauf"), "degC", 700, ALARM, [
        ("排気温度 １号", "Exhaust temp. 1", "Abgastemperatur 1"),
        ("排気温度 ２号", "Exhaust temp. 2", "Abgastemperatur 2")]),
    ("PRESS", ("圧力トレンド", "Pressure trend", "Druckverlauf"), "MPa", 20, STEAM, [
        ("主蒸気圧力", "Main steam", "Frischdampf"), ("給水圧力", "Feed water", "Speisewasser")]),
    ("LOAD", ("出力トレンド", "Output trend", "Leistungsverlauf"), "MW", 500, POWER, [
        ("総出力", "Total output", "Gesamtleistung"), ("送電端出力", "Net output", "Nettoleistung")]),
]

ALARM_LISTS = [
    ("TURBINE", ("タービン警報", "Turbine alarms", "Turbinenalarme")),
    ("BOILER", ("ボイラ警報", "Boiler alarms", "Kesselalarme")),
    ("ELECTRIC", ("電気設備警報", "Electrical alarms", "Elektroalarme")),
]
