#!/usr/bin/env python3
"""Measures the translator beside its yardsticks; see README.md."""

import argparse
import os
import sys
import tempfile

sys.dont_write_bytecode = True  # no cache folder beside the sources

import generate_installation as generator
from bench import Bench, remove
from everyday import measure_everyday
from generation import measure_generation
from measuring import file_system, machine, show


def parse_arguments():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--build", metavar="FOLDER", required=True,
                        help="where everything was built, a release")
    parser.add_argument("--size", choices=(*generator.PRESETS, "both"), default="medium")
    parser.add_argument("--runs", type=int, default=7)
    parser.add_argument("--work", metavar="FOLDER", help="keeps the installations for next time")
    parser.add_argument("--disk", metavar="FOLDER", default=".", help="on a disk file system")
    args = parser.parse_args()
    if args.runs < 1:
        parser.error("--runs must be at least 1")
    return args


def main():
    args = parse_arguments()
    work = args.work or tempfile.mkdtemp(prefix="translator-benchmark-", dir="/dev/shm")
    disk = tempfile.mkdtemp(prefix="translator-benchmark-", dir=args.disk)
    try:
        with open(os.path.join(args.build, "benchmark.md"), "w", encoding="utf-8") as report:
            bench = Bench(args, os.path.abspath(work), os.path.abspath(disk), report)
            show(report, "machine", ["", ""],
                 machine() + [["file system", file_system(work)],
                              ["file system of the disk section", file_system(disk)],
                              ["rounds", f"{args.runs} after one to warm up"]])
            measure_generation(bench, generator.PRESETS if args.size == "both" else [args.size])
            measure_everyday(bench)
    finally:
        remove(disk)
        if not args.work:
            remove(work)


if __name__ == "__main__":
    main()
