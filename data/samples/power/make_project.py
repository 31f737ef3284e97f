#!/usr/bin/env python3
"""make_project.py OUT: writes the sources of the sample project PowerPlant, 40 layouts with 3,000 items,
as `varnixtool build` reads them. The same sources come out every time."""

import json
import sys
from pathlib import Path

from layout import Codes
from pages import all_layouts


def numbers(count, first):
    return first + [0] * (count - len(first))


PROJECT = {
    "Parm1": numbers(20, [2, 2, 1]),
    "Parm2": numbers(30, [40, 91, 90, 7, 0, 1, 1, 1, 1, 3, 2, 10, 56, 92]),
    "Parm3": numbers(20, [32, 91, 98, 5, 1, 11, 3, 98, 480, 320]),
    "Parm4": numbers(20, [0, 6, 7, 4, 4, 99]),
    "ProgPath": "",
    "LogoName": "logo.png",
    "PtrnStart": "全体監視",
    "PtrnStop": "終了確認",
}
def write(path, source):
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text(json.dumps(source, ensure_ascii=False, indent=1) + "\n", encoding="utf-8")


def main(out):
    codes = Codes()
    layouts = all_layouts(codes)
    for number, layout in enumerate(layouts):
        write(out / "layouts" / f"{number:02}.json", layout.source())
    write(out / "codes.json", codes.registry())
    for language in (1, 2, 3):
        texts = (item.get(f"Text{language}", "") for layout in layouts for item in layout.items
                 if item["Type"] != "Bitmap")
        write(out / f"texts{language}.json", [text for text in dict.fromkeys(texts) if text])
    write(out / "project.json", PROJECT)
    return layouts


if __name__ == "__main__":
    made = main(Path(sys.argv[1]))
    if "--count" in sys.argv:
        for one in made:
            print(len(one.items), one.name[0])
        print(len(made), sum(len(one.items) for one in made))
