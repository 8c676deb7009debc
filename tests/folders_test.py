"""Holds every include of src to the table of folders in docs/architecture.md."""
import os
import pathlib
import re

ROOT = pathlib.Path(__file__).resolve().parent.parent
ROW = re.compile(r"^\| `src/(\w+)` \|[^|]*\|([^|]*)\|", re.M)
allowed = {folder: set(re.findall(r"\w+", includes))
           for folder, includes in ROW.findall((ROOT / "docs/architecture.md").read_text())}
floors = list(allowed)
faults = [f"{folder} -> {lower} doesn't lead down in the table" for folder in floors
          for lower in allowed[folder] if lower not in floors[floors.index(folder) + 1:]]

drawn = {folder: set() for folder in floors}
for file in (ROOT / "src").rglob("*.*"):
    if file.suffix not in (".h", ".cpp"):
        continue
    folder = file.parent.relative_to(ROOT / "src").as_posix()
    for name in re.findall(r'^#include "(.*)"', file.read_text(), re.M):
        lower = os.path.dirname(name)
        if lower != folder and lower not in allowed.get(folder, set()):
            faults.append(f"src/{folder}/{file.name} includes {name}: not drawn in the table")
        drawn.setdefault(folder, set()).add(lower)
faults += [f"{folder} -> {lower} is drawn, and nothing includes it" for folder in floors
           for lower in sorted(allowed[folder] - drawn[folder])]

assert len(floors) > 10, "the table isn't found"
assert not faults, "\n" + "\n".join(faults)
