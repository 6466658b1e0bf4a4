#!/usr/bin/env python3
"""Turns what the benchmarks measured into the page with the ratios.

Usage: report.py RESULTS.json SYSTEM > page; fails when a benchmark of targets.tsv is missing.
"""

import csv
import json
import pathlib
import platform
import statistics
import sys


def read_targets(path):
    with open(path, encoding="utf-8") as lines:
        return list(csv.DictReader((line for line in lines if not line.startswith("#")),
                                   delimiter="\t"))


class Measurements:
    """The least times over the repetitions of each benchmark, in nanoseconds, for what
    interrupts a process only makes it longer; of other measures the medians."""

    UNITS = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}

    def __init__(self, results):
        self.runs = {}
        for run in results["benchmarks"]:
            if run["run_type"] == "iteration":
                if run.get("error_occurred"):
                    raise SystemExit(f"{run['name']}: {run['error_message']}")
                self.runs.setdefault(run["name"], []).append(run)

    def of(self, name, measure):
        if name not in self.runs:
            raise SystemExit(f"not measured: {name}")
        values = [run[measure] for run in self.runs[name]]
        if measure in ("cpu_time", "real_time"):
            return min(values) * self.UNITS[self.runs[name][0]["time_unit"]]
        if measure == "per_transaction":
            return min(values)
        return max(values) if measure == "bytes_per_second" else statistics.median(values)


def readable(value, measure):
    if measure in ("cpu_time", "real_time", "per_transaction"):
        value = value * 1e9 if measure == "per_transaction" else value
        for unit, size in (("s", 1e9), ("ms", 1e6), ("µs", 1e3)):
            if value >= size:
                return f"{value / size:.3g} {unit}"
        return f"{value:.3g} ns"
    if measure == "bytes_per_second":
        return f"{value / 1e6:.0f} MB/s"
    return f"{value:.2f}"


def judge(row, measurements):
    """The line of a target: what was measured, the ratio, and whether it is within the bound."""
    measure = row["measure"]
    job = measurements.of(row["benchmark"], measure)
    if not row["limit"]:  # for comparison only
        beside = measurements.of(row["beside_benchmarks"], measure)
        slower = beside / job if measure == "bytes_per_second" else job / beside
        return job, beside, f"{slower:.2f}", "", None
    limit = float(row["limit"])
    if row["bound"] == "more":  # a difference of times, in milliseconds
        beside = measurements.of(row["beside_benchmarks"], measure)
        ratio, within = (job - beside) / 1e6, (job - beside) / 1e6 <= limit
        return job, beside, f"{ratio:.2f} ms more", f"at most {limit:g} ms more", within
    if not row["beside_benchmarks"]:  # a ratio by itself
        return job, None, f"{job:.2f}", f"at most {limit:g}", job <= limit
    beside = sum(measurements.of(name, measure) for name in row["beside_benchmarks"].split("+"))
    slower = beside / job if measure == "bytes_per_second" else job / beside
    if row["bound"] == "at least":
        return job, beside, f"{1 / slower:.1f} times", f"at least {limit:g} times", 1 / slower >= limit
    return job, beside, f"{slower:.2f}", f"at most {limit:g}", slower <= limit


def table(targets, measurements):
    yield "| Job | Takes | Beside | Takes | Ratio | Wanted | |"
    yield "|---|---|---|---|---|---|---|"
    for row in targets:
        job, beside, ratio, wanted, within = judge(row, measurements)
        cells = [row["job"], readable(job, row["measure"]), row["beside"],
                 "" if beside is None else readable(beside, row["measure"]),
                 ratio, wanted, {True: "yes", False: "**no**", None: ""}[within]]
        yield "| " + " | ".join(cells) + " |"


def processor():
    for line in pathlib.Path("/proc/cpuinfo").read_text(encoding="utf-8").splitlines():
        if line.startswith("model name"):
            return line.split(":", 1)[1].strip()
    return platform.machine()


def main():
    folder = pathlib.Path(__file__).parent
    results = json.loads(pathlib.Path(sys.argv[1]).read_text(encoding="utf-8"))
    context = results["context"]
    lines = table(read_targets(folder / "targets.tsv"), Measurements(results))
    page = (folder / "performance.md.in").read_text(encoding="utf-8")
    print(page.replace("@DATE@", context["date"][:10])
          .replace("@MACHINE@", f"{context['num_cpus']} processors ({processor()})")
          .replace("@SYSTEM@", " ".join(sys.argv[2:]))
          .replace("@TABLE@", "\n".join(lines)), end="")


if __name__ == "__main__":
    main()
