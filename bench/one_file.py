"""A build of one C file against a shell script of the same commands."""

RUNS = 41


def measure(place):
    sources = place.sources(1)
    script = place.script(*sources)
    ratio, note = place.ratio(place.zex("-silent", *sources), script, RUNS)
    yield "one C file, implicit selection, against its script", ratio, 1.18, "times", note

    place.select("gcc.xml")
    ratio, note = place.ratio(place.zex("-silent", *sources), script, RUNS)
    yield "one C file, selected-options file, against its script", ratio, 1.15, "times", note
