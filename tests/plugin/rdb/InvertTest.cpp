// From texts back to keys.
#include <gtest/gtest.h>

#include <utility>

#include "Listing.h"

namespace {

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
