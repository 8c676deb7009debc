"""Measures whole compiles of generated projects and writes the tables of docs/performance.md.

    compile_bench.py PROGRAM [MEMBERS...]

PROGRAM is tamrikon; generate_project and operation_bench are expected beside it. All files lie in
memory, the commands run in turn, and the best of five counts. With MEMBERS, other than the usual
sizes are measured, and the tables are only printed.
"""

import json
import os
import pathlib
import platform
import re
import shutil
import subprocess
import sys
import tempfile
import time

SIZES = [1000, 10000, 50000, 100000]
RUNS = 5
DOXYGEN_MEMBERS = 10000
DOXYGEN_RUNS = 5
PAGE = pathlib.Path(__file__).resolve().parent.parent / "docs" / "performance.md"
CPP_SOURCES = pathlib.Path(__file__).resolve().parent / "cpp_sources.py"
MEGA = 1e6


def warm_memory():
    """Takes and gives back more memory than any command needs: the first use of a page is, on a virtual
    machine, the host's time. In a process of its own, as a child's peak memory begins with that of its
    parent."""
    subprocess.run([sys.executable, "-c", "bytearray(b'1') * (640 << 20)"], check=True)


class Run:
    """One run of a command: seconds on the wall, of user time, and the peak memory in bytes."""

    def __init__(self, command):
        warm_memory()
        start = time.perf_counter()
        process = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)
        self.errors = process.stderr.read().decode(errors="replace")
        _, status, usage = os.wait4(process.pid, 0)
        self.wall = time.perf_counter() - start
        process.returncode = os.waitstatus_to_exitcode(status)
        if process.returncode != 0:
            sys.exit(f"compile_bench.py: {command[0]} failed:\n{self.errors}")
        self.user = usage.ru_utime
        self.cpu = usage.ru_utime + usage.ru_stime
        self.memory = usage.ru_maxrss * 1024


def best(runs):
    return min(runs, key=lambda run: run.wall)


def emptied(folder):
    shutil.rmtree(folder, ignore_errors=True)
    os.mkdir(folder)


def size_of(folder):
    sizes = [entry.stat().st_size for entry in pathlib.Path(folder).rglob("*") if entry.is_file()]
    return len(sizes), sum(sizes)


def table(head, rows):
    lines = ["| " + " | ".join(head) + " |", "|" + "--:|" * len(head)]
    lines += ["| " + " | ".join(row) + " |" for row in rows]
    return "\n".join(lines) + "\n"


class Bench:
    def __init__(self, program):
        self.program = str(pathlib.Path(program).resolve())
        self.bin = pathlib.Path(self.program).parent

    def generate(self, members):
        shutil.rmtree("project", ignore_errors=True)
        subprocess.run([self.bin / "generate_project", str(members), "project"], check=True)

    def compile(self, template, *options):
        return Run([self.program, "compile", "project/Large.vbp", "--template", template,
                    "--output", "pages", "--no-exec", "--quiet", *options])

    @staticmethod
    def unpack():
        emptied("unpacked")
        return Run(["tar", "xf", "pages.tar", "-C", "unpacked"])

    @staticmethod
    def scan():
        pathlib.Path("tags").unlink(missing_ok=True)
        return Run(["ctags", "--options=NONE", "--langdef=VbScan", "--langmap=VbScan:.bas.cls.frm",
                    "--languages=VbScan",
                    r"--regex-VbScan=/^(Public|Private|Friend) ([A-Z][a-z]+ )*([A-Za-z0-9_]+)/\3/m,member/",
                    "--sort=no", "-R", "-f", "tags", "project/Source"])

    def whole_compiles(self, sizes):
        rows, first = [], {}
        for members in sizes:
            self.generate(members)
            _, source_bytes = size_of("project/Source")
            for template in ("html", "json"):
                compiles, unpacks, scans = [], [], []
                for turn in range(RUNS + 1):
                    emptied("pages")
                    compiles.append(self.compile(template))
                    if turn == 0:  # makes what tar unpacks
                        subprocess.run(["tar", "cf", "pages.tar", "-C", "pages", "."], check=True)
                    unpacks.append(self.unpack())
                    scans.append(self.scan())
                files, output_bytes = size_of("pages")
                run, tar, ctags = best(compiles), best(unpacks), best(scans)
                each = run.wall / members
                first.setdefault(template, each)
                rows.append([
                    f"{members:,}", template, f"{source_bytes / MEGA:.1f}", f"{files:,}",
                    f"{output_bytes / MEGA:.1f}", f"{run.wall:.3f}", f"{run.user:.3f}",
                    f"{run.memory / 2**20:.0f}", f"{(4 * source_bytes) / 2**20 + 64:.0f}",
                    f"{tar.wall:.3f}", f"{ctags.wall:.3f}", f"{run.wall / (tar.wall + ctags.wall):.2f}",
                    f"{each * 1e6:.1f}", f"{each / first[template]:.2f}"])
        return table(["members", "template", "sources MB", "files", "output MB", "s", "user s",
                      "peak MiB", "goal", "tar s", "ctags s", "to tar + ctags", "us a member",
                      "to the first"], rows)

    def phases(self, sizes):
        rows = []
        names = []
        for members in sizes:
            self.generate(members)
            runs = []
            for _ in range(RUNS):
                emptied("pages")
                runs.append(self.compile("html", "--timings"))
            found = re.findall(r"^(\w+)\s+([\d.]+) s$", best(runs).errors, re.MULTILINE)
            names = [name for name, _ in found]
            rows.append([f"{members:,}"] + [seconds for _, seconds in found])
        return table(["members"] + [name + " s" for name in names], rows)

    def again(self, sizes):
        """A compile of what is there already, against one of an empty folder."""
        rows = []
        for members in sizes:
            self.generate(members)
            firsts, seconds = [], []
            for _ in range(RUNS):
                emptied("pages")
                firsts.append(self.compile("html"))
                seconds.append(self.compile("html"))
            first, second = best(firsts), best(seconds)
            rows.append([f"{members:,}", f"{first.wall:.3f}", f"{second.wall:.3f}",
                         f"{second.wall / first.wall:.2f}"])
        return table(["members", "first s", "again s", "ratio"], rows)

    def doxygen(self):
        self.generate(DOXYGEN_MEMBERS)
        shutil.rmtree("cpp", ignore_errors=True)
        # In a process of its own, as the peak memory of those that are measured begins with ours.
        subprocess.run([sys.executable, "-B", CPP_SOURCES, "project", "cpp"], check=True)
        settings = ("INPUT=cpp\nOUTPUT_DIRECTORY=dox\nQUIET=YES\nWARNINGS=NO\nWARN_IF_DOC_ERROR=NO\n"
                    "GENERATE_LATEX=NO\nSEARCHENGINE=NO\nHAVE_DOT=NO\nCLASS_GRAPH=NO\nINCLUDE_GRAPH=NO\n"
                    "INCLUDED_BY_GRAPH=NO\nVERBATIM_HEADERS=NO\nEXTRACT_ALL=YES\nEXTRACT_PRIVATE=YES\n")
        pages = {"a page a class": "NO", "a page a member": "YES"}
        ours, theirs = {}, {}
        for _ in range(DOXYGEN_RUNS):
            for template in ("html", "json"):
                emptied("pages")
                ours.setdefault(template, []).append(self.compile(template))
            for what, separate in pages.items():
                pathlib.Path("Doxyfile").write_text(
                    settings + f"SEPARATE_MEMBER_PAGES={separate}\n", encoding="ascii")
                emptied("dox")
                theirs.setdefault(what, []).append(Run(["doxygen", "Doxyfile"]))
        rows = []
        for template, our_runs in ours.items():
            for what, their_runs in theirs.items():
                our, their = best(our_runs), best(their_runs)
                rows.append([template, what, f"{our.wall:.3f}", f"{their.wall:.2f}",
                             f"{their.wall / our.wall:.1f}", f"{our.memory / 2**20:.0f}",
                             f"{their.memory / 2**20:.0f}"])
        return table(["template", "Doxygen's pages", "s", "Doxygen s", "times as fast", "MiB",
                      "Doxygen MiB"], rows)

    def operations(self):
        program = self.bin / "operation_bench"
        text = subprocess.run([program, "--benchmark_format=json", "--benchmark_repetitions=5"], check=True,
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout
        least = {}
        for entry in json.loads(text)["benchmarks"]:
            if entry["run_type"] == "iteration":
                name = entry["run_name"].replace("_", " ")
                least[name] = min(least.get(name, float("inf")), entry["cpu_time"])
        return table(["operation", "microseconds"],
                     [[name, f"{nanoseconds / 1000:,.1f}"] for name, nanoseconds in least.items()])


def machine():
    processor = re.search(r"model name\s*: (.*)", pathlib.Path("/proc/cpuinfo").read_text())
    memory = re.search(r"MemTotal:\s*(\d+)", pathlib.Path("/proc/meminfo").read_text())
    compiler = subprocess.run(["c++", "--version"], stdout=subprocess.PIPE, text=True, check=True).stdout
    return (f"{processor[1] if processor else platform.machine()}, {os.cpu_count()} processors, "
            f"{int(memory[1]) / 2**20:.0f} GiB, Linux {platform.release()}, {compiler.splitlines()[0]}, "
            f"on {time.strftime('%Y-%m-%d')}; load before the run {os.getloadavg()[0]:.2f}.\n")


def publish(parts):
    """Puts each part between its marks in the page."""
    text = PAGE.read_text(encoding="utf-8")
    for name, part in parts.items():
        begin, end = f"<!-- {name} -->\n", f"<!-- end of {name} -->\n"
        before, _, rest = text.partition(begin)
        _, _, after = rest.partition(end)
        text = before + begin + part + end + after
    PAGE.write_text(text, encoding="utf-8")


def main():
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    bench = Bench(sys.argv[1])
    sizes = [int(size) for size in sys.argv[2:]] or SIZES
    parts = {"machine": machine()}
    work = tempfile.mkdtemp(prefix="tamrikon-bench.", dir="/dev/shm")
    os.chdir(work)
    try:
        # Doxygen first: a child's peak memory begins with this program's, which grows.
        for name, measure in (("doxygen", bench.doxygen),
                              ("whole compiles", lambda: bench.whole_compiles(sizes)),
                              ("phases", lambda: bench.phases(sizes)),
                              ("unchanged", lambda: bench.again(sizes)),
                              ("operations", bench.operations)):
            parts[name] = measure()
            print(f"{name}\n\n{parts[name]}", flush=True)
    finally:
        os.chdir("/")
        shutil.rmtree(work)
    if sizes == SIZES:
        publish(parts)


if __name__ == "__main__":
    main()
