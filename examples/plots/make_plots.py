#!/usr/bin/env python3
"""Draws the HPGL plots that the demo shows into this folder: gearbox.plt, gears in mesh with a
section and a title block, and terrain.plt, contour lines of hills."""
import math
import os

UNIT = 40  # plotter units a millimetre
out = ["IN;"]


def at(x, y):
    return f"{round(x * UNIT)},{round(y * UNIT)}"


def pen(number, line=""):
    out.append(f"SP{number};LT{line};")


def polyline(points, closed=False):
    points = list(points)
    if closed:
        points.append(points[0])
    out.append(f"PU{at(*points[0])};PD" + ",".join(at(*p) for p in points[1:]) + ";PU;")


def circle(x, y, radius):
    out.append(f"PU{at(x, y)};CI{round(radius * UNIT)};")


def arc(x, y, radius, start, sweep):
    a = math.radians(start)
    out.append(f"PU{at(x + radius * math.cos(a), y + radius * math.sin(a))};PD;AA{at(x, y)},{sweep:g};PU;")


def label(x, y, text, height=3.5):
    out.append(f"PU{at(x, y)};SI{height * 0.07:.3f},{height / 10:.3f};LB{text}\x03")


def filled(points, kind, spacing=2, angle=45):
    points = list(points)
    out.append(f"FT{kind},{round(spacing * UNIT)},{angle};PU{at(*points[0])};PM0;PD"
               + ",".join(at(*p) for p in points[1:]) + ";PM2;FP;EP;PU;")


def tooth_profile(teeth, module, turn):
    """An involute gear's outline, flank by flank."""
    pitch = module * teeth / 2
    base = pitch * math.cos(math.radians(20))
    tip, root = pitch + module, pitch - 1.25 * module
    half = math.pi / (2 * teeth) + math.tan(math.radians(20)) - math.radians(20)
    steps = [i / 11 for i in range(12)]
    reach = math.sqrt((tip / base) ** 2 - 1)
    for tooth in range(teeth):
        middle = turn + 2 * math.pi * tooth / teeth
        flank = [(base * math.sqrt(1 + (t * reach) ** 2), half - (t * reach - math.atan(t * reach))) for t in steps]
        yield root, middle - half - 0.02
        for radius, angle in flank:
            yield max(radius, root), middle - angle
        for radius, angle in reversed(flank):
            yield max(radius, root), middle + angle
        yield root, middle + half + 0.02


def gear(x, y, teeth, module, turn, colour, spokes):
    pen(colour)
    polyline(((x + r * math.cos(a), y + r * math.sin(a)) for r, a in tooth_profile(teeth, module, turn)), True)
    pitch = module * teeth / 2
    pen(8, "4")
    circle(x, y, pitch)
    pen(colour)
    hub, rim = pitch * 0.28, pitch * 0.78
    for radius in (hub, hub * 0.55, rim):
        circle(x, y, radius)
    for i in range(spokes):
        for side in (-1, 1):
            a = turn + 2 * math.pi * i / spokes
            b, c = a + side * 0.22, a + side * 0.07
            polyline([(x + hub * math.cos(b), y + hub * math.sin(b)), (x + rim * math.cos(c), y + rim * math.sin(c))])
    pen(8, "5")
    polyline([(x - pitch - 8, y), (x + pitch + 8, y)])
    polyline([(x, y - pitch - 8), (x, y + pitch + 8)])


def dimension(x1, x2, y, text):
    pen(30)
    polyline([(x1, y), (x2, y)])
    for x, side in ((x1, 1), (x2, -1)):
        polyline([(x + side * 3, y + 1), (x, y), (x + side * 3, y - 1)])
        polyline([(x, y + 3), (x, y - 3)])
    label((x1 + x2) / 2 - len(text) * 1.2, y + 2, text)


def section(x, y):
    """A shaft in its housing, cut."""
    for low, high in ((-34, -14), (14, 34)):
        pen(140)
        filled([(x, y + low), (x + 70, y + low), (x + 70, y + high), (x, y + high)], 3, 2.5, 45)
    pen(52)
    filled([(x - 12, y - 10), (x + 82, y - 10), (x + 82, y + 10), (x - 12, y + 10)], 3, 2.5, -45)
    pen(1)
    for i in range(6):
        circle(x + 8 + i * 11, y + 12, 2)
        circle(x + 8 + i * 11, y - 12, 2)
    pen(8, "5")
    polyline([(x - 20, y), (x + 90, y)])


def spring(x, y, length, radius, turns):
    pen(70)
    n = turns * 60
    polyline([(x + length * i / n, y + radius * math.sin(2 * math.pi * turns * i / n)) for i in range(n + 1)])


def write(name):
    path = os.path.join(os.path.dirname(os.path.abspath(__file__)), name)
    with open(path, "w", encoding="latin-1", newline="\n") as plot:
        plot.write("\n".join(out + ["SP0;"]) + "\n")
    out[1:] = []


def frame():
    pen(7)
    polyline([(5, 5), (415, 5), (415, 292), (5, 292)], True)


def gearbox():
    frame()
    polyline([(10, 10), (410, 10), (410, 287), (10, 287)], True)
    gear(110, 175, 36, 4, 0, 4, 6)
    gear(110 + 108, 175, 18, 4, math.pi + math.pi / 18, 2, 4)
    gear(218 + 84, 175, 24, 4, math.pi / 24, 3, 5)
    dimension(110, 218, 95, "108 \xb1 0.02")
    dimension(218, 302, 95, "84 \xb1 0.02")
    section(60, 50)
    spring(180, 45, 80, 9, 14)
    pen(6)
    for i in range(12):
        arc(345, 235, 6 + 3 * i, 30 * i, 250)
    pen(7)
    polyline([(290, 10), (290, 75), (410, 75)])
    for y in (25, 40, 58):
        polyline([(290, y), (410, y)])
    for y, text, size in ((62, "GEARBOX", 7), (45, "z 36 : 18 : 24   m 4", 5), (30, "scale 1 : 1   A3", 4.5), (15, "sheet 1 / 1", 4.5)):
        label(295, y, text, size)
    pen(30)
    label(66, 262, "36 teeth")
    label(203, 220, "18")
    label(292, 232, "24")


HILLS = ((120, 170, 60, 90), (250, 110, 80, 70), (310, 220, 45, 60), (190, 240, 35, 40))


def height(x, y):
    return sum(h * math.exp(-((x - cx) ** 2 + (y - cy) ** 2) / (2 * r * r)) for cx, cy, r, h in HILLS)


def terrain():
    """Each level once around each hill, found outwards from its top."""
    frame()
    for i, level in enumerate(range(12, 84, 6)):
        pen((90, 70, 50, 30)[i * 4 // 12])
        for cx, cy, _, top in HILLS:
            if top <= level:
                continue
            line = []
            for step in range(121):
                a = 2 * math.pi * step / 120
                r = 0
                while r < 150 and height(cx + r * math.cos(a), cy + r * math.sin(a)) > level:
                    r += 0.5
                line.append((min(max(cx + r * math.cos(a), 6), 414), min(max(cy + r * math.sin(a), 6), 291)))
            polyline(line)
    pen(1)
    for cx, cy, _, top in HILLS:
        circle(cx, cy, 1.5)
        label(cx + 3, cy + 3, f"{top} m", 5)


gearbox()
write("gearbox.plt")
terrain()
write("terrain.plt")
