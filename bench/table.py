"""Prints the table of ratios from what bench.sh measured in the current directory.

With --keep it also replaces the table in docs/benchmarks.md.
"""

import glob
import json
import os
import re
import statistics
import subprocess
import sys
from dataclasses import dataclass

TOP = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
DOCUMENT = os.path.join(TOP, "docs", "benchmarks.md")


@dataclass
class Side:
    """What was measured of one side of a pair, for one call."""

    instructions: float
    allocations: float
    times: list  # seconds, one for each repetition

    @property
    def median(self):
        return statistics.median(self.times)

    @property
    def spread(self):
        """The middle half of the repetitions, as a part of their median."""
        first, _, third = statistics.quantiles(self.times, n=4)
        return (third - first) / self.median


def read_instructions():
    totals = {}
    for path in glob.glob("callgrind.out.*"):
        with open(path, encoding="utf-8") as profile:
            text = profile.read()
        name = re.search(r"^desc: Trigger: Client Request: (.+)$", text, re.M)
        if name:
            totals[name[1]] = int(re.search(r"^totals: (\d+)", text, re.M)[1])
    return totals


def read_times():
    units = {"ns": 1e-9, "us": 1e-6, "ms": 1e-3, "s": 1}
    times = {}
    with open("times.json", encoding="utf-8") as file:
        for run in json.load(file)["benchmarks"]:
            if run["run_type"] == "iteration":
                name = run["run_name"].removesuffix("/real_time").split("/repeats")[0]
                times.setdefault(name, []).append(run["real_time"] * units[run["time_unit"]])
    return times


def read_sides():
    instructions, times = read_instructions(), read_times()
    sides = {}
    with open("allocations.txt", encoding="utf-8") as file:
        for line in file:
            name, calls, allocations = line.split()
            sides[name] = Side(instructions[name] / int(calls), int(allocations) / int(calls),
                               times[name])
    return sides


def read_receipts():
    with open("receipts.json", encoding="utf-8") as file:
        return json.load(file)


def number(value):
    return f"{value:,.0f}" if value >= 100 else f"{value:.3g}"


def time(seconds):
    for unit, size in (("s", 1), ("ms", 1e-3), ("µs", 1e-6)):
        if seconds >= size:
            return f"{seconds / size:.3g} {unit}"
    return f"{seconds / 1e-9:.3g} ns"


def row(*cells):
    return "| " + " | ".join(cells) + " |"


class Table:
    def __init__(self, sides):
        self.sides = sides
        self.lines = [row("ratio", "figure", "target", "instructions", "allocations",
                          "wall time, median", "wall ratio", "spread"),
                      row("---", *["---:"] * 7)]

    def pair(self, name):
        return self.sides[name + "/measured"], self.sides[name + "/floor"]

    def add(self, title, name, target, wall=False, spare_allocations=None):
        """One pair. The figure is the ratio of instructions, or of wall times."""
        measured, floor = self.pair(name)
        wall_ratio = measured.median / floor.median
        figure = wall_ratio if wall else measured.instructions / floor.instructions
        held = figure <= target
        goal = f"≤ {target:.2f}" + (" wall" if wall else "")
        if spare_allocations is not None:
            held = held and measured.allocations <= floor.allocations + spare_allocations
            goal += f", allocations ≤ floor + {spare_allocations}"
        self.lines.append(row(
            title, f"{figure:.2f}" + ("" if held else " **missed**"), goal,
            f"{number(measured.instructions)} / {number(floor.instructions)}",
            f"{number(measured.allocations)} / {number(floor.allocations)}",
            f"{time(measured.median)} / {time(floor.median)}", f"{wall_ratio:.2f}",
            f"{measured.spread:.0%} / {floor.spread:.0%}"))

    def add_growth(self, title, room, first, last, target):
        """What `last` costs beyond `first`, over the same of the floor."""
        measured, floor = (b.instructions - a.instructions for a, b in zip(
            self.pair(f"{room}/{first}"), self.pair(f"{room}/{last}")))
        figure = measured / floor
        self.lines.append(row(title, f"{figure:.2f}" + ("" if figure <= target else " **missed**"),
                              f"≤ {target:.2f}", f"{number(measured)} / {number(floor)}",
                              *[""] * 4))

    def add_size(self, title, path):
        size = os.path.getsize(path) / 1024
        self.lines.append(row(title, f"{size:.1f} KiB", "reported", *[""] * 5))

    def add_runs(self, title, measured, floor, target):
        """The processor time of a program over that of another."""
        first, second = Side(0, 0, measured), Side(0, 0, floor)
        figure = first.median / second.median
        self.lines.append(row(
            title, f"{figure:.2f}" + ("" if figure <= target else " **missed**"),
            f"≤ {target:.2f} CPU", "", "", f"{time(first.median)} / {time(second.median)}", "",
            f"{first.spread:.0%} / {second.spread:.0%}"))

    def add_speed_up(self, title, before, after, target):
        """How many times as fast a program is; both are times that passed."""
        first, second = Side(0, 0, before), Side(0, 0, after)
        figure = first.median / second.median
        self.lines.append(row(
            title, f"{figure:.2f}" + ("" if figure >= target else " **missed**"),
            f"≥ {target:.2f} wall", "", "", f"{time(first.median)} / {time(second.median)}",
            f"{figure:.2f}", f"{first.spread:.0%} / {second.spread:.0%}"))

    def add_bytes(self, title, size, target):
        self.lines.append(row(title, f"{size / 1e6:.2f} MB"
                              + ("" if size <= target else " **missed**"),
                              f"≤ {target / 1e6:.2f} MB", *[""] * 5))

    def add_reported(self, title, room, first, last):
        """How many times as much `last` costs as `first`; no target."""
        (small, small_floor), (large, large_floor) = (
            self.pair(f"{room}/{n}") for n in (first, last))
        self.lines.append(row(
            title, f"{large.instructions / small.instructions:.2f}", "reported",
            f"{number(large.instructions)} / {number(small.instructions)}",
            f"{number(large.allocations)} / {number(small.allocations)}",
            f"{time(large.median)} / {time(small.median)}",
            f"{large.median / small.median:.2f}", f"{large.spread:.0%} / {small.spread:.0%}"))


def make_table(sides, receipts):
    table = Table(sides)
    for n in (10, 100, 1000):
        table.add(f"event that saves, over building and storing the tree, {n:,} records",
                  f"save/{n}", 1.15, spare_allocations=2)
    for n in (10, 100, 1000):
        table.add(f"the same for an event that also writes a log line, {n:,} records",
                  f"resize/{n}", 1.15, spare_allocations=2)
    for n in (10, 100, 1000):
        table.add(f"the same, where the floor writes the log line too, {n:,} records",
                  f"resizeLogged/{n}", 1.15, spare_allocations=2)
    table.add_growth("growth of the first from 10 to 1,000 records, over the floor's growth",
                     "save", 10, 1000, 1.05)
    for title, name in (("event of another code", "otherEvent"),
                        ("idle trigger before subtotal", "subtotal"),
                        ("idle trigger before modifiers", "modifiers")):
        table.add(f"{title}, over a bare virtual call", f"{name}/1", 3, wall=True,
                  spare_allocations=0)
    table.add("restore of valid data, over a bare walk, 100 records", "restore/100", 1.2)
    table.add("restore of malformed data, over valid, 100 records", "malformed/100", 1.2)
    for n in (10, 100, 1000):
        table.add(f"fill past full taras into the last of {n:,}, over a bare loop",
                  f"fillLast/{n}", 1.3)
    for n in (10, 100):
        table.add(f"fill of all {n:,} taras, over a bare loop", f"fillAll/{n}", 1.3)
    for n in (10, 100, 1000):
        table.add(f"fill past full taras into the last of {n:,}, over a loop that writes the log "
                  "line too", f"fillLastLogged/{n}", 1.3)
    for n in (10, 100):
        table.add(f"fill of all {n:,} taras, over a loop that writes the log lines too",
                  f"fillAllLogged/{n}", 1.3)
    table.add("load and instance, over an empty plugin", "load/1", 1.1)
    table.add_size("stripped plugin file", "PackagingControl.stripped")
    for n in (10, 100, 1000):
        table.add(f"command of the till, over a bare SQLite commit, {n:,} positions", f"till/{n}",
                  1.5, wall=True)
    table.add_reported("growth of a command of the till from 100 to 1,000 positions", "till", 100,
                       1000)
    for n, target in ((1000, 4), (4000, 8)):
        table.add_runs(f"receipt of {n:,} positions, over the same without the plugin",
                       receipts[f"plugin/{n}"], receipts[f"alone/{n}"], target)
    table.add_runs("receipt of 1,000 positions from a pipe, over the same played",
                   receipts["piped/1000"], receipts["plugin/1000"], 1.2)
    table.add_speed_up("500 scripts with one job, over the same with two", receipts["jobs/1"],
                       receipts["jobs/2"], 1.7)
    table.add_bytes("trace of a receipt of 400 positions", receipts["trace"], 7.3e6 / 3)
    return "\n".join(table.lines)


def keep(table):
    commit = subprocess.run(["git", "-C", TOP, "describe", "--always", "--dirty"], check=True,
                            capture_output=True, text=True).stdout.strip()
    system = subprocess.run(["bash", "-c", ". /etc/os-release && echo $NAME $VERSION_ID"],
                            check=True, capture_output=True, text=True).stdout.strip()
    system = system.replace("GNU/Linux ", "")
    compiler = subprocess.run(["g++", "-dumpversion"], check=True, capture_output=True,
                              text=True).stdout.strip()
    machine = f"Commit {commit}; {os.cpu_count()} cores, {system}, GCC {compiler}."
    with open(DOCUMENT, encoding="utf-8") as file:
        text = file.read()
    text = re.sub(r"(<!-- table -->\n).*(<!-- end of table -->)",
                  lambda marks: f"{marks[1]}{machine}\n\n{table}\n{marks[2]}", text, flags=re.S)
    with open(DOCUMENT, "w", encoding="utf-8") as file:
        file.write(text)


def main():
    table = make_table(read_sides(), read_receipts())
    print(table)
    if sys.argv[1:] == ["--keep"]:
        keep(table)
    elif sys.argv[1:]:
        sys.exit("usage: bench.sh [--keep]")


main()
