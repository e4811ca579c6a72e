"""Prints the table of ratios from what bench.sh measured.

With --keep it also writes the table, what it means to a shop, the line of this release and the picture
into docs/. With --against it prints two tables side by side.
"""

import argparse
import os
import re
import subprocess
import sys

TOP = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
sys.path.insert(0, TOP)
from bench.results import Results  # noqa: E402
from bench.rows import rows_of  # noqa: E402
from bench.shop import sentences  # noqa: E402

DOCUMENT = os.path.join(TOP, "docs", "benchmarks.md")
PICTURE = os.path.join(TOP, "docs", "pictures", "command.svg")
# What stands in the line of a release: rows of the table, by the names of their columns.
HISTORY = {
    "event that saves": "event that saves, over building and storing the tree, 100 records",
    "load": "load and instance, over an empty plugin",
    "command": "command of the till, over a bare SQLite commit, 100 positions",
    "receipt": "receipt of 1,000 positions, over the same without the plugin",
    "two jobs": "500 scripts with one job, over the same with two",
    "catalogue": "catalogue of 100,000 articles, read at the start",
    "plugin file": "stripped plugin file",
}


def line(*cells):
    return "| " + " | ".join(cells) + " |"


def figure(row):
    return row.shown + ("" if row.held else " **missed**")


def table(rows):
    return "\n".join([
        line("ratio", "figure", "target", "instructions", "allocations", "wall time, median",
             "wall ratio", "spread"),
        line("---", *["---:"] * 7),
        *[line(row.title, figure(row), row.goal, *row.cells) for row in rows]])


def side_by_side(rows, others, name):
    """The figures of both, and by how much the first is more."""
    by_title = {row.title: row for row in others}
    lines = [line("ratio", "target", "here", name, "change", "instructions here", name,
                  "wall time here", name),
             line("---", *["---:"] * 8)]
    for row in rows:
        other = by_title.get(row.title)
        change = f"{row.figure / other.figure - 1:+.1%}" if other else ""
        lines.append(line(row.title, row.goal, figure(row), other.shown if other else "–", change,
                          row.cells[0], other.cells[0] if other else "",
                          row.cells[2], other.cells[2] if other else ""))
    return "\n".join(lines)


def said(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout.strip()


def replaced(text, name, content):
    """`text` with `content` between the marks of `name`."""
    marks = rf"(<!-- {name} -->\n).*(<!-- end of {name} -->)"
    if not re.search(marks, text, re.S):
        sys.exit(f"{DOCUMENT}: no marks of \"{name}\"")
    return re.sub(marks, lambda found: f"{found[1]}{content}\n{found[2]}", text, flags=re.S)


def history(text, rows, commit):
    """The releases so far, with the line of this one written anew."""
    with open(os.path.join(TOP, "CMakeLists.txt"), encoding="utf-8") as file:
        version = re.search(r"^project\(\w+ VERSION ([0-9.]+)", file.read(), re.M)[1]
    by_title = {row.title: row for row in rows}
    before = re.search(r"<!-- history -->\n(.*)<!-- end of history -->", text, re.S)[1].splitlines()
    releases = [release for release in before[2:] if not release.startswith(f"| {version} ")]
    cells = [by_title[title].shown for title in HISTORY.values()]
    return "\n".join([line("release", "commit", *HISTORY), line("---", "---", *["---:"] * len(HISTORY)),
                      *releases, line(version, commit, *cells)])


def keep(results, rows):
    from bench.picture import draw  # needs a package that nothing else here does

    commit = said("git", "-C", TOP, "describe", "--always", "--dirty")
    system = said("bash", "-c", ". /etc/os-release && echo $NAME $VERSION_ID")
    machine = (f"Commit {commit}; {os.cpu_count()} cores, {system.replace('GNU/Linux ', '')}, "
               f"GCC {said('g++', '-dumpversion')}.")
    with open(DOCUMENT, encoding="utf-8") as file:
        text = file.read()
    text = replaced(text, "table", f"{machine}\n\n{table(rows)}")
    text = replaced(text, "shop", "\n".join(f"- {sentence}" for sentence in sentences(results)))
    text = replaced(text, "history", history(text, rows, commit))
    os.makedirs(os.path.dirname(PICTURE), exist_ok=True)
    draw(results, PICTURE)
    with open(DOCUMENT, "w", encoding="utf-8") as file:
        file.write(text)


def main():
    arguments = argparse.ArgumentParser(description="Prints the table of ratios.")
    arguments.add_argument("directory", help="where it was measured")
    arguments.add_argument("--keep", action="store_true", help="write it into docs/ too")
    arguments.add_argument("--against", nargs=2, metavar=("COMMIT", "DIRECTORY"),
                           help="where another commit was measured")
    given = arguments.parse_args()
    results = Results(given.directory)
    rows = rows_of(results)
    if given.against:
        name, directory = given.against
        print(side_by_side(rows, rows_of(Results(directory), is_part=True), name))
    else:
        print(table(rows))
    if given.keep:
        keep(results, rows)


main()
