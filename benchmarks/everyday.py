"""What users wait for beside generation: a start, a list, an update, a message."""

import os
import shutil
import statistics
import subprocess

import generate_installation as generator
from bench import MAP_NAME, compare
from measuring import Case, peak, show

TOKENS = 12_000
ATTACHMENT = 20 * 2**20


def nothing():
    pass


def start_up(bench):
    """Without settings there is nothing to generate: what remains is starting and ending."""
    compare(bench, "starting in command-line mode beside an empty program",
            [Case("empty program", nothing, [bench.built("benchmarks/benchmark-empty")]),
             Case("the program", nothing, [bench.program, "WebMail", "default.net", "French"],
                  os.path.join(bench.work, "no settings"))], 5 * bench.args.runs)


def update(bench, folder):
    map_file = os.path.join(folder, MAP_NAME)
    kept, copied = (os.path.join(bench.scratch, name) for name in ("kept", "copied"))
    shutil.copyfile(map_file, kept)
    compare(bench, f"\"Update File\" on a map file of {TOKENS} lines "
            f"({os.path.getsize(map_file) / 1e6:.1f} MB)",
            [Case("cp", nothing, ["cp", map_file, copied]),
             Case("update", lambda: shutil.copyfile(kept, map_file),
                  [bench.built("tests/faults/change_once"), folder, "update"])], 3 * bench.args.runs)


def message(bench):
    file, text, copied = (os.path.join(bench.scratch, name) for name in ("20MB", "text", "copied"))
    with open(file, "wb") as random:
        random.write(os.urandom(ATTACHMENT))
    encode = f"base64 -w 76 '{file}' > '{text}'; cp '{file}' '{copied}'"
    compose = [bench.built("benchmarks/benchmark-compose"), file]
    compare(bench, "composing a message with 20 MB of attachments",
            [Case("base64 -w 76 and cp", nothing, ["sh", "-c", encode]),
             Case("composing", nothing, compose)])
    size = int(subprocess.run(compose, cwd=bench.scratch, check=True,
                              stdout=subprocess.PIPE).stdout)
    used = peak(compose, None, bench.scratch)
    show(bench.report, "memory for that message", ["", "MiB", "ratio"],
         [["the message", size / 2**20, 1.0], ["composing it", used, used / (size / 2**20)]])


def list_filling(bench, folder):
    """A click on a language in the window beside the toolkit's bare list with the same entries."""
    with open(os.path.join(folder, "WebMail-default.net-tokens.map"), "wb") as file:
        pairs = generator.make_map(TOKENS, seed=2)
        lines = "".join(f"\t\t\t{token}\t{value}\r\n" for token, value in pairs)
        file.write(b"\xff\xfe" + lines.encode("utf-16-le"))
    registry = os.path.join(folder, "registry.reg")
    output = subprocess.run(
        ["xvfb-run", "-a", bench.built("benchmarks/benchmark-lists"), str(bench.args.runs)],
        check=True, stdout=subprocess.PIPE, env={**os.environ, "CORVANE_REGISTRY": registry,
                                                 "NO_AT_BRIDGE": "1"}).stdout
    bare, click = (list(map(float, line.split())) for line in output.decode().splitlines())
    ratios = [one / other for one, other in zip(click, bare)]
    show(bench.report, f"a list of {TOKENS} tokens (median ms)", ["", "wall", "ratio"],
         [["the toolkit's list, filled at once", statistics.median(bare), 1.0],
          ["a click on a language", statistics.median(click), statistics.median(ratios)]])


def measure_everyday(bench):
    folder = bench.installation("everyday", 1, 500, TOKENS)
    start_up(bench)
    update(bench, folder)
    message(bench)
    list_filling(bench, folder)
