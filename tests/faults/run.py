#!/usr/bin/env python3
"""run.py PROGRAM CHANGE SHIM LAYOUT: lets every call for a file fail in turn, and checks the files that are left."""
import pathlib
import resource
import shutil
import signal
import subprocess
import sys
import tempfile

PROGRAM, CHANGE, SHIM, LAYOUT = sys.argv[1:]
LANG, MAP = "Bin/NETWebMail/default/lang/", "Bin/WebMail-default.net-tokens-fr.map"
HARMLESS = "short", "interrupted"
MEMORY = "/dev/shm" if pathlib.Path("/dev/shm").is_dir() else None
work = pathlib.Path(tempfile.mkdtemp(prefix="cvlang-faults-", dir=MEMORY))
fresh, again, no_map, used, outside = (work / n for n in ("fresh", "again", "no-map", "used", "outside"))


def contents(folder):
    return {str(f.relative_to(folder)): f.read_bytes() for f in folder.rglob("*") if f.is_file()}


def run(before, command, kind="", at=0, **options):
    """The files afterwards, and whether the fault happened."""
    for folder in used, outside:
        shutil.rmtree(folder, ignore_errors=True)
    shutil.copytree(before, used)
    outside.mkdir()
    status = subprocess.run(command, cwd=outside, stderr=subprocess.DEVNULL, timeout=60, **options, env={
        "LD_PRELOAD": SHIM, "CORVANE_REGISTRY": str(used / "registry.reg"), "FAULT_AT": str(at),
        "FAULT_KIND": kind, "FAULT_TOLD": str(outside / "told")}).returncode
    came = (outside / "told").exists()
    assert status == (-signal.SIGKILL if kind == "kill" and came else 0), (command, kind, at, status)
    return contents(used), came


def verify(holds, old, new, *where):
    assert holds, (where, [(n, old.get(n), new.get(n)) for n in old.keys() | new.keys() if old.get(n) != new.get(n)])


def every_fault(before, command, check):
    runs, done = 0, run(before, command)[0]
    for kind in "fail", "gone", "denied", "full", "kill", "memory", *HARMLESS:
        at, came = 1, True
        while came:
            new, came = run(before, command, kind, at)
            old = done if kind in HARMLESS else contents(before)
            verify(old == new if kind in HARMLESS else check(dict(old), dict(new), done, kind), old, new, command, kind, at)
            at, runs = at + 1, runs + came
    return runs


def check_pages(old, new, _, kind):
    pages = {name for name in old.keys() | new.keys() if name.startswith(LANG + "fr/")}
    half = [name for name in pages if new.get(name) not in (
        None, old.get(name), old.get(name.replace("/fr/", "/SYS/")), translated.get(name), untranslated.get(name))]
    others = all(old.get(name) == new.get(name) for name in old.keys() | new.keys() if name not in pages)
    return others and len(half) <= (kind == "kill")


def check_update(old, new, done, _):
    temporary = MAP.replace("-tokens", "-_tokens")
    state = new.pop(MAP, None), new.pop(temporary, None)
    before, updated = old.pop(MAP, None), done[MAP]
    cut = [text for text in state if text not in (None, before, updated)]  # the disk was full
    return old == new and all(updated.startswith(text) for text in cut) and (cut or state in (
        (updated, None), (before, None), (before, updated), (None, updated), (None, None)))


def check_removal(old, new, done, _):
    """Each map file is as before, maybe with a copy beside it, or done, or its copy is complete."""
    copies = {name[:-1]: new[name] for name in new.keys() - old.keys()}
    return copies.keys() <= old.keys() and all(
        done[name].startswith(copies.get(name, b"")) and new.get(name) in (old[name], done[name])
        or copies.get(name) == done[name] and name not in new for name in old)


def check_growth(old, new, done, _):
    """At most the one file that grows is cut off."""
    return old.keys() == new.keys() and all(
        new[name] == old[name] or done[name] != old[name] and done[name].startswith(new[name]) for name in old)


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
        file.chmod(0o444)
    shutil.copytree(fresh, no_map)
    (no_map / MAP).unlink()
    untranslated, _ = run(no_map, generate)
    limited, _ = run(fresh, generate, preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (300, 300)))
    verify(limited != translated and check_pages(contents(fresh), limited, None, "full"), contents(fresh), limited, "ulimit")
    runs = every_fault(fresh, generate, check_pages) + every_fault(again, generate, check_pages)
    subprocess.run(["sed", "-i", r"s/\r//", fresh / "Bin/WebMail-default.net-lang.txt"], check=True)
    changes = ("update", check_update), ("add", check_growth), ("remove", check_removal), ("language", check_removal)
    for before, name, check in (no_map, *changes[0]), *((fresh, *change) for change in changes):
        runs += every_fault(before, [CHANGE, used / "Bin", name], check)
    print(runs, "faults")
    for file in (fresh / "Bin").glob("WebMail-default.net-*"):
        file.write_bytes(file.read_bytes() + b"x")  # half a character
        file.chmod(0o444)
    for name, _ in changes:  # for root too
        old, new = contents(fresh), run(fresh, [CHANGE, used / "Bin", name])[0]
        verify(old.items() <= new.items(), old, new, "read-only", name)
finally:
    shutil.rmtree(work)
