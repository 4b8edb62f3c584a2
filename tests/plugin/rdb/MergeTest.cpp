// Adding one database to another.
#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "Listing.h"
#include "RDB_Database.h"

namespace {

RDB_Handle Database(std::initializer_list<std::pair<const char*, const char*>> entries) {
  RDB_Handle db = RDB_Create();
  for (const auto& [key, text] : entries) RDB_PutString(db.get(), key, text);
  return db;
}

TEST(Merge, LetsTheSourceWin) {
  const RDB_Handle target = Database({{"a", "a1"}, {"a.b", "ab1"}, {"only.target", "t"}, {"*", "star1"}});
  const RDB_Handle source =
      Database({{"", "root"}, {"a.b", "ab2"}, {"a.b.c.d", "deep"}, {"*", "star2"}, {"..x", "dots"}});
  const std::string before = Listing(source.get());
  RDB_Merge(target.get(), source.get());
  EXPECT_EQ(Listing(target.get()),
            "=root, a=a1, a/b=ab2, a/b/c/d=deep, only/target=t, <*>=star2, <.>/x=dots");
  EXPECT_EQ(Listing(source.get()), before);
}

TEST(Merge, SharesTheValues) {
  RDB_Handle target = Database({{"a", "old"}});
  RDB_Handle source = Database({{"a", "text"}, {"b.c", "text"}});
  const RDB_Value& value = *source->root.FirstChild()->value;
  RDB_Merge(target.get(), source.get());
  EXPECT_EQ(value.refCount, 2u);
  EXPECT_EQ(RDB_FindString(target.get(), nullptr, "a"), RDB_FindString(source.get(), nullptr, "a"));
  RDB_PutString(source.get(), "a", "other");
  EXPECT_EQ(value.refCount, 1u);
  source.reset();
  EXPECT_EQ(Listing(target.get()), "a=text, b/c=text");
}

// Of names in one bucket a walk meets the newest first, and so the copy of that ends up last.
TEST(Merge, PutsCopiesAtTheHeadOfTheirBucket) {
  const auto slotOf = [](const char* name) { return RDB_ParseKey(name)[0].slot; };
  std::vector<std::string> names;
  for (int number = 0; names.size() < 3; ++number) {
    const std::string name = std::to_string(number);
    if (slotOf(name.c_str()) == slotOf("x")) names.push_back(name);
  }
  const RDB_Handle source = RDB_Create();
  for (const std::string& name : names) RDB_PutString(source.get(), name.c_str(), "");
  EXPECT_EQ(Listing(source.get()), names[2] + "=, " + names[1] + "=, " + names[0] + "=");
  const RDB_Handle target = Database({{"x", ""}});
  RDB_Merge(target.get(), source.get());
  EXPECT_EQ(Listing(target.get()), names[0] + "=, " + names[1] + "=, " + names[2] + "=, x=");
}

TEST(Merge, OfADatabaseWithItselfChangesNothing) {
  const RDB_Handle db = Database({{"a", "1"}, {"a.b", "2"}});
  RDB_Merge(db.get(), db.get());
  EXPECT_EQ(Listing(db.get()), "a=1, a/b=2");
  EXPECT_EQ(rdbError, kRDBNoError);
}

}  // namespace
