"""The rows of the table of ratios, made of what was measured."""

from dataclasses import dataclass, field


@dataclass
class Row:
    title: str
    figure: float
    shown: str  # the figure, as people read it
    goal: str
    held: bool = True
    # Of what is delivered and of the floor: instructions, allocations, wall time, its ratio, spread.
    cells: list = field(default_factory=lambda: [""] * 5)


def number(value):
    return f"{value:,.0f}" if value >= 100 else f"{value:.3g}"


def time(seconds):
    for unit, size in (("s", 1), ("ms", 1e-3), ("µs", 1e-6)):
        if seconds >= size:
            return f"{seconds / size:.3g} {unit}"
    return f"{seconds / 1e-9:.3g} ns"


def both(shown, first, second):
    return f"{shown(first)} / {shown(second)}"


def spreads(first, second):
    return f"{first.spread:.0%} / {second.spread:.0%}"


def pair_cells(first, second):
    return [both(number, first.instructions, second.instructions),
            both(number, first.allocations, second.allocations),
            both(time, first.median, second.median), f"{first.median / second.median:.2f}",
            spreads(first, second)]


class Rows:
    """Collects rows. A row of something that was not measured is an error, or left out of a part."""

    def __init__(self, results, is_part):
        self._results = results
        self._is_part = is_part
        self.rows = []

    def _add(self, make):
        try:
            self.rows.append(make())
        except KeyError:
            if not self._is_part:
                raise

    def pair(self, title, name, target, wall=False, spare_allocations=None):
        """The figure is the ratio of instructions, or of wall times. Without a target it is told."""
        def make():
            measured, floor = self._results.pair(name)
            figure = (measured.median / floor.median if wall
                      else measured.instructions / floor.instructions)
            held = target is None or figure <= target
            goal = "told" if target is None else f"≤ {target:.2f}" + (" wall" if wall else "")
            if spare_allocations is not None:
                held = held and measured.allocations <= floor.allocations + spare_allocations
                goal += f", allocations ≤ floor + {spare_allocations}"
            return Row(title, figure, f"{figure:.2f}", goal, held, pair_cells(measured, floor))
        self._add(make)

    def growth(self, title, room, first, last, target):
        """What `last` costs beyond `first`, over the same of the floor."""
        def make():
            measured, floor = (b.instructions - a.instructions for a, b in zip(
                self._results.pair(f"{room}/{first}"), self._results.pair(f"{room}/{last}")))
            figure = measured / floor
            return Row(title, figure, f"{figure:.2f}", f"≤ {target:.2f}", figure <= target,
                       [both(number, measured, floor), *[""] * 4])
        self._add(make)

    def told_growth(self, title, room, first, last):
        """How many times as much `last` costs as `first`."""
        def make():
            small, _ = self._results.pair(f"{room}/{first}")
            large, _ = self._results.pair(f"{room}/{last}")
            figure = large.instructions / small.instructions
            return Row(title, figure, f"{figure:.2f}", "told", cells=pair_cells(large, small))
        self._add(make)

    def file(self, title, path):
        size = self._results.file_size(path) / 1024
        self.rows.append(Row(title, size, f"{size:.1f} KiB", "told"))

    def runs(self, title, measured, floor, most=None, least=None):
        """The time of a program over another's: processor time, or with `least` what passed."""
        def make():
            first, second = self._results.runs(measured), self._results.runs(floor)
            figure = first.median / second.median
            held = figure <= most if least is None else figure >= least
            goal = f"≤ {most:.2f} CPU" if least is None else f"≥ {least:.2f} wall"
            return Row(title, figure, f"{figure:.2f}", goal, held,
                       ["", "", both(time, first.median, second.median),
                        "" if least is None else f"{figure:.2f}", spreads(first, second)])
        self._add(make)

    def seconds(self, title, name, target):
        """The processor time of a program."""
        def make():
            runs = self._results.runs(name)
            return Row(title, runs.median, time(runs.median), f"≤ {target:.2f} s CPU",
                       runs.median <= target, ["", "", time(runs.median), "", f"{runs.spread:.0%}"])
        self._add(make)

    def milliseconds(self, title, measured, part, target):
        """What passes beside a part of it."""
        def make():
            whole, apart = self._results.runs(measured), self._results.runs(part)
            figure = whole.median - apart.median
            return Row(title, figure, time(figure), f"< {target * 1e3:.0f} ms wall", figure < target,
                       ["", "", both(time, whole.median, apart.median), "", ""])
        self._add(make)

    def megabytes(self, title, name, target):
        def make():
            size = self._results.size(name) / 1e6
            return Row(title, size, f"{size:.2f} MB", f"≤ {target:.2f} MB", size <= target)
        self._add(make)


def add_plugin(rows):
    """What the plugin costs by itself."""
    for n, target in ((10, 1.05), (100, 1.03), (1000, 1.02)):
        rows.pair(f"event that saves, over building and storing the tree, {n:,} records",
                  f"save/{n}", target, spare_allocations=2)
    for n, target in ((10, 1.10), (100, 1.05), (1000, 1.02)):
        rows.pair(f"the same for an event that also writes a log line, {n:,} records",
                  f"resize/{n}", target, spare_allocations=2)
    for n in (10, 100, 1000):
        rows.pair(f"the same, where the floor writes the log line too, {n:,} records",
                  f"resizeLogged/{n}", 1.05, spare_allocations=2)
    rows.growth("growth of the first from 10 to 1,000 records, over the floor's growth", "save", 10,
                1000, 1.05)
    for title, name, target in (("event of another code", "otherEvent", 3),
                                ("idle trigger before subtotal", "subtotal", 3),
                                ("idle trigger before modifiers", "modifiers", 15)):
        rows.pair(f"{title}, over a bare virtual call", f"{name}/1", target, wall=True,
                  spare_allocations=0)
    rows.pair("restore of valid data, over a bare walk, 100 records", "restore/100", None)
    rows.pair("restore of malformed data, over valid, 100 records", "malformed/100", None)
    for n in (10, 100, 1000):
        rows.pair(f"fill past full taras into the last of {n:,}, over a bare loop", f"fillLast/{n}",
                  None)
    for n in (10, 100):
        rows.pair(f"fill of all {n:,} taras, over a bare loop", f"fillAll/{n}", None)
    for n in (10, 100, 1000):
        rows.pair(f"fill past full taras into the last of {n:,}, over a loop that writes the log "
                  "line too", f"fillLastLogged/{n}", 1.1)
    for n in (10, 100):
        rows.pair(f"fill of all {n:,} taras, over a loop that writes the log lines too",
                  f"fillAllLogged/{n}", 1.1)
    rows.pair("load and instance, over an empty plugin", "load/1", 1.15)
    rows.file("stripped plugin file", "PackagingControl.stripped")


def add_till(rows):
    """What programs cost with it."""
    for n, target in ((10, 1.3), (100, 1.5), (1000, 2.5)):
        rows.pair(f"command of the till, over a bare SQLite commit, {n:,} positions", f"till/{n}",
                  target, wall=True)
    rows.told_growth("growth of a command of the till from 100 to 1,000 positions", "till", 100,
                     1000)
    for n, target in ((1000, 4), (4000, 8)):
        rows.runs(f"receipt of {n:,} positions, over the same without the plugin", f"plugin/{n}",
                  f"alone/{n}", most=target)
    rows.runs("receipt of 1,000 positions from a pipe, over the same played", "piped/1000",
              "plugin/1000", most=1.2)
    rows.runs("500 scripts with one job, over the same with two", "jobs/1", "jobs/2", least=1.7)
    rows.megabytes("trace of a receipt of 400 positions", "trace", 7.3 / 3)
    rows.seconds("catalogue of 100,000 articles, read at the start", "catalogue", 0.25)
    rows.megabytes("memory of the till with that catalogue", "catalogueMemory", 60)
    rows.milliseconds("redraw of the window after a command, 1,000 positions", "window",
                      "windowless", 0.016)


def rows_of(results, is_part=False):
    """The whole table, or what of it another version measured."""
    rows = Rows(results, is_part)
    add_plugin(rows)
    add_till(rows)
    return rows.rows
