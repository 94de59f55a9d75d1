#!/usr/bin/python3
"""Plants small faults in the sources, one at a time, and sees whether the tests notice.

    dev/mutate.py [--places N] [--seconds S] [FILE...]   tries N further places, spread over the floors of the files
                                                         (default: 20 places, all of src but layouts and windows)
    dev/mutate.py --survivors                            lists the faults that no test noticed
    dev/mutate.py --figures                              tells how many were planted and noticed, a line a floor
    dev/mutate.py --changes-nothing ID REASON            a survivor that makes no difference: it counts no more

A fault is an off by one, a flipped condition, a wrong sign, a swapped channel or axis, a dropped call, a wrong key.
It goes into a copy of the tree in build/mutants, never into the tree. The tests are those of the file's floor, then
all scenarios; a fault that the compiler refuses is no fault. Outcomes are kept in tests/planted_faults.tsv, which the
next call goes on from: a place is never tried twice while its line stands, and --again tries the survivors once more.
"""

import argparse
import collections
import hashlib
import os
import pathlib
import random
import re
import resource
import shutil
import signal
import subprocess
import sys
import tempfile
import time

TREE = pathlib.Path(__file__).resolve().parents[1]
STATE = TREE / "tests/planted_faults.tsv"
COPY = TREE / "build/mutants/tree"
BUILD = COPY / "build/release"
PATIENCE = 120  # seconds for one program of tests; what takes longer hangs
MEMORY = 4 << 30

# The scenarios of a floor, besides its own program of unit tests. The rest is asked last.
SCENARIOS = {
    "app": ["main", "libraries"], "base": ["store"], "collection": ["collection"], "colour": ["colour"],
    "controls": ["main"], "core": ["main", "language"], "designers": ["designers"], "filters": ["filters"],
    "libraries": ["libraries"], "store": ["store"], "surface": ["tools"], "tools": ["tools", "browser"],
}
PLAYER = "coinlet-play"

SWAPS = [("Red", "Green"), ("Green", "Blue"), ("Blue", "Red"), ("SRCAND", "SRCCOPY"), ("SRCCOPY", "SRCAND"),
         ("Left", "Top"), ("Top", "Left"), ("Width", "Height"), ("Height", "Width")]
CONDITIONS = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "==", "&&": "||", "||": "&&"}
CALL = re.compile(r"^\s*(?:[A-Za-z_]\w*(?:\[[^\]]*\])?(?:\.|->|::))*[A-Za-z_]\w*\([^{}]*\);$")
NO_CALL = re.compile(r"^\s*(return|if|for|while|switch|case|using|static_assert|throw|delete|co_)\b")

Fault = collections.namedtuple("Fault", "file kind line text column old new")


def fault_id(fault):
    """The same for the same change of the same line, wherever that stands in its file."""
    told = "\0".join([fault.file, fault.text.strip(), str(fault.column - indent(fault.text)), fault.old, fault.new])
    return hashlib.sha256(told.encode()).hexdigest()[:8]


def indent(text):
    return len(text) - len(text.lstrip())


def code_of(source):
    """The source with comments, literals of text and directives blanked out, column by column."""
    blank = lambda match: re.sub(r"[^\n]", " ", match[0])  # noqa: E731
    pattern = r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])+\'|^\s*#[^\n]*'
    return re.sub(pattern, blank, source, flags=re.S | re.M)


def keys():
    return re.findall(r"string_view (\w+) = \"\d{3}\"", (TREE / "src/core/text_keys.h").read_text(encoding="utf-8"))


def faults_of_line(line, all_keys):
    """What can be planted in a line of code: kind, column, old text, new text."""
    if "static_assert" in line or re.match(r"\s*(namespace|template|using|enum)\b", line):
        return
    for match in re.finditer(r"(?<![\w.'])\d+(?![\w.'])", line):
        if not re.search(r"\b(array|span)<[^;(]*$", line[:match.start()]):
            yield "off by one", match.start(), match[0], str(int(match[0]) + 1)
    for match in re.finditer(r"(?<= )(<=|>=|==|!=|<|>|&&|\|\|)(?= )", line):
        yield "flipped condition", match.start(), match[0], CONDITIONS[match[0]]
    for match in re.finditer(r"\b(true|false)\b", line):
        yield "flipped condition", match.start(), match[0], "false" if match[0] == "true" else "true"
    match = re.match(r"\s*(?:\} else )?if \(([^;]*)\)( \{| [a-z].*;)?$", line)
    if match and match[1].count("(") == match[1].count(")") and " = " not in match[1]:
        yield "flipped condition", match.start(1), match[1], f"!({match[1]})"
    for match in re.finditer(r"(?<=[\w)\]] )[+-](?= [\w(])", line):
        yield "wrong sign", match.start(), match[0], "-" if match[0] == "+" else "+"
    for old, new in SWAPS:
        for match in re.finditer(rf"\b{old}\b(?=\(|,|\))", line):
            yield "swapped channel or axis", match.start(), old, new
    for match in re.finditer(r"(?<=\.)[xy]\b", line):
        yield "swapped channel or axis", match.start(), match[0], "y" if match[0] == "x" else "x"
    if CALL.match(line) and not NO_CALL.match(line):
        yield "dropped call", indent(line), line.strip(), ";"
    for match in re.finditer(r"\bkey::(\w+)", line):
        if match[1] in all_keys:
            yield "wrong key", match.start(1), match[1], all_keys[(all_keys.index(match[1]) + 1) % len(all_keys)]


def faults_of(path, all_keys):
    source = (TREE / path).read_text(encoding="utf-8")
    lines = source.split("\n")
    for number, code in enumerate(code_of(source).split("\n")):
        for kind, column, old, new in faults_of_line(code, all_keys):
            if lines[number][column:column + len(old)] == old:
                yield Fault(path, kind, number + 1, lines[number], column, old, new)


# --- What is known -----------------------------------------------------------------------------------------

def read_state():
    """By the fault's number: outcome, by whom or why, and what was planted where."""
    if not STATE.exists():
        return {}
    rows = [line.split("\t") for line in STATE.read_text(encoding="utf-8").splitlines() if not line.startswith("#")]
    return {row[0]: row[1:] for row in rows}


def write_state(state):
    head = "# id\toutcome\tby or because\tfile\tkind\tline\tplanted\n"
    rows = sorted(state.items(), key=lambda item: (item[1][2], int(item[1][4]), item[0]))
    text = head + "".join("\t".join([number, *row]) + "\n" for number, row in rows)
    beside = STATE.with_suffix(".new")
    beside.write_text(text, encoding="utf-8")
    beside.replace(STATE)


def row_of(fault, outcome, told):
    line = fault.text.strip()
    start = fault.column - indent(fault.text)
    planted = f"{line[:start]}[{fault.old} => {fault.new}]{line[start + len(fault.old):]}"
    return [outcome, told, fault.file, fault.kind, str(fault.line), planted]


def floor_of(path):
    return path.split("/")[1]


def figures(state):
    counts = collections.defaultdict(collections.Counter)
    for row in state.values():
        counts[floor_of(row[2])][row[0]] += 1
    counts["all"] = sum((counts[floor] for floor in list(counts)), collections.Counter())
    for floor in sorted(counts, key=lambda name: (name == "all", name)):
        count = counts[floor]
        real = count["noticed"] + count["survived"]
        share = f"{100 * count['noticed'] / real:.0f} %" if real else "-"
        print(f"{floor:12} {real:4} planted, {count['noticed']:4} noticed ({share}); "
              f"{count['changes nothing']} more change nothing")


def survivors(state):
    for number, row in sorted(state.items(), key=lambda item: item[1][2]):
        if row[0] == "survived":
            print(f"{number}  {row[2]}:{row[4]}: {row[5]}")


# --- The copy, and the tests in it -------------------------------------------------------------------------

def call(command, patience=PATIENCE, **further):
    """The exit status and the output; status None for a program that had to be stopped."""
    limits = lambda: resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))  # noqa: E731
    with subprocess.Popen([str(part) for part in command], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                          errors="replace", start_new_session=True, preexec_fn=limits, **further) as process:
        try:
            out = process.communicate(timeout=patience)[0]
            return process.returncode, out
        except subprocess.TimeoutExpired:
            os.killpg(process.pid, signal.SIGKILL)
            process.communicate()
            return None, ""


def copy_tree():
    """Makes the copy like the tree again, and writes only what differs, so that little is built anew."""
    listed = subprocess.run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"], cwd=TREE,
                            check=True, stdout=subprocess.PIPE).stdout.decode().split("\0")
    wanted = {name for name in listed if name and (TREE / name).is_file()}
    for folder in ("src", "dev", "tests", "bench", "cmake"):
        for path in list((COPY / folder).rglob("*")):
            if path.is_file() and str(path.relative_to(COPY)) not in wanted:
                path.unlink()
    for name in wanted:
        source, target = TREE / name, COPY / name
        if not target.exists() or target.read_bytes() != source.read_bytes():
            target.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(source, target)


def targets(floor):
    return [f"unit_{floor}", PLAYER] if floor in SCENARIOS else [f"unit_{floor}"]


def build(floor):
    return call(["ninja", "-C", BUILD, "-j1", *targets(floor)], patience=1800)


def play(script):
    data = COPY / "data"
    return call([COPY / "tests/scenarios/run_scenario.sh", BUILD / PLAYER, data, script])[0] == 0


def what_notices(floor, of_all=True):
    """The name of the first test that fails, of the floor's, then of all scenarios; nothing if all pass."""
    unit = next(BUILD.rglob(f"unit_{floor}"))
    status, out = call([unit, "--gtest_brief=1", "--gtest_fail_fast"], cwd=unit.parent)
    if status != 0:
        failed = re.search(r"\[  FAILED  \] ([\w./]+)", out)
        return f"unit_{floor} {failed[1] if failed else 'hangs' if status is None else 'crashes'}"
    if floor not in SCENARIOS:
        return None
    folder = COPY / "tests/scenarios"
    own = [script for name in SCENARIOS[floor] for script in sorted((folder / name).glob("*.play"))]
    rest = [script for script in sorted(folder.rglob("*.play")) if script not in own] if of_all else []
    for script in own + rest:
        if not play(script):
            return f"scenario {script.relative_to(folder).with_suffix('')}"
    return None


def try_fault(fault):
    target = COPY / fault.file
    sound = target.read_text(encoding="utf-8")
    lines = sound.split("\n")
    line = lines[fault.line - 1]
    lines[fault.line - 1] = line[:fault.column] + fault.new + line[fault.column + len(fault.old):]
    target.write_text("\n".join(lines), encoding="utf-8")
    try:
        if build(floor_of(fault.file))[0] != 0:
            return None
        return what_notices(floor_of(fault.file)) or ""
    finally:
        target.write_text(sound, encoding="utf-8")


# --- Which places ------------------------------------------------------------------------------------------

def default_files():
    """All that has tests without a screen. Where things lie in a window is judged by eye."""
    return [str(path.relative_to(TREE)) for path in sorted((TREE / "src").rglob("*.cpp"))
            if path.parent.name not in ("src", "shell") and not path.stem.endswith("_layout")]


def in_turns(files, known):
    """Faults not tried yet, a floor after the other; within a floor in an order of chance that stays the same."""
    all_keys = keys()
    by_floor = collections.defaultdict(list)
    for path in files:
        by_floor[floor_of(path)] += [fault for fault in faults_of(path, all_keys) if fault_id(fault) not in known]
    for faults in by_floor.values():
        faults.sort(key=fault_id)
        random.Random(1).shuffle(faults)
    while by_floor:
        for floor in sorted(by_floor):
            if by_floor[floor]:
                yield by_floor[floor].pop()
            else:
                del by_floor[floor]


def plant(faults, places, seconds, state):
    copy_tree()
    call(["cmake", "--preset", "release"], patience=600, cwd=COPY)
    sound_floors = set()
    begun, done = time.monotonic(), 0
    # In memory: each script has an application folder of its own.
    room = "/dev/shm" if pathlib.Path("/dev/shm").is_dir() else None
    with tempfile.TemporaryDirectory(prefix="mutants-", dir=room) as scratch:
        os.chmod(scratch, 0o755)  # some tests go on as somebody else
        os.environ.update(QT_QPA_PLATFORM="offscreen", TMPDIR=scratch)
        for fault in faults:
            if done == places or time.monotonic() - begun > seconds:
                break
            floor = floor_of(fault.file)
            if floor not in sound_floors:
                status, out = build(floor)
                failing = what_notices(floor, of_all=not sound_floors) if status == 0 else out[-2000:]
                if failing:
                    sys.exit(f"Without a fault {floor} fails already: {failing}")
                sound_floors.add(floor)
            noticed = try_fault(fault)
            outcome = {None: "refused", "": "survived"}.get(noticed, "noticed")
            state[fault_id(fault)] = row_of(fault, outcome, noticed or "-")
            write_state(state)
            if outcome != "refused":
                done += 1
                print(f"{done:4} {outcome:9} {fault.file}:{fault.line} {fault.kind} {noticed}", flush=True)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("files", nargs="*")
    parser.add_argument("--places", type=int, default=20)
    parser.add_argument("--seconds", type=float, default=float("inf"))
    parser.add_argument("--again", action="store_true", help="the survivors once more")
    parser.add_argument("--survivors", action="store_true")
    parser.add_argument("--figures", action="store_true")
    parser.add_argument("--changes-nothing", nargs=2, metavar=("ID", "REASON"))
    told = parser.parse_args()
    state = read_state()
    if told.changes_nothing:
        number, reason = told.changes_nothing
        state[number][:2] = ["changes nothing", reason]
        write_state(state)
    elif told.survivors:
        survivors(state)
    elif told.figures:
        figures(state)
    else:
        files = [str(pathlib.Path(name).resolve().relative_to(TREE)) for name in told.files] or default_files()
        known = {number for number, row in state.items() if not (told.again and row[0] == "survived")}
        faults = in_turns(files, known)
        if told.again:
            lived = [number for number, row in state.items() if row[0] == "survived"]
            faults = (fault for fault in faults if fault_id(fault) in lived)
        plant(faults, told.places, told.seconds, state)


if __name__ == "__main__":
    main()
