#include <sys/stat.h>
#include <unistd.h>

#include "end_to_end/EndToEnd.hpp"

namespace end_to_end {

// A tool that looks around in the shared temporary folder while the build is at work, first as the builder, then
// as somebody else.
TEST_F(EndToEnd, NobodyElseTouchesABuildInASharedFolder) {
  if (geteuid() != 0 || shell("setpriv --reuid=65534 --regid=65534 --clear-groups true").status != 0)
    GTEST_SKIP() << "a second user is needed, and root to become one";
  std::filesystem::permissions(temporary, std::filesystem::perms(01777));
  write("intruder.sh",
        "for entry in \"$TMPDIR\"/zex_*; do\n"
        "  ls \"$entry/\" && echo listed $entry\n"
        "  cat \"$entry\" && echo read $entry\n"
        "  echo id >> \"$entry\" && echo written $entry\n"
        "  : > \"$entry/a.o\" && echo entered $entry\n"
        "  mv \"$entry\" \"$entry.moved\" && echo moved $entry\n"
        "  rm -rf \"$entry\" && echo removed $entry\n"
        "done 2> /dev/null\n");
  write("tool.sh",
        "find \"$TMPDIR\" -mindepth 1 -maxdepth 1 -printf '%y %m\\n' | sort -u > modes\n"
        "find \"$TMPDIR\" -mindepth 1 -maxdepth 1 | wc -l > count\n"
        "setpriv --reuid=65534 --regid=65534 --clear-groups sh < intruder.sh > intrusions\n"
        "exec gcc \"$@\"\n");
  write("watched.xml", gccDocument("COMPILER='\"$GCC_PROGRAM\"'", "COMPILER='sh ./tool.sh'"));

  for (const mode_t mask : {0, 077}) {
    const mode_t former = umask(mask);
    const Outcome outcome = zex("-f watched.xml value.c", {"count", "intrusions", "modes", "value.zexa64"});
    umask(former);

    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(contentOf("modes"), "d 700\nf 600\n");
    EXPECT_EQ(contentOf("count"), "4\n");  // the folder, a script and its two capture files
    EXPECT_EQ(contentOf("intrusions"), "");
    for (const char* made : {"count", "intrusions", "modes", "value.zexa64"}) std::filesystem::remove(made);
  }
}

}  // namespace end_to_end
