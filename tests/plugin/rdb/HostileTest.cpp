// Input that is deep or cut, and memory that runs out at every place.
#include <gtest/gtest.h>

#include <string>

#include "CompiledFile.h"
#include "Listing.h"
#include "Memory.h"
#include "RDB_LoadCompiled.h"
#include "ScratchFolder.h"
#include "Soundness.h"

namespace {

TEST(Hostile, KeysMayHaveAMillionComponents) {
  std::string key;
  for (int level = 0; level < 500000; ++level) key += "a.bc.";
  const RDB_Handle db = DatabaseOf(key + "x...y : \"dots\"\n" + key + "*.z : \"star\"");
  ASSERT_EQ(rdbError, kRDBNoError);
  EXPECT_STREQ(RDB_GetString(db.get(), (key + "x.1.2.y").c_str()).get(), "dots");
  const RDB_Handle copy = RDB_Create();
  RDB_Merge(copy.get(), db.get());
  EXPECT_STREQ(RDB_GetString(copy.get(), (key + "q.z").c_str()).get(), "star");
  const RDB_Handle inverted = RDB_Invert(copy.get());
  EXPECT_STREQ(RDB_GetString(inverted.get(), (key + "q.star").c_str()).get(), "z");
}

const std::string kText =
    "/* a */ Group.Key : \"first \"+\n \"second\" # b\n\"A sentence\\.\" = \"Ein\\tSatz\\056\" ; c\n"
    "..x : a\\101\n*.y=b\nlast : \"end";

// Runs `work` again and again, each time with one allocation more, until none fails.
template <typename Work>
void ExpectSurvival(const Work& work) {
  bool hasFailed = true;
  for (std::size_t failing = 0; hasFailed; ++failing) {
    ASSERT_LT(failing, 10000u);
    const MemoryWatch memory(failing);
    work();
    hasFailed = memory.count > failing;
    EXPECT_EQ(rdbError, hasFailed ? kRDBOutOfMemory : kRDBNoError);
  }
}

TEST(OutOfMemory, IsACodeInEveryOperation) {
  const RDB_Handle db = DatabaseOf(kText);
  for (int number = 0; number < 40; ++number) RDB_PutString(db.get(), std::to_string(number).c_str(), "n");
  RDB_PutString(db.get(), "...a...b", "dots");
  ExpectSurvival([] { RDB_ParseKey("a.b.c"); });
  ExpectSurvival([&db] { RDB_GetString(db.get(), "a.c.a.b.c.b"); });
  ExpectSurvival([&db] { RDB_FindString(db.get(), nullptr, "no such text"); });
  ExpectSurvival([&db] { RDB_Invert(db.get()); });
  const RDB_Handle target = RDB_Create();
  ExpectSurvival([&] { RDB_Merge(target.get(), db.get()); });
  EXPECT_EQ(Listing(target.get()).size(), Listing(db.get()).size());
  const RDB_Handle old = DatabaseOf("key : old");
  ExpectSurvival([&old] {
    RDB_PutString(old.get(), "key", "a new text that takes some memory");
    ASSERT_NE(RDB_FindString(old.get(), nullptr, "key"), nullptr);
    RDB_PutString(old.get(), "key.and.a.way.below.it", "a new text that takes some memory");
  });
}

TEST(OutOfMemory, StopsTheLoaders) {
  const ScratchFolder scratch;
  const std::string text = scratch.write("text.asc", kText);
  const std::string huge(200000, 'x');  // no buffer holds it
  const std::string file =
      CompiledHead() + Compiled("RVRDB", "", 1) + Compiled("a name of some length", huge);
  const std::string compiled = scratch.write("compiled", file);
  testing::internal::CaptureStderr();
  ExpectSurvival([&text] {
    const RDB_Handle db = RDB_Create();
    if (!db) return;
    RDB_LoadText(db.get(), text.c_str());
    if (WhatIsUnsound(*db) != nullptr) ADD_FAILURE();
  });
  EXPECT_NE(testing::internal::GetCapturedStderr().find("Out of Memory Error detected in file " + text +
                                                        " at line 1.\n"),
            std::string::npos);
  RDB_Handle db;
  ExpectSurvival([&] { db = RDB_LoadCompiled(compiled.c_str()); });
  EXPECT_TRUE(RDB_FindString(db.get(), nullptr, "a name of some length") == huge);
}

}  // namespace
