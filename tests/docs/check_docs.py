#!/usr/bin/env python3
"""Checks that the pages say what is in the sources.

check_docs.py ROOT           the checks; says what is wrong
check_docs.py ROOT --write   puts the parts of the sources that the pages show into them

- porting.md, README.md: each block of C++ is a part of a source of examples/porting or tests/porting. The line
  above it names the source and the part; in the source, lines "//! [part]" stand before and after it.
- differences.md: each public header that tells of a difference has a row, and each row a header.
- every page: what a link leads to is there.
"""

import argparse
import re
import sys
from pathlib import Path

BLOCK = re.compile(r"(?P<head><!-- (?P<file>\S+): (?P<part>.+?) -->\n)?```cpp\n(?P<text>.*?)```\n", re.S)
DIFFERENCE = re.compile(r"\b(Differs? from|Intended|intended)\b")


def part_of(path, part):
    """The lines between the two marks of a part."""
    pieces = re.split(rf"^[ \t]*//! \[{re.escape(part)}\]\n", path.read_text(), flags=re.M)
    if len(pieces) != 3:
        raise ValueError(f"{path}: the marks of [{part}] are not two")
    return pieces[1]


def check_snippets(root, page, write):
    wrong = []

    def source_of(block):
        if not block["head"]:
            wrong.append(f"{page}: a block of C++ without its source: {block['text'][:60]!r}")
            return block[0]
        try:
            text = part_of(root / block["file"], block["part"])
        except (OSError, ValueError) as error:
            wrong.append(str(error))
            return block[0]
        if text != block["text"] and not write:
            wrong.append(f"{page}: [{block['part']}] is not as in {block['file']}; --write renews it")
        return f"{block['head']}```cpp\n{text}```\n"

    text = page.read_text()
    renewed = BLOCK.sub(source_of, text)
    if write and renewed != text:
        page.write_text(renewed)
    return wrong


def check_differences(root):
    page = root / "docs/differences.md"
    include = root / "include/VxMFCEmu"
    rows = [line for line in page.read_text().splitlines() if line.startswith("|")]
    wrong = [f"{page}: a row without its header: {row}" for row in rows[2:] if "](../include/" not in row]
    linked = {match for row in rows for match in re.findall(r"\]\(\.\./include/VxMFCEmu/([^)#]+)\)", row)}
    for header in sorted(include.rglob("*.h")):
        name = header.relative_to(include).as_posix()
        if name not in linked and DIFFERENCE.search(header.read_text()):
            wrong.append(f"{page}: no row for the differences that {name} tells of")
    return wrong


def check_links(root):
    wrong = []
    for page in [*sorted(root.glob("*.md")), *sorted((root / "docs").glob("*.md"))]:
        for target in re.findall(r"\]\(([^)\s]+)\)", page.read_text()):
            path = target.partition("#")[0]
            if path and "://" not in path and not (page.parent / path).exists():
                wrong.append(f"{page}: {target} is not there")
    return wrong


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("root", type=Path)
    parser.add_argument("--write", action="store_true")
    arguments = parser.parse_args()
    wrong = []
    for page in ("docs/porting.md", "README.md"):
        wrong += check_snippets(arguments.root, arguments.root / page, arguments.write)
    wrong += check_differences(arguments.root)
    wrong += check_links(arguments.root)
    print("\n".join(wrong), end="\n" if wrong else "")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
