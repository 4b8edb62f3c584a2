// How a key is taken apart, and which stored key answers an asked one.
#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "Listing.h"

namespace {

TEST(Key, IsTakenApart) {
  const std::pair<const char*, const char*> cases[] = {
      {".", "="},
      {R"(a .a a\ \a)", "a="},
      {R"(a. .a. a.\)", "a/="},
      {"*a.**", "*a/**="},
      {".. ... .....", "<.>="},
      {"a.. a...", "a/<.>="},
      {"a...b a.....b", "a/<.>/b="},
      {"a..b", "a/.b="},
      {R"(\*.\n\"x)", "*/n\"x="},
      {R"(a\.b..\.)", "a.b/..="},
      {R"(a\\.b)", R"(a\/b=)"},
  };
  for (const auto& [keys, listing] : cases) {
    for (const std::string& key : Words(keys)) {
      const RDB_Handle db = RDB_Create();
      RDB_PutString(db.get(), key.c_str(), "");
      EXPECT_EQ(Listing(db.get()), listing) << key;
    }
  }
}

// Every key is stored with itself as the text.
RDB_Handle Database(const std::string& keys) {
  RDB_Handle db = RDB_Create();
  for (const std::string& key : Words(keys)) RDB_PutString(db.get(), key.c_str(), key.c_str());
  return db;
}

std::string Answer(const RDB_Handle& db, const std::string& key) {
  const RDB_Text text = RDB_GetString(db.get(), key.c_str());
  return text ? text.get() : "-";
}

struct LookupCase {
  const char* stored;
  const char* asked;
  const char* answers;  // one for each, "-" for none
};

TEST(Lookup, PrefersExactToStarToDotsAndGoesBack) {
  const LookupCase cases[] = {
      {"a.b a.", "a.b a. a a.b.c a.B a.* ..b", "a.b a. - - - - -"},
      {"*.b", "x.b b x.y.b", "*.b - -"},
      {"a.*", "a. a", "a.* -"},
      {"a.b a.c *.b ..b", "a.b c.b x.y.b", "a.b *.b ..b"},
      {"..b", "x.y.b b x.b.y", "..b ..b -"},
      {"a... b...c", "a.x.y a b.c b.x.y.c", "a... - b...c b...c"},
      {"..b..", "x.b.y x.b", "..b.. -"},
      {R"(a.\* a.*)", R"(a.\* a.* a.b)", R"(a.\* a.* a.*)"},
      {"a.b.c.x a.*.c.y a...z", "a.b.c.y a.b.c.z", "a.*.c.y a...z"},
      {"..a.b ..a.c", "a.b.a.c", "..a.c"},
      {"..a...c", "x.a.x.a.c", "..a...c"},
  };
  for (const LookupCase& row : cases) {
    const RDB_Handle db = Database(row.stored);
    std::string answers;
    for (const std::string& key : Words(row.asked)) answers += (answers.empty() ? "" : " ") + Answer(db, key);
    EXPECT_EQ(answers, row.answers) << row.asked << " asked of " << row.stored;
  }
}

// A search that tries the same rests below the same nodes over and over would not come to an end here.
TEST(Lookup, IsBoundedByNodesTimesComponents) {
  std::string dots, stars, asked;
  for (int level = 0; level < 200; ++level) {
    dots += "...a";
    stars += "*.";
    asked += "a.a.";
  }
  const RDB_Handle db = Database(dots + ".end " + stars + "end");
  EXPECT_EQ(Answer(db, asked + "b"), "-");
  EXPECT_EQ(Answer(db, asked + "end"), dots + ".end");
  EXPECT_EQ(Answer(db, stars + "b"), "-");
  EXPECT_EQ(Answer(db, stars + "end"), stars + "end");
}

TEST(Lookup, ByTextTakesItAsOneComponent) {
  const RDB_Handle db = Database(R"(Notices\.\.\. \* G\.1.a)");
  EXPECT_STREQ(RDB_FindString(db.get(), nullptr, "Notices..."), R"(Notices\.\.\.)");
  EXPECT_STREQ(RDB_FindString(db.get(), "G.1", "a"), R"(G\.1.a)");
  EXPECT_STREQ(RDB_FindString(db.get(), nullptr, "*"), R"(\*)");
  EXPECT_EQ(RDB_FindString(db.get(), nullptr, "G.1.a"), nullptr);
  EXPECT_EQ(RDB_FindString(db.get(), nullptr, nullptr), nullptr);
  EXPECT_EQ(rdbError, kRDBBadKey);
  RDB_PutString(db.get(), "*", "any");
  EXPECT_STREQ(RDB_FindString(db.get(), nullptr, "Whatever."), "any");
}

}  // namespace
