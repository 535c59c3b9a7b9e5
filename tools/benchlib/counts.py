"""Instruction counts under callgrind: they repeat where durations under a millisecond do not."""

import concurrent.futures
import json
import os
import re

from .program import ROOT, SIDES, fail

BANDS = ROOT / "benchmarks" / "bands.json"
WIDTH = 0.05  # a band reaches so far to both sides of what was recorded


def count(program, row, side):
    """Instructions of one work."""
    command = ["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null",
               "--instr-atstart=no", "--collect-atstart=no", program.executable,
               "--row", row["row"], "--side", side, "--repeat", row["counted"]]
    collected = re.search(r"Collected : (\d+)", program.execute(command).stderr)
    if not collected or collected.group(1) == "0":
        fail(f"callgrind counted nothing of {row['row']}: was the program built before valgrind "
             "was installed? Then build it anew.")
    return int(collected.group(1)) / row["counted"]


def count_all(program, rows, sides):
    """Counts for each row and side, several at a time: other programs do not disturb them."""
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        pending = {(row["row"], side): pool.submit(count, program, row, side)
                   for row in rows for side in sides}
        return {key: future.result() for key, future in pending.items()}


def compare(program, rows, record):
    """Prints the counts and whether they are in their bands; returns the exit code."""
    if not record and not BANDS.exists():
        fail("no bands were recorded yet: ./dev bench --record does so")
    machine = program.machine()
    bands = json.loads(BANDS.read_text()) if BANDS.exists() else {"rows": {}}
    recorded = bands["rows"]
    # Stock is needed for the ratios only: what was recorded of it does.
    measured = count_all(program, rows, SIDES if record else ("ours",))
    if record:
        for row in rows:
            recorded[row["row"]] = {side: round(measured[row["row"], side]) for side in SIDES}
        write_bands(machine, recorded)

    same_qt = record or (bands.get("qt"), bands.get("architecture")) \
        == (machine["qt"], machine["architecture"])
    if not same_qt:
        print(f"The bands are of Qt {bands.get('qt')} on {bands.get('architecture')}, this is "
              f"{machine['qt']} on {machine['architecture']}: counts are not compared.")
    outside = 0
    print(f"{'row':32} {'instructions':>13} {'recorded':>13} {'change':>8} {'to stock':>9}")
    for row in rows:
        name = row["row"]
        now = measured[name, "ours"]
        if name not in recorded:
            print(f"{name:32} {now:13,.0f} {'none':>13} not in its band")
            outside += same_qt
            continue
        band = recorded[name]
        change = now / band["ours"] - 1
        left = abs(change) > WIDTH
        outside += left and same_qt
        print(f"{name:32} {now:13,.0f} {band['ours']:13,} {change:+8.1%} "
              f"{now / band['stock']:9.2f}{'  not in its band' if left else ''}")
    failed = bool(outside)
    if same_qt:
        print(f"{len(rows) - outside} passed, {outside} failed")
    if failed:
        print("After a change that was meant, record the new bands: ./dev bench --record")
    return int(failed)


def write_bands(machine, recorded):
    bands = {"written by": "./dev bench --record", "qt": machine["qt"],
             "architecture": machine["architecture"],
             "unit": "instructions of one work; a band is 5 % to both sides",
             "rows": dict(sorted(recorded.items()))}
    BANDS.write_text(json.dumps(bands, indent=2) + "\n")
