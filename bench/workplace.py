"""A scratch folder with sources, and the program under measurement running in it."""

import os
import resource
import shutil
import statistics
import subprocess
import tempfile
import time
from pathlib import Path

# About the size of a small real source.
SOURCE = """#include <math.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static int ascending(const void* a, const void* b) {{
  const double difference = *(const double*)a - *(const double*)b;
  return (difference > 0) - (difference < 0);
}}

double median{0}(const double* values, size_t count) {{
  double* sorted = malloc(count * sizeof(double));
  double result;
  if (sorted == NULL) return NAN;
  memcpy(sorted, values, count * sizeof(double));
  qsort(sorted, count, sizeof(double), ascending);
  result = count % 2 ? sorted[count / 2] : 0.5 * (sorted[count / 2 - 1] + sorted[count / 2]);
  free(sorted);
  return result;
}}

void print{0}(const double* values, size_t count) {{
  size_t index;
  for (index = 0; index < count; ++index) printf("%zu: %g\\n", index, values[index]);
  printf("median: %g, spread: %g\\n", median{0}(values, count), fabs(values[0] - values[count - 1]));
}}
"""
ENTRY = "void zexFunction(double* values) { print0(values, 10); }\n"


class Workplace:
    """Use it with `with`; the folder goes away at the end."""

    def __init__(self, tree):
        self.tree = Path(tree).resolve()
        self.program = self.tree / "bin" / "glnxa64" / "zex"
        if not self.program.exists():
            raise SystemExit(f"bench: there is no {self.program}; build first, or name a tree")

    def __enter__(self):
        self.root = Path(tempfile.mkdtemp(prefix="zex-bench-"))
        self.work, self.temporary, self.preferences = (self.root / name for name in ("work", "tmp", "prefs"))
        for folder in (self.work, self.temporary, self.preferences):
            folder.mkdir()
        self.environment = dict(os.environ, TMPDIR=str(self.temporary), TESSEL_PREFDIR=str(self.preferences))
        self.environment.pop("TESSEL_ROOT", None)
        return self

    def __exit__(self, *_):
        shutil.rmtree(self.root)

    def sources(self, count):
        """Makes `count` C sources, the first with the entry point, and gives their names."""
        names = [f"s{index}.c" for index in range(count)]
        for index, name in enumerate(names):
            (self.work / name).write_text(SOURCE.format(index) + (ENTRY if index == 0 else ""))
        return names

    def select(self, document):
        """Makes a shipped document the selected one for C, as a setup would leave it."""
        text = (self.tree / "bin" / "glnxa64" / "zexopts" / document).read_text()
        stamped = text.replace("</config>", '<TESSEL release="R2018a"/></config>')
        (self.preferences / "zex_C_glnxa64.xml").write_text(stamped)

    def zex(self, *arguments):
        return [str(self.program), *arguments]

    def script(self, *arguments):
        """The commands that `zex` prints for a dry run, as a command of their own."""
        script = self.root / "script.sh"
        script.write_bytes(self.run(self.zex("-n", "-silent", *arguments)))
        return ["sh", str(script)]

    def run(self, command):
        done = subprocess.run(command, cwd=self.work, env=self.environment, stdin=subprocess.DEVNULL,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        if done.returncode != 0:
            raise SystemExit(f"bench: {command} failed:\n{done.stdout.decode(errors='replace')}")
        return done.stdout

    def seconds(self, command):
        """Wall and processor seconds of a command, with all that it starts."""
        wall, processor = time.perf_counter(), processor_seconds()
        self.run(command)
        return time.perf_counter() - wall, processor_seconds() - processor

    def ratio(self, command, yardstick, runs):
        """Median time of a command against that of another. The two take turns, so that both see the same machine."""
        taken = ([], [])
        for _ in range(runs + 1):
            for column, measured in zip(taken, (command, yardstick)):
                column.append(self.seconds(measured))
                for left in self.temporary.iterdir():  # a script leaves its objects
                    shutil.rmtree(left)
        # The first round warms the caches.
        (wall, processor), (base_wall, base_processor) = (map(statistics.median, zip(*column[1:])) for column in taken)
        note = f"{wall * 1000:.0f} ms against {base_wall * 1000:.0f}; processor time {processor / base_processor:.2f} times"
        return wall / base_wall, note


def processor_seconds():
    usage = resource.getrusage(resource.RUSAGE_CHILDREN)
    return usage.ru_utime + usage.ru_stime
