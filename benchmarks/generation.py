"""Generating a language's pages beside copying them."""

import os
import statistics

import generate_installation as generator
from bench import MAP_NAME, compare, french, reference, remove
from measuring import Case, Sample, file_system, peak, ratio, read, run_once, show

HERE = os.path.dirname(os.path.abspath(__file__))
LARGE_LINE, SMALL_LINE = 50_000_000, 5_000_000
FEW_TOKENS, MANY_TOKENS = 100, 30_000


def yardsticks(bench, size):
    """cp, once, floor, onepass.pl and the program in turn."""
    folder = bench.installation(size, *generator.PRESETS[size])
    folders = [reference(folder), french(folder)]

    def fresh():
        remove(french(folder))
    onepass = os.path.join(HERE, "onepass.pl")
    map_file = os.path.join(folder, MAP_NAME)
    cases = [Case("cp -r", fresh, ["cp", "-r", *folders]),
             Case("once", fresh, [bench.built("benchmarks/benchmark-once"), *folders]),
             Case("floor", fresh, [bench.built("benchmarks/benchmark-floor"), *folders]),
             Case("onepass.pl", fresh, ["perl", onepass, *folders, map_file]),
             bench.translate(folder)]
    samples = bench.measure(cases)
    rows = [[case.name]
            + [pick(getattr(sample, field) for sample in own)
               for field in Sample._fields for pick in (statistics.median, min, max)]
            + [ratio(samples[-1], own, field) for field in Sample._fields]
            for case, own in zip(cases, samples)]
    pages, page_bytes, tokens = generator.PRESETS[size]
    show(bench.report, f"{size}: {pages} pages of {page_bytes // 1000} KB, {tokens} tokens "
         "(ms; the last columns: the program's time divided by this row's)",
         ["", "wall", "min", "max", "CPU", "min", "max", "wall ratio", "CPU ratio"], rows)
    remove(french(folder))
    return folder


def yardsticks_over_existing(bench, size):
    """The same over a folder that an earlier run left."""
    folder = bench.installation(size, *generator.PRESETS[size])
    folders = [reference(folder), french(folder)]

    def keep():
        pass
    run_once(bench.translate(folder), bench.scratch)
    cases = [Case("cp -rT", keep, ["cp", "-rT", *folders]),
             Case("floor", keep, [bench.built("benchmarks/benchmark-floor"), *folders]),
             bench.translate(folder, prepare=keep)]
    samples = bench.measure(cases)
    rows = [[case.name] + [ratio(samples[-1], own, field) for field in Sample._fields]
            for case, own in zip(cases, samples)]
    show(bench.report, f"{size}, existing folder: the program's time divided by this row's",
         ["", "wall", "CPU"], rows)
    remove(french(folder))


def make_awkward(map_file):
    """One token in a hundred has a stray character, begins others, or has a placeholder in its value."""
    lines = [line.split("\t") for line in map_file.decode("utf-16").split("\r\n") if line]
    made = []
    for number, (token, value) in enumerate(lines):
        kind = number % 400
        if kind == 100:
            value += lines[number // 2][0]
        elif kind == 200:
            made.append(f"{token[:-3]}\t{value}")
        elif kind == 300:
            token = "x" + token
        made.append(f"{token}\t{value}")
    return ("\ufeff" + "\r\n".join(made) + "\r\n").encode("utf-16-le")


def awkward_tokens(bench):
    folder = bench.installation("awkward", *generator.PRESETS["medium"])
    path = os.path.join(folder, MAP_NAME)
    clean = read(path)

    def write(content):
        remove(french(folder))
        with open(path, "wb") as file:
            file.write(content)
    compare(bench, "medium pages with a clean and an awkward map file",
            [bench.translate(folder, "clean", lambda: write(clean)),
             bench.translate(folder, "awkward", lambda: write(make_awkward(clean)))])
    write(clean)


def existing_folder(bench):
    folder = bench.installation("disk", *generator.PRESETS["medium"], place=bench.disk)

    def fresh():
        remove(french(folder))
        os.sync()
    # The fresh run just before leaves the existing folder.
    compare(bench, f"existing folder beside fresh folder, medium, on {file_system(bench.disk)}",
            [bench.translate(folder, "fresh folder", fresh),
             bench.translate(folder, "existing folder", os.sync)])


def token_scaling(bench):
    pages, page_bytes, _ = generator.PRESETS["medium"]
    folders = [bench.installation(f"scaling-{tokens}", pages, page_bytes, tokens,
                                  page_tokens=FEW_TOKENS) for tokens in (FEW_TOKENS, MANY_TOKENS)]
    compare(bench, "the same medium pages with a small and a large map file",
            [bench.translate(folders[0], f"{FEW_TOKENS} tokens"),
             bench.translate(folders[1], f"{MANY_TOKENS} tokens")])


def load_time(bench):
    folders = [bench.installation(f"tiny-{tokens}", 1, 500, tokens, page_tokens=FEW_TOKENS)
               for tokens in (FEW_TOKENS, MANY_TOKENS)]
    few, many = compare(bench, "one tiny page with a small and a large map file",
                        [bench.translate(folders[0], f"{FEW_TOKENS} tokens"),
                         bench.translate(folders[1], f"{MANY_TOKENS} tokens")],
                        3 * bench.args.runs)
    rows = [[field] + [1000 * statistics.median(getattr(b, field) - getattr(a, field)
                                                for a, b in zip(few, many))
                       / (MANY_TOKENS - FEW_TOKENS)] for field in Sample._fields]
    show(bench.report, "load time per token", ["", "microseconds"], rows)


def single_line(bench):
    folders = [bench.installation(f"line-{size}", 1, size, 3000, single_line=True)
               for size in (SMALL_LINE, LARGE_LINE)]
    small, large = compare(bench, "one page of a single line",
                           [bench.translate(folders[0], f"{SMALL_LINE // 1_000_000} MB"),
                            bench.translate(folders[1], f"{LARGE_LINE // 1_000_000} MB")])
    sizes = [os.path.getsize(os.path.join(reference(folder), "Line.aspx")) for folder in folders]
    rows = [[field, ratio(large, small, field) * sizes[0] / sizes[1]] for field in Sample._fields]
    show(bench.report, "time per byte, large line beside small line", ["", "ratio"], rows)
    return folders[1]


def peak_memory(bench, folders):
    rows = [["nothing (/bin/true): below this no figure can be", peak(["/bin/true"], None, "/")]]
    for name, folder in folders.items():
        case = bench.translate(folder)
        case.prepare()
        rows.append([name, peak(case.command, case.registry, bench.scratch)])
        remove(french(folder))
    show(bench.report, "peak memory of the program", ["", "MiB"], rows)


def measure_generation(bench, sizes):
    folders = {size: yardsticks(bench, size) for size in sizes}
    for size in sizes:
        yardsticks_over_existing(bench, size)
    awkward_tokens(bench)
    existing_folder(bench)
    token_scaling(bench)
    load_time(bench)
    folders[f"one line of {LARGE_LINE // 1_000_000} MB"] = single_line(bench)
    peak_memory(bench, folders)
