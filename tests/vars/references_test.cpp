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
  const ustring escaped = u"$$$AB $CD$$EF";
  EXPECT_THAT(collectReferences(escaped, 0), ElementsAre(Pair(6, 9)));
  EXPECT_THAT(collectReferences(escaped, 1), ElementsAre(Pair(1, 5), Pair(9, 13)));
  EXPECT_THAT(collectReferences(escaped, 2), ElementsAre(Pair(1, 5), Pair(6, 9), Pair(9, 13)));
  EXPECT_THAT(collectReferences(escaped, 3), ElementsAre());
}

}  // namespace
}  // namespace zex_cmd
