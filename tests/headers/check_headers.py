#!/usr/bin/env python3
"""Checks what the public headers include and define.

- Each file below the public include folder is listed in CMake, and so installed and compiled alone.
- None includes, however indirectly, a header of X11 or a private one of Qt.
- A header of one subsystem includes none of a later one.
- None defines a macro that an application could trip over.
"""

import argparse
import pathlib
import re
import subprocess
import sys

# A header includes none from a later step. Single headers come before the rest of their folder.
LAYERS = (
    ("export.h", "types.h", "version.h"),
    ("text/", "text.h", "sys/memory.h", "sys/tls.h", "sys/criticalsection.h"),
    ("core/", "core.h"),
    ("sys/", "sys.h", "coll/", "coll.h"),
    ("wnd/", "wnd.h"),
    ("gdi/", "gdi.h"),
    ("dlg/", "dlg.h"),
    ("ctrl/", "ctrl.h"),
    ("VxMFCEmu.h",),
)
FORBIDDEN_FILE = re.compile(r"/X11/|/xcb/|/private/|_p\.h$")
ALLOWED_MACRO = re.compile(r"\w+_E|VXMFC_\w+|TRUE|FALSE|NULL|_T|TEXT")


def layer(name):
    for exact in (True, False):
        for number, starts in enumerate(LAYERS):
            if any(name == s if exact else s.endswith("/") and name.startswith(s) for s in starts):
                return number
    raise SystemExit(f"{name}: in no layer; add it to LAYERS")


def unlisted(root, headers):
    for path in sorted((root / "VxMFCEmu").rglob("*.h")):
        if str(path.relative_to(root)) not in headers:
            yield f"{path}: not listed in its folder's sources.cmake"


def wrong_direction(root, headers):
    for header in headers:
        path = root / header
        if not path.exists():  # generated
            continue
        own = layer(header.removeprefix("VxMFCEmu/"))
        for included in re.findall(r"#\s*include <VxMFCEmu/([^>]+)>", path.read_text()):
            if layer(included) > own:
                yield f"{header}: includes {included}, which is of a later layer"


def preprocessed(compiler, headers):
    """The output of the preprocessor for all headers, with #define lines and line markers."""
    text = "".join(f"#include <{header}>\n" for header in headers)
    command = [*compiler, "-E", "-dD", "-x", "c++", "-"]
    run = subprocess.run(command, input=text, stdout=subprocess.PIPE, text=True, check=False)
    return run.stdout  # a fault of its own would show when the headers are compiled


def wrong_content(output):
    file, seen = "", set()
    for line in output.splitlines():
        marker = re.match(r'# \d+ "([^"]*)"', line)
        if marker:
            file = marker[1]
            if FORBIDDEN_FILE.search(file) and file not in seen:
                yield f"included: {file}"
            seen.add(file)
            continue
        macro = re.match(r"#define (\w+)", line)
        if macro and "/VxMFCEmu/" in file and not ALLOWED_MACRO.fullmatch(macro[1]):
            yield f"{file}: defines the macro {macro[1]}"
    if not any("/VxMFCEmu/" in name for name in seen):
        yield "the preprocessor saw none of the headers"


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--root", type=pathlib.Path, required=True)
    parser.add_argument("--headers", nargs="+", required=True)
    parser.add_argument("--compiler", nargs=argparse.REMAINDER, required=True)
    arguments = parser.parse_args()
    faults = [
        *unlisted(arguments.root, arguments.headers),
        *wrong_direction(arguments.root, arguments.headers),
        *wrong_content(preprocessed(arguments.compiler, arguments.headers)),
    ]
    print("\n".join(faults))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
