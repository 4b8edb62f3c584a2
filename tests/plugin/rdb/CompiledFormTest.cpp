// The compiled form, and how far a damaged file is read.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "CompiledFile.h"
#include "Listing.h"
#include "Memory.h"
#include "RDB_LoadCompiled.h"
#include "ScratchFolder.h"

namespace {

using std::string_literals::operator""s;

RDB_Handle Read(const std::string& bytes) {
  RDB_Reader reader(bytes.data(), bytes.size());
  return RDB_ReadCompiled(reader);
}

std::string Root(unsigned childCount) {
  return Compiled({"RVRDB", "", childCount});
}

const std::string kHead = CompiledHead({"string"});

std::string SoundFile() {
  return kHead + Root(3) + Compiled({"Group", "", 2}) + Compiled({"Key", "Hello\0"s}) +
         Compiled({"whatever", "any\0"s, 0, 1}) + Compiled({"x", "dots\0"s, 0, 2}) + Compiled({"", "no"});
}

TEST(CompiledForm, IsReadDepthFirst) {
  const RDB_Handle db = Read(kHead + Root(3) + Compiled({"Group", "", 2}) + Compiled({"Key", "Hello\0"s}) +
                             Compiled({"sub", "", 1}) + Compiled({"deep", "d\0"s}) +
                             Compiled({"whatever", "any\0"s, 0, 1}) + Compiled({"x", "dots\0"s, 0, 2}));
  EXPECT_EQ(rdbError, kRDBNoError);
  EXPECT_EQ(Listing(db.get()), "Group/Key=Hello, Group/sub/deep=d, <whatever>=any, <x>=dots");
  EXPECT_STREQ(RDB_GetString(db.get(), "Group.Key").get(), "Hello");
  EXPECT_STREQ(RDB_GetString(db.get(), "other").get(), "any") << "a star by its bucket, whatever its name";
  EXPECT_STREQ(RDB_GetString(db.get(), "o.t.h").get(), "dots");
  EXPECT_STREQ(RDB_GetString(db.get(), "RVRDB.Group.Key").get(), "dots") << "the root is in no key";
}

TEST(CompiledForm, HoldsAValueOfTheRoot) {
  EXPECT_EQ(Listing(Read(kHead + Compiled({"RVRDB", "text"})).get()), "=text");
}

TEST(CompiledForm, TakesTheNewestOfEqualNames) {
  std::string file = kHead + Root(60);
  for (int number = 0; number < 60; ++number) file += Compiled({"same", std::to_string(number)});
  EXPECT_STREQ(RDB_GetString(Read(file).get(), "same").get(), "59");
}

TEST(CompiledForm, MapsTypesByName) {
  const std::string types = CompiledHead({"", "only here", "string\0"s, "string"});
  const auto typeOf = [&types](unsigned typeInFile) {
    const RDB_Handle db = Read(types + Compiled({"r", "bytes", 0, 0, typeInFile}));
    unsigned type = 0, size = 0;
    RDB_Text data;
    RDB_Get(db.get(), "", type, size, data);
    return type;
  };
  EXPECT_EQ(typeOf(0), kRDBNoType);
  EXPECT_GT(typeOf(1), kRDBString);
  EXPECT_EQ(typeOf(1), typeOf(1));
  EXPECT_EQ(typeOf(2), kRDBString);
  EXPECT_EQ(typeOf(3), kRDBString);
}

struct BadCase {
  const char* what;
  std::string file;
  int error;
  const char* listing;  // null: no database
};

TEST(CompiledForm, SaysWhatIsWrong) {
  const std::string good = Compiled({"good", "kept"});
  const BadCase cases[] = {
      {"empty", "", kRDBBadFile, nullptr},
      {"head cut", kHead.substr(0, 10), kRDBBadFile, nullptr},
      {"other word", "RVRDX" + kHead.substr(5) + Root(0), kRDBBadHead, nullptr},
      {"major version", "RVRDB\2\0"s + kHead.substr(7) + Root(0), kRDBBadVersion, nullptr},
      {"minor version", "RVRDB\1\1"s + kHead.substr(7) + Root(0), kRDBBadVersion, nullptr},
      {"types cut", CompiledHead({"string"}).substr(0, 18), kRDBBadHead, nullptr},
      {"more types than file", "RVRDB\1\0\xFF\xFF\xFF\xFF"s, kRDBBadHead, nullptr},
      {"type longer than file", "RVRDB\1\0\0\0\0\1\xFF\xFF\xFF\xFF abc"s, kRDBBadHead, nullptr},
      {"no root", kHead, kRDBBadFile, nullptr},
      {"type of the root", kHead + Compiled({"r", "", 0, 0, 1}), kRDBBadTypeIndex, nullptr},
      {"no types at all", CompiledHead({}) + Root(0), kRDBBadTypeIndex, nullptr},
      {"root without a name", kHead + Compiled({"", ""}), kRDBBadFile, nullptr},
      {"value of the root cut", kHead + Compiled({"r", "text"}).substr(0, 20), kRDBBadFile, nullptr},
      {"children missing", kHead + Root(2) + good, kRDBBadFile, "good=kept"},
      {"child without a name", kHead + Root(2) + good + Compiled({"", "x"}), kRDBBadFile, "good=kept"},
      {"child's type", kHead + Root(3) + good + Compiled({"b", "", 0, 0, 9}) + good, kRDBBadTypeIndex,
       "good=kept"},
      {"child's name", kHead + Root(2) + good + "\0\0\0\0\0\x80\0\0\0\0\0\0\0\0\0\0\0ab"s, kRDBBadFile,
       "good=kept"},
      {"child's value", kHead + Root(2) + good + "\0\0\0\0\0\0\0\0\1\xFF\xFF\xFF\xFF\0\0\0\0ab"s, kRDBBadFile,
       "good=kept"},
      {"bytes behind", kHead + Root(1) + good + "rest", kRDBNoError, "good=kept"},
  };
  for (const BadCase& row : cases) {
    const MemoryWatch memory;
    const RDB_Handle db = Read(row.file);
    EXPECT_EQ(rdbError, row.error) << row.what;
    EXPECT_LT(memory.Largest(), 4096u) << row.what;
    EXPECT_EQ(db != nullptr, row.listing != nullptr) << row.what;
    if (db && row.listing != nullptr) {
      EXPECT_EQ(Listing(db.get()), row.listing) << row.what;
    }
  }
}

TEST(CompiledForm, IsReadUpToAnyCut) {
  const std::string file = SoundFile();
  const std::size_t front = (kHead + Root(3)).size();
  std::size_t entries = 0;
  for (std::size_t size = 0; size < file.size(); ++size) {
    const RDB_Handle db = Read(file.substr(0, size));
    EXPECT_NE(rdbError, kRDBNoError) << size;
    ASSERT_EQ(db != nullptr, size >= front) << size;
    if (!db) continue;
    const std::string listing = Listing(db.get());
    const auto now = static_cast<std::size_t>(std::count(listing.begin(), listing.end(), '='));
    EXPECT_GE(now, entries) << size;
    entries = now;
  }
  EXPECT_EQ(entries, 3u);
}

TEST(CompiledForm, IsReadFromFiles) {
  const ScratchFolder scratch;
  // A text that no buffer holds.
  const std::string text(200000, 'x');
  const std::string path =
      scratch.write("file", kHead + Root(2) + Compiled({"a", text}) + Compiled({"b", "c"}));
  const RDB_Handle db = RDB_LoadCompiled(path.c_str());
  EXPECT_EQ(rdbError, kRDBNoError);
  EXPECT_TRUE(RDB_GetString(db.get(), "a").get() == text);
  EXPECT_STREQ(RDB_GetString(db.get(), "b").get(), "c");
  EXPECT_EQ(RDB_LoadCompiled(scratch.write("text.asc", "key : value of a text file").c_str()), nullptr);
  EXPECT_EQ(rdbError, kRDBBadHead);
}

}  // namespace
