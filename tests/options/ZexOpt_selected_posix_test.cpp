#include <sys/resource.h>

#include <csignal>

#include "options/DocumentTest.hpp"

namespace zex_cmd {
namespace {

/// What an action throws where no file can grow, as on a disk that is full.
template <class Action>
std::string failureOnFullDisk(Action&& action) {
  rlimit former{};
  getrlimit(RLIMIT_FSIZE, &former);
  const auto formerHandler = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit tight{100, former.rlim_max};
  setrlimit(RLIMIT_FSIZE, &tight);
  const std::string failure = zex_test::failureOf(action);
  setrlimit(RLIMIT_FSIZE, &former);
  std::signal(SIGXFSZ, formerHandler);
  return failure;
}

using FullDisk = DocumentTest;

TEST_F(FullDisk, AFailedWriteIsReportedAndDoesNotStay) {
  const zex_test::ScopedVariable preferences("TESSEL_PREFDIR", nullptr);
  host.preferences = scratch.path("prefs");
  ZexOpt opt = load("<config Name='n'><vars OPT='-O'/></config>");
  const std::string path = scratch.told("prefs/saved.xml");
  // A short text fails when the stream is flushed, a long one while it is written.
  for (const char* identifier : {"XMLWriteFailed", "XMLWriteFailedWithMsg"}) {
    scratch.write("prefs/saved.xml", identifier);
    EXPECT_THAT(failureOnFullDisk([&] { opt.writeSelected(scratch.path("prefs/saved.xml")); }),
                testing::StartsWith(std::string("TESSEL:zex:") + identifier + "(\"" + path + "\""));
    EXPECT_EQ(scratch.names("prefs"), std::vector<std::string>{"saved.xml"});
    EXPECT_EQ(scratch.read("prefs/saved.xml"), identifier);
    opt.setVariable(u"LONG", ustring(100'000, u'x'));
  }
}

}  // namespace
}  // namespace zex_cmd
