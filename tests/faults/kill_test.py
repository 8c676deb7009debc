"""Kills the program at any moment of `comment --missing`: each source is then the old or the new one,
and the next run removes what was left beside them.

RUNS tells how often (10).
"""
import os
import pathlib
import random
import subprocess
import sys
import tempfile
import time
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
PROGRAM = os.environ.get("TAMRIKON", ROOT / "build/dev/bin/tamrikon")
RUNS = int(os.environ.get("RUNS", "10"))
FILES = 500
MEMBER = "Public Sub Do{0}(ByVal Item As Long)\r\n    Debug.Print Item\r\nEnd Sub\r\n"


class KillTest(unittest.TestCase):
    def test_sources_are_whole(self):
        with tempfile.TemporaryDirectory() as name:
            folder = pathlib.Path(name)
            names = [f"C{number}.cls" for number in range(FILES)]
            old = "".join(MEMBER.format(number) for number in range(8)).encode()
            (folder / "P.vbp").write_text("Type=Exe\n" + "".join(f"Class={n[:-4]}; {n}\n" for n in names))
            for source in names:
                (folder / source).write_bytes(old)
            command = [PROGRAM, "comment", folder / "P.vbp", "--missing"]
            subprocess.run(command, check=True, stdout=subprocess.DEVNULL)
            new = {source: (folder / source).read_bytes() for source in names}
            self.assertNotIn(old, new.values())
            halfway = left = 0
            for run in range(RUNS):
                for source in names:
                    if (folder / source).read_bytes() != old:
                        (folder / source).write_bytes(old)
                last = folder / random.choice(names)  # once it is there, or a little later
                before = last.stat().st_ino
                with subprocess.Popen(command, stdout=subprocess.DEVNULL) as program:
                    while last.stat().st_ino == before and program.poll() is None:
                        time.sleep(0.0001)
                    time.sleep(random.uniform(0, 0.01))
                    program.kill()
                there = {file.name: file.read_bytes() for file in folder.iterdir()}
                changed = 0
                for source in names:
                    self.assertIn(there[source], (old, new[source]), f"{source} after run {run}")
                    changed += there[source] != old
                halfway += 0 < changed < FILES
                others = there.keys() - set(names) - {"P.vbp"}
                for other in others:
                    self.assertRegex(other, r"^C\d+\.cls\.tamrikon-[0-9a-f]{8}-\w{6}$")
                left += len(others)
                if others:
                    subprocess.run(command, check=True, stdout=subprocess.DEVNULL)
                    there = {file.name: file.read_bytes() for file in folder.iterdir()}
                    self.assertEqual(there.keys() - {"P.vbp"}, set(names), f"after run {run}")
                    self.assertEqual({name: there[name] for name in names}, new)
            print(f"{RUNS} runs, {halfway} stopped between the first and the last "
                  f"source, {left} temporary files beside sources", file=sys.stderr)
            self.assertGreater(halfway, RUNS / 2, "killed at the wrong moments")


if __name__ == "__main__":
    unittest.main()
