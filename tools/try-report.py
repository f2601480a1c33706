#!/usr/bin/env python3
"""Makes a page of a fleet with rulesctl (the first argument) and tries it in headless Chromium:
whether each camera has its card and its picture, and search and filter find what they should.
Ends with 1 where they do not."""

import json
import re
import subprocess
import sys
import tempfile
from pathlib import Path
from urllib.parse import urlencode

TEMPLATE = Path("examples/perimeter/template.json")
SAMPLE = json.loads(Path("examples/perimeter/config.json").read_text())
CAMERAS = 300
FAILING = 7  # each so many-th
BROWSER = ["chromium", "--headless", "--no-sandbox", "--disable-gpu", "--virtual-time-budget=20000"]


def camera(number):
    rules = [dict(rule, Name=f"{rule['Name']} {number}") for rule in SAMPLE["Analysis"]["Rules"]]
    if number % FAILING == 0:
        rules[0]["Name"] = rules[1]["Name"]
    if number == 1:
        rules[0]["Name"] = "<script>document.title='run'</script>"
    return json.dumps({"Analysis": dict(SAMPLE["Analysis"], Rules=rules)})


def make_fleet(folder):
    for number in range(CAMERAS):
        (folder / f"cam{number:03}.json").write_text(camera(number))
    (folder / "broken.json").write_text("{")


def document(page, **state):
    """The page's elements as they are once its script has run."""
    address = page.as_uri() + ("#" + urlencode(state) if state else "")
    return subprocess.run(BROWSER + ["--window-size=1400,1000", "--dump-dom", address],
                          capture_output=True, text=True, timeout=300, check=True).stdout


def shown(page, **state):
    cards = re.findall(r"<article [^>]*>", document(page, **state))
    assert len(cards) == CAMERAS + 1, f"{len(cards)} cards"
    return sum(' hidden=""' not in card for card in cards)


def expect(what, found, wanted):
    print(f"{what}: {found}")
    if found != wanted:
        sys.exit(f"{what}: {found}, not {wanted}")


def main(program):
    with tempfile.TemporaryDirectory() as name:
        fleet, page = Path(name) / "fleet", Path(name) / "fleet.html"
        fleet.mkdir()
        make_fleet(fleet)
        made = subprocess.run([program, "report", "--template", TEMPLATE, "--config", fleet, "-o",
                               page], check=False, capture_output=True)
        expect("status", made.returncode, 2)
        failing = len(range(0, CAMERAS, FAILING))
        expect("all", shown(page), CAMERAS + 1)
        expect("failing", shown(page, show="fails"), failing)
        expect("unreadable", shown(page, show="unreadable"), 1)
        expect("one rule's name", shown(page, find="BAY 13"), 13)  # 13, 113, 213, 130 to 139
        expect("both", shown(page, find="cam0 duplicate", show="fails"), 15)
        first = document(page)
        drawn = first.count("<svg ") - first.count('<script type="text/plain"><svg ')
        expect("drawn, some, but not all", 0 < drawn < CAMERAS, True)
        expect("names that are run", "<title>run</title>" in first, False)


main(sys.argv[1])
