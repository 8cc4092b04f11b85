"""A dry run of many sources: it must stay near proportional to their number."""

import statistics


def dry_run(place, count):
    place.sources(count)
    command = place.zex("-n", "-silent", "*.c")
    return statistics.median(place.seconds(command)[0] for _ in range(5))


def measure(place):
    thousand = dry_run(place, 1000)
    yield "dry run of 1,000 sources", thousand, 1.0, "s", ""
    ten_thousand = dry_run(place, 10000)
    yield "dry run of 10,000 sources against 1,000", ten_thousand / thousand, 15.0, "times", f"{ten_thousand:.2f} s"
