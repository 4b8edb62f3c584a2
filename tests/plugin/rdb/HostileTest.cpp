// Input that is deep, huge, cut or random, and memory that runs out at every place.
#include <gtest/gtest.h>

#include <random>
#include <string>

#include "CompiledFile.h"
#include "Listing.h"
#include "Memory.h"
#include "RDB_LoadCompiled.h"
#include "RDB_LoadText.h"
#include "ScratchFolder.h"
#include "Soundness.h"

namespace {

using std::string_literals::operator""s;

void ReadText(RDB_Database& db, const std::string& text) {
  RDB_Reader reader(text.data(), text.size());
  RDB_ReadText(db, reader, "hostile.asc");
}

TEST(Hostile, KeysMayHaveAMillionComponents) {
  std::string key;
  for (int level = 0; level < 1000000; ++level) key += level % 2 == 0 ? "a." : "bc.";
  const RDB_Handle db = RDB_Create();
  ReadText(*db, key + "end : \"the text\"\n" + key + "x...y : \"dots\"\n" + key + "*.z : \"star\"");
  ASSERT_EQ(rdbError, kRDBNoError);
  EXPECT_STREQ(RDB_GetString(db.get(), (key + "end").c_str()).get(), "the text");
  EXPECT_STREQ(RDB_GetString(db.get(), (key + "x.1.2.y").c_str()).get(), "dots");
  EXPECT_STREQ(RDB_GetString(db.get(), (key + "q.z").c_str()).get(), "star");
  const RDB_Handle copy = RDB_Create();
  RDB_Merge(copy.get(), db.get());
  EXPECT_STREQ(RDB_GetString(copy.get(), (key + "end").c_str()).get(), "the text");
  const RDB_Handle inverted = RDB_Invert(copy.get());
  EXPECT_STREQ(RDB_GetString(inverted.get(), (key + "the text").c_str()).get(), "end");
}

// A leaf at every level: building each path from the root would take the square of the depth.
TEST(Hostile, CompiledFilesMayBeDeep) {
  std::string file = CompiledHead({"string"}) + Compiled({"RVRDB", "", 2});
  for (int level = 0; level < 300000; ++level) file += Compiled({"leaf", "text"}) + Compiled({"n", "", 2});
  RDB_Reader reader(file.data(), file.size());
  const RDB_Handle db = RDB_ReadCompiled(reader);
  EXPECT_EQ(rdbError, kRDBBadFile);
  const RDB_Handle inverted = RDB_Invert(db.get());
  EXPECT_EQ(NodesWithValue(*inverted).size(), 300000u);
  EXPECT_EQ(WhatIsUnsound(*inverted), nullptr);
}

TEST(Hostile, TokensMayBeHuge) {
  const std::string huge(100000000, 'x');
  const RDB_Handle db = RDB_Create();
  ReadText(*db, "key : " + huge + "\n" + huge + " : text");
  EXPECT_EQ(rdbError, kRDBNoError);
  EXPECT_TRUE(RDB_FindString(db.get(), nullptr, "key") == huge);
  EXPECT_STREQ(RDB_FindString(db.get(), nullptr, huge.c_str()), "text");
}

TEST(Hostile, SmallNodesTakeLittleMemory) {
  std::string file = CompiledHead({"string"}) + Compiled({"RVRDB", "", 1});
  for (int level = 0; level < 1000; ++level) file += Compiled({"n", "", 1});
  RDB_Reader reader(file.data(), file.size());
  const MemoryWatch memory;
  const RDB_Handle db = RDB_ReadCompiled(reader);
  EXPECT_LT(memory.Largest(), 64 * 1024u);
  EXPECT_LT(memory.Count(), 3000u);
}

constexpr char kText[] =
    "/* a */ Group.Key : \"first \"+\n \"second\" # b\n\"A sentence\\.\" = \"Ein\\tSatz\\056\" ; c\n"
    "..x : a\\101\n*.y=b\nlast : \"end";

TEST(Hostile, TextIsReadUpToAnyCut) {
  const std::string text = kText;
  testing::internal::CaptureStderr();
  for (std::size_t size = 0; size <= text.size(); ++size) {
    const RDB_Handle db = RDB_Create();
    ReadText(*db, text.substr(0, size));
    EXPECT_EQ(WhatIsUnsound(*db), nullptr) << size;
  }
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "") << "a cut file is at its end";
}

TEST(Hostile, RandomBytesKeepTheDatabaseSound) {
  std::mt19937 random(5);
  const std::string alphabet = "ab.*\\\"+:= \n/#;\0\xFFn1"s;
  testing::internal::CaptureStderr();
  for (int round = 0; round < 3000; ++round) {
    std::string text;
    for (std::size_t size = random() % 80; text.size() < size;) text += alphabet[random() % alphabet.size()];
    const RDB_Handle db = RDB_Create();
    ReadText(*db, text);
    ASSERT_EQ(WhatIsUnsound(*db), nullptr) << text;
    ASSERT_EQ(WhatIsUnsound(*RDB_Invert(db.get())), nullptr) << text;
  }
  testing::internal::GetCapturedStderr();
}

// Runs `work` again and again, each time with one allocation more, until none fails.
template <typename Work>
void ExpectSurvival(const Work& work) {
  for (std::size_t failing = 0;; ++failing) {
    ASSERT_LT(failing, 10000u);
    int error = kRDBNoError;
    {
      const MemoryWatch memory(failing);
      work();
      error = rdbError;
      if (memory.Count() <= failing) break;
    }
    EXPECT_EQ(error, kRDBOutOfMemory) << failing;
  }
  EXPECT_EQ(rdbError, kRDBNoError);
}

TEST(OutOfMemory, IsACodeInEveryOperation) {
  const RDB_Handle db = RDB_Create();
  ReadText(*db, kText);
  for (int number = 0; number < 40; ++number) RDB_PutString(db.get(), std::to_string(number).c_str(), "n");
  RDB_PutString(db.get(), "...a...b", "dots");

  ExpectSurvival([] { RDB_Create(); });
  ExpectSurvival([] { RDB_ParseKey("a.b.c"); });
  ExpectSurvival([&db] { RDB_GetString(db.get(), "A sentence\\."); });
  ExpectSurvival([&db] { RDB_GetString(db.get(), "a.c.a.b.c.b"); });
  ExpectSurvival([&db] { RDB_FindString(db.get(), nullptr, "no such text"); });
  ExpectSurvival([&db] { RDB_Invert(db.get()); });
  const RDB_Handle target = RDB_Create();
  ExpectSurvival([&] { RDB_Merge(target.get(), db.get()); });
  EXPECT_EQ(Listing(target.get()).size(), Listing(db.get()).size());
}

TEST(OutOfMemory, LeavesTheOldValue) {
  const RDB_Handle db = RDB_Create();
  RDB_PutString(db.get(), "Group.Key", "old");
  ExpectSurvival([&db] {
    RDB_PutString(db.get(), "Group.Key", "a new text that takes some memory");
    const char* const text = RDB_FindString(db.get(), "Group", "Key");
    ASSERT_TRUE(text != nullptr);
    RDB_PutString(db.get(), "Group.Key.and.a.way.below.it", "a new text that takes some memory");
  });
}

TEST(OutOfMemory, HasACodeOfItsOwnForAnEmptyComponent) {
  const MemoryWatch memory(0);
  EXPECT_EQ(RDB_ParseKey("a."), nullptr);
  EXPECT_EQ(rdbError, kRDBBadKey);
}

TEST(OutOfMemory, StopsTheLoaders) {
  const ScratchFolder scratch;
  const std::string text = scratch.write("text.asc", kText);
  const std::string compiled = scratch.write(
      "compiled", CompiledHead({"string", "a type of some length"}) + Compiled({"RVRDB", "", 1}) +
                      Compiled({"a name of some length", "a value of some length"}));
  testing::internal::CaptureStderr();
  ExpectSurvival([&text] {
    const RDB_Handle db = RDB_Create();
    if (!db) return;
    RDB_LoadText(db.get(), text.c_str());
    const int error = rdbError;
    if (WhatIsUnsound(*db) != nullptr) ADD_FAILURE();
    rdbError = error;
  });
  const std::string said = testing::internal::GetCapturedStderr();
  ExpectSurvival([&compiled] { RDB_LoadCompiled(compiled.c_str()); });
}

TEST(OutOfMemory, IsToldForATextFile) {
  const std::string text = "a : b\nc : " + std::string(5000, 'x') + "\nd : e";
  const RDB_Handle db = RDB_Create();
  RDB_Reader reader(text.data(), text.size());
  testing::internal::CaptureStderr();
  {
    constexpr std::size_t kTwoTokensAndOneEntry = 5;
    const MemoryWatch memory(kTwoTokensAndOneEntry);
    RDB_ReadText(*db, reader, "some.asc");
  }
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "Out of Memory Error detected in file some.asc at line 2.\n");
  EXPECT_EQ(rdbError, kRDBOutOfMemory);
  EXPECT_EQ(Listing(db.get()), "a=b");
}

}  // namespace
