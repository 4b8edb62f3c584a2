// Which suites are acquired when, in which order, and what a refusal leaves.
#include "HMX_AISuiteManager.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <utility>
#include <vector>

#include "AILayer.h"
#include "AIMenu.h"
#include "AIUnicodeString.h"
#include "SPBasic.h"
#include "SuiteTable.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Hands out a table for any name, keeps a log, and refuses what it is told to.
struct FakeBasicSuite {
  // "+ name version" for an acquisition, "- name version" for a release.
  static inline std::vector<std::string> log;
  static inline std::set<std::string> refused;
  static inline SPErr releaseResult = kSPNoError;

  static void Clear() {
    log.clear();
    refused.clear();
    releaseResult = kSPNoError;
  }
  static std::vector<std::string> TakeLog() { return std::exchange(log, {}); }

  static const SPBasicSuite* Table() {
    static const SPBasicSuite table{Acquire, Release, nullptr, nullptr, nullptr};
    return &table;
  }

 private:
  static SPErr Acquire(const char* name, std::int32_t version, const void** suite) {
    alignas(16) static const char content[16] = {};
    log.push_back("+ " + std::string(name) + " " + std::to_string(version));
    *suite = refused.count(name) != 0 ? nullptr : content;
    return *suite == nullptr ? kSPSuiteNotFoundError : kSPNoError;
  }
  static SPErr Release(const char* name, std::int32_t version) {
    log.push_back("- " + std::string(name) + " " + std::to_string(version));
    return releaseResult;
  }
};

class SuiteManager : public testing::Test {
 protected:
  SuiteManager() {
    FakeBasicSuite::Clear();
    manager.SetBasicSuite(FakeBasicSuite::Table());
  }
  ~SuiteManager() override { const HMX_AISuiteManager cleared; }  // the table, for whoever comes next

  HMX_AISuiteManager manager;
};

TEST_F(SuiteManager, EveryRowHasAPointerOfItsOwn) {
  static const char addresses[kSuiteCount] = {};
  for (std::size_t i = 0; i < kSuiteCount; ++i) sSuiteTable[i].pointer.set(&addresses[i]);
  for (std::size_t i = 0; i < kSuiteCount; ++i) {
    EXPECT_EQ(sSuiteTable[i].pointer.get(), &addresses[i]) << sSuiteTable[i].name;
  }
  EXPECT_EQ(static_cast<const void*>(sSPBasic), &addresses[188]);
  const HMX_AISuiteManager made;
  for (const SuiteRow& row : sSuiteTable) EXPECT_EQ(row.pointer.get(), nullptr) << row.name;
}

TEST_F(SuiteManager, RequestedSuitesComeInTheOrderOfTheTable) {
  for (const char* name : {"SP Blocks Suite", "AI Menu Suite", "AI Layer Suite"}) {
    EXPECT_EQ(manager.Request(name), 0);
  }
  EXPECT_THAT(FakeBasicSuite::log, IsEmpty()) << "marks cost no call";
  EXPECT_EQ(manager.Acquire(), 0);
  EXPECT_THAT(FakeBasicSuite::TakeLog(),
              ElementsAre("+ AI Layer Suite 1013", "+ AI Menu Suite 1011", "+ SP Blocks Suite 2"));
  for (int level = 0; level < 3; ++level) EXPECT_EQ(manager.Acquire(), 0);
  for (int level = 0; level < 3; ++level) EXPECT_EQ(manager.Release(), 0);
  EXPECT_THAT(FakeBasicSuite::log, IsEmpty()) << "inner levels call nobody";
  EXPECT_NE(sAILayer, nullptr);
  EXPECT_EQ(manager.Release(), 0);
  EXPECT_THAT(FakeBasicSuite::log,
              ElementsAre("- AI Layer Suite 1013", "- AI Menu Suite 1011", "- SP Blocks Suite 2"));
}

TEST_F(SuiteManager, LastReleaseClearsAllPointersButKeepsItsWayToTheHost) {
  manager.Request("AI Layer Suite");
  manager.Acquire();
  sSuiteTable[216].pointer.set(this);  // nobody asked for that one
  FakeBasicSuite::releaseResult = kSPBadParameterError;
  EXPECT_EQ(manager.Release(), kSPBadParameterError);
  for (const SuiteRow& row : sSuiteTable) EXPECT_EQ(row.pointer.get(), nullptr) << row.name;
  EXPECT_EQ(sSPBasic, nullptr);

  FakeBasicSuite::log.clear();
  EXPECT_EQ(manager.Acquire(), 0);
  EXPECT_THAT(FakeBasicSuite::log, ElementsAre("+ AI Layer Suite 1013")) << "the mark is still there";
}

TEST_F(SuiteManager, RequestsByNameAndVersion) {
  EXPECT_EQ(manager.Request("AI Nonsense Suite"), 1);
  EXPECT_EQ(manager.Request("AI Annotator Drawer Suite", 1006), 1);
  EXPECT_EQ(manager.Request("AI Annotator Drawer Suite", 1007), 0);
  manager.Acquire();
  EXPECT_THAT(FakeBasicSuite::log, ElementsAre("+ AI Annotator Drawer Suite 1007"));
}

TEST_F(SuiteManager, RequestWithinALevelAcquiresAtOnceAndOnlyOnce) {
  manager.Acquire();
  EXPECT_EQ(manager.Request("AI Menu Suite"), 0);
  EXPECT_EQ(manager.Request("AI Menu Suite"), 0);
  EXPECT_THAT(FakeBasicSuite::TakeLog(), ElementsAre("+ AI Menu Suite 1011"));
  EXPECT_NE(sAIMenu, nullptr);

  FakeBasicSuite::refused = {"AI Layer Suite"};
  EXPECT_EQ(manager.Request("AI Layer Suite"), kSPSuiteNotFoundError);
  EXPECT_EQ(manager.Request("AI Layer Suite"), 0) << "marked all the same";
  EXPECT_EQ(sAILayer, nullptr);
  FakeBasicSuite::refused.clear();
  manager.Release();
  manager.Acquire();
  EXPECT_NE(sAILayer, nullptr) << "the next first level tries again";
}

}  // namespace
