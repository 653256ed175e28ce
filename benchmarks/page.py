# SPDX-License-Identifier: Apache-2.0
"""Writes docs/performance.md from what the benchmarks measured.

    page.py FOLDER      reads FOLDER/<program>.json, one file for each program, as --benchmark_out writes them

What stands between the two marks of the page is replaced; the rest is written by hand and stays.
"""

import json
import platform
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[1]
PAGE = ROOT / "docs" / "performance.md"
BEGIN = "<!-- measured: script/bench writes what follows -->"
END = "<!-- end of what script/bench writes -->"

RIVALS = {"over_rival": "of its rival's time", "over_bare": "of the bare LAPACK loop's time"}


def processor():
    try:
        for line in Path("/proc/cpuinfo").read_text(encoding="utf-8").splitlines():
            if line.startswith("model name"):
                return line.split(":", 1)[1].strip()
    except OSError:
        pass
    return platform.processor() or platform.machine()


def commit():
    answer = subprocess.run(["git", "describe", "--always", "--dirty"], cwd=ROOT, capture_output=True,
                            text=True, check=False)
    return answer.stdout.strip() or "unknown"


def in_words(seconds):
    for unit, size in (("s", 1.0), ("ms", 1e-3), ("µs", 1e-6)):
        if seconds >= size:
            return f"{seconds / size:.3g} {unit}"
    return f"{seconds / 1e-9:.3g} ns"


def rate(per_second):
    for unit, size in ((" M", 1e6), (" k", 1e3)):
        if per_second >= size:
            return f"{per_second / size:.3g}{unit}"
    return f"{per_second:.3g}"


def best_runs(report):
    """The quickest repetition of every benchmark, in the order of the program."""
    unit = {"ns": 1e-9, "us": 1e-6, "ms": 1e-3, "s": 1.0}
    best = {}
    for run in report["benchmarks"]:
        if run.get("run_type") == "aggregate" or run.get("error_occurred"):
            continue
        # Where a benchmark keeps its own time it is that of the processor, too.
        manual = run["name"].find("/manual_time") >= 0
        seconds = run["real_time" if manual else "cpu_time"] * unit[run["time_unit"]]
        name = run["name"].replace("/manual_time", "").split("/repeats:")[0]
        if name not in best or seconds < best[name][0]:
            best[name] = (seconds, run)
    return best


def growth(name, seconds, best):
    """The time in multiples of the first benchmark of the same family."""
    family = name.split("/")[0]
    first = next(each for each in best if each.split("/")[0] == family)
    if first == name:
        return ""
    return f"{seconds / best[first][0]:.3g}"


def rival(run):
    notes = [f"{run[counter]:.3g} {text}" for counter, text in RIVALS.items() if counter in run]
    if "stripes" in run:
        notes.append(f"{run['stripes']:.0f} stripes")
    return ", ".join(notes)


def table(program, report):
    best = best_runs(report)
    lines = [f"\n### {program.replace('_', ' ')}\n",
             "| what | time of one | items a second | times the first of its kind | beside |",
             "| --- | ---: | ---: | ---: | --- |"]
    for name, (seconds, run) in best.items():
        items = rate(run["items_per_second"]) if "items_per_second" in run else ""
        lines.append(f"| `{name.removeprefix('BM_')}` | {in_words(seconds)} | {items} | "
                     f"{growth(name, seconds, best)} | {rival(run)} |")
    return "\n".join(lines)


def measured(folder):
    files = sorted(Path(folder).glob("*.json"))
    if not files:
        sys.exit(f"{folder} holds no measurements.")
    parts = [BEGIN, "",
             f"Machine: {processor()}, one core. Commit: `{commit()}`. Times are those of the processor, the "
             "quickest of the repetitions; what a column calls beside was measured in turns with it in the "
             "same run."]
    for file in files:
        parts.append(table(file.stem.removesuffix("_benchmark"),
                           json.loads(file.read_text(encoding="utf-8"))))
    parts += ["", END]
    return "\n".join(parts)


def main(arguments):
    if len(arguments) != 1:
        sys.exit(__doc__)
    page = PAGE.read_text(encoding="utf-8")
    head, _, rest = page.partition(BEGIN)
    tail = rest.partition(END)[2]
    PAGE.write_text(head + measured(arguments[0]) + tail, encoding="utf-8")


if __name__ == "__main__":
    main(sys.argv[1:])
