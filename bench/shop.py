"""What the figures mean to a shop, in sentences."""

from bench.rows import time


def sentences(results):
    def once(name):
        return time(results.pair(name)[0].median)

    def floor(name):
        return time(results.pair(name)[1].median)

    def run(name):
        return time(results.runs(name).median)

    return [
        f"**A line of a receipt.** On a receipt of 10, 100, 1,000 lines of tara and of goods in it, a "
        f"quantity that changes costs the plugin {once('save/10')}, {once('save/100')}, "
        f"{once('save/1000')}; with a line in the log {once('resize/10')}, {once('resize/100')}, "
        f"{once('resize/1000')}. Nobody at the counter can see that.",
        f"**Whatever has nothing to do with tara**, each of thousands of calls a day, costs "
        f"{once('otherEvent/1')} (events), {once('subtotal/1')} (before a payment), "
        f"{once('modifiers/1')} (before a change of a quantity).",
        f"**A receipt of 100 lines opened again**: the plugin has its records after "
        f"{once('restore/100')}; of records that are damaged it makes what can be made in "
        f"{once('malformed/100')}.",
        f"**Goods poured** past 9, 99, 999 full taras into one with room: {once('fillLast/10')}, "
        f"{once('fillLast/100')}, {once('fillLast/1000')}; into 100 empty ones at once: "
        f"{once('fillAll/100')}.",
        f"**The start of the till**: loading the plugin is {once('load/1')} of it.",
        f"**A command of the cashier's**, from the key to the acknowledgement that it is on the disk: "
        f"{once('till/10')}, {once('till/100')}, {once('till/1000')} on a receipt of 10, 100, 1,000 "
        f"lines, of which {floor('till/10')}, {floor('till/100')}, {floor('till/1000')} is the disk "
        f"and {once('resize/10')}, {once('resize/100')}, {once('resize/1000')} the plugin. The "
        f"picture shows these three.",
        f"**In the window** such a command is done and drawn after {run('window')} on a receipt of "
        f"1,000 lines (with the database in memory).",
        f"**A whole receipt of 1,000 lines** takes {run('plugin/1000')} of processor time, "
        f"{run('alone/1000')} without the plugin; of 4,000 lines {run('plugin/4000')} and "
        f"{run('alone/4000')}. Typed by a program through a pipe, the first is "
        f"{run('piped/1000')}.",
        f"**A suite of 500 receipts** is played in {run('jobs/2')} by two processes at a time, in "
        f"{run('jobs/1')} one after the other.",
        f"**A trace** that a user sends in, of a receipt of 400 lines, has "
        f"{results.size('trace') / 1e6:.2f} MB.",
        f"**A catalogue of 100,000 articles** is there {run('catalogue')} after the start; the till "
        f"takes {results.size('catalogueMemory') / 1e6:.0f} MB then.",
    ]
