"""A double logarithmic plot as SVG."""

import math
from xml.sax.saxutils import escape

from . import growth

WIDTH, HEIGHT = 860, 520
LEFT, RIGHT, TOP, BOTTOM = 70, 210, 20, 50
COLOURS = ("#1b6ca8", "#d1495b", "#2e8b57", "#8e5ea2", "#c77d0a", "#3b8686", "#5b5b5b", "#a0522d",
           "#0b3954", "#b5179e", "#6a994e", "#bc4749", "#4361ee", "#7f4f24", "#f3722c")
LABEL_DISTANCE = 15  # so that names at the right end do not touch


class Scale:
    """Maps the decades around the values to pixels."""

    def __init__(self, values, begin, end):
        self.low = math.floor(math.log10(min(values)))
        self.high = math.ceil(math.log10(max(values)))
        self.begin, self.end = begin, end

    def __call__(self, value):
        share = (math.log10(value) - self.low) / max(self.high - self.low, 1)
        return self.begin + share * (self.end - self.begin)

    def decades(self):
        return [10.0 ** power for power in range(self.low, self.high + 1)]


def text(x, y, content, anchor="start", colour="#333"):
    return (f'<text x="{x:.1f}" y="{y:.1f}" text-anchor="{anchor}" fill="{colour}">'
            f"{escape(content)}</text>")


def line(x1, y1, x2, y2):
    return f'<line x1="{x1:.1f}" y1="{y1:.1f}" x2="{x2:.1f}" y2="{y2:.1f}" stroke="#ddd"/>'


def axes(horizontal, vertical):
    for size in horizontal.decades():
        x = horizontal(size)
        yield line(x, TOP, x, HEIGHT - BOTTOM)
        yield text(x, HEIGHT - BOTTOM + 18, f"{size:,.0f}", "middle")
    for value in vertical.decades():
        y = vertical(value)
        yield line(LEFT, y, WIDTH - RIGHT, y)
        yield text(LEFT - 8, y + 4, f"{value:,g}", "end")
    yield text((LEFT + WIDTH - RIGHT) / 2, HEIGHT - 10, "entries in the folder", "middle")
    middle = (TOP + HEIGHT - BOTTOM) / 2
    yield (f'<g transform="translate(16 {middle:.0f}) rotate(-90)">'
           + text(0, 0, "ms", "middle") + "</g>")


def curve(points, horizontal, vertical, colour):
    path = " ".join(f"{horizontal(size):.1f},{vertical(value):.1f}" for size, value in points)
    yield f'<polyline points="{path}" fill="none" stroke="{colour}" stroke-width="2"/>'
    for size, value in points:
        yield (f'<circle cx="{horizontal(size):.1f}" cy="{vertical(value):.1f}" r="3" '
               f'fill="{colour}"/>')


def labels(ends):
    """Names at the right end of the curves, pushed apart from the top down."""
    below = -math.inf
    for y, x, name, colour in sorted(ends):
        label_y = max(y, below + LABEL_DISTANCE)
        below = label_y
        yield (f'<line x1="{x + 4:.1f}" y1="{y:.1f}" x2="{WIDTH - RIGHT + 14}" '
               f'y2="{label_y:.1f}" stroke="{colour}" stroke-dasharray="2 2"/>')
        yield text(WIDTH - RIGHT + 18, label_y + 4, name, colour=colour)


def drawing(grown):
    timed = {series: growth.points(entry) for series, entry in grown.items()
             if entry["unit"] == "ms"}
    every = [point for points in timed.values() for point in points]
    horizontal = Scale([size for size, _ in every], LEFT, WIDTH - RIGHT)
    vertical = Scale([value for _, value in every], HEIGHT - BOTTOM, TOP)
    parts = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{WIDTH}" height="{HEIGHT}" '
             f'viewBox="0 0 {WIDTH} {HEIGHT}" font-family="sans-serif" font-size="12">',
             f'<rect width="{WIDTH}" height="{HEIGHT}" fill="white"/>',
             *axes(horizontal, vertical)]
    ends = []
    for (series, points), colour in zip(timed.items(), COLOURS):
        parts += curve(points, horizontal, vertical, colour)
        size, value = points[-1]
        ends.append((vertical(value), horizontal(size), series.strip("-"), colour))
    parts += labels(ends)
    parts.append("</svg>")
    return "\n".join(parts) + "\n"
