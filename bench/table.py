"""Prints the results of all benchmark programs as one table.

A benchmark is named "subject:who/size". "ours" is what is measured and every other name a reference of the same
subject in the same run. Growth is against the size before, per tenfold size.
"""

import json
import math
import sys


def read(files):
    """{subject: {who: {size: (microseconds, counters)}}} in the order of the files, of each the shortest run.

    Ends the program on a failure.
    """
    subjects = {}
    for name in files:
        with open(name, encoding="utf-8") as file:
            # A program in which the filter found nothing leaves its file empty.
            runs = json.loads(file.read() or '{"benchmarks": []}')["benchmarks"]
            for run in sorted(runs, key=lambda run: (run["family_index"], run["per_family_instance_index"])):
                if run.get("error_occurred"):
                    sys.exit(f"{run['name']}: {run['error_message']}")
                if run["run_type"] != "iteration":
                    continue
                subject, rest = run["run_name"].split(":")
                who, size = rest.split("/")
                counters = {key: run[key] for key in ("bytes per cell", "statements") if key in run}
                sizes = subjects.setdefault(subject, {}).setdefault(who, {})
                shortest, _ = sizes.get(int(size), (math.inf, None))
                sizes[int(size)] = (min(run["cpu_time"], shortest), counters)
    return subjects


def show_time(microseconds):
    if microseconds >= 10000:
        return f"{microseconds / 1000:.0f} ms"
    if microseconds >= 1000:
        return f"{microseconds / 1000:.1f} ms"
    return f"{microseconds:.1f} us"


def growth(sizes, size):
    smaller = [other for other in sizes if other < size]
    if not smaller:
        return ""
    before = max(smaller)
    factor = sizes[size][0] / sizes[before][0]
    return f"{factor ** (1 / math.log10(size / before)):.1f}x"


def rows(subjects):
    for subject, whos in subjects.items():
        first = next(iter(whos))
        for size in whos[first]:
            time, counters = whos[first][size]
            if "bytes per cell" in counters:
                yield [subject, str(size), f"{counters['bytes per cell']:.0f} B/cell", "", "", "", ""]
                continue
            references = [(who, sizes[size][0]) for who, sizes in whos.items() if who != first and size in sizes]
            yield [
                subject,
                str(size),
                show_time(time),
                ", ".join(f"{who} {show_time(other)}" for who, other in references),
                ", ".join(f"{time / other:.2f}" for _, other in references),
                growth(whos[first], size),
                f"{counters['statements']:.0f}" if "statements" in counters else "",
            ]


def main():
    table = [["subject", "size", "ours", "reference", "ratio", "growth", "statements"], *rows(read(sys.argv[1:]))]
    widths = [max(len(row[column]) for row in table) for column in range(len(table[0]))]
    for number, row in enumerate(table):
        print("| " + " | ".join(cell.ljust(width) for cell, width in zip(row, widths)) + " |")
        if number == 0:
            print("|" + "|".join("-" * (width + 2) for width in widths) + "|")


main()
