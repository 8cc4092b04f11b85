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

TEST(References, GiveOneTextForEachSource) {
  EXPECT_THAT(expandPerSource(u"-c $SRC -o$OBJ $FLAGS $$SRC", u"\"a.c\";\"b.c\"", u"a.o;b.o"),
              ElementsAre(u"-c \"a.c\" -oa.o $FLAGS $$SRC", u"-c \"b.c\" -ob.o $FLAGS $$SRC"));
  EXPECT_THAT(expandPerSource(u"link $OBJS $SRCROOT", u"a;b", u"c;d"), ElementsAre(u"link $OBJS $SRCROOT"));
  EXPECT_THAT(expandPerSource(u"[$SRC$OBJ]", u"", u"ignored"), ElementsAre(u"[]"));
  EXPECT_THAT(expandPerSource(u"$SRC>$OBJ", u"a;b", u"c"), ElementsAre(u"a>c", u"b>"));
}

}  // namespace
}  // namespace zex_cmd
