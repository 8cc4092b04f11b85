#include "host/Services.hpp"

#include <gtest/gtest.h>

#include "services/io/uout.hpp"
#include "support/RecordingServices.hpp"

namespace {

TEST(Output, ReachesTheServicesInForceAtAnyLength) {
  zex_test::RecordingServices host;
  services::io::uout() << u"ü" << u"\n";
  utPrintf("%s%d", std::string(100000, 'x').c_str(), 42);
  EXPECT_EQ(host.output, "\xC3\xBC\n" + std::string(100000, 'x') + "42");
}

}  // namespace
