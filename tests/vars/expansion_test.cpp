#include "vars/expansion.hpp"

#include <gmock/gmock.h>

namespace zex_cmd {
namespace {

using testing::ElementsAre;

TEST(Expansion, GivesOneTextForEachSource) {
  EXPECT_THAT(expandPerSource(u"-c $SRC -o$OBJ $FLAGS $$SRC", u"\"a.c\";\"b.c\"", u"a.o;b.o"),
              ElementsAre(u"-c \"a.c\" -oa.o $FLAGS $$SRC", u"-c \"b.c\" -ob.o $FLAGS $$SRC"));
  EXPECT_THAT(expandPerSource(u"link $OBJS $SRCROOT", u"a;b", u"c;d"), ElementsAre(u"link $OBJS $SRCROOT"));
  EXPECT_THAT(expandPerSource(u"[$SRC$OBJ]", u"", u"ignored"), ElementsAre(u"[]"));
  EXPECT_THAT(expandPerSource(u"$SRC>$OBJ", u"a;b", u"c"), ElementsAre(u"a>c", u"b>"));
}

}  // namespace
}  // namespace zex_cmd
