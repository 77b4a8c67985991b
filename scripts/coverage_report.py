#!/usr/bin/env python3
"""Reports the line coverage that gcov counted, for each folder of the library.

usage: coverage_report.py BUILD [--lines] [FOLDER...]

A folder's public headers count with its sources. A line that several objects hold has been run when
one of them ran it.
"""

import argparse
import collections
import concurrent.futures
import gzip
import json
import os
import pathlib
import subprocess

ROOT = pathlib.Path(__file__).resolve().parent.parent
FOLDERS = ("text", "sys", "core", "coll", "wnd", "gdi", "dlg", "ctrl")
WANTED = 85.0


def folder_of(path):
    """The folder of the library that a source or header belongs to; None for all others."""
    parts = path.parts
    if parts[:2] == ("include", "VxMFCEmu") and len(parts) > 3:
        parts = parts[2:]
    return parts[0] if parts[0] in FOLDERS else None


def counts_of(notes, build):
    """What gcov says of one object: a dictionary for each source file in it."""
    command = ["gcov", "--json-format", "--stdout", str(notes)]
    output = subprocess.run(command, cwd=build, check=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
    text = output.stdout
    if text[:2] == b"\x1f\x8b":
        text = gzip.decompress(text)
    return [file for line in text.splitlines() if line.strip() for file in json.loads(line)["files"]]


def collect(build):
    """How often each line of each file was run: {path: {line: count}}."""
    objects = sorted(build.rglob("*.gcno"))
    files = collections.defaultdict(collections.Counter)
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for counted in pool.map(lambda notes: counts_of(notes, build), objects):
            for file in counted:
                path = pathlib.Path(os.path.normpath(build / file["file"]))
                if not path.is_relative_to(ROOT) or path.is_relative_to(build):
                    continue
                name = path.relative_to(ROOT)
                if folder_of(name):
                    for line in file["lines"]:
                        files[name][line["line_number"]] += line["count"]
    return files


def ranges(numbers):
    """[3, 4, 5, 9] as '3-5, 9'."""
    spans = []
    for number in sorted(numbers):
        if spans and number == spans[-1][1] + 1:
            spans[-1][1] = number
        else:
            spans.append([number, number])
    return ", ".join(str(first) if first == last else f"{first}-{last}" for first, last in spans)


def report(files, show_lines, only):
    totals = collections.defaultdict(lambda: [0, 0])
    for name, lines in files.items():
        for key in (folder_of(name), "all"):
            totals[key][0] += sum(1 for count in lines.values() if count)
            totals[key][1] += len(lines)
    print(f"{'folder':8}{'lines':>8}{'run':>8}{'%':>8}")
    for folder in (*FOLDERS, "all"):
        run, lines = totals[folder]
        if lines:
            part = 100 * run / lines
            print(f"{folder:8}{lines:8}{run:8}{part:8.1f}" + ("  below" if part < WANTED else ""))
    if not show_lines:
        return
    for name, lines in sorted(files.items()):
        missed = [line for line, count in lines.items() if not count]
        if missed and (not only or folder_of(name) in only):
            part = 100 * (len(lines) - len(missed)) / len(lines)
            print(f"{name} {part:.1f} %: {ranges(missed)}")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("build", type=lambda text: pathlib.Path(text).resolve())
    parser.add_argument("--lines", action="store_true")
    parser.add_argument("folders", nargs="*")
    arguments = parser.parse_intermixed_args()
    report(collect(arguments.build), arguments.lines, arguments.folders)


if __name__ == "__main__":
    main()
