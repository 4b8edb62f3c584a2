// The compiled form, and how far a damaged file is read.
#include <gtest/gtest.h>

#include <string>

#include "CompiledFile.h"
#include "Listing.h"
#include "Memory.h"
#include "RDB_LoadCompiled.h"
#include "Soundness.h"

namespace {

using namespace std::string_literals;

RDB_Handle Read(const std::string& bytes) {
  RDB_Reader reader(bytes.data(), bytes.size());
  return RDB_ReadCompiled(reader);
}

std::string Root(unsigned childCount) {
  return Compiled("RVRDB", "", childCount);
}

const std::string kHead = CompiledHead();
const std::string kSound = kHead + Root(3) + Compiled("Group", "bytes", 2, 0, 1) +
                           Compiled("Key", "Hello\0"s) + Compiled("sub", "", 1) + Compiled("deep", "d\0"s) +
                           Compiled("whatever", "any\0"s, 0, 1) + Compiled("x", "dots\0"s, 0, 2);

constexpr char kNoDatabase[] = "-";

struct BadCase {
  const char* what;
  std::string file;
  int error;
  const char* listing;
};

TEST(CompiledForm, SaysWhatIsWrong) {
  const std::string good = Compiled("good", "kept"), front = kHead + Root(2) + good;
  const BadCase cases[] = {
      {"other word", "RVRDX" + kHead.substr(5) + Root(0), kRDBBadHead, kNoDatabase},
      {"major version", "RVRDB\2\0"s + kHead.substr(7) + Root(0), kRDBBadVersion, kNoDatabase},
      {"more types than file", "RVRDB\1\0\xFF\xFF\xFF\xFF"s, kRDBBadHead, kNoDatabase},
      {"type longer than file", "RVRDB\1\0\0\0\0\1\xFF\xFF\xFF\xFF abc"s, kRDBBadHead, kNoDatabase},
      {"type of the root", kHead + Compiled("r", "", 0, 0, 3), kRDBBadTypeIndex, kNoDatabase},
      {"root without a name", kHead + Compiled("", ""), kRDBBadFile, kNoDatabase},
      {"value of the root cut", kHead + Compiled("r", "text").substr(0, 20), kRDBBadFile, kNoDatabase},
      {"child's type", front + Compiled("b", "", 0, 0, 9), kRDBBadTypeIndex, "good=kept"},
      {"child's name", front + "\0\0\0\0\0\x80\0\0\0\0\0\0\0\0\0\0\0ab"s, kRDBBadFile, "good=kept"},
      {"child's value", front + "\0\0\0\0\0\0\0\0\1\xFF\xFF\xFF\xFF\0\0\0\0ab"s, kRDBBadFile, "good=kept"},
      {"bytes behind", kHead + Root(1) + good + "rest", kRDBNoError, "good=kept"},
  };
  for (const BadCase& row : cases) {
    const MemoryWatch memory;
    const RDB_Handle db = Read(row.file);
    EXPECT_EQ(rdbError, row.error) << row.what;
    EXPECT_LT(memory.largest, 4096u) << row.what;
    EXPECT_EQ(db ? Listing(db.get()) : kNoDatabase, row.listing) << row.what;
  }
}

TEST(CompiledForm, IsReadDepthFirstUpToAnyCut) {
  const RDB_Handle all = Read(kSound);
  EXPECT_EQ(rdbError, kRDBNoError);
  EXPECT_STREQ(RDB_GetString(all.get(), "Group.Key").get(), "Hello") << "types go by name";
  EXPECT_EQ(RDB_GetString(all.get(), "Group"), nullptr);
  EXPECT_STREQ(RDB_GetString(all.get(), "other").get(), "any") << "a star by its bucket, whatever its name";
  EXPECT_STREQ(RDB_GetString(all.get(), "RVRDB.Group.Key").get(), "dots") << "the root is in no key";
  std::string listing;
  for (std::size_t size = 0; size < kSound.size(); ++size) {
    const RDB_Handle db = Read(kSound.substr(0, size));
    EXPECT_NE(rdbError, kRDBNoError) << size;
    ASSERT_EQ(db != nullptr, size >= (kHead + Root(3)).size()) << size;
    listing = db ? Listing(db.get()) : "";
    EXPECT_EQ(Listing(all.get()).rfind(listing, 0), 0u) << size;
  }
  EXPECT_EQ(listing + ", <x>=dots", Listing(all.get()));
  EXPECT_EQ(listing, "Group=bytes, Group/Key=Hello, Group/sub/deep=d, <whatever>=any");
}

// A leaf at every level: building each path from the root would take the square of the depth.
TEST(CompiledForm, MayBeDeep) {
  std::string file = kHead + Root(2);
  for (int level = 0; level < 300000; ++level) file += Compiled("leaf", "text") + Compiled("n", "", 2);
  const RDB_Handle inverted = RDB_Invert(Read(file).get());
  EXPECT_EQ(NodesWithValue(*inverted).size(), 300000u);
  EXPECT_EQ(WhatIsUnsound(*inverted), nullptr);
}

}  // namespace
