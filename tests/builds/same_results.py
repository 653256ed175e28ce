#!/usr/bin/env python3
"""Do two builds of the program give the same results?

    same_results.py PROGRAM OTHER_PROGRAM CASES_FOLDER

Runs `PROGRAM core` over every case with both programs and compares the results, number by number.
Exit status 0 where all agree within TOLERANCE, 1 with a list of what differs.
"""
import json
import math
import pathlib
import subprocess
import sys
import tempfile

TOLERANCE = 1e-9  # relative to the largest number of the same column
REPORTED_FROM = (0.01, 0.01, 10.0)  # forces of a node below this are left out of a result
SHOWN = 5


def numbers_below(value):
    """All finite numbers in a tree, booleans left out."""
    if isinstance(value, bool):
        return
    if isinstance(value, (int, float)):
        if math.isfinite(value):
            yield value
    elif isinstance(value, dict):
        for child in value.values():
            yield from numbers_below(child)
    elif isinstance(value, list):
        for child in value:
            yield from numbers_below(child)


def size_of(value):
    return max((abs(number) for number in numbers_below(value)), default=0.0)


def columns(rows):
    """The largest number of each column of a table: rows are lists or dictionaries."""
    sizes = {}
    for row in rows:
        items = enumerate(row) if isinstance(row, list) else row.items()
        for key, value in items:
            sizes[key] = max(sizes.get(key, 0.0), size_of(value))
    return sizes


def is_number(value):
    return isinstance(value, (int, float)) and not isinstance(value, bool)


class Comparison:
    def __init__(self):
        self.differences = []

    def differ(self, path, left, right):
        self.differences.append(f"{path}: {json.dumps(left)[:60]} and {json.dumps(right)[:60]}")

    def number(self, path, left, right, size):
        if math.isnan(left) and math.isnan(right):
            return
        if left != right and not abs(left - right) <= TOLERANCE * max(abs(left), abs(right), size):
            self.differ(path, left, right)

    def nodal_forces(self, path, left, right):
        """A force below what is reported comes and goes with rounding."""
        for node in sorted(set(left) | set(right), key=int):
            nothing = [0.0] * len(REPORTED_FROM)
            pair = zip(left.get(node, nothing), right.get(node, nothing), REPORTED_FROM)
            for i, (a, b, threshold) in enumerate(pair):
                if not abs(a - b) <= max(threshold * (1 + TOLERANCE), TOLERANCE * abs(a)):
                    self.differ(f"{path}.{node}[{i}]", a, b)

    def table(self, path, left, right):
        if len(left) != len(right):
            self.differ(path + " (length)", len(left), len(right))
            return
        rows = all(isinstance(row, (list, dict)) for row in left)
        sizes = columns(left) if rows else {}
        size = 0.0 if rows else size_of(left)
        for i, (a, b) in enumerate(zip(left, right)):
            self.value(f"{path}[{i}]", a, b, size, sizes)

    def value(self, path, left, right, size=0.0, sizes=None):
        if is_number(left) and is_number(right):
            self.number(path, left, right, size)
        elif isinstance(left, dict) and isinstance(right, dict):
            if path.endswith("nodal_forces"):
                self.nodal_forces(path, left, right)
                return
            for key in sorted(set(left) | set(right)):
                if key not in left or key not in right:
                    self.differ(f"{path}.{key}", left.get(key), right.get(key))
                    continue
                self.value(f"{path}.{key}", left[key], right[key], (sizes or {}).get(key, 0.0))
        elif isinstance(left, list) and isinstance(right, list):
            if sizes and all(is_number(x) for x in left):
                if len(left) != len(right):
                    self.differ(path + " (length)", len(left), len(right))
                    return
                for i, (a, b) in enumerate(zip(left, right)):
                    self.value(f"{path}[{i}]", a, b, sizes.get(i, 0.0))
            else:
                self.table(path, left, right)
        elif left != right:
            self.differ(path, left, right)


def differences(left, right):
    comparison = Comparison()
    comparison.value("result", left, right)
    return comparison.differences


def result_of(program, case, folder):
    output = pathlib.Path(folder) / "result.json"
    subprocess.run([program, "core", str(case), "-o", str(output)], check=False,
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=300)
    result = json.loads(output.read_text(encoding="utf-8"))
    output.unlink()
    return result


def main(arguments):
    program, other, cases = arguments
    names = sorted(pathlib.Path(cases).glob("*.json"))
    if not names:
        print(f"{cases} holds no case")
        return 1
    failed = 0
    with tempfile.TemporaryDirectory() as folder:
        for case in names:
            found = differences(result_of(program, case, folder), result_of(other, case, folder))
            failed += bool(found)
            for line in found[:SHOWN]:
                print(f"{case.stem}: {line}")
    print(f"{len(names) - failed} of {len(names)} cases give the same results in both builds")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
