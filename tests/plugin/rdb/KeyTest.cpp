// How a key is taken apart.
#include <gtest/gtest.h>

#include <string>

#include "Listing.h"
#include "RDB_Hash.h"

namespace {

struct KeyCase {
  const char* key;
  const char* parts;
};

TEST(Key, IsTakenApart) {
  const KeyCase cases[] = {
      {"", ""},
      {".", ""},
      {"a", "'a'"},
      {"Date.Months.Long.1", "'Date'/'Months'/'Long'/'1'"},
      {".a", "'a'"},
      {"a.", "'a'/''"},
      {".a.", "'a'/''"},
      {"*", "<*>"},
      {"*.b", "<*>/'b'"},
      {"a.*", "'a'/<*>"},
      {"*a", "'*a'"},
      {"a*", "'a*'"},
      {"**", "'**'"},
      {"*.", "<*>/''"},
      {"..", "<.>"},
      {"...", "<.>"},
      {".....", "<.>"},
      {"..b", "<.>/'b'"},
      {"...b", "<.>/'b'"},
      {"..*", "<.>/<*>"},
      {"a..", "'a'/<.>"},
      {"a...", "'a'/<.>"},
      {"a...b", "'a'/<.>/'b'"},
      {"a.....b", "'a'/<.>/'b'"},
      {"a..b", "'a'/'.b'"},
      {"a...b..c", "'a'/<.>/'b'/'.c'"},
  };
  for (const KeyCase& row : cases) EXPECT_EQ(PartsListing(row.key), row.parts) << row.key;
}

TEST(Key, BackslashTakesTheNextByteAsItIs) {
  const KeyCase cases[] = {
      {R"(Some sentence\.)", "'Some sentence.'"},
      {R"(a\.b.c)", "'a.b'/'c'"},
      {R"(\*)", "'*'"},
      {R"(a.\*.b)", "'a'/'*'/'b'"},
      {R"(\.)", "'.'"},
      {R"(\..)", "'.'/''"},
      {R"(..\.)", "<.>/'.'"},
      {R"(a..\.)", "'a'/'..'"},
      {R"(a\\.b)", R"('a\'/'b')"},
      {R"(\n\"x)", "'n\"x'"},
      {R"(a\)", "'a'"},
      {R"(\)", "''"},
      {R"(a.\)", "'a'/''"},
      {R"(..\)", "<.>/''"},
  };
  for (const KeyCase& row : cases) EXPECT_EQ(PartsListing(row.key), row.parts) << row.key;
}

TEST(Key, BucketsAreThoseOfTheHashOfByteByByte) {
  std::string name;
  for (int length = 0; length < 70; ++length) {
    unsigned expected = 0;
    for (const char byte : name) expected = (static_cast<unsigned char>(byte) + 28763u * expected) & 0xFFFu;
    EXPECT_EQ(RDB_Hash(name.data(), name.size()) & 0xFFFu, expected) << name;
    name += static_cast<char>(length * 37 + 0x85);
  }
  const RDB_Key parts = RDB_ParseKey("ab");
  EXPECT_EQ(parts[0].slot, (28763u * 'a' + 'b') & 0xFFu);
  EXPECT_EQ(RDB_ParseKey("a.")[1].slot, 0u);
}

TEST(Key, NullIsNoKey) {
  EXPECT_EQ(RDB_ParseKey(nullptr), nullptr);
  EXPECT_EQ(rdbError, kRDBBadKey);
}

}  // namespace
