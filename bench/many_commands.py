"""Two hundred commands that do nothing against a shell script of what the driver starts for them."""

import re

COMMANDS = 200
RUNS = 15


def document(place):
    """A document of nothing but these commands, whose compiler has no version to be checked."""
    text = (place.tree / "bin" / "glnxa64" / "zexopts" / "gcc.xml").read_text()
    text = re.sub(r"\s+CMDLINE\d+='[^']*'", "", text).replace('Name="gcc"', 'Name="none"')
    commands = "".join(f' CMDLINE{number}="true"' for number in range(100, 100 + COMMANDS))
    path = place.root / "many.xml"
    path.write_text(text.replace("<vars", f"<vars{commands}"))
    return path


def scripts(place):
    """The same as scripts of their own, as the driver writes them."""
    folder = place.root / "scripts"
    folder.mkdir()
    lines = []
    for number in range(COMMANDS):
        path = folder / f"{number}.sh"
        path.write_text(f"#!/bin/sh\ntrue > {path}.out 2> {path}.err\n")
        lines.append(f"sh {path}\n")
    script = folder / "all.sh"
    script.write_text("".join(lines))
    return ["sh", str(script)]


def measure(place):
    sources = place.sources(1)
    command = place.zex("-silent", "-f", str(document(place)), *sources)
    ratio, note = place.ratio(command, scripts(place), RUNS)
    yield f"{COMMANDS} commands that do nothing, against their scripts", ratio, 1.60, "times", note
