"""Turns a generated project into C++ headers with the same classes, members and comment texts.

    cpp_sources.py PROJECT FOLDER
"""

import pathlib
import re
import sys

TYPES = {"Long": "long", "String": "std::string", "Boolean": "bool", "Currency": "double", "Date": "double"}
DECLARATION = re.compile(
    r"^(Public|Private|Friend) (Event|Const|Declare Function|Sub|Function|Property Get|)\s*(\w+)"
    r"(?: Lib \"[^\"]*\" )?(\(.*?\))?(?: As (\w+))?")
ARGUMENT = re.compile(r"ByVal (\w+) As (\w+)")


def comment(lines):
    """The comment's lines in the form of Doxygen, which knows most of the tags by other names."""
    text = []
    for line in lines:
        word, _, rest = line.strip().partition(" ")
        rest = rest.strip()
        if word == "@see":
            target, _, label = rest.partition(" ")
            text.append("@see " + target.lstrip(".").replace(".", "::") + (" " + label if label else ""))
        elif word == "@rem":
            text.append("@remark " + rest)
        elif word == "@set":
            text.append("- " + rest)
        else:
            text.append(line.strip().replace("<", "\\<").replace(">", "\\>"))
    return "".join("  /// " + line + "\n" for line in text)


def member(match):
    scope, kind, name, arguments, result = match.groups()
    type_name = TYPES.get(result, "void")
    if kind in ("", "Const"):
        declaration = ("static constexpr long " + name + " = 0" if kind else type_name + " " + name)
    else:
        parameters = ", ".join(TYPES[t] + " " + n for n, t in ARGUMENT.findall(arguments or ""))
        declaration = type_name + " " + name + "(" + parameters + ")"
    access = "private" if scope == "Private" else "public"
    return " " + access + ":\n", "  " + declaration + ";\n"


def header(source):
    lines, text, top = [], [], ""
    for line in source.read_text(encoding="ascii").splitlines():
        if line == "'**":
            lines = []
        elif line.startswith("'"):
            lines.append(line[1:])
        elif line == "Option Explicit":
            top, lines = comment(lines), []
        elif lines and (match := DECLARATION.match(line)):
            access, declaration = member(match)
            text += [access, comment(lines), declaration]
            lines = []
    return "#pragma once\n#include <string>\n" + top + "class " + source.stem + " {\n" + "".join(text) + "};\n"


def main():
    project, folder = map(pathlib.Path, sys.argv[1:])
    folder.mkdir()
    for source in sorted((project / "Source").iterdir()):
        (folder / (source.stem + ".h")).write_text(header(source), encoding="ascii")


if __name__ == "__main__":
    main()
