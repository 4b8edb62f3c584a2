// Whole databases: one added to another, and one turned from texts back to keys.
#include <gtest/gtest.h>

#include <utility>

#include "Listing.h"

namespace {

TEST(Merge, LetsTheSourceWinAndSharesItsValues) {
  const RDB_Handle target = DatabaseOf("a : a1 a.b : ab1 only.target : t * : star1");
  RDB_Handle source = DatabaseOf(": root a.b : ab2 a.b.c.d : deep * : star2 ..x : dots y : shared");
  RDB_Merge(target.get(), source.get());
  EXPECT_EQ(RDB_FindString(target.get(), nullptr, "y"), RDB_FindString(source.get(), nullptr, "y"));
  EXPECT_EQ(Listing(source.get()), "=root, a/b=ab2, a/b/c/d=deep, y=shared, <*>=star2, <.>/x=dots");
  source.reset();
  EXPECT_EQ(Listing(target.get()),
            "=root, a=a1, a/b=ab2, a/b/c/d=deep, y=shared, only/target=t, <*>=star2, <.>/x=dots");
}

TEST(Invert, GivesTextToLastComponent) {
  const std::pair<const char*, const char*> cases[] = {
      {"Some.Group.Key : Hello g.a : \"\"", "g/=a, Some/Group/Hello=Key"},
      {"a.b : x.*.y c : . d : *", "*=d, .=c, a/x.*.y=b"},
      {"*.a : x ...b : y", "<*>/x=a, <.>/y=b"},
      {"a : A a.b : B", "A=a"},
      {"a.b : B z : a", "a=z, a/B=b"},
      {"b : text a : text", "text=b"},
  };
  for (const auto& [texts, inverted] : cases) {
    const RDB_Handle db = DatabaseOf(texts);
    EXPECT_EQ(Listing(RDB_Invert(db.get()).get()), inverted) << texts;
  }
  const RDB_Handle db = DatabaseOf("a.b : text");
  RDB_Put(db.get(), "a", 5, 4, "data");
  EXPECT_EQ(Listing(RDB_Invert(db.get()).get()), "a/text=b") << "what is no text stops nothing";
}

}  // namespace
