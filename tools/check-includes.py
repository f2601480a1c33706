#!/usr/bin/env python3
"""Checks the tree's own includes: written from the root, running one way between the folders, and
never in a circle between units (a header and its source are one unit). Prints each that is not so
and ends with 1 then."""

import re
import subprocess
import sys
from pathlib import Path

# A folder includes itself and those to its right; tests, benchmarks and fuzzers include all.
ORDER = ["workbench", "plugin", "scene", "tabel", "Protocol", "draw", "host"]
# The command line knows the model and what paints it, but no window; nothing includes it.
COMMAND_LINE = "tools/rulesctl"
KNOWN_TO_COMMAND_LINE = {"Protocol", "draw", "host"}
# What a client provides is all that the workbench knows of the module.
WORKBENCH = {"workbench", "host"}
SURFACE = "host/video/qrtspvideownd.h"
KNOWS_SURFACE = {"plugin", "workbench", "host"}
INCLUDE = re.compile(r'^\s*#\s*include\s*"([^"]+)"', re.MULTILINE)


def sources():
    listed = subprocess.run(["git", "ls-files", "*.h", "*.cpp"], capture_output=True, text=True,
                            check=True)
    return [name for name in listed.stdout.split()
            if name.split("/")[0] in ORDER or name.startswith(COMMAND_LINE)]


def unit(name):
    return re.sub(r"\.(h|cpp)$", "", name)


def fault(name, included):
    """What is wrong with the file's include, or nothing."""
    own, other = name.split("/")[0], included.split("/")[0]
    if name.startswith(COMMAND_LINE) and included.startswith(COMMAND_LINE):
        return None if Path(included).is_file() else "no such file"
    if other not in ORDER:
        # Generated from a form or a class, beside its source.
        return None if re.match(r"(ui_\w+\.h|\w+\.moc)$", included) else "not written from the root"
    if not Path(included).is_file():
        return "no such file"
    if name.startswith(COMMAND_LINE):
        return None if other in KNOWN_TO_COMMAND_LINE else "the command line knows no window"
    if own == "workbench":
        return None if other in WORKBENCH else "the workbench knows the host's folder only"
    if ORDER.index(other) < ORDER.index(own):
        return f"{own}/ includes nothing of {other}/"
    if included == SURFACE and own not in KNOWS_SURFACE:
        return f"{own}/ knows no video surface"
    return None


def circles(graph):
    """The sets of units that reach each other, by Tarjan's algorithm."""
    index, low, stack, found = {}, {}, [], []

    def visit(node):
        index[node] = low[node] = len(index)
        stack.append(node)
        for other in graph.get(node, ()):
            if other not in index:
                visit(other)
                low[node] = min(low[node], low[other])
            elif other in stack:
                low[node] = min(low[node], index[other])
        if low[node] == index[node]:
            circle = stack[stack.index(node):]
            del stack[stack.index(node):]
            if len(circle) > 1:
                found.append(sorted(circle))

    for node in list(graph):
        if node not in index:
            visit(node)
    return found


def main():
    sys.setrecursionlimit(10000)
    graph, faults = {}, []
    for name in sources():
        for included in INCLUDE.findall(Path(name).read_text(encoding="utf-8")):
            why = fault(name, included)
            if why:
                faults.append(f"{name}: {included}: {why}")
            elif unit(included) != unit(name):
                graph.setdefault(unit(name), set()).add(unit(included))
    faults += ["in a circle: " + ", ".join(circle) for circle in circles(graph)]
    print("\n".join(faults) if faults else "Includes run one way, without a circle.")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
