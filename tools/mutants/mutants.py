#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Puts small faults into src/, one at a time, and tells how many of them the tests notice.

    tools/mutants/mutants.py --seed 1 --count 30 --minutes 20 [--folders db,forms] [--others]

Works in a copy of the last commit (--copy, by default beside this tree; made and built when needed), so the tree
itself is never touched. A fault that does not compile, or compiles to the very same code, is not counted. The tests of
the fault's own folder run first, and those that fail are named; with --others, those of all other folders and the tours
run on what they let pass, after all faults had their turn. Survivors are printed as a diff each: many of them are
faults that change nothing anybody could notice; who counts shares looks at them first.

With --again FILE, the output of an earlier run, only the faults that it says were caught are put in again: after tests
were changed, this tells whether any of them is missed now. --verdict survived takes those that were missed instead.
"""
import argparse
import math
import os
import random
import re
import signal
import subprocess
import sys
import time
from collections import Counter
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


def run(copy, command, seconds, keeps=False):
    """The exit code, -1 when time is up, and what was said. What stands beside a fault comes from the compiler's cache,
    the fault does not go into it; a test ends at its first failure."""
    told = {"GTEST_FAIL_FAST": "1"} | ({} if keeps else {"CCACHE_READONLY": "1"})
    with subprocess.Popen(command, cwd=copy, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, errors="replace",
                          env=os.environ | told, start_new_session=True) as process:
        try:
            said, _ = process.communicate(timeout=seconds)
            return process.returncode, said
        except subprocess.TimeoutExpired:
            os.killpg(process.pid, signal.SIGKILL)  # and whatever it has begun
            return -1, ""


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
    for tests in (copy / "tests").rglob("CMakeLists.txt"):  # nor is it made again for every fault
        tests.write_text(re.sub(r"^(add_dependencies\(.*) disc\)", r"\1 sarne_options)", tests.read_text(), flags=re.M))
    if subprocess.run(["cmake", "--preset", "release"], cwd=copy, stdout=subprocess.DEVNULL).returncode != 0:
        sys.exit("the copy cannot be configured")


def wilson(hits, all_):
    if not all_:
        return 0, 1
    z, p = 1.96, hits / all_
    middle, spread = p + z * z / (2 * all_), z * math.sqrt(p * (1 - p) / all_ + z * z / (4 * all_ * all_))
    return (middle - spread) / (1 + z * z / all_), (middle + spread) / (1 + z * z / all_)


class Fault:
    """A fault while it stands in the copy."""

    code = {}  # of the objects without a fault

    def __init__(self, copy, fault, jobs):
        _, file, number, self.new = fault
        self.copy, self.number, self.jobs = copy, number, jobs
        self.path = copy / file
        self.own = f"test_{test_of(file)}"
        if file.parts[1] == "screens" and (ROOT / "src" / file.parts[2]).exists():
            self.own += "screens"  # the folder's name is that of the logic below it, too
        self.file = file
        if file not in Fault.code:
            if not self.find_object():
                self.make(self.own)
            self.find_object()
            if self.object:
                self.make(self.object.relative_to(copy / PRESET))
            Fault.code[file] = self.object.read_bytes() if self.object else None
        self.find_object()

    def find_object(self):
        self.object = next((self.copy / PRESET / self.file.parent / "CMakeFiles").glob(f"*/{self.file.name}.o"), None)
        return self.object

    def make(self, target):
        """Without the fault."""
        run(self.copy, ["ninja", f"-j{self.jobs}", "-C", PRESET, str(target)], 3600, keeps=True)

    def __enter__(self):
        self.sound = self.path.read_text()
        lines = self.sound.splitlines(keepends=True)
        lines[self.number] = self.new
        self.path.write_text("".join(lines))
        return self

    def __exit__(self, *_):
        self.path.write_text(self.sound)

    def build(self, *targets):
        return run(self.copy, ["ninja", f"-j{self.jobs}", "-C", PRESET, *map(str, targets)], 3600)[0] == 0

    def failing(self, choice, seconds):
        """The tests that fail of those chosen; "?" when one crashes or never ends."""
        code, said = run(self.copy, ["ctest", "--test-dir", PRESET, "--output-on-failure", "--stop-on-failure",
                                     *choice], seconds)
        return sorted(set(re.findall(r"\[  FAILED  \] (\w+\.\w+)", said))) or ["?"] if code else []

    def by_own(self, seconds):
        if self.object and not self.build(self.object.relative_to(self.copy / PRESET)):
            return "broken", []
        if self.object and self.object.read_bytes() == Fault.code[self.file]:
            return "same", []
        if not self.build(self.own):
            return "broken", []
        failing = self.failing(["-R", f"^{self.own}$"], seconds)
        return ("own", failing) if failing else ("survived", [])

    def by_others(self, seconds):
        self.build("all")
        failing = self.failing(["-E", f"^({self.own}|tour.*)$"], seconds) or self.failing(["-R", "^tour"], seconds)
        return ("others", failing) if failing else ("survived", [])


def again(options, everything):
    """The faults of an earlier run with the wanted verdict, where they stand now: nearest to where they stood."""
    told = re.findall(rf"^{options.verdict} +(\S+):(\d+) ([\w\- ]+?)(?: by .*)?\n    -(.*)\n    \+(.*)$",
                      options.again.read_text(), re.M)
    lines = {file: (ROOT / file).read_text().splitlines() for file, *_ in told if (ROOT / file).exists()}
    found = []
    for file, number, kind, old, new in told:
        same = [fault for (where, _), faults in everything.items() if str(where) == file for fault in faults
                if fault[0] == kind and fault[3].strip() == new.strip() and lines[file][fault[2]].strip() == old.strip()]
        found += sorted(same, key=lambda fault: abs(fault[2] + 1 - int(number)))[:1]
    return found


def sample(options):
    everything = {}
    for fault in candidates(set(filter(None, options.folders.split(",")))):
        everything.setdefault((fault[1], fault[2]), []).append(fault)
    part, parts = map(int, options.part.split("/"))
    if options.again:
        return again(options, everything)[part - 1::parts]
    chance = random.Random(options.seed)
    places = sorted(everything)
    return [chance.choice(everything[place]) for place in chance.sample(places, min(options.count, len(places)))][part - 1::parts]


def tell(fault, verdict, failing):
    kind, file, number, new = fault
    print(f"{verdict:9} {file}:{number + 1} {kind}{' by ' + ' '.join(failing) if failing else ''}")
    if verdict not in ("same", "broken"):
        print(f"    -{(ROOT / file).read_text().splitlines()[number]}\n    +{new.rstrip()}", flush=True)


def put_in(faults, judge, end, options):
    """The verdicts of \a judge on the faults that there is time for."""
    verdicts = []
    for fault in faults:
        if time.time() > end:
            print(f"time is up after {len(verdicts)} of {len(faults)}")
            break
        with Fault(options.copy, fault, options.jobs) as present:
            verdict, failing = judge(present)
        tell(fault, verdict, failing)
        verdicts.append((fault, verdict))
    return verdicts


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--count", type=int, default=30)
    parser.add_argument("--minutes", type=float, default=30)
    parser.add_argument("--folders", default="", help="names of test folders, parted by commas; all by default")
    parser.add_argument("--others", action="store_true", help="try survivors on all other tests")
    parser.add_argument("--test-seconds", type=int, default=300)
    parser.add_argument("--copy", type=Path, default=ROOT.parent / (ROOT.name + "-mutants"))
    parser.add_argument("--jobs", type=int, default=2)
    parser.add_argument("--part", default="1/1", help="2/3: the second of three runs that share the sample, each with a copy of its own")
    parser.add_argument("--again", type=Path, help="output of an earlier run whose faults are put in again")
    parser.add_argument("--verdict", default="own", help="which faults of that run")
    parser.add_argument("--list", action="store_true", help="only show which faults would be put in")
    options = parser.parse_args()
    end = time.time() + 60 * options.minutes
    chosen = sample(options)
    if options.list:
        for kind, file, number, new in chosen:
            print(f"{file}:{number + 1}: {kind}: {new.strip()}")
        return
    prepare(options.copy)
    verdicts = put_in(chosen, lambda fault: fault.by_own(options.test_seconds), end, options)
    tally = Counter(verdict for _, verdict in verdicts)
    if options.others:
        survivors = [fault for fault, verdict in verdicts if verdict == "survived"]
        print(f"--- all other tests on {len(survivors)} faults")
        others = Counter(verdict for _, verdict in put_in(survivors, lambda fault: fault.by_others(3600), end, options))
        tally.update(others=others["others"], survived=-others["others"])
    real = tally["own"] + tally["others"] + tally["survived"]
    low, high = wilson(tally["own"] + tally["others"], real)
    print(f"{dict(tally)}; caught {tally['own'] + tally['others']} of {real}, by their own folder {tally['own']}; "
          f"95 % interval {100 * low:.0f} to {100 * high:.0f} %")


if __name__ == "__main__":
    main()
