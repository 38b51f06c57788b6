"""Makes seeded mutants of a copy of the sources, one at a time, and counts those that the tests notice.

Called by tests/mutation/run. A mutant flips one condition or changes one constant. One that does not compile is no
mutant and another is drawn for it. A test that fails, crashes or takes far longer than it does without a change has
noticed the mutant."""

import pathlib
import random
import re
import resource
import signal
import subprocess
import sys
import time

FOLDERS = ("itemdata", "fxext/values")
# What is built, and which of it is run for a folder.
PROGRAMS = {"itemdata": ("itemdata_test", "plugin_test"), "fxext/values": ("fxext_values_test", "itemdata_test")}
# A program has noticed a mutant when it needs this many times the processor time that it needs without one, and at least
# these seconds; other programs of the machine do not count. One that waits for nothing is ended in the end.
TOO_LONG_FACTOR = 3
TOO_LONG_SECONDS = 15
LONGEST_WAIT = 900

FLIPS = (
    (r"==", "!="), (r"!=", "=="), (r"(?<= )<(?= )", "<="), (r"(?<= )<=(?= )", "<"), (r"(?<= )>(?= )", ">="),
    (r"(?<= )>=(?= )", ">"), (r"&&", "||"), (r"\|\|", "&&"), (r"\btrue\b", "false"), (r"\bfalse\b", "true"),
    (r"\+\+", "--"), (r"(?<!-)--(?!>)", "++"), (r"(?<= )\+(?= )", "-"), (r"(?<= )-(?= )", "+"),
    (r"\+=", "-="), (r"(?<![\w.'])0(?![\w.'x])", "1"), (r"(?<![\w.'])1(?![\w.'])", "2"),
    (r"(?<![\w.'])([2-9]|[1-9]\d+)(?![\w.'])", None), (r"\bif \((?!constexpr)", "if (!("),
)


def code_of(line):
    """The line with comments and texts blanked out, each character in its place."""
    blanked = re.sub(r'"(\\.|[^"\\])*"|\'(\\.|[^\'\\])*\'', lambda found: "~" * len(found.group()), line)
    comment = blanked.find("//")
    return blanked if comment < 0 else blanked[:comment] + " " * (len(blanked) - comment)


def closing(code, start):
    """Where the parenthesis ends that opens just before start; None when it does so on another line."""
    depth = 1
    for at in range(start, len(code)):
        depth += {"(": 1, ")": -1}.get(code[at], 0)
        if depth == 0:
            return at
    return None


def changed(line, code, found, to):
    if to == "if (!(":
        end = closing(code, found.end())
        if end is None or ";" in code[found.end():end]:
            return None
        return line[:found.start()] + to + line[found.end():end] + ")" + line[end:]
    if to is None:
        to = str(int(found.group()) + 1)
    return line[:found.start()] + to + line[found.end():]


def mutants_of(tree):
    for folder in FOLDERS:
        for path in sorted((tree / folder).glob("*.cpp")):
            for number, line in enumerate(path.read_text().split("\n")):
                if line.lstrip().startswith(("#", "//", "static_assert")):
                    continue
                code = code_of(line)
                for pattern, to in FLIPS:
                    for found in re.finditer(pattern, code):
                        new = changed(line, code, found, to)
                        if new is not None and new != line:
                            yield folder, path, number, line, new


def build(objects, programs):
    done = subprocess.run(["cmake", "--build", objects, "--target", *programs], capture_output=True, text=True)
    return done.returncode == 0, done.stdout


def run(objects, program, limit=resource.RLIM_INFINITY):
    """The program's exit code; None when it needs more than limit seconds of the processor, or never ends."""
    try:
        code = subprocess.run([objects / "tests" / program, "--gtest_fail_fast", "--gtest_brief=1"], capture_output=True,
                              timeout=LONGEST_WAIT,
                              preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_CPU, (limit, limit))).returncode
    except subprocess.TimeoutExpired:
        return None
    return None if code in (-signal.SIGXCPU, -signal.SIGKILL) else code


def limits_of(objects, programs):
    """How many seconds of the processor each program may need, by what it needs now; none of them may fail."""
    limits = {}
    for program in programs:
        before = resource.getrusage(resource.RUSAGE_CHILDREN)
        if run(objects, program) != 0:
            sys.exit(f"{program} fails without any change")
        after = resource.getrusage(resource.RUSAGE_CHILDREN)
        seconds = after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime
        limits[program] = max(TOO_LONG_SECONDS, int(TOO_LONG_FACTOR * seconds))
        print(f"{program} needs {seconds:.1f} s and may need {limits[program]} s", flush=True)
    return limits


def noticed(objects, programs, limits):
    """The program that fails, or None."""
    for program in programs:
        code = run(objects, program, limits[program])
        if code is None:
            return program + " (time)"
        if code != 0:
            return program
    return None


def read_equivalent(path):
    reasons = {}
    for line in path.read_text().split("\n"):
        if line and not line.startswith("#"):
            file, old, new, reason = (part.strip() for part in line.split(" | "))
            reasons[file, old, new] = reason
    return reasons


def main():
    tree, objects = (pathlib.Path(argument) for argument in sys.argv[1:3])
    count, seed = int(sys.argv[3]), int(sys.argv[4])
    equivalent = read_equivalent(pathlib.Path(sys.argv[5]))
    everything = sorted({program for programs in PROGRAMS.values() for program in programs})
    fine, output = build(objects, everything)
    if not fine:
        sys.exit("the copy does not build:\n" + output[-3000:])
    limits = limits_of(objects, everything)
    candidates = list(mutants_of(tree))
    random.Random(seed).shuffle(candidates)
    # One file after the other: a change is taken back with the next build, which compiles the file anyway then.
    candidates = sorted(candidates[:count], key=lambda mutant: mutant[1:3]) + candidates[count:]
    print(f"{len(candidates)} possible changes, seed {seed}", flush=True)
    tried = killed = slow = 0
    survivors = []
    for folder, path, number, line, new in candidates:
        if tried == count:
            break
        text = path.read_text()
        lines = text.split("\n")
        lines[number] = new
        path.write_text("\n".join(lines))
        start = time.monotonic()
        fine, _ = build(objects, PROGRAMS[folder])
        by = noticed(objects, PROGRAMS[folder], limits) if fine else None
        path.write_text(text)
        if not fine:
            continue
        tried += 1
        killed += by is not None
        slow += by is not None and by.endswith("(time)")
        name = path.relative_to(tree)
        print(f"{tried} {name}:{number + 1} {by or 'SURVIVED'} {time.monotonic() - start:.0f} s", flush=True)
        if by is None:
            survivors.append((str(name), number + 1, line.strip(), new.strip()))
    print()
    unexplained = 0
    for name, number, line, new in survivors:
        reason = equivalent.get((name, line, new))
        unexplained += reason is None
        print(f"{name}:{number}\n  - {line}\n  + {new}\n  {reason or 'no reason known: the tests lack something'}")
    print(f"{killed} of {tried} noticed ({100 * killed / max(1, tried):.1f} %), {slow} of them by the time it took, "
          f"{len(survivors)} survived, {unexplained} of them unexplained")
    sys.exit(0 if tried == count and killed >= 0.9 * tried and unexplained == 0 else 1)


main()
