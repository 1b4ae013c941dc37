#!/usr/bin/env python3
"""run.py PROGRAM UPDATE SHIM LAYOUT: lets every call for a file fail in turn, and looks at what is left."""
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile

PROGRAM, UPDATE, SHIM, LAYOUT = sys.argv[1:]
LANG, MAP = "Bin/NETWebMail/default/lang/", "Bin/WebMail-default.net-tokens-fr.map"
MEMORY = "/dev/shm" if pathlib.Path("/dev/shm").is_dir() else None
work = pathlib.Path(tempfile.mkdtemp(prefix="cvlang-faults-", dir=MEMORY))
fresh, again, no_map, used, outside = (work / n for n in ("fresh", "again", "no-map", "used", "outside"))


def contents(folder):
    return {str(f.relative_to(folder)): f.read_bytes() for f in folder.rglob("*") if f.is_file()}


def run(before, command, kind="", at=0):
    """The files afterwards, and whether the fault came to pass."""
    for folder in used, outside:
        shutil.rmtree(folder, ignore_errors=True)
    shutil.copytree(before, used)
    outside.mkdir()
    status = subprocess.run(command, cwd=outside, stderr=subprocess.DEVNULL, timeout=60, env={
        "LD_PRELOAD": SHIM, "CORVANE_REGISTRY": str(used / "registry.reg"), "FAULT_AT": str(at),
        "FAULT_KIND": kind, "FAULT_TOLD": str(outside / "told")}).returncode
    came = (outside / "told").exists()
    assert status == (-signal.SIGKILL if kind == "kill" and came else 0), (command, kind, at, status)
    return contents(used), came


def every_fault(before, command, check):
    runs = 0
    for kind in "fail", "gone", "denied", "full", "kill":
        at, came = 1, True
        while came:
            new, came = run(before, command, kind, at)
            assert check(contents(before), new, kind), (command, kind, at)
            at, runs = at + 1, runs + came
    return runs


def check_pages(old, new, kind):
    pages = {name for name in old.keys() | new.keys() if name.startswith(LANG + "fr/")}
    half = [name for name in pages if new.get(name) not in (
        None, old.get(name), old.get(name.replace("/fr/", "/SYS/")), translated.get(name), untranslated.get(name))]
    others = all(old.get(name) == new.get(name) for name in old.keys() | new.keys() if name not in pages)
    return others and len(half) <= (kind == "kill")


def check_update(old, new, kind):
    temporary = MAP.replace("-tokens", "-_tokens")
    state = new.pop(MAP, None), new.pop(temporary, None)
    before = old.pop(MAP, None)
    cut = [text for text in state if text not in (None, before, updated)]  # the disk was full
    return old == new and all(updated.startswith(text) for text in cut) and (cut or state in (
        (updated, None), (before, None), (before, updated), (None, updated), (None, None)))


try:
    subprocess.run([LAYOUT, work / "all"], check=True, stdout=subprocess.DEVNULL)
    shutil.copytree(work / "all", fresh, ignore=shutil.ignore_patterns(
        "*Admin*", "*nterprise*", "*ephra*", "*esto*", "options", "controls", "[CIR]*.aspx"))
    registry = fresh / "registry.reg"
    registry.write_bytes(registry.read_bytes().replace(bytes(work / "all"), bytes(used)))
    generate = [PROGRAM, "WebMail", "default.net", "French"]
    translated, _ = run(fresh, generate)
    shutil.copytree(used, again)
    for file in (again / LANG / "fr").rglob("*.*"):
        file.write_bytes(b"\xef\xbb\xbfearlier")
    shutil.copytree(fresh, no_map)
    (no_map / MAP).unlink()
    untranslated, _ = run(no_map, generate)
    runs = every_fault(fresh, generate, check_pages) + every_fault(again, generate, check_pages)
    for before in fresh, no_map:
        updated = run(before, [UPDATE, used / "Bin"])[0][MAP]
        runs += every_fault(before, [UPDATE, used / "Bin"], check_update)
    print(runs, "faults")
finally:
    shutil.rmtree(work)
