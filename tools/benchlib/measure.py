"""Durations, stalls and heap in pairs; system calls by strace."""

import json
import statistics
import tempfile

from .program import SIDES


def row(program, row):
    if row["unit"] == "calls":
        return calls(program, row)
    pairs = json.loads(program.run(["--row", row["row"]]))
    low, ratio, high = quartiles(ratios(pairs["ours"], pairs["stock"]))
    result = {"ours": statistics.median(pairs["ours"]), "stock": statistics.median(pairs["stock"]),
              "ratio": ratio, "low": low, "high": high, "pairs": len(pairs["ours"])}
    if "ours cpu" in pairs:
        result["cpu ratio"] = statistics.median(ratios(pairs["ours cpu"], pairs["stock cpu"]))
    return result


def ratios(ours, stock):
    return [of_ours / of_stock for of_ours, of_stock in zip(ours, stock)]


def quartiles(values):
    if len(values) < 2:
        return values[0], values[0], values[0]
    return tuple(statistics.quantiles(values, n=4, method="inclusive"))


def calls(program, row):
    """Stat calls for each entry, less what starting the program takes."""
    result = {side: (stat_calls(program, row, side, 1) - stat_calls(program, row, side, 0))
              / row["size"] for side in SIDES}
    return {**result, "ratio": result["ours"] / result["stock"], "pairs": 1}


def stat_calls(program, row, side, repeat):
    with tempfile.NamedTemporaryFile("r") as summary:
        program.run(["--row", row["row"], "--side", side, "--repeat", repeat],
                    wrapper=["strace", "-f", "-c", "-U", "calls,name", "-e", "trace=%%stat",
                             "-o", summary.name])
        for line in summary.read().splitlines():
            count, _, name = line.strip().partition(" ")
            if name.strip() == "total":
                return int(count)
    return 0
