"""A build of twenty C files against a shell script of the same commands."""

RUNS = 15


def measure(place):
    sources = place.sources(20)
    ratio, note = place.ratio(place.zex("-silent", *sources), place.script(*sources), RUNS)
    yield "twenty C files, implicit selection, against their script", ratio, 1.03, "times", note
