#!/usr/bin/env python3
"""Measures what input does that is made to hurt: each case is generated, compiled with the program
under a limit of time, and fails if it takes too long, too much memory, crashes or writes outside
its output folder. "growth" is the time against that of a case of half the size. Pages lie in memory.

    hostile_input.py PROGRAM [CASE...]

Needs Linux and Python 3. The sizes and bounds below are those that docs/trust.md tells.
"""
import os
import pathlib
import resource
import shutil
import signal
import subprocess
import sys
import tempfile

SECONDS, LIMIT = 15, 60  # the bound, and when a case is stopped
MEGABYTES, PER_BYTE = 512, 24  # memory: the first, and the second for each byte read
HEAD = "#Tamrikon Project Settings#\n"
EVERYTHING = HEAD + "".join(
    f"{key} = 1\n" for key in (
        "comNonCommented comPublic comPrivate comFriend comEvent comMethod comStdModule comObject "
        "comForm comProperty comVariable comConstant insertSourceGlobal").split()) + "comModules = M\n"
PAGE = ("$MEMBER-NAME$\n$MEMBER-DESCRIPTION$\n$IFNOTEMPTY$ $PARAM-LIST$\n$DOLIST$ $PARAM-LIST$\n"
        "$LIST-ITEM-PARAM$ $LIST-ITEM-LABEL$\n$END-DOLIST$\n$END-IFNOTEMPTY$\n"
        "$MEMBER-DECLARATION$\n$MEMBER-SOURCECODE$\n")


def template(page, name="function", more=""):
    return f"$MEMBER-EXT$ .x\n{more}\n$tamrik-{name}-body$\n{page}\n$end-tamrik-{name}-body$\n"


def project(source, page=None, more="", settings=EVERYTHING, template_text=None):
    """The files of a project with one module, and the template it is compiled with."""
    text = template_text or (template(page) if page else None)
    files = {"P.vbp": 'Type=Exe\nModule=M; M.bas\nName="P"\n' + more, "M.bas": source, "P.tamrik": settings}
    if text:
        files["t.tmkt"] = text
    return files


COMMENT = "'**\n"
BODY = "Public Sub S()\nEnd Sub\n"
CASES = {}


def case(size):
    def add(make):
        CASES[make.__name__.replace("_", " ")] = (make, size)
        return make
    return add


# Names and paths.

@case(0)
def names_that_lead_out(_):
    up = "../../up"
    return {
        "P.vbp": f'Type=Exe\nClass=../M; M.cls\nModule=/tmp/N; N.bas\nName="{up}"\nHelpFile="{up}"\n'
                 "ResFile32=../../../etc/passwd\nRelatedDoc=/etc/passwd\n",
        "M.cls": f'Attribute VB_Name = "{up}"\n{COMMENT}\'x @see "{up}\n\'@see "/etc/passwd\n'
                 f"'@example {up}\n'@same {up}\n{BODY}Public [{up}] As Long\nConst [/etc/x] = 1\n",
        "N.bas": f'Attribute VB_Name = "..\\..\\up"\nSub [..](): End Sub\nSub [{up}](): End Sub\n',
        "P.tamrik": EVERYTHING + f"userName1 = {up}\nprojectName = {up}\n"}


@case(0)
def a_file_as_folder(_):
    return {**project(BODY), "P.vbp": "Type=Exe\nModule=M; M.bas/x\nClass=A; ../../../../../etc/passwd/x\n"}


@case(0)
def pipes_and_devices_as_sources(_):
    lines = [f"Class=C{n}; {name}\n" for n, name in enumerate(
        ["pipe", "/dev/zero", "/dev/stdin", "/proc/kmsg", "/proc/kcore", "zero", ".", "/"])]
    return {**project(BODY, more="".join(lines)), "pipe": None, "zero": pathlib.Path("/dev/zero")}


@case(0)
def a_pipe_as_settings(_):
    return {**project(BODY), "P.tamrik": None}


@case(0)
def a_device_as_settings(_):
    return {**project(BODY), "P.tamrik": pathlib.Path("/dev/zero")}


@case(0)
def a_device_as_project(_):
    return {"P.vbp": pathlib.Path("/dev/zero")}


@case(0)
def a_pipe_as_page(_):
    return {**project(BODY * 9000), "out/M.html": None}


@case(1 << 40)
def a_source_with_a_hole(size):
    return {**project(BODY), "M.bas": size}


@case(0)
def links_in_circles(_):
    path = "\\".join(["a"] * 200) + "\\gone.bas"
    return {**project(BODY, more=f"Module=N; {path}\n"), "a": pathlib.Path("."),
            "A": pathlib.Path(".")}


@case(0)
def a_group_of_itself(_):
    return {**project(BODY), "G.vbg": "VBGROUP 5.0\nProject=G.vbg\nStartupProject=P.vbp\n"
                                      "Project=./G.vbg\nProject=P.vbp\n"}


@case(10000)
def modules(count):
    names = [f"M{n}" for n in range(count)]
    return {"P.vbp": "Type=Exe\n" + "".join(f"Module={name}; {name}.bas\n" for name in names),
            "P.tamrik": EVERYTHING + "".join(f"comModules = {name}\n" for name in names),
            **{name + ".bas": BODY for name in names}}


@case(10000)
def modules_that_are_gone(count):
    return project(BODY, more="".join(f"Module=N{n}; d\\\xe9{n}.bas\n" for n in range(count)))


@case(1000)
def projects_in_a_group(count):
    files = {"G.vbg": "VBGROUP 5.0\n" + "".join(f"Project=P{n}.vbp\n" for n in range(count)), "M.bas": BODY}
    return {**files, **{f"P{n}.vbp": f"Type=Exe\nModule=M; M.bas\nName=P{n}\n" for n in range(count)}}


@case(0)
def a_disk_that_is_read_only(_):
    return {**project(COMMENT + BODY), "read-only": ""}


# Templates.

@case(0)
def a_template_that_doubles(_):
    more = "".join(f"$A{n}$ $A{n + 1}$$A{n + 1}$\n" for n in range(60)) + "$A60$ x"
    return project(BODY, template_text=template("$A0$", more=more))


@case(0)
def a_template_that_calls_itself(_):
    return project(BODY, template_text=template("$A$", more="$A$ $A$$A$"))


@case(1000000)
def lists_in_lists(size):
    items = "".join(f"'@param p{n}\n" for n in range(300))
    page = "$DOLIST$ $PARAM-LIST$\nxx\n" * 30 + "$END-DOLIST$\n" * 30
    return project(COMMENT + items + BODY, page)


@case(200000)
def deep_conditions(depth):
    return project(COMMENT + BODY, "$IFNOTEMPTY$ $MEMBER-NAME$\n" * depth +
                   "$END-IFNOTEMPTY$\n" * depth)


@case(200000)
def conditions_without_end(depth):
    return project(COMMENT + BODY, "$IFNOTEMPTY$ $MEMBER-NAME$\n" * depth)


@case(10_000_000)
def a_template_of_signs(size):
    return project(BODY, template_text=template("$ " * (size // 2)))


@case(200)
def a_table_that_replaces_itself(pairs):
    table = "".join(f"{chr(97 + n % 26)} {chr(97 + (n + 1) % 26) * 2} " for n in range(pairs))
    return project(BODY, template_text=template(
        "$REPLACE-ON$$MEMBER-NAME$", more="$REPLACE-TABLE$ " + table))


@case(0)
def a_comment_that_calls_itself(_):
    return project(COMMENT + "' $MEMBER-DESCRIPTION$$MEMBER-DESCRIPTION$\n"
                   "'@author $MEMBER-AUTHOR$$MEMBER-AUTHOR$\n" + BODY)


@case(2000)
def a_comment_that_walks_the_index(members):
    walk = "' $DOLIST$ $INDEX-LINK-LIST$\n'$DOLIST$ $INDEX-LINK-LIST$\n'x\n'$END-DOLIST$\n'$END-DOLIST$\n"
    return project("".join(f"Public Sub S{n}()\nEnd Sub\n" for n in range(members)) +
                   COMMENT + walk + BODY)


# Sources.

@case(10_000_000)
def a_comment_of_one_line(size):
    return project(COMMENT + "' " + "word " * (size // 5) + "\n" + BODY)


@case(10_000_000)
def a_comment_of_many_lines(size):
    return project(COMMENT + "' some words on it\n" * (size // 19) + BODY)


@case(10_000_000)
def a_comment_of_signs(size):
    return project(COMMENT + "'" + "$<&\"" * (size // 4) + "\n" + BODY)


@case(100000)
def parameters(count):
    return project(COMMENT + "".join(f"'@param p{n} of {n}\n" for n in range(count)) + BODY)


@case(100000)
def links(count):
    return project(COMMENT + "".join(f"'@see M.S{n} a word\n" for n in range(count)) + BODY)


@case(100000)
def sets(count):
    return project(COMMENT + "".join(f"'@set p c{n} {n} text\n" for n in range(count)) + BODY)


@case(100000)
def same_after_same(count):
    return project("".join(f"{COMMENT}'@same M.S{n + 1}\nPublic Sub S{n}()\nEnd Sub\n"
                           for n in range(count // 4)))


@case(20000)
def members(count):
    return project("".join(f"{COMMENT}' x\nPublic Sub S{n}()\nEnd Sub\n" for n in range(count)))


@case(20000)
def members_of_one_name(count):
    return project("".join(f"{COMMENT}' x\nPublic Sub S(a{n})\nEnd Sub\n" for n in range(count)))


@case(5000)
def names_below_one_comment(count):
    return project(COMMENT + "' x\n" * count + "Public " +
                   ", ".join(f"a{n} As Long" for n in range(count)) + "\n")


@case(100000)
def names_below_empty_lines(count):
    return project(COMMENT + "' x\n" + "\n" * count + "Public " +
                   ", ".join(f"a{n}" for n in range(count // 5)) + "\n")


@case(20000)
def names_on_continued_lines(count):
    return project(COMMENT + "' x\nPublic " + ", _\n".join(f"a{n}" for n in range(count)) + "\n")


@case(20000)
def declarations_on_one_line(count):
    return project(": ".join(f"Public a{n}" for n in range(count)) + "\n")


@case(100000)
def procedures_on_one_line(count):
    return project(": ".join(f"Sub a{n}(): End Sub" for n in range(count // 5)) + "\n")


@case(100000)
def lines_of_code(count):
    return project(COMMENT + "' x\nPublic Sub S()\n" + "    x = x + 1\n" * count + "End Sub\n")


@case(100000)
def lines_that_continue(count):
    return project(COMMENT + "' x\nPublic Sub S(a, _\n" + "b, _\n" * count + "c)\nEnd Sub\n")


@case(10_000_000)
def a_line_of_code(size):
    return project(COMMENT + "' x\nPublic Sub S(" + "a As Long, " * (size // 11) + "b)\nEnd Sub\n")


@case(10_000_000)
def a_line_of_parentheses(size):
    return project(COMMENT + "' x\nPublic Sub S" + "(" * (size // 2) + ")" * (size // 2) + "\nEnd Sub\n")


@case(10_000_000)
def a_line_of_quotes(size):
    return project(COMMENT + "' x\nPublic Sub S(" + 'a = "(", ' * (size // 9) + "b)\nEnd Sub\n")


@case(10_000_000)
def a_line_of_blanks(size):
    return project(COMMENT + "'" + " " * size + "\nPublic Sub S()\nEnd Sub\n" + " " * size + "\n")


@case(10_000_000)
def a_line_of_odd_bytes(size):
    return {**project(""), "M.bas": (COMMENT + "'").encode() + b"\xff\x00\x80$" * (size // 4) +
            b"\n" + BODY.encode()}


@case(100000)
def conditions_in_conditions(depth):
    return project("#If x Then\n" * depth + "#End If\n" * depth + COMMENT + "'x\n" + BODY +
                   "#If " + "(" * depth + "\n#If " + "Not " * depth + "\n")


@case(100000)
def constants_of_the_compiler(count):
    return project("".join(f"#Const c{n} = c{n - 1} + 1\n" for n in range(count)) + COMMENT + "'x\n" + BODY)


@case(100000)
def blocks_in_blocks(depth):
    return {**project(""), "M.bas": "VERSION 5.00\n" + "Begin VB.Form x\n" * depth + "End\n" * depth +
            "Attribute VB_Name = \"M\"\n" * depth + COMMENT + "'x\n" + BODY}


@case(20000)
def attributes(count):
    return project(COMMENT + "'x\nPublic Sub S()\n" + 'Attribute S.VB_Description = "x"\n' * count +
                   "End Sub\n" + "".join(f'Public a{n}\nAttribute a{n}.VB_VarHelpID = 1\n'
                                         for n in range(count)))


@case(10_000_000)
def a_long_setting(size):
    return project(BODY, settings=EVERYTHING + "titlePageText = " + "$x\\n" * (size // 4) + "\n" +
                   "addSee = 1\n" * (size // 100))


def write(folder, files):
    """In a process of its own, whose memory would otherwise count as the program's."""
    child = os.fork()
    if child == 0:
        write_here(folder, files())
        os._exit(0)
    if os.waitpid(child, 0)[1] != 0:
        sys.exit("hostile_input.py: cannot write the case")


def write_here(folder, files):
    for name, content in files.items():
        path = folder / name
        path.parent.mkdir(exist_ok=True)
        if content is None:
            os.mkfifo(path)
        elif isinstance(content, pathlib.Path):
            path.symlink_to(content)
        elif isinstance(content, int):
            with open(path, "wb") as file:
                file.truncate(content)
        else:
            path.write_bytes(content if isinstance(content, bytes) else content.encode("latin-1"))


def bytes_below(folder):
    return sum(path.stat().st_blocks * 512 if path.stat().st_size >> 32 else path.stat().st_size
               for path in folder.rglob("*") if path.is_file() and not path.is_symlink())


def names_below(folder):
    return {path for path in folder.rglob("*") if "out" not in path.relative_to(folder).parts[:2]}


def measure(program, files):
    """Seconds of the processor, megabytes, what was read and written, and how it ended."""
    with tempfile.TemporaryDirectory(dir="/dev/shm") as name:
        top = pathlib.Path(name)
        folder = top / "p"
        folder.mkdir()
        write(folder, files)
        before, read = names_below(top), bytes_below(folder)
        main = "G.vbg" if (folder / "G.vbg").exists() else "P.vbp"
        own = folder / "t.tmkt"
        words = [program, "compile", folder / main, "--no-exec", "--output", folder / "out",
                 "--template", own if own.exists() else "html"]
        if (folder / "read-only").exists():
            mount = 'mount --bind "$0" "$0" && mount -o remount,ro,bind "$0" && exec "$@"'
            words = ["unshare", "-rm", "sh", "-c", mount, folder, *words]
        run = subprocess.Popen(words, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                               stderr=subprocess.PIPE)
        timed_out = []
        signal.signal(signal.SIGALRM, lambda *_: (timed_out.append(1), run.kill()))
        signal.alarm(LIMIT)
        complaint = run.stderr.read()
        _, status, usage = os.wait4(run.pid, 0)
        run.returncode = status
        signal.alarm(0)
        seconds = usage.ru_utime + usage.ru_stime
        written = bytes_below(folder) - read
        end = "exit %d" % os.waitstatus_to_exitcode(status)
        if os.WIFSIGNALED(status):
            end = "stopped" if timed_out else "CRASH %d" % os.WTERMSIG(status)
        if names_below(top) != before:
            end = "WROTE OUTSIDE"
        return seconds, usage.ru_maxrss / 1024, read / 1e6, written / 1e6, end


def main():
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    program = os.path.realpath(sys.argv[1])
    wanted = [word.replace("_", " ") for word in sys.argv[2:]] or list(CASES)
    resource.setrlimit(resource.RLIMIT_AS, (8 << 30, 8 << 30))
    print(f"{'case':34}{'size':>14}{'read MB':>9}{'wrote MB':>9}{'s':>8}{'growth':>8}{'MB':>8}  end")
    failed = False
    for name in wanted:
        make, size = CASES[name]
        half = measure(program, lambda: make(size // 2))[0] if size else 0
        seconds, memory, read, written, end = measure(program, lambda: make(size))
        growth = f"{seconds / half:.1f}" if size and seconds > 0.1 else ""
        wrong = (seconds > SECONDS or memory > MEGABYTES + PER_BYTE * read or
                 not end.startswith("exit"))
        failed = failed or wrong
        print(f"{name:34}{size or '':>14}{read:9.1f}{written:9.1f}{seconds:8.2f}{growth:>8}"
              f"{memory:8.0f}  {end}{'  <<<' if wrong else ''}", flush=True)
    sys.exit(1 if failed else 0)


if __name__ == "__main__":
    main()
