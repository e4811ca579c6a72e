"""Plays receipts with the till at the path given, and prints what they cost as JSON.

Each way of playing a long one is repeated, in turn with the others, and its processor time is listed in
seconds; of a trace, its size in bytes. Of a folder of short ones it is the time that passes, by the number
of jobs; of a start with a long catalogue the processor time, and the memory in bytes.
"""

import json
import os
import subprocess
import sys
import tempfile
import time

REPETITIONS = 5
SCRIPTS = 500
ARTICLES = 100000


def script(positions):
    """One half tara, one half goods, each poured into the tara before it."""
    lines = ["open"] + ["add PET1", "add BEER 1"] * (positions // 2) + ["pay"]
    return "\n".join(lines) + "\n"


def usage_of(command, path, piped):
    with open(path if piped else os.devnull, encoding="utf-8") as source:
        process = subprocess.Popen(command if piped else [*command, "play", path], stdin=source,
                                   stdout=subprocess.DEVNULL)
        _, status, usage = os.wait4(process.pid, 0)
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode != 0:
        sys.exit(f"{command}: exit status {process.returncode}")
    return usage


def cpu(command, path, piped):
    usage = usage_of(command, path, piped)
    return usage.ru_utime + usage.ru_stime


def write_catalogue(path):
    """Tara, goods sold into it and others in turn, with names such as shops have."""
    with open(path, "w", encoding="utf-8") as file:
        file.write("code;name;price;tara mode;tara capacity;pack;unit\n")
        for number in range(ARTICLES):
            mode, capacity = ((0, ""), (1, "1,5"), (2, ""))[number % 3]
            file.write(f"ART{number};Товар номер {number} в ассортименте;{number % 900},50;{mode};"
                       f"{capacity};1;{'л' if mode == 2 else 'шт'}\n")


def write_scripts(folder):
    """Receipts as a suite has them: a few positions, each of which is looked at."""
    text = "open\nadd PET15\nadd PET1\nadd BEER 2\nexpect tara 2 free 0.5\nexpect goods 3 in 1 1.5\n" \
           "expect refused qty 2 2\nanswer yes\nstorno 1\nexpect position 3 quantity 0.5\n" \
           "expect records 1 1\nexpect total 79\npay 100\nexpect state closed\n"
    os.mkdir(folder)
    for number in range(SCRIPTS):
        with open(os.path.join(folder, f"{number}.till"), "w", encoding="utf-8") as file:
            file.write(text)


def wall(command):
    begin = time.monotonic()
    subprocess.run(command, stdout=subprocess.DEVNULL, check=True)
    return time.monotonic() - begin


def main():
    till = [sys.argv[1], "--db", ":memory:", "--quiet"]
    with tempfile.TemporaryDirectory() as folder:
        paths = {}
        for positions in (400, 1000, 4000):
            paths[positions] = os.path.join(folder, f"{positions}.till")
            with open(paths[positions], "w", encoding="utf-8") as file:
                file.write(script(positions))
        runs = {}
        for _ in range(REPETITIONS):
            for positions in (1000, 4000):
                for name, options in (("plugin", []), ("alone", ["--no-plugin"])):
                    runs.setdefault(f"{name}/{positions}", []).append(
                        cpu(till + options, paths[positions], piped=False))
            runs.setdefault("piped/1000", []).append(cpu(till, paths[1000], piped=True))
        scripts = os.path.join(folder, "scripts")
        write_scripts(scripts)
        for _ in range(REPETITIONS):
            for jobs in (1, 2):
                runs.setdefault(f"jobs/{jobs}", []).append(
                    wall([sys.argv[1], "--quiet", "--jobs", str(jobs), "play", scripts]))
        catalogue = os.path.join(folder, "catalogue.csv")
        write_catalogue(catalogue)
        opened = os.path.join(folder, "opened.till")
        with open(opened, "w", encoding="utf-8") as file:
            file.write("open\n")
        usages = [usage_of([*till, "--catalogue", catalogue], opened, piped=False)
                  for _ in range(REPETITIONS)]
        runs["catalogue"] = [usage.ru_utime + usage.ru_stime for usage in usages]
        runs["catalogueMemory"] = 1024 * max(usage.ru_maxrss for usage in usages)
        trace = os.path.join(folder, "trace")
        cpu([*till, "--trace", trace], paths[400], piped=False)
        runs["trace"] = os.path.getsize(trace)
    print(json.dumps(runs))


main()
