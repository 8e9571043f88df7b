#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Puts small faults into src/, one at a time, and tells how many of them the tests notice.

    tools/mutants/mutants.py --seed 1 --count 30 --minutes 20 [--folders db,forms] [--others]

Works in a copy of the last commit (--copy, by default beside this tree; made and built when needed), so the tree
itself is never touched. A fault that does not compile is not counted. The tests of the fault's own folder run first;
with --others, those of all other folders and the tours run on what they let pass. Survivors are printed as a diff
each: most of them are faults that change nothing anybody could notice; who counts shares looks at them first.
"""
import argparse
import math
import random
import re
import subprocess
import sys
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
PRESET = "build/release"
TEXT = re.compile(r'(QStringLiteral|tr|QT_TRANSLATE_NOOP\("Texts", )\("?[^"]*?([A-Za-zá-ž])([a-zá-ž]{2,})')


def swap(pattern, new):
    def change(line):
        found = [m for m in re.finditer(pattern, line)]
        return [line[:m.start()] + m.expand(new) + line[m.end():] for m in found]
    return change


def off_by_one(line):
    return [line[:m.start()] + str(int(m.group()) + 1) + line[m.end():]
            for m in re.finditer(r"(?<![\w.%])\d{1,5}(?![\w.])", line)]


def misspell(line):
    return [line[:m.start(2)] + ("x" if m.group(2) != "x" else "y") + line[m.end(2):] for m in TEXT.finditer(line)]


def drop(pattern):
    return lambda line: ["\n"] if re.fullmatch(pattern, line.rstrip("\n")) else []


KINDS = {
    "comparison": swap(r" (<=?|>=?) ", r" == "),
    "boundary": lambda line: swap(r" < ", " <= ")(line) + swap(r" > ", " >= ")(line) + swap(r" <= ", " < ")(line)
    + swap(r" >= ", " > ")(line),
    "equality": lambda line: swap(r" == ", " != ")(line) + swap(r" != ", " == ")(line),
    "and-or": lambda line: swap(r" && ", " || ")(line) + swap(r" \|\| ", " && ")(line),
    "negation": lambda line: swap(r"\bif \((.+?)\) (?=return|\{|[\w]+)", r"if (!(\1)) ")(line) if "const auto" not in line
    and "; " not in line.split("if (")[-1].split(")")[0] else [],
    "constant": off_by_one,
    "call dropped": drop(r"\s+[A-Za-z_][\w.>\-]*\([^=]*\);"),
    "assignment dropped": drop(r"\s+[a-z]\w*_ = [^;]+;"),
    "return dropped": drop(r"\s+if \(.+\) return;"),
    "text": misspell,
    "arguments": swap(r"\((\w+), (\w+)\)", r"(\2, \1)"),
    "true-false": lambda line: swap(r"\btrue\b", "false")(line) + swap(r"\bfalse\b", "true")(line),
}


def candidates(folders):
    """Every fault that could be put in: (kind, file, line number, new line)."""
    for file in sorted((ROOT / "src").rglob("*.cpp")):
        if folders and test_of(file.relative_to(ROOT)) not in folders:
            continue
        for number, line in enumerate(file.read_text().splitlines(keepends=True)):
            if line.lstrip().startswith(("//", "#", "static_assert")):
                continue
            for kind, change in KINDS.items():
                for new in change(line):
                    if new != line:
                        yield kind, file.relative_to(ROOT), number, new


def test_of(file):
    parts = file.parts
    return parts[2] if parts[1] == "screens" else parts[1]


def run(copy, command, seconds):
    try:
        return subprocess.run(command, cwd=copy, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                              timeout=seconds).returncode
    except subprocess.TimeoutExpired:
        return -1


def prepare(copy):
    if not (copy / ".git").exists():
        subprocess.run(["git", "clone", "-q", "--shared", str(ROOT), str(copy)], check=True)
    head = subprocess.check_output(["git", "rev-parse", "HEAD"], cwd=ROOT, text=True).strip()
    subprocess.run(["git", "fetch", "-q", "origin", head], cwd=copy, check=True)
    subprocess.run(["git", "checkout", "-q", "-f", "--detach", head], cwd=copy, check=True)
    built = ROOT / "build/release/disc-out"
    if built.exists() and not (copy / "build/release/disc-out").exists():
        (copy / "build/release").mkdir(parents=True, exist_ok=True)  # a disc takes long to make
        subprocess.run(["cp", "-a", str(built), str(copy / "build/release")], check=True)
    if run(copy, ["cmake", "--preset", "release"], 600) != 0:
        sys.exit("the copy cannot be configured")


def wilson(hits, all_):
    if not all_:
        return 0, 1
    z, p = 1.96, hits / all_
    middle, spread = p + z * z / (2 * all_), z * math.sqrt(p * (1 - p) / all_ + z * z / (4 * all_ * all_))
    return (middle - spread) / (1 + z * z / all_), (middle + spread) / (1 + z * z / all_)


def judge(copy, fault, options):
    """One of "broken", "own", "others", "survived"."""
    kind, file, number, new = fault
    path = copy / file
    sound = path.read_text()
    lines = sound.splitlines(keepends=True)
    lines[number] = new
    path.write_text("".join(lines))
    try:
        own = f"test_{test_of(file)}"
        if run(copy, ["ninja", "-j2", "-C", PRESET, own], 1800) != 0:
            return "broken"
        if run(copy, ["ctest", "--test-dir", PRESET, "-R", f"^{own}$"], options.test_seconds) != 0:
            return "own"
        if not options.others:
            return "survived"
        run(copy, ["ninja", "-j2", "-C", PRESET], 3600)
        return "survived" if run(copy, ["ctest", "--test-dir", PRESET, "-E", f"^{own}$"], 3600) == 0 else "others"
    finally:
        path.write_text(sound)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--count", type=int, default=30)
    parser.add_argument("--minutes", type=float, default=30)
    parser.add_argument("--folders", default="", help="names of test folders, parted by commas; all by default")
    parser.add_argument("--others", action="store_true", help="try survivors on all other tests")
    parser.add_argument("--test-seconds", type=int, default=300)
    parser.add_argument("--copy", type=Path, default=ROOT.parent / (ROOT.name + "-mutants"))
    parser.add_argument("--list", action="store_true", help="only show which faults would be put in")
    options = parser.parse_args()
    end = time.time() + 60 * options.minutes
    everything = {}
    for fault in candidates(set(filter(None, options.folders.split(",")))):
        everything.setdefault((fault[1], fault[2]), []).append(fault)
    chance = random.Random(options.seed)
    places = sorted(everything)
    chosen = [chance.choice(everything[place]) for place in chance.sample(places, min(options.count, len(places)))]
    if options.list:
        for kind, file, number, new in chosen:
            print(f"{file}:{number + 1}: {kind}: {new.strip()}")
        return
    prepare(options.copy)
    tally = dict.fromkeys(("broken", "own", "others", "survived"), 0)
    for done, fault in enumerate(chosen):
        if time.time() > end:
            print(f"time is up after {done} of {len(chosen)}")
            break
        kind, file, number, new = fault
        verdict = judge(options.copy, fault, options)
        tally[verdict] += 1
        print(f"{verdict:9} {file}:{number + 1} {kind}", flush=True)
        if verdict == "survived":
            old = (ROOT / file).read_text().splitlines()[number]
            print(f"    -{old}\n    +{new.rstrip()}", flush=True)
    real = sum(tally.values()) - tally["broken"]
    low, high = wilson(tally["own"] + tally["others"], real)
    print(f"{tally}; caught {tally['own'] + tally['others']} of {real}, by their own folder {tally['own']}; "
          f"95 % interval {100 * low:.0f} to {100 * high:.0f} %")


if __name__ == "__main__":
    main()
