// Which stored key answers an asked one.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Memory.h"
#include "RDB.h"

namespace {

// Every key is stored with itself as the text.
RDB_Handle Database(const std::vector<const char*>& keys) {
  RDB_Handle db = RDB_Create();
  for (const char* key : keys) RDB_PutString(db.get(), key, key);
  return db;
}

std::string Answer(const RDB_Handle& db, const char* key) {
  const RDB_Text text = RDB_GetString(db.get(), key);
  return text ? text.get() : "nothing";
}

struct LookupCase {
  std::vector<const char*> stored;
  const char* asked;
  const char* answer;
};

void ExpectAnswers(const std::vector<LookupCase>& cases) {
  for (const LookupCase& row : cases) {
    std::string all;
    for (const char* key : row.stored) all += std::string(key) + "  ";
    EXPECT_EQ(Answer(Database(row.stored), row.asked), row.answer) << row.asked << " asked of " << all;
  }
}

TEST(Lookup, FindsWholeKeysOnly) {
  ExpectAnswers({{{}, "a", "nothing"},
                 {{"a.b"}, "a.b", "a.b"},
                 {{"a.b"}, "a", "nothing"},
                 {{"a.b"}, "a.b.c", "nothing"},
                 {{"a.b"}, "a.B", "nothing"},
                 {{"a."}, "a.", "a."},
                 {{"a"}, "", "nothing"},
                 {{"", "a"}, "", ""},
                 {{"", "a"}, ".", ""}});
}

TEST(Lookup, StarMatchesOneComponent) {
  ExpectAnswers({{{"*.b"}, "x.b", "*.b"},
                 {{"*.b"}, "b", "nothing"},
                 {{"*.b"}, "x.y.b", "nothing"},
                 {{"a.*"}, "a.", "a.*"},
                 {{"a.*"}, "a", "nothing"},
                 {{"a.b", "*.b"}, "a.b", "a.b"},
                 {{"a.c", "*.b"}, "a.b", "*.b"},
                 {{"a.*.c", "*.b.d"}, "a.b.d", "*.b.d"}});
}

TEST(Lookup, DotsMatchARun) {
  ExpectAnswers({{{"..b"}, "x.y.b", "..b"},
                 {{"..b"}, "b", "..b"},
                 {{"..b"}, "x.b.y", "nothing"},
                 {{"a..."}, "a.x.y", "a..."},
                 {{"a..."}, "a", "nothing"},
                 {{"a...b"}, "a.b", "a...b"},
                 {{"a...b"}, "a.x.y.b", "a...b"},
                 {{"..b.."}, "x.b.y", "..b.."},
                 {{"..b.."}, "x.b", "nothing"},
                 {{"*.b", "..b"}, "a.b", "*.b"},
                 {{"..b", "..b.b"}, "b.b", "..b.b"},
                 {{"..", "..b"}, "a.b", "..b"},
                 {{"..", "..b"}, "a.c", ".."},
                 {{".."}, "", "nothing"}});
}

TEST(Lookup, AskedWildcardsAreNames) {
  ExpectAnswers({{{"a.b"}, "a.*", "nothing"},
                 {{"a.*"}, "a.*", "a.*"},
                 {{R"(a.\*)"}, "a.*", "nothing"},
                 {{R"(a.\*)", "a.*"}, R"(a.\*)", R"(a.\*)"},
                 {{"a.."}, "a..", "a.."},
                 {{"a.b"}, "..b", "nothing"}});
}

TEST(Lookup, GoesBackToTheNextChoice) {
  ExpectAnswers({{{"a.b.c.x", "a.*.c.y", "a...z"}, "a.b.c.y", "a.*.c.y"},
                 {{"a.b.c.x", "a.*.c.y", "a...z"}, "a.b.c.z", "a...z"},
                 {{"..a.b", "..a.c"}, "a.b.a.c", "..a.c"},
                 {{"..a...c"}, "x.a.x.a.c", "..a...c"}});
}

// A search that tries the same rests below the same nodes over and over would not come to an end here.
TEST(Lookup, IsBoundedByNodesTimesComponents) {
  std::string stored, starred, asked, askedStars;
  for (int level = 0; level < 200; ++level) {
    stored += "...a";
    starred += "*.";
  }
  for (int level = 0; level < 400; ++level) asked += "a.";
  for (int level = 0; level < 200; ++level) askedStars += "*.";
  const RDB_Handle db = RDB_Create();
  RDB_PutString(db.get(), (stored + ".end").c_str(), "found");
  RDB_PutString(db.get(), (starred + "end").c_str(), "stars");
  EXPECT_EQ(Answer(db, (asked + "b").c_str()), "nothing");
  EXPECT_EQ(Answer(db, (asked + "end").c_str()), "found");
  EXPECT_EQ(Answer(db, (askedStars + "b").c_str()), "nothing");
  EXPECT_EQ(Answer(db, (askedStars + "end").c_str()), "stars");
}

TEST(Lookup, ByTextTakesItAsOneComponent) {
  const RDB_Handle db = Database({R"(Legal Notices\.\.\.)", R"(Group.Sure\?)", R"(\*)", R"(G\.1.a)"});
  EXPECT_STREQ(RDB_FindString(db.get(), nullptr, "Legal Notices..."), R"(Legal Notices\.\.\.)");
  EXPECT_STREQ(RDB_FindString(db.get(), "Group", "Sure?"), R"(Group.Sure\?)");
  EXPECT_STREQ(RDB_FindString(db.get(), "G.1", "a"), R"(G\.1.a)");
  EXPECT_STREQ(RDB_FindString(db.get(), nullptr, "*"), R"(\*)");
  EXPECT_EQ(RDB_FindString(db.get(), nullptr, "Group.Sure?"), nullptr);
  EXPECT_EQ(RDB_FindString(db.get(), "Group", ""), nullptr);
  EXPECT_EQ(RDB_FindString(db.get(), nullptr, nullptr), nullptr);
  EXPECT_EQ(rdbError, kRDBBadKey);
  RDB_PutString(db.get(), "*", "any");
  EXPECT_STREQ(RDB_FindString(db.get(), nullptr, "Whatever."), "any");
}

TEST(Lookup, ByTextAllocatesNothing) {
  const RDB_Handle db = Database({"Sentence", "Group.Sentence"});
  for (int number = 0; number < 100; ++number) RDB_PutString(db.get(), std::to_string(number).c_str(), "n");
  const MemoryWatch memory;
  EXPECT_NE(RDB_FindString(db.get(), nullptr, "Sentence"), nullptr);
  EXPECT_NE(RDB_FindString(db.get(), "Group", "Sentence"), nullptr);
  EXPECT_EQ(RDB_FindString(db.get(), nullptr, "No such sentence"), nullptr);
  EXPECT_EQ(memory.Count(), 0u);
}

}  // namespace
