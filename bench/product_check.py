"""What the check of the product adds to a build of one C file."""

RUNS = 61


def measure(place):
    sources = place.sources(1)
    place.select("gcc.xml")
    ratio, note = place.ratio(place.zex("-silent", *sources), place.zex("-silent", "-no_zexcheck", *sources), RUNS)
    yield "one C file, with the product check against without", ratio, 1.03, "times", note
