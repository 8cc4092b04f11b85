"""Peak memory of the driver alone, without the compilers that it runs."""

# The last command of the build looks for the driver among its ancestors and writes down the peak that the system has
# noted for it.
ASK = """process=$PPID
until [ "$(cat /proc/$process/comm)" = zex ]; do
  process=$(sed -n 's/^PPid:[^0-9]*//p' /proc/$process/status)
done
sed -n 's/^VmHWM:[^0-9]*\\([0-9]*\\) kB/\\1/p' /proc/$process/status > peak
"""


def measure(place):
    sources = place.sources(1)
    (place.work / "ask.sh").write_text(ASK)
    place.run(place.zex("-silent", "POSTLINK_CMDS=sh ask.sh", *sources))
    megabytes = int((place.work / "peak").read_text()) / 1024
    yield "peak memory of the driver, one C file", megabytes, 32, "MB", ""
