#!/usr/bin/env python3
# Tries the tests: plants the faults of faults.txt in a copy of the tree, builds it once, and runs the tests with each fault
# on. For developers alone, hence in Python, which every Debian has.
#
#     tests/mutation/run.py           all faults
#     tests/mutation/run.py 7 32      these

import json, os, re, shutil, signal, subprocess, sys, time
from pathlib import Path

HERE = Path(__file__).resolve().parent
ROOT = HERE.parent.parent
TREE = ROOT / "build/mutation/tree"
BUILD = TREE / "build/release"
TIME_LIMIT = 180  # seconds for one test program


class Fault:
    def __init__(self, block):
        head, *lines = block.splitlines()
        number, self.words = re.fullmatch(r"(\d+)\. (.+)", head).groups()
        self.number = int(number)
        parts, key = {}, None
        for line in lines:
            key = line[3:10].strip() or key
            parts[key] = (parts[key] + "\n" if key in parts else "") + line[10:]
        self.file, self.was, self.tests = parts["file"], parts["was"], parts["tests"].split()
        self.now = re.sub(r"\bFAULT\b", f"FAULT({number})", parts["is"])

    def place(self, text):
        pattern = r"\s+".join(re.escape(word) for word in self.was.split())
        found = list(re.finditer(pattern, text))
        if len(found) != 1:
            sys.exit(f"Fault {self.number}: {self.file} has {len(found)} times instead of once: {self.was}")
        return found[0].span()


def read_faults():
    text = re.sub(r"^#.*\n", "", (HERE / "faults.txt").read_text(), flags=re.M)
    faults = [Fault(block) for block in re.split(r"\n\n+", text.strip())]
    if [fault.number for fault in faults] != list(range(1, len(faults) + 1)):
        sys.exit("The faults are not numbered from 1 on.")
    return faults


def source_of(file, listed):
    found = [path for path in listed if path.parts[0] == "src" and path.name == file]
    if len(found) != 1:
        sys.exit(f"Below src there are {len(found)} files {file} instead of one.")
    return found[0]


# The changed contents by path. A position counts in the text as it was, so the last fault of a file comes first.
def planted(faults, listed):
    changed = {}
    for file in {fault.file for fault in faults}:
        path = source_of(file, listed)
        text = (ROOT / path).read_text()
        places = sorted(((fault.place(text), fault) for fault in faults if fault.file == file), key=lambda place: place[0])
        for (begin, end), fault in reversed(places):
            text = text[:begin] + fault.now + text[end:]
        changed[path] = f'#include "{HERE / "Fault.h"}"\n{text}'.encode()
    return changed


# Only what differs is written, so that a second run builds little.
def copy_tree(faults):
    names = subprocess.check_output(["git", "ls-files", "-z", "-co", "--exclude-standard"], cwd=ROOT, text=True)
    listed = [Path(name) for name in names.split("\0") if name and (ROOT / name).is_file()]
    changed = planted(faults, listed)
    for path in listed:
        target, content = TREE / path, changed.get(path) or (ROOT / path).read_bytes()
        if target.is_file() and target.read_bytes() == content:
            continue
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_bytes(content)
        shutil.copymode(ROOT / path, target)
    kept = {TREE / path for path in listed}
    for path in TREE.rglob("*"):
        if path.is_file() and path not in kept and BUILD.parent not in path.parents:
            path.unlink()


def build():
    subprocess.run(["cmake", "--preset", "release", "-DVELTON_BENCH=OFF"], cwd=TREE, check=True, stdout=subprocess.DEVNULL)
    subprocess.run(["cmake", "--build", "--preset", "release"], cwd=TREE, check=True)


def known_tests():
    told = json.loads(subprocess.check_output(["ctest", "--test-dir", BUILD, "--show-only=json-v1"]))
    return {test["name"]: (test["command"], {p["name"]: p["value"] for p in test["properties"]}) for test in told["tests"]}


# What the test program failed at; nothing when it passed.
def failure_of(test, fault):
    command, properties = test
    environment = dict(os.environ, VELTON_FAULT=str(fault), GTEST_FAIL_FAST="1")
    environment.update(entry.split("=", 1) for entry in properties["ENVIRONMENT"])
    program = subprocess.Popen(command, cwd=properties["WORKING_DIRECTORY"], env=environment, start_new_session=True,
                               stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, errors="replace")
    try:
        output, _ = program.communicate(timeout=TIME_LIMIT)
    except subprocess.TimeoutExpired:
        os.killpg(program.pid, signal.SIGKILL)
        output, _ = program.communicate()
        return f"no end within {TIME_LIMIT} s, {last_test(output)}"
    if program.returncode == 0:
        return None
    failed = re.search(r"^\[  FAILED  \] (\S+?),? ", output, flags=re.M)
    return failed.group(1) if failed else f"exit code {program.returncode}, {last_test(output)}"


def last_test(output):
    begun = re.findall(r"^\[ RUN      \] (\S+)", output, flags=re.M)
    return f"in {begun[-1]}" if begun else "no test begun"


def first_failure(tests, fault):
    for name in fault.tests:
        if failure := failure_of(tests[name], fault.number):
            return f"found by {name}: {failure}"
    return None


def require_success(tests):
    for name, test in tests.items():
        if failure := failure_of(test, 0):
            sys.exit(f"Without a fault {name} fails: {failure}")
    print(f"Without a fault {len(tests)} test programs pass.", flush=True)


def main():
    faults = read_faults()
    copy_tree(faults)
    build()
    tests = known_tests()
    for fault in faults:
        for name in set(fault.tests) - set(tests):
            sys.exit(f"Fault {fault.number}: there is no test {name}.")
    if wanted := {int(number) for number in sys.argv[1:]}:
        faults = [fault for fault in faults if fault.number in wanted]
        tests = {name: test for name, test in tests.items() if any(name in fault.tests for fault in faults)}
    require_success(tests)

    found = 0
    for fault in faults:
        begun = time.monotonic()
        failure = first_failure(tests, fault)
        found += failure is not None
        print(f"{fault.number:2} {fault.words} {failure or 'MISSED'} ({time.monotonic() - begun:.1f} s)", flush=True)
    print(f"{found} found, {len(faults) - found} missed.")
    return found < len(faults)


if __name__ == "__main__":
    sys.exit(main())
