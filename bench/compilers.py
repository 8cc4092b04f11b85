"""The compiler query against the finders' own commands, and discovery in a large catalogue."""

import re
import shutil

RUNS = 41


def finder_commands(tree):
    """The command that each shipped finder falls back on, to be run by a shell of its own."""
    folder = tree / "bin" / "glnxa64" / "zexopts"
    found = [re.findall(r'cmdReturns name="([^"]*)"', path.read_text()) for path in sorted(folder.glob("*.xml"))]
    return [command for commands in found for command in commands]


def large_catalogue(place, count):
    """A tree whose catalogue for C holds `count` documents, none of them of an installed compiler."""
    root = place.root / f"tree{count}"
    catalogue = root / "bin" / "glnxa64" / "zexopts"
    catalogue.mkdir(parents=True)
    shutil.copytree(place.tree / "extern" / "version", root / "extern" / "version")
    text = (place.tree / "bin" / "glnxa64" / "zexopts" / "gcc.xml").read_text()
    text = re.sub(r'<(fileExists|cmdReturns) name="[^"]*" />', '<fileExists name="/no/such/program" />', text)
    for number in range(count):
        (catalogue / f"c{number}.xml").write_text(text.replace('Name="gcc"', f'Name="c{number}"'))
    return root


def discovery_seconds(place, count):
    place.environment["TESSEL_ROOT"] = str(large_catalogue(place, count))
    command = ["sh", "-c", f"{place.program} -n s0.c; test $? -eq 1"]
    seconds = min(place.seconds(command)[0] for _ in range(5))
    del place.environment["TESSEL_ROOT"]
    return seconds


def measure(place):
    script = place.root / "finders.sh"
    script.write_text("".join(f"sh -c '{command}'\n" for command in finder_commands(place.tree)))
    query = [str(place.program.with_name("zexcompilers")), "any", "installed"]
    ratio, note = place.ratio(query, ["sh", str(script)], RUNS)
    yield "zexcompilers against the finders' commands", ratio, 1.50, "times", note

    place.sources(1)
    seconds = discovery_seconds(place, 200)
    yield "discovery among 200 documents, none installed", seconds, 0.5, "s", ""
    yield "discovery among 400 documents against 200", discovery_seconds(place, 400) / seconds, 2.5, "times", ""
