#!/usr/bin/env python3
"""Prints the results of the benchmarks as a table: each row X beside its baseline X_raw.

usage: bench_table.py RESULTS [--write FILE]

RESULTS holds a folder for each platform with one JSON file for each bench binary. With --write the
table replaces what stands between the two marker comments of FILE.
"""

import argparse
import json
import pathlib
import sys

BEGIN = "<!-- table: written by scripts/bench.sh --write -->"
END = "<!-- end of table -->"
PLATFORMS = ("xcb", "offscreen")
NANOSECONDS = {"ns": 1.0, "us": 1e3, "ms": 1e6, "s": 1e9}
MEMORY = "KiB"  # a counter of this name makes a row of its own


def fastest(folder):
    """The fastest repetition of each row of a platform, in the order of the binaries: nanoseconds, or KiB."""
    times = {}
    for path in sorted(folder.glob("*.json")):
        text = path.read_text()
        rows = json.loads(text)["benchmarks"] if text.strip() else []
        rows.sort(key=lambda row: (row["family_index"], row["per_family_instance_index"]))
        for row in rows:
            if row.get("error_occurred"):
                sys.exit(f"{path.name}: {row['name']}: {row.get('error_message', 'failed')}")
            if row["run_type"] != "iteration":
                continue
            values = {row["name"]: row["real_time"] * NANOSECONDS[row["time_unit"]]}
            if MEMORY in row:
                values[f"{row['name']} {MEMORY}"] = row[MEMORY]
            for name, value in values.items():
                times[name] = min(value, times.get(name, value))
    return times


def raw_name(name):
    """The baseline of X/100 is X_raw/100."""
    head, slash, arguments = name.partition("/")
    return head + "_raw" + slash + arguments


def show(name, value):
    if name.endswith(f" {MEMORY}"):
        return f"{value:.0f} {MEMORY}"
    for unit, size in (("ms", 1e6), ("µs", 1e3)):
        if value >= size:
            return f"{value / size:.3g} {unit}"
    return f"{value:.3g} ns"


def table(results):
    platforms = {name: fastest(results / name) for name in PLATFORMS}
    names = list(dict.fromkeys(name for times in platforms.values() for name in times))
    baselines = {raw_name(name) for name in names}
    rows = [("row",) + tuple(f"{p} {c}" for p in PLATFORMS for c in ("time", "raw time", "ratio"))]
    for name in names:
        if name in baselines:
            continue
        cells = [name]
        for platform in PLATFORMS:
            time, raw = platforms[platform].get(name), platforms[platform].get(raw_name(name))
            cells.append(show(name, time) if time is not None else "")
            cells.append(show(name, raw) if raw is not None else "")
            cells.append(f"{time / raw:.2f}" if time is not None and raw else "")
        rows.append(tuple(cells))
    return rows


def markdown(rows):
    widths = [max(len(row[i]) for row in rows) for i in range(len(rows[0]))]
    rule = ["-" * widths[0]] + ["-" * (width - 1) + ":" for width in widths[1:]]
    lines = []
    for row in [rows[0], rule, *rows[1:]]:
        cells = [row[0].ljust(widths[0])] + [c.rjust(w) for c, w in zip(row[1:], widths[1:])]
        lines.append("| " + " | ".join(cells) + " |")
    return "\n".join(lines) + "\n"


def write(path, text):
    page = path.read_text()
    if page.count(BEGIN) != 1 or page.count(END) != 1:
        sys.exit(f"{path}: needs the lines '{BEGIN}' and '{END}' once each")
    before, rest = page.split(BEGIN)
    after = rest.split(END)[1]
    path.write_text(f"{before}{BEGIN}\n\n{text}\n{END}{after}")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("results", type=pathlib.Path)
    parser.add_argument("--write", type=pathlib.Path, metavar="FILE")
    arguments = parser.parse_args()
    rows = table(arguments.results)
    if len(rows) == 1:
        sys.exit("no results")
    text = markdown(rows)
    print(text, end="")
    if arguments.write:
        write(arguments.write, text)


if __name__ == "__main__":
    main()
