#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Names that two headers below the folders define in the same namespace, each for something of its own. A program that
holds both takes parts of the one for the other, and no compiler or linker says so.

    names.py FOLDER...
"""
import re
import sys
from collections import defaultdict
from pathlib import Path

BEGINS = re.compile(r"^(?:inline )?namespace ([\w:]+) \{")
DEFINES = re.compile(r"^(?:struct|class|enum class|enum) (\w+)(?: final)?(?: :[^;]*)? \{")

found = defaultdict(list)
for folder in sys.argv[1:]:
    for header in sorted(Path(folder).rglob("*.h")):
        spaces = []
        for line in header.read_text().splitlines():
            if begins := BEGINS.match(line):
                spaces.append(begins[1])
            elif line.startswith("}  // namespace"):
                spaces.pop()
            elif defines := DEFINES.match(line):
                found["::".join([*spaces, defines[1]])].append(str(header))
twice = {name: headers for name, headers in found.items() if len(headers) > 1}
for name, headers in twice.items():
    print(f"{name}: {' '.join(headers)}")
sys.exit(1 if twice or not found else 0)
