"""Running commands in turn, their times and peak memory, tables, the machine's description."""

import os
import platform
import statistics
import subprocess
import sys
import time
from collections import namedtuple

# prepare: untimed work before each run
Case = namedtuple("Case", "name prepare command registry", defaults=[None])
Sample = namedtuple("Sample", "wall cpu")  # milliseconds

# A small process in between: a child's peak would otherwise include the size of this process.
PEAK_LAUNCHER = """
import os, sys
child = os.fork()
if child == 0:
    os.execv(sys.argv[1], sys.argv[1:])
_, status, usage = os.wait4(child, 0)
print(usage.ru_maxrss)
sys.exit(os.waitstatus_to_exitcode(status))
"""


def read(path):
    with open(path, "rb") as file:
        return file.read()


def environment(registry):
    return {**os.environ, "CORVANE_REGISTRY": registry} if registry else None


def run_once(case, scratch):
    start = time.perf_counter()
    child = subprocess.Popen(case.command, cwd=scratch, env=environment(case.registry),
                             stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL)
    _, status, usage = os.wait4(child.pid, 0)
    wall = time.perf_counter() - start
    child.returncode = os.waitstatus_to_exitcode(status)
    if child.returncode != 0:
        sys.exit(f"{case.name} ended with status {child.returncode}: no figures")
    return Sample(1000 * wall, 1000 * (usage.ru_utime + usage.ru_stime))


def measure(cases, runs, scratch):
    """A warm-up round, then the cases in turn. Returns a list of samples per case."""
    samples = [[] for _ in cases]
    for number in range(runs + 1):
        for case, own in zip(cases, samples):
            case.prepare()
            sample = run_once(case, scratch)
            if number > 0:
                own.append(sample)
    return samples


def ratio(samples, others, field):
    """The median of the ratios within each round."""
    return statistics.median(getattr(one, field) / max(getattr(other, field), 1e-3)
                             for one, other in zip(samples, others))


def median(samples, field="wall"):
    return statistics.median(getattr(sample, field) for sample in samples)


def peak(command, registry, scratch):
    launcher = [sys.executable, "-I", "-S", "-c", PEAK_LAUNCHER, *command]
    done = subprocess.run(launcher, cwd=scratch, env=environment(registry), check=True,
                          stdout=subprocess.PIPE)
    return int(done.stdout.split()[-1]) / 1024


def show(report, title, header, rows):
    """Prints a table and writes it to the report as Markdown: first column to the left, others to the right."""
    table = [header] + [[cell if isinstance(cell, str) else f"{cell:.2f}" for cell in row]
                        for row in rows]
    widths = [max(len(row[column]) for row in table) for column in range(len(header))]
    lines = [[cell.rjust(width) if column else cell.ljust(width)
              for column, (cell, width) in enumerate(zip(row, widths))] for row in table]
    rule = ["-" * (width - 1) + (":" if column else "-") for column, width in enumerate(widths)]
    print("", title, *("  " + "  ".join(line) for line in lines), sep="\n", flush=True)
    lines.insert(1, rule)
    print("", f"## {title}", "", *("| " + " | ".join(line) + " |" for line in lines),
          sep="\n", file=report, flush=True)


def file_system(path):
    mounts = [line.split()[1:3] for line in read("/proc/mounts").decode().splitlines()]
    under = [(len(point), kind) for point, kind in mounts
             if os.path.realpath(path).startswith(point.rstrip("/") + "/")]
    return max(under, default=(0, "unknown"))[1]


def machine():
    """Rows that describe this machine."""
    def line_of(path, start):
        lines = (line for line in read(path).decode().splitlines() if line.startswith(start))
        return next(lines, ":unknown").split(":")[1].strip()
    memory = int(line_of("/proc/meminfo", "MemTotal").split()[0]) / 1024 ** 2
    return [["CPU", line_of("/proc/cpuinfo", "model name")], ["cores", str(os.cpu_count())],
            ["memory", f"{memory:.1f} GiB"], ["kernel", platform.release()],
            ["load before the runs", f"{os.getloadavg()[0]:.2f}"]]
