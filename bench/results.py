"""What bench.sh measured, read from the directory that it measured in."""

import glob
import json
import os
import re
import statistics
from dataclasses import dataclass


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
        """The middle half of the repetitions, as a part of their median; nothing of one alone."""
        if len(self.times) < 2:
            return 0.0
        first, _, third = statistics.quantiles(self.times, n=4)
        return (third - first) / self.median


class Results:
    """Sides by their names, and the runs of whole programs. What was not measured is a KeyError."""

    def __init__(self, directory):
        self.directory = directory
        self.sides = self._read_sides()
        with open(self._path("receipts.json"), encoding="utf-8") as file:
            self._runs = json.load(file)
        self._runs.update(self._read_redraw())

    def pair(self, name):
        return self.sides[name + "/measured"], self.sides[name + "/floor"]

    def runs(self, name):
        """Processor times, or times that passed, in seconds."""
        return Side(0, 0, self._runs[name])

    def size(self, name):
        """Bytes."""
        return self._runs[name]

    def file_size(self, name):
        return os.path.getsize(self._path(name))

    def _path(self, name):
        return os.path.join(self.directory, name)

    def _read_redraw(self):
        """Seconds of a command in the window and, apart, of what it is to the register."""
        try:
            with open(self._path("redraw.txt"), encoding="utf-8") as file:
                found = re.search(r": ([0-9.]+) ms, of which ([0-9.]+) ms", file.read())
        except FileNotFoundError:
            return {}
        return {"window": [float(found[1]) / 1e3], "windowless": [float(found[2]) / 1e3]}

    def _read_instructions(self):
        totals = {}
        for path in glob.glob(self._path("callgrind.out.*")):
            with open(path, encoding="utf-8") as profile:
                text = profile.read()
            name = re.search(r"^desc: Trigger: Client Request: (.+)$", text, re.M)
            if name:
                totals[name[1]] = int(re.search(r"^totals: (\d+)", text, re.M)[1])
        return totals

    def _read_times(self):
        units = {"ns": 1e-9, "us": 1e-6, "ms": 1e-3, "s": 1}
        times = {}
        with open(self._path("times.json"), encoding="utf-8") as file:
            for run in json.load(file)["benchmarks"]:
                if run["run_type"] == "iteration":
                    name = run["run_name"].removesuffix("/real_time").split("/repeats")[0]
                    times.setdefault(name, []).append(run["real_time"] * units[run["time_unit"]])
        return times

    def _read_sides(self):
        instructions, times = self._read_instructions(), self._read_times()
        sides = {}
        with open(self._path("allocations.txt"), encoding="utf-8") as file:
            for line in file:
                name, calls, allocations = line.split()
                sides[name] = Side(instructions[name] / int(calls), int(allocations) / int(calls),
                                   times[name])
        return sides
