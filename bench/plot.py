"""Plots on two logarithmic axes, as SVG."""

import math
from xml.sax.saxutils import escape

WIDTH, HEIGHT = 560, 340
LEFT, RIGHT, TOP, BOTTOM = 64, 36, 40, 48
COLOURS = ("#1a5596", "#c05a00", "#3d7a35")


def _number(value):
    return f"{value:,.0f}" if value >= 1 else f"{value:g}"


def plot(file, title, across, up, lines):
    """Writes a plot of `lines`: points by name."""
    points = [point for line in lines.values() for point in line]
    axes = [[math.log10(value) for value in column] for column in zip(*points)]
    (left, right), (low, high) = [(math.floor(min(axis)), math.ceil(max(axis))) for axis in axes]

    def place(x, y):
        return (LEFT + (math.log10(x) - left) / (right - left) * (WIDTH - LEFT - RIGHT),
                HEIGHT - BOTTOM - (math.log10(y) - low) / (high - low) * (HEIGHT - TOP - BOTTOM))

    svg = [f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {WIDTH} {HEIGHT}" font-family="sans-serif" '
           f'font-size="12"><rect width="{WIDTH}" height="{HEIGHT}" fill="white"/>'
           f'<text x="{LEFT}" y="22" font-size="15">{escape(title)}</text>'
           f'<text x="{WIDTH / 2}" y="{HEIGHT - 10}" text-anchor="middle">{escape(across)}</text>'
           f'<text transform="translate(14 {HEIGHT / 2}) rotate(-90)" text-anchor="middle">{escape(up)}</text>']
    for power in range(left, right + 1):
        x, y = place(10 ** power, 10 ** low)
        svg.append(f'<path d="M{x:.1f} {TOP}V{y:.1f}" stroke="#ddd"/>'
                   f'<text x="{x:.1f}" y="{y + 16:.1f}" text-anchor="middle">{_number(10 ** power)}</text>')
    for power in range(low, high + 1):
        x, y = place(10 ** left, 10 ** power)
        svg.append(f'<path d="M{x:.1f} {y:.1f}H{WIDTH - RIGHT}" stroke="#ddd"/>'
                   f'<text x="{x - 6:.1f}" y="{y + 4:.1f}" text-anchor="end">{_number(10 ** power)}</text>')
    for at, (colour, (name, line)) in enumerate(zip(COLOURS, lines.items())):
        places = [place(*point) for point in line]
        way = " ".join(f"{x:.1f},{y:.1f}" for x, y in places)
        svg.append(f'<polyline points="{way}" fill="none" stroke="{colour}" stroke-width="2"/>')
        svg += [f'<circle cx="{x:.1f}" cy="{y:.1f}" r="3" fill="{colour}"/>' for x, y in places]
        svg.append(f'<text x="{LEFT + 12}" y="{TOP + 16 + 16 * at}" fill="{colour}">{escape(name)}</text>')
    file.write_text("\n".join(svg) + "\n</svg>\n")
