// Storing and reading single values, and what is no handle.
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "Listing.h"

namespace {

struct Got {
  unsigned type = 99, size = 99;
  RDB_Text data;
  Got(const RDB_Database* db, const char* key) { RDB_Get(db, key, type, size, data); }
};

TEST(PutGet, GivesFreshCopies) {
  const RDB_Handle db = RDB_Create();
  RDB_Put(db.get(), "k", 7, 3, "\1\0\2");
  const Got got(db.get(), "k");
  EXPECT_EQ(got.type, 7u);
  ASSERT_EQ(std::string(got.data.get(), got.size), std::string("\1\0\2", 3));
  got.data[0] = 9;
  EXPECT_EQ(Got(db.get(), "k").data[0], 1);
  EXPECT_FALSE(RDB_GetString(db.get(), "k")) << "no string";
}

TEST(PutGet, ReplacesAndTakesAway) {
  const RDB_Handle db = DatabaseOf("a.b : below a : old a : \"the new text\" : root");
  RDB_PutString(db.get(), "a", RDB_FindString(db.get(), nullptr, "a") + 4);
  EXPECT_EQ(Listing(db.get()), "=root, a=new text, a/b=below");
  RDB_Put(db.get(), "a", kRDBString, 3, "text without its NUL");
  EXPECT_STREQ(RDB_FindString(db.get(), nullptr, "a"), "tex");
  RDB_PutString(db.get(), "a", "");
  EXPECT_EQ(Got(db.get(), "a").size, 1u) << "an empty text is not absent";
  RDB_Put(db.get(), "a", kRDBString, 0, "new");
  RDB_PutString(db.get(), "", nullptr);
  EXPECT_EQ(RDB_GetString(db.get(), "a"), nullptr);
  EXPECT_EQ(Listing(db.get()), "a/b=below");
}

// Across the step from a plain list of children to buckets with an index.
TEST(PutGet, KeepsBucketsInOrderForManyChildren) {
  const RDB_Handle db = RDB_Create();
  for (int number = 0; number < 3000; ++number) {
    const std::string key = std::to_string(number);
    RDB_PutString(db.get(), ("all." + key).c_str(), key.c_str());
    if (number == 10) RDB_PutString(db.get(), "all.*", "star");
    if (number == 20) RDB_PutString(db.get(), "all..", "dots");
    if (number < 40 || number == 2999) Listing(db.get());
  }
  for (int number = 0; number < 3000; number += 7)
    ASSERT_EQ(RDB_FindString(db.get(), "all", std::to_string(number).c_str()), std::to_string(number));
  EXPECT_STREQ(RDB_FindString(db.get(), "all", "3000"), "star");
  EXPECT_STREQ(RDB_GetString(db.get(), "all.30.00").get(), "dots");
}

TEST(Handle, IsRefusedIfNullOrWithoutItsMarker) {
  const RDB_Handle good = DatabaseOf("k : text"), unmarked = DatabaseOf("a : kept");
  unmarked->marker[7] = '-';
  for (RDB_Database* const bad : {static_cast<RDB_Database*>(nullptr), unmarked.get()}) {
    const std::function<void()> operations[] = {
        [=] { RDB_Put(bad, "k", 7, 1, "x"); },
        [=] { RDB_PutString(bad, "k", "x"); },
        [=] { EXPECT_EQ(Got(bad, "k").data, nullptr); },
        [=] { EXPECT_EQ(RDB_GetString(bad, "k"), nullptr); },
        [=] { EXPECT_EQ(RDB_FindString(bad, nullptr, "k"), nullptr); },
        [=] { RDB_LoadText(bad, "file"); },
        [&] { RDB_Merge(bad, good.get()); },
        [&] { RDB_Merge(good.get(), bad); },
        [=] { EXPECT_EQ(RDB_Invert(bad), nullptr); },
        [=] { RDB_Destroy(bad); },
    };
    for (const std::function<void()>& operation : operations) {
      rdbError = kRDBNoError;
      operation();
      EXPECT_EQ(rdbError, kRDBBadHandle) << &operation - operations;
    }
  }
  unmarked->marker[7] = '\0';
  EXPECT_EQ(Listing(unmarked.get()) + Listing(good.get()), "a=keptk=text");
}

}  // namespace
