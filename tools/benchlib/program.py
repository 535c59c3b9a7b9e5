"""The benchmark program, run hidden in a home of its own and away from any display."""

import json
import os
import pathlib
import platform
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
SIDES = ("ours", "stock")


def fail(message):
    sys.exit(f"bench: {message}")


def environment():
    return {
        **os.environ,
        "QT_QPA_PLATFORM": "offscreen",
        "QT_FONT_DPI": "96",
        "QT_STYLE_OVERRIDE": "fusion",
        "LC_ALL": "C.UTF-8",
        "FONTCONFIG_FILE": str(ROOT / "tests" / "support" / "fonts.conf"),
        # Hash tables in the same order each time, or instruction counts would differ.
        "QT_HASH_SEED": "0",
        # The offscreen platform warns in the midst of the works.
        "QT_LOGGING_RULES": "default.warning=false",
    }


class Program:
    def __init__(self, build):
        self.build = build
        self.executable = build / "benchmarks" / "benchmark"
        if not self.executable.exists():
            fail(f"{self.executable} is not built; ./dev bench builds it")
        self.rows = [{**json.loads(line), "order": order}
                     for order, line in enumerate(self.run(["--list"]).splitlines())]

    def run(self, arguments, wrapper=()):
        """Returns what the program prints, started by the wrapper's command line."""
        return self.execute([*wrapper, self.executable, *arguments]).stdout

    def execute(self, command):
        private = ROOT / "tests" / "support" / "private-root"
        done = subprocess.run([str(part) for part in (private, *command)], env=environment(),
                              text=True, capture_output=True)
        if done.returncode:
            fail(f"{' '.join(map(str, command))} ended with {done.returncode}:\n{done.stderr}")
        return done

    def machine(self):
        cpu = "unknown processor"
        for line in pathlib.Path("/proc/cpuinfo").read_text().splitlines():
            if line.startswith("model name"):
                cpu = line.split(":", 1)[1].strip()
                break
        system = platform.freedesktop_os_release().get("PRETTY_NAME", "Linux")
        return {"cpu": cpu, "cores": os.cpu_count(), "architecture": platform.machine(),
                "system": system, "qt": self.rows[0]["qt"]}
