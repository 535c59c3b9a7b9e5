"""What was measured, as lines for a terminal and as docs/performance.md with its plot."""

from . import growth, plot
from .program import ROOT

DOCUMENT = ROOT / "docs" / "performance.md"
NOTES = ROOT / "benchmarks" / "notes.md"  # what the figures do not say by themselves
PLOT = ROOT / "docs" / "performance.svg"
MILLISECOND = 10_000_000  # instructions, roughly

HEADER = """\
<!-- Written by ./dev bench --markdown. Do not edit: it is written anew from measurements. -->

# The library beside stock Qt

- Machine: {cpu}, {cores} cores, {architecture}
- System: {system}
- Qt: {qt}, the offscreen platform, the Fusion style
- Library: the release build

Stock is Qt's own counterpart on the same work in the same process: QFileDialog (not native, detail
view), QMessageBox, QProgressDialog, QInputDialog, QProgressBar, QSpinBox with QSlider, a frameless
QMainWindow; for the folder tree, which QFileDialog lacks, a QTreeView over a QFileSystemModel of
folders only.

A ratio is the median over pairs of measurements, taken in turn after one pair that warms up; the
spread is from the first to the third quartile, and "in CPU" is the ratio of the processor time of
all threads. Work of less than about a millisecond is compared by instructions under callgrind
(marked "counted"): durations that short do not repeat. Figures are for one work. A goal is the most
that a ratio may be.
"""

GROWTH = """
## Growth with the number of entries

![Cost of the file dialog against the number of entries](performance.svg)

The exponent is the slope from 1,000 entries on: 1 is linear growth. Sorting alone grows a little
faster.
"""

LIBRARY = """
## The library itself

Load time is that of dlopen() in a new process in which Qt Widgets is loaded already.
"""


def judged(result):
    """(ratio, how it was taken, low, high) by which the row is held against its goal."""
    if result["unit"] == "calls":
        return result["ours"], "for each", None, None
    instructions = result.get("instructions")
    # Not by the measured time: which way a row goes would depend on what else the machine does.
    if instructions and instructions["stock"] < MILLISECOND:
        return instructions["ours"] / instructions["stock"], "counted", None, None
    return result["ratio"], f"{result['pairs']} pairs", result["low"], result["high"]


def reached(result):
    return round(judged(result)[0], 2) <= result["goal"]


def figure(value):
    return f"{value:,.0f}" if value >= 100 else f"{value:.3g}"


def in_unit(value, unit):
    return f"{figure(value)} {unit}"


def amounts(result):
    instructions = result.get("instructions")
    if instructions and judged(result)[1] == "counted":
        return tuple(in_unit(instructions[side] / 1000, "k instr.") for side in ("ours", "stock"))
    unit = "" if result["unit"] == "calls" else result["unit"]
    return tuple(in_unit(result[side], unit).strip() for side in ("ours", "stock"))


def cells(result):
    ratio, how, low, high = judged(result)
    ours, stock = amounts(result)
    spread = f"{low:.2f} to {high:.2f}" if low is not None else ""
    cpu = f"{result['cpu ratio']:.2f}" if low is not None and "cpu ratio" in result else ""
    return (result["title"], ours, stock, f"{ratio:.2f}", spread, cpu, how, f"{result['goal']:g}",
            "yes" if reached(result) else "**no**")


def plain_line(result):
    title, ours, stock, ratio, spread, cpu, how, goal, ok = cells(result)
    return (f"{result['row']:26} {ours:>16} {stock:>16} {ratio:>7} {spread:>16} {cpu:>7} {how:>9} "
            f"goal {goal:>4} {ok.strip('*')}")


def table(header, lines):
    yield "| " + " | ".join(header) + " |"
    yield "|" + "---|" * len(header)
    for line in lines:
        yield "| " + " | ".join(line) + " |"


def growth_lines(grown):
    sizes = sorted({int(size) for entry in grown.values() for size in entry["points"]})
    yield from table(
        ["work, in ms or KiB", *(f"{size:,}" for size in sizes), "exponent"],
        ([series.strip("-"), *(figure(entry["points"][str(size)])
                               if str(size) in entry["points"] else "" for size in sizes),
          f"{growth.exponent(entry):.2f}" if growth.exponent(entry) is not None else ""]
         for series, entry in grown.items()))


def library_lines(figures):
    yield from table(
        ["", "stripped, bytes", "relocations", "symbols", "load time, us"],
        ([name, f"{values['size']:,}", f"{values['relocations']:,}", f"{values['symbols']:,}",
          f"{values['load']:,.0f}"] for name, values in figures.items()))


def in_order(rows):
    return sorted(rows.values(), key=lambda result: result["order"])


def document(results):
    yield HEADER.format(**results["machine"])
    yield from table(["work", "ours", "stock", "ratio", "spread", "in CPU", "taken", "goal", "reached"],
                     (cells(result) for result in in_order(results["rows"])))
    yield "\n" + NOTES.read_text().rstrip()
    if results.get("growth"):
        yield GROWTH
        yield from growth_lines(results["growth"])
    if results.get("library"):
        yield LIBRARY
        yield from library_lines(results["library"])


def write(results):
    DOCUMENT.write_text("\n".join(document(results)) + "\n")
    if results.get("growth"):
        PLOT.write_text(plot.drawing(results["growth"]))
    print(f"Wrote {DOCUMENT.relative_to(ROOT)}")
