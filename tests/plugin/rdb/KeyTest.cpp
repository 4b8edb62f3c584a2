// How a key is taken apart.
#include <gtest/gtest.h>

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

}  // namespace
