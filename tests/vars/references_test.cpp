#include "vars/references.hpp"

#include <gmock/gmock.h>

namespace zex_cmd {
namespace {

using testing::ElementsAre;
using testing::Pair;

TEST(References, AreFoundByTheirPositions) {
  EXPECT_THAT(collectReferences(u"é\U0001F600$A_1x$CDé$EF", 0),
              ElementsAre(Pair(3, 7), Pair(8, 11), Pair(12, 15)));
  EXPECT_THAT(collectReferences(u"$A $a $1A $_AB $A$BC $", 0), ElementsAre(Pair(17, 20)));
  EXPECT_THAT(collectReferences(u"$$$AB $CD$$EF", 1), ElementsAre(Pair(1, 5), Pair(9, 13)));
}

}  // namespace
}  // namespace zex_cmd
