"""The inspection of a product of 500 MB: time from page cache and memory."""

import os
import struct
from pathlib import Path

HERE = Path(__file__).resolve().parent
MEGABYTES = 500
RECORD = "@(#)zex-record form=1 kind={} release={} dims=64;"


def product(path):
    """A shared object of one segment; its content is random, as machine code nearly is, with a record at each end."""
    block = os.urandom(1 << 20)
    size = MEGABYTES * 1_000_000
    header = struct.pack("<4sBBB9xHHIQQQIHHHHHH", b"\x7fELF", 2, 1, 1, 3, 62, 1, 0, 64, 0, 0, 64, 56, 1, 0, 0, 0)
    segment = struct.pack("<IIQQQQQQ", 1, 4, 0, 0, 0, size, size, 4096)
    first, last = (RECORD.format(*words).encode() for words in (("driver", "R2017b"), ("source", "R2018a")))
    with open(path, "wb") as file:
        file.write(header + segment + first)
        while file.tell() < size - len(last):
            file.write(block[: size - len(last) - file.tell()])
        file.write(last)


def measure(place):
    libraries = place.tree / "bin" / "glnxa64"
    program = place.root / "inspect_file"
    place.run(["c++", "-std=c++20", "-O2", f"-I{HERE.parent / 'host' / 'include'}", str(HERE / "inspect_file.cpp"),
               "-o", str(program), str(libraries / "libzexhost.so"), f"-Wl,-rpath,{libraries}"])
    product(place.work / "product")
    seconds, kilobytes = map(float, place.run([str(program), "product"]).split())
    yield "inspection of a product of 500 MB", seconds, 0.5, "s", f"{MEGABYTES / 1000 / seconds:.1f} GB/s"
    yield "memory of the inspection over start", kilobytes / 1024, 16, "MB", ""
