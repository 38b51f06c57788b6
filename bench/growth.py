"""Counts the instructions of one step at 100 and at 1,000 rows and fails when they grow more than 12-fold.

growth.py PROBE STEP. Unlike time, the count is the same on every run and every machine.
"""

import re
import subprocess
import sys
import tempfile

MOST_GROWTH = 12


def instructions(probe, step, rows):
    with tempfile.TemporaryDirectory() as folder:
        command = ["valgrind", "--tool=callgrind", "--collect-atstart=no", f"--callgrind-out-file={folder}/out", probe]
        run = subprocess.run([*command, step, str(rows)], capture_output=True, text=True, check=False)
    collected = re.search(r"Collected : (\d+)", run.stderr)
    if run.returncode != 0 or collected is None or int(collected.group(1)) == 0:
        sys.exit(f"{step} with {rows} rows was not counted:\n{run.stderr}")
    return int(collected.group(1))


def main():
    probe, step = sys.argv[1:]
    few, many = instructions(probe, step, 100), instructions(probe, step, 1000)
    print(f"{step}: {few} instructions for 100 rows, {many} for 1000: {many / few:.1f}-fold")
    if many > MOST_GROWTH * few:
        sys.exit(f"more than {MOST_GROWTH}-fold")


main()
