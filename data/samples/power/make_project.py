#!/usr/bin/env python3
"""make_project.py OUT: writes the sources of the sample project PowerPlant, 40 layouts with 3,000 items,
as `varnixtool build` reads them. The same sources come out every time."""

import json
import sys
from pathlib import Path

from layout import Codes
from pages import all_layouts


PROJECT = {
    "Parm1": {"DisplaySize": 2, "Languages": 2, "ColourSystems": 1},
    "Parm2": {"TitleHeight": 40, "TitleColour": 91, "TitleAreaColour": 90, "TitleFont": 7,
              "LogoShown": 1, "HardCopyShown": 1, "VersionScreen": 1, "DebugScreen": 1,
              "DateFormat": 3, "DateFont": 2, "WorkAreaColour": 10,
              "ButtonAreaHeight": 56, "ButtonAreaColour": 92},
    "Parm3": {"TitleHeight": 32, "TitleColour": 91, "TitleAreaColour": 98, "TitleFont": 5,
              "TitleCentred": 1, "WorkAreaColour": 11, "FrameWidth": 3, "FrameColour": 98,
              "Width": 480, "Height": 320},
    "Parm4": {"KeyColour": 6, "KeyBackColour": 7, "GridX": 4, "GridY": 4, "GridColour": 99},
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
