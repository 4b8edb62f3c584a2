// Storing and reading single values, and what is no handle.
#include <gtest/gtest.h>

#include <string>

#include "Listing.h"
#include "RDB_Database.h"

namespace {

constexpr unsigned kSomeType = 7;

struct Got {
  unsigned type = 99;
  unsigned size = 99;
  RDB_Text data;
  Got(const RDB_Database* db, const char* key) { RDB_Get(db, key, type, size, data); }
};

TEST(PutGet, GivesFreshCopies) {
  const RDB_Handle db = RDB_Create();
  const char bytes[] = {1, 0, 2};
  RDB_Put(db.get(), "k", kSomeType, sizeof bytes, bytes);
  const Got got(db.get(), "k");
  ASSERT_EQ(got.size, sizeof bytes);
  EXPECT_EQ(got.type, kSomeType);
  EXPECT_EQ(std::string(got.data.get(), got.size), std::string(bytes, sizeof bytes));
  got.data[0] = 9;
  EXPECT_EQ(Got(db.get(), "k").data[0], 1);
  EXPECT_EQ(RDB_GetString(db.get(), "k"), nullptr) << "no string";
  EXPECT_EQ(RDB_FindString(db.get(), nullptr, "k"), nullptr) << "no string";
}

TEST(PutGet, AbsenceIsNoError) {
  const RDB_Handle db = RDB_Create();
  rdbError = kRDBBadFile;
  const Got got(db.get(), "none");
  EXPECT_EQ(got.data, nullptr);
  EXPECT_EQ(got.type, kRDBNoType);
  EXPECT_EQ(got.size, 0u);
  EXPECT_EQ(rdbError, kRDBNoError);
}

TEST(PutGet, ReplacesAndTakesAway) {
  const RDB_Handle db = RDB_Create();
  RDB_PutString(db.get(), "a.b", "below");
  RDB_PutString(db.get(), "a", "old");
  RDB_PutString(db.get(), "a", "new");
  EXPECT_EQ(Listing(db.get()), "a=new, a/b=below");
  RDB_Put(db.get(), "a", kRDBString, 0, "new");
  EXPECT_EQ(RDB_GetString(db.get(), "a"), nullptr);
  EXPECT_EQ(Listing(db.get()), "a/b=below");
  RDB_PutString(db.get(), "a.b", nullptr);
  EXPECT_EQ(Listing(db.get()), "");
  EXPECT_EQ(db->root.FirstChild()->childCount, 1u) << "the nodes stay";
}

TEST(PutGet, EmptyTextIsNotAbsent) {
  const RDB_Handle db = RDB_Create();
  RDB_PutString(db.get(), "k", "");
  EXPECT_STREQ(RDB_GetString(db.get(), "k").get(), "");
  EXPECT_EQ(Got(db.get(), "k").size, 1u);
}

TEST(PutGet, MayPutWhatItReplaces) {
  const RDB_Handle db = RDB_Create();
  RDB_PutString(db.get(), "k", "a text of some length");
  RDB_PutString(db.get(), "k", RDB_FindString(db.get(), nullptr, "k") + 2);
  EXPECT_EQ(Listing(db.get()), "k=text of some length");
}

TEST(PutGet, ClosesAStringThatIsStoredWithoutItsNul) {
  const RDB_Handle db = RDB_Create();
  RDB_Put(db.get(), "k", kRDBString, 3, "text");
  EXPECT_STREQ(RDB_GetString(db.get(), "k").get(), "tex");
  EXPECT_STREQ(RDB_FindString(db.get(), nullptr, "k"), "tex");
}

// Across the step from a plain list of children to buckets with an index.
TEST(PutGet, KeepsBucketsInOrderForManyChildren) {
  const RDB_Handle db = RDB_Create();
  for (int number = 0; number < 3000; ++number) {
    const std::string key = std::to_string(number);
    RDB_PutString(db.get(), ("all." + key).c_str(), key.c_str());
    if (number == 10) RDB_PutString(db.get(), "all.*", "star");
    if (number == 20) RDB_PutString(db.get(), "all..", "dots");
    if (number < 40) Listing(db.get());
  }
  Listing(db.get());
  for (int number = 0; number < 3000; ++number) {
    const std::string key = std::to_string(number);
    ASSERT_STREQ(RDB_FindString(db.get(), "all", key.c_str()), key.c_str());
  }
  EXPECT_STREQ(RDB_FindString(db.get(), "all", "3000"), "star");
  EXPECT_STREQ(RDB_GetString(db.get(), "all.30.00").get(), "dots");
}

void ExpectRefusal(RDB_Database* bad) {
  const RDB_Handle good = RDB_Create();
  RDB_PutString(good.get(), "k", "text");
  const auto expectBadHandle = [](const char* operation) {
    EXPECT_EQ(rdbError, kRDBBadHandle) << operation;
    rdbError = kRDBNoError;
  };
  RDB_Put(bad, "k", kSomeType, 1, "x");
  expectBadHandle("Put");
  RDB_PutString(bad, "k", "x");
  expectBadHandle("PutString");
  EXPECT_EQ(Got(bad, "k").data, nullptr);
  expectBadHandle("Get");
  EXPECT_EQ(RDB_GetString(bad, "k"), nullptr);
  expectBadHandle("GetString");
  EXPECT_EQ(RDB_FindString(bad, nullptr, "k"), nullptr);
  expectBadHandle("FindString");
  RDB_LoadText(bad, "file");
  expectBadHandle("LoadText");
  RDB_Merge(bad, good.get());
  expectBadHandle("Merge into");
  RDB_Merge(good.get(), bad);
  expectBadHandle("Merge from");
  EXPECT_EQ(RDB_Invert(bad), nullptr);
  expectBadHandle("Invert");
  RDB_Destroy(bad);
  expectBadHandle("Destroy");
  EXPECT_EQ(Listing(good.get()), "k=text");
}

TEST(Handle, NullIsRefused) {
  ExpectRefusal(nullptr);
}

TEST(Handle, WhatHasNoMarkerIsRefused) {
  const RDB_Handle db = RDB_Create();
  RDB_PutString(db.get(), "a", "kept");
  db->marker[7] = '-';
  ExpectRefusal(db.get());
  db->marker[7] = '\0';
  EXPECT_EQ(Listing(db.get()), "a=kept");
}

}  // namespace
