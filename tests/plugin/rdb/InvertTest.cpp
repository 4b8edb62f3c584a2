// From texts back to keys.
#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "Listing.h"
#include "RDB.h"

namespace {

struct InvertCase {
  const char* what;
  std::vector<std::pair<const char*, const char*>> entries;
  const char* inverted;
};

TEST(Invert, GivesTextToLastComponent) {
  const InvertCase cases[] = {
      {"nothing", {}, ""},
      {"path stays", {{"Some.Group.Key", "Hello"}}, "Some/Group/Hello=Key"},
      {"at the root", {{R"(Some sentence\.)", "Ein Satz."}}, "Ein Satz.=Some sentence."},
      {"text is one component", {{"a.b", "x.*.y"}}, "a/x.*.y=b"},
      {"text is no wildcard", {{"a", "*"}, {"b", "."}}, "*=a, .=b"},
      {"wildcards in the path stay", {{"*.a", "x"}, {"...b", "y"}}, "<*>/x=a, <.>/y=b"},
      {"walk stops at a text", {{"a", "A"}, {"a.b", "B"}}, "A=a"},
      {"walk passes inner nodes", {{"a.b.c", "C"}, {"a.d", "D"}}, "a/D=d, a/b/C=c"},
      {"text named like a group", {{"a.b", "B"}, {"z", "a"}}, "a=z, a/B=b"},
      {"empty text", {{"g.a", ""}}, "g/=a"},
      {"root", {{"", "text of the root"}, {"a", "A"}}, "text of the root="},
  };
  for (const InvertCase& row : cases) {
    const RDB_Handle db = RDB_Create();
    for (const auto& [key, text] : row.entries) RDB_PutString(db.get(), key, text);
    EXPECT_EQ(Listing(RDB_Invert(db.get()).get()), row.inverted) << row.what;
  }
}

TEST(Invert, PassesWhatIsNoText) {
  const RDB_Handle db = RDB_Create();
  RDB_Put(db.get(), "a", 5, 4, "data");
  RDB_PutString(db.get(), "a.b", "text");
  EXPECT_EQ(Listing(RDB_Invert(db.get()).get()), "a/text=b");
}

// Both keys have the same text: the one that a walk meets last gives the value.
TEST(Invert, LetsTheLaterBucketWin) {
  const RDB_Handle db = RDB_Create();
  RDB_PutString(db.get(), "b", "text");
  RDB_PutString(db.get(), "a", "text");
  EXPECT_EQ(Listing(RDB_Invert(db.get()).get()), "text=b");
}

}  // namespace
