"""How the cost of ours grows with the number of entries."""

import json
import math
import statistics

SERIES = ("open-files", "open-mixed", "filter-one", "filter-five", "filter-all", "enter-small",
          "go-back", "new-file", "resize-files-", "hover-tree-files-", "hover-list-files-",
          "repaint-tree-files-", "repaint-tree-mixed-", "select-all-", "heap")
SMALL = 10_000  # folders up to this size are measured several times
REPEATS = 5


def measure(program, results, selected, largest, save):
    """Adds {series: {size: median}} to the results."""
    grown = results.setdefault("growth", {})
    for row in program.rows:
        series, size = row["series"], row["size"]
        if series not in SERIES or not selected(row["row"]) or (largest and size > largest):
            continue
        repeats = REPEATS if size <= SMALL else 1
        output = program.run(["--row", row["row"], "--side", "ours", "--repeat", repeats])
        median = statistics.median(json.loads(output)["samples"])
        entry = grown.setdefault(series, {"unit": row["unit"], "points": {}})
        entry["points"][str(size)] = median
        print(f"{row['row']:32} {median:12.4g} {row['unit']}", flush=True)
        save()


def points(entry):
    return sorted((int(size), value) for size, value in entry["points"].items())


def exponent(entry, smallest=1_000):
    """The slope in the double logarithmic plot from folders of 1,000 on: 1 is linear growth."""
    logarithms = [(math.log(size), math.log(value)) for size, value in points(entry)
                  if size >= smallest and value > 0]
    if len(logarithms) < 2:
        return None
    slope, _ = statistics.linear_regression(*zip(*logarithms))
    return slope
