"""Prints one line a benchmark from Google Benchmark's JSON: name, ours, the plain equivalent, ratio.

A pair is <name>/ours and <name>/plain; what follows (an argument) belongs to the name. A name whose two sides have one
argument each, but not the same, is a pair too. The counter "limit" is the highest ratio that is promised; with --check
the exit code is 1 when one is exceeded. Times are the processor's, unless the benchmark asked for real or manual time.
"""

import json
import re
import statistics
import sys

NANOSECONDS = {"ns": 1.0, "us": 1e3, "ms": 1e6, "s": 1e9}


def readable(nanoseconds):
    for unit, factor in (("s", 1e9), ("ms", 1e6), ("µs", 1e3)):
        if nanoseconds >= factor:
            return f"{nanoseconds / factor:.3g} {unit}" if nanoseconds < 1e3 * factor else f"{nanoseconds / factor:.0f} {unit}"
    return f"{nanoseconds:.3g} ns"


def read(path, sides, limits, failures):
    with open(path, encoding="utf-8") as file:
        runs = json.load(file)["benchmarks"]
    for run in sorted(runs, key=lambda run: (run["family_index"], run["per_family_instance_index"])):
        if run["run_type"] != "iteration":
            continue
        if run.get("error_occurred"):
            failures.append(f"{run['name']}: {run.get('error_message', 'failed')}")
            continue
        wall_clock = re.search(r"/(real_time|manual_time)\b", run["run_name"])
        name = re.sub(r"/(real_time|manual_time|process_time|threads:\d+|(iterations|repeats|min_time):[^/]*)", "",
                      run["run_name"])
        name, side, argument = re.fullmatch(r"(.*?)(?:/(ours|plain)(/.*)?)?", name).groups()
        time = run["real_time" if wall_clock else "cpu_time"] * NANOSECONDS[run["time_unit"]]
        sides.setdefault(name, {}).setdefault(side or "ours", {}).setdefault(argument or "", []).append(time)
        if "limit" in run:
            limits[name, argument or ""] = run["limit"]


def rows(sides):
    """Yields (name, argument of ours, times of ours, times of plain or None)."""
    for name, both in sides.items():
        plain = both.get("plain", {})
        for argument, times in both.get("ours", {}).items():
            other = plain.get(argument)
            if other is None and len(plain) == 1 and len(both["ours"]) == 1:
                other = next(iter(plain.values()))
            yield name, argument, times, other


def main():
    check = "--check" in sys.argv[1:]
    sides, limits, failures = {}, {}, []
    for path in sys.argv[1:]:
        if path != "--check":
            read(path, sides, limits, failures)

    table = [("benchmark", "ours", "plain", "ratio", "")]
    for name, argument, times, plain in rows(sides):
        ours = statistics.median(times)
        if plain is None:
            table.append((name + argument, readable(ours), "-", "-", ""))
            continue
        ratio = ours / statistics.median(plain)
        limit = limits.get((name, argument))
        table.append((name + argument, readable(ours), readable(statistics.median(plain)), f"{ratio:.2f}",
                      "" if limit is None else f"(limit {limit:.2f})"))
        if check and limit is not None and ratio > limit:
            failures.append(f"{name}{argument}: ratio {ratio:.3f} is above the limit of {limit:.2f}")

    widths = [max(len(row[column]) for row in table) for column in range(4)]
    for name, ours, plain, ratio, limit in table:
        print(f"{name:<{widths[0]}}  {ours:>{widths[1]}}  {plain:>{widths[2]}}  {ratio:>{widths[3]}}  {limit}".rstrip())
    for failure in failures:
        print(failure, file=sys.stderr)
    return 1 if failures or len(table) == 1 else 0


sys.exit(main())
