#!/usr/bin/python3
"""What a screen reader is told of each example, over the bus that screen readers use.

    tools/check-accessibility.py WORKBENCH

Starts the workbench with each example on a display and a session bus of its own, walks through all
that it shows, and fails where something that takes the focus has no name or no role of its own, or
where the picture does not tell what is drawn.
"""

import os
import subprocess
import sys
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
NAMELESS_ROLES = {"unknown", "filler", "invalid", "redundant object"}
PATIENCE = 30  # seconds


def bus_address():
    """Starts the bus, too. The program has to be there before: Qt registers with no bus that was
    up already."""
    call = ["dbus-send", "--session", "--print-reply", "--dest=org.a11y.Bus", "/org/a11y/bus",
            "org.a11y.Bus.GetAddress"]
    subprocess.run(call, check=True, stdout=subprocess.DEVNULL)


def nodes(node):
    yield node
    for child in node:
        if child is not None:
            yield from nodes(child)


def application(name):
    import pyatspi
    for found in pyatspi.Registry.getDesktop(0):
        if found is not None and found.name == name:
            return found
    return None


def faults(program):
    import pyatspi
    told = list(nodes(program))
    for node in told:
        states = node.getState()
        if not states.contains(pyatspi.STATE_FOCUSABLE) or not states.contains(
                pyatspi.STATE_SHOWING):
            continue
        role = node.getRoleName()
        if not node.name and role not in ("scroll pane", "menu item"):
            yield f"a {role} has no name"
        if role in NAMELESS_ROLES:
            yield f"\"{node.name}\" is a {role}"
    if not any(" points" in node.description for node in told):
        yield "nothing tells what is drawn"
    print(f"  {len(told)} nodes")


def check(workbench, folder):
    """Within a session of its own."""
    program = subprocess.Popen([workbench, "--template", folder / "template.json", "--config",
                                folder / "config.json"])
    try:
        time.sleep(2)
        bus_address()
        end = time.monotonic() + PATIENCE
        found = None
        while time.monotonic() < end and (found is None or len(found) == 0):
            time.sleep(0.5)
            found = application("rules-workbench")
        wrong = list(faults(found)) if found is not None else ["it is not on the bus"]
    finally:
        program.terminate()
        program.wait()
    for fault in wrong:
        print(f"{folder.name}: {fault}")
    return not wrong


def main():
    workbench = Path(sys.argv[1]).resolve()
    if len(sys.argv) > 2:
        return 0 if check(workbench, ROOT / "examples" / sys.argv[2]) else 1
    environment = dict(os.environ, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_QPA_PLATFORM="xcb")
    failed = 0
    for folder in sorted((ROOT / "examples").iterdir()):
        if not (folder / "template.json").is_file():
            continue
        print(folder.name)
        run = ["dbus-run-session", "--", "xvfb-run", "-a", sys.executable, __file__,
               str(workbench), folder.name]
        failed += subprocess.run(run, env=environment, timeout=4 * PATIENCE).returncode != 0
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
