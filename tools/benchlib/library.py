"""Size, relocations, load time and symbols of the library beside a Qt library of its size."""

import pathlib
import re
import statistics
import subprocess
import tempfile

from .program import fail

STOCK = "libQt5PrintSupport.so.5"
LOADS = 21


def output(*command):
    return subprocess.run([str(part) for part in command], check=True, text=True,
                          capture_output=True).stdout


def stock_library():
    match = re.search(rf"{re.escape(STOCK)} .*=> (\S+)", output("/sbin/ldconfig", "-p"))
    return pathlib.Path(match.group(1)).resolve() if match else fail(f"{STOCK} is missing")


def stripped_size(path):
    with tempfile.NamedTemporaryFile() as stripped:
        output("strip", "-o", stripped.name, path)
        return pathlib.Path(stripped.name).stat().st_size


def relocations(path):
    return len(re.findall(r"^[0-9a-f]{8,} ", output("readelf", "-rW", path), re.MULTILINE))


def symbols(path):
    return len(output("nm", "-D", "--defined-only", path).splitlines())


def load_times(program, libraries):
    """Medians in microseconds; each load in a process of its own, the libraries in turn."""
    times = {name: [] for name in libraries}
    for _ in range(LOADS):
        for name, path in libraries.items():
            times[name].append(float(output(program.build / "benchmarks" / "loadtime", path)))
    return {name: statistics.median(samples) for name, samples in times.items()}


def figures(program):
    libraries = {"libQTarnKit.so.1": (program.build / "src" / "libQTarnKit.so.1").resolve(),
                 STOCK: stock_library()}
    times = load_times(program, libraries)
    return {name: {"size": stripped_size(path), "relocations": relocations(path),
                   "symbols": symbols(path), "load": times[name]}
            for name, path in libraries.items()}


def plain_lines(figures):
    for name, values in figures.items():
        yield (f"{name}: {values['size']:,} bytes stripped, {values['relocations']:,} relocations, "
               f"{values['symbols']:,} symbols, loaded in {values['load']:,.0f} us")
