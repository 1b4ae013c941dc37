"""An installation to measure on, and two ways of running the program there."""

import os
import re
import shutil
import sys
import zlib

import generate_installation as generator
from measuring import Case, Sample, measure, median, ratio, read, run_once, show

LANGUAGE_PATH = os.path.join("NETWebMail", "default", "lang")
MAP_NAME = "WebMail-default.net-tokens-fr.map"
PAGE = re.compile(r"\.(aspx|ascx|asp|js|xml)$", re.IGNORECASE)


def remove(path):
    shutil.rmtree(path, ignore_errors=True)


class Bench:
    """The settings of this invocation, its report, and the installations it uses."""

    def __init__(self, args, work, disk, report):
        self.args, self.work, self.disk, self.report = args, work, disk, report
        self.program = self.built("src/app/CVLangTranslator")
        self.scratch = os.path.join(work, "scratch")  # the program's log goes there
        os.makedirs(self.scratch, exist_ok=True)

    def built(self, path):
        program = os.path.join(os.path.abspath(self.args.build), path)
        if not os.access(program, os.X_OK):
            sys.exit(f"{program} is not a program")
        return program

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


def compare(bench, title, cases, runs=None):
    """Two cases; the ratio is the second's time divided by the first's."""
    samples = bench.measure(cases, runs)
    rows = [[case.name, median(own), median(own, "cpu"), *(
        [ratio(own, samples[0], field) for field in Sample._fields])]
            for case, own in zip(cases, samples)]
    show(bench.report, title + " (median ms)",
         ["", "wall", "CPU", "wall ratio", "CPU ratio"], rows)
    return samples
