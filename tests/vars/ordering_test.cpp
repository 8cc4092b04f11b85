#include "vars/ordering.hpp"

#include <gmock/gmock.h>

#include "options/ZexOpt.hpp"
#include "support/RecordingServices.hpp"
#include "support/Scratch.hpp"
#include "support/texts.hpp"

namespace zex_cmd {
namespace {

/// Short names in the order of expansion, or the failure.
std::string orderOf(const std::string& variables, const std::string& environment = {}) {
  const zex_test::Scratch scratch;
  const zex_test::RecordingServices host;
  scratch.write("doc.xml", "<config><env " + environment + "/><vars " + variables + "/></config>");
  const ZexOpt opt(scratch.path("doc.xml"), "", u"", false);
  std::string result;
  const std::string failure = zex_test::failureOf([&] {
    std::vector<ustring> listed = opt.attributePaths(u"config.env");
    for (const ustring& path : opt.attributePaths(u"config.vars")) listed.push_back(path);
    for (const std::size_t index : orderVariables(opt, listed)) {
      result += zex_test::utf8(shortName(listed[index])) + " ";
    }
  });
  return failure == "no error" ? result : failure;
}

TEST(Ordering, PutsWhatIsReferredToFirst) {
  // Branches are followed by ascending index and not in the order of the text.
  EXPECT_EQ(orderOf("AA='$DD $CC $DD' BB='$CC' CC='' DD='$NONE'"), "CC DD AA BB ");
  EXPECT_EQ(orderOf("AA='$BB $AA' BB='$$AA $A'"), "BB AA ");
  // Short names alone count: an attribute of the environment block stands in for the variable behind it.
  EXPECT_EQ(orderOf("BB='$CC' AA='$PATH' PATH='$BB' CC=''", "PATH='$PATH'"), "CC BB PATH PATH AA ");
}

TEST(Ordering, ReportsTheEdgeThatClosesACircle) {
  // Not the edge at which one search over everything would meet the circle.
  EXPECT_EQ(orderOf("AA='$CC' BB='$AA' CC='$BB' EE='$FF' FF='$EE'"),
            "TESSEL:zex:CircRef(\"config.vars.<xmlattr>.CC\", \"config.vars.<xmlattr>.BB\")");
}

}  // namespace
}  // namespace zex_cmd
