#!/usr/bin/env python3
"""Measures the translator beside its yardsticks; see README.md."""

import argparse
import os
import re
import shutil
import statistics
import sys
import tempfile
import zlib

sys.dont_write_bytecode = True  # no cache folder beside the sources

import generate_installation as generator
from measuring import (Case, Sample, file_system, machine, measure, median, peak, ratio, read,
                       run_once, show)

HERE = os.path.dirname(os.path.abspath(__file__))
LANGUAGE_PATH = os.path.join("NETWebMail", "default", "lang")
MAP_NAME = "WebMail-default.net-tokens-fr.map"
PAGE = re.compile(r"\.(aspx|ascx|asp|js|xml)$", re.IGNORECASE)
LARGE_LINE, SMALL_LINE = 50_000_000, 5_000_000
FEW_TOKENS, MANY_TOKENS = 100, 30_000

def remove(path):
    shutil.rmtree(path, ignore_errors=True)


class Bench:
    """The settings of this invocation, and the installations it uses."""

    def __init__(self, args, work, disk):
        self.args, self.work, self.disk = args, work, disk
        self.program, self.floor, self.once = map(os.path.abspath,
                                                  (args.program, args.floor, args.once))
        self.scratch = os.path.join(work, "scratch")  # the program's log goes there
        os.makedirs(self.scratch, exist_ok=True)

    def installation(self, name, *sizes, place=None, **options):
        """Generates an installation, or takes the one generated before, and checks it once."""
        folder = os.path.join(place or self.work, name)
        with open(generator.__file__, "rb") as file:
            signature = f"{folder} {sizes} {options} {zlib.crc32(file.read())}"
        marker = folder + ".complete"
        if not (os.path.exists(marker) and read(marker).decode() == signature):
            remove(folder)
            generator.write_installation(folder, *sizes, **options)
            with open(marker, "w", encoding="utf-8") as file:
                file.write(signature)
        case = self.translate(folder)
        case.prepare()
        run_once(case, self.scratch)
        check(folder)
        remove(french(folder))
        return folder

    def translate(self, folder, name="the program", prepare=None):
        return Case(name, prepare or (lambda: remove(french(folder))),
                    [self.program, "WebMail", "default.net", "French"],
                    os.path.join(folder, "registry.reg"))

    def measure(self, cases, runs=None):
        return measure(cases, runs or self.args.runs, self.scratch)


def reference(folder):
    return os.path.join(folder, LANGUAGE_PATH, "SYS")


def french(folder):
    return os.path.join(folder, LANGUAGE_PATH, "fr")


def page_files(root):
    return {os.path.relpath(os.path.join(path, name), root)
            for path, _, names in os.walk(root) for name in names if PAGE.search(name)}


def check(folder):
    """Refuses to go on unless the program's output really is translated."""
    map_lines = read(os.path.join(folder, MAP_NAME)).decode("utf-16").split("\r\n")
    known = {line.split("\t")[0].encode() for line in map_lines if line}
    pages = page_files(french(folder))
    if pages != page_files(reference(folder)):
        sys.exit("the language folder does not hold the pages of the reference folder: no figures")
    for page in pages:
        text = read(os.path.join(french(folder), page))
        if not text.startswith(b"\xef\xbb\xbf"):
            sys.exit(f"{page} does not start with EF BB BF: no figures")
        left = known.intersection(re.findall(rb"\[CV_TXT-[^\]\r\n]*\]", text))
        if left:
            sys.exit(f"{page} still holds {left.pop().decode()}: no figures")


def yardsticks(bench, size):
    """cp, once, floor, onepass.pl and the program in turn."""
    folder = bench.installation(size, *generator.PRESETS[size])
    folders = [reference(folder), french(folder)]

    def fresh():
        remove(french(folder))
    onepass = os.path.join(HERE, "onepass.pl")
    map_file = os.path.join(folder, MAP_NAME)
    cases = [Case("cp -r", fresh, ["cp", "-r", *folders]),
             Case("once", fresh, [bench.once, *folders]),
             Case("floor", fresh, [bench.floor, *folders]),
             Case("onepass.pl", fresh, ["perl", onepass, *folders, map_file]),
             bench.translate(folder)]
    samples = bench.measure(cases)
    rows = [[case.name]
            + [pick(getattr(sample, field) for sample in own)
               for field in Sample._fields for pick in (statistics.median, min, max)]
            + [ratio(samples[-1], own, field) for field in Sample._fields]
            for case, own in zip(cases, samples)]
    pages, page_bytes, tokens = generator.PRESETS[size]
    show(bench.args.markdown, f"{size}: {pages} pages of {page_bytes // 1000} KB, {tokens} tokens "
         "(ms; the last columns: the program's time divided by this row's)",
         ["", "wall", "min", "max", "CPU", "min", "max", "wall ratio", "CPU ratio"], rows)
    remove(french(folder))
    return folder


def compare(bench, title, cases, runs=None):
    """Two cases; the ratio is the second's time divided by the first's."""
    samples = bench.measure(cases, runs)
    rows = [[case.name, median(own), median(own, "cpu"), *(
        [ratio(own, samples[0], field) for field in Sample._fields])]
            for case, own in zip(cases, samples)]
    show(bench.args.markdown, title + " (median ms)",
         ["", "wall", "CPU", "wall ratio", "CPU ratio"], rows)
    return samples


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
    show(bench.args.markdown, "load time per token", ["", "microseconds"], rows)


def single_line(bench):
    folders = [bench.installation(f"line-{size}", 1, size, 3000, single_line=True)
               for size in (SMALL_LINE, LARGE_LINE)]
    small, large = compare(bench, "one page of a single line",
                           [bench.translate(folders[0], f"{SMALL_LINE // 1_000_000} MB"),
                            bench.translate(folders[1], f"{LARGE_LINE // 1_000_000} MB")])
    sizes = [os.path.getsize(os.path.join(reference(folder), "Line.aspx")) for folder in folders]
    rows = [[field, ratio(large, small, field) * sizes[0] / sizes[1]] for field in Sample._fields]
    show(bench.args.markdown, "time per byte, large line beside small line", ["", "ratio"], rows)
    return folders[1]


def peak_memory(bench, folders):
    rows = [["nothing (/bin/true): below this no figure can be", peak(["/bin/true"], None, "/")]]
    for name, folder in folders.items():
        case = bench.translate(folder)
        case.prepare()
        rows.append([name, peak(case.command, case.registry, bench.scratch)])
        remove(french(folder))
    show(bench.args.markdown, "peak memory of the program", ["", "MiB"], rows)


def parse_arguments():
    parser = argparse.ArgumentParser(description=__doc__)
    for name in ("program", "floor", "once"):
        parser.add_argument("--" + name, required=True, metavar="PATH")
    parser.add_argument("--size", choices=(*generator.PRESETS, "both"), default="medium")
    parser.add_argument("--runs", type=int, default=7)
    parser.add_argument("--work", metavar="FOLDER", help="keeps the installations for next time")
    parser.add_argument("--disk", metavar="FOLDER", default=".", help="on a disk file system")
    parser.add_argument("--markdown", action="store_true")
    args = parser.parse_args()
    if args.runs < 1:
        parser.error("--runs must be at least 1")
    for path in (args.program, args.floor, args.once):
        if not os.access(path, os.X_OK):
            parser.error(f"{path} is not a program")
    return args


def main():
    args = parse_arguments()
    work = args.work or tempfile.mkdtemp(prefix="translator-benchmark-", dir="/dev/shm")
    disk = tempfile.mkdtemp(prefix="translator-benchmark-", dir=args.disk)
    try:
        bench = Bench(args, os.path.abspath(work), os.path.abspath(disk))
        show(args.markdown, "machine", ["", ""],
             machine() + [["file system", file_system(work)],
                          ["file system of the disk section", file_system(disk)],
                          ["rounds", f"{args.runs} after one to warm up"]])
        sizes = generator.PRESETS if args.size == "both" else [args.size]
        folders = {size: yardsticks(bench, size) for size in sizes}
        existing_folder(bench)
        token_scaling(bench)
        load_time(bench)
        folders[f"one line of {LARGE_LINE // 1_000_000} MB"] = single_line(bench)
        peak_memory(bench, folders)
    finally:
        remove(disk)
        if not args.work:
            remove(work)


if __name__ == "__main__":
    main()
