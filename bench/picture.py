"""Draws what a command of the till costs, by the length of the receipt."""

import matplotlib

matplotlib.use("svg")
# The same figures give the same file.
matplotlib.rcParams.update({"svg.hashsalt": "till", "svg.fonttype": "none", "font.size": 9})
import matplotlib.pyplot as plt  # noqa: E402

LENGTHS = (10, 100, 1000)


def parts(results):
    """Milliseconds by part, a list for the lengths of receipts."""
    disk = [results.pair(f"till/{n}")[1].median * 1e3 for n in LENGTHS]
    plugin = [results.pair(f"resize/{n}")[0].median * 1e3 for n in LENGTHS]
    whole = [results.pair(f"till/{n}")[0].median * 1e3 for n in LENGTHS]
    till = [max(0.0, w - d - p) for w, d, p in zip(whole, disk, plugin)]
    return {"disk": disk, "till": till, "plugin": plugin}


def draw(results, path):
    figure, axes = plt.subplots(figsize=(5.4, 2.2), layout="constrained")
    names = [f"{n:,} positions" for n in LENGTHS]
    left = [0.0] * len(LENGTHS)
    # Colours that differ in lightness too, and hatches beside them.
    looks = {"disk": ("#0072b2", ""), "till": ("#e6c84b", "//"), "plugin": ("#56b48c", "..")}
    for part, values in parts(results).items():
        colour, hatch = looks[part]
        axes.barh(names, values, left=left, color=colour, hatch=hatch, edgecolor="white", label=part)
        left = [a + b for a, b in zip(left, values)]
    for name, total in zip(names, left):
        axes.text(total, name, f" {total:.2f} ms", va="center")
    axes.invert_yaxis()
    axes.set_xlim(0, max(left) * 1.18)
    axes.set_xlabel("one command, milliseconds")
    axes.spines[["top", "right"]].set_visible(False)
    axes.legend(loc="upper right", frameon=False)
    figure.savefig(path, metadata={"Date": None, "Creator": None})
