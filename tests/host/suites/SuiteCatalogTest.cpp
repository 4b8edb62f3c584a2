#include "SuiteCatalog.h"

#include <gtest/gtest.h>

#include <set>

#include "HostFixture.h"

namespace {

struct Offered {
  const char* name;
  std::int32_t version;
};

// What plug-ins of this kind ask for; a missing one keeps them out.
constexpr Offered kExpected[] = {
    {"AI Notifier Suite", 1004},
    {"AI Action Manager Suite", 1005},
    {"AI Annotator Suite", 1006},
    {"AI Annotator Drawer Suite", 1007},
    {"AI Artboard Suite", 1004},
    {"AI Art Suite", 1021},
    {"AI Art Set Suite", 1009},
    {"AI Cloud Document Suite", 1001},
    {"AI Cursor Snap Suite", 1016},
    {"AI Color Conversion Suite", 1010},
    {"AI Command Manager Suite", 1005},
    {"AI Context Suite", 1010},
    {"AI Custom Color Suite", 1008},
    {"AI Data Filter Suite", 1009},
    {"AI Document Suite", 1019},
    {"AI Document View Suite", 1014},
    {"AI Document List Suite", 1011},
    {"AI Expand Suite", 1004},
    {"AI Folders Suite", 1005},
    {"AI Hit Test Suite", 1007},
    {"AI Layer Suite", 1013},
    {"AI Matching Art Suite", 1007},
    {"AI MdMemory Suite", 1003},
    {"AI Menu Suite", 1011},
    {"AI Modal Parent Suite", 1002},
    {"AI Paint Style Suite", 1010},
    {"AI Panel Suite", 1004},
    {"AI Panel Flyout Menu Suite", 1002},
    {"AI Path Suite", 1012},
    {"AI Path Style Suite", 1014},
    {"AI Placed Suite", 1010},
    {"AI Plugin Group Suite", 1006},
    {"AI Preference Suite", 1007},
    {"AI Real Math Suite", 1005},
    {"AI Real Bezier Suite", 1004},
    {"AI Runtime Suite", 1013},
    {"AI Shape Construction Suite", 1008},
    {"AI Swatch List Suite", 1007},
    {"AI Swatch Group Suite", 1003},
    {"AI Swatch Libraries Suite", 1008},
    {"AI Tag Suite", 1004},
    {"AI Text Frame Suite", 1004},
    {"AIATE Paint Suite", 1003},
    {"AI Font Suite", 1006},
    {"ATE ApplicationPaint Suite", 1},
    {"ATE TextFrame Suite", 101},
    {"ATE TextFramesIterator Suite", 1},
    {"ATE TextLine Suite", 2},
    {"ATE TextLinesIterator Suite", 1},
    {"ATE DocumentTextResources Suite", 101},
    {"ATE ArrayApplicationPaintRef Suite", 1},
    {"ATE CharFeatures Suite", 102},
    {"ATE Font Suite", 1},
    {"ATE ParaFeatures Suite", 101},
    {"ATE Paragraph Suite", 1},
    {"ATE ParagraphsIterator Suite", 1},
    {"ATE Story Suite", 1},
    {"ATE TextRange Suite", 1},
    {"ATE TextRanges Suite", 1},
    {"ATE TextRangesIterator Suite", 1},
    {"ATE TextRunsIterator Suite", 1},
    {"AI Tool Suite", 1019},
    {"AI Transform Art Suite", 1003},
    {"AI User Suite", 1018},
    {"AI Dictionary Suite", 1010},
    {"AI UID Suite", 1008},
    {"AI UIDREF Suite", 1008},
    {"AI UID Utils Suite", 1009},
    {"AI User Interface Theme Suite", 1002},
    {"SP Access Suite", 3},
    {"SP Basic Suite", 4},
    {"SP Blocks Suite", 2},
    {"SP Plug-ins Suite", 4},
    {"SP Suites Suite", 2},
    {"AI Unicode String Suite", 1009},
    {"AI File Path Suite", 1007},
    {"AS User Interaction Suite", 4},
};

class SuiteCatalogTest : public HostFixture {};

TEST_F(SuiteCatalogTest, OffersEverySuiteInItsVersionAndNoOther) {
  for (const Offered& expected : kExpected) {
    for (const std::int32_t version : {expected.version - 1, expected.version, expected.version + 1}) {
      const int unwritten = 0;
      const void* table = &unwritten;
      const SPErr code = host.basic()->AcquireSuite(expected.name, version, &table);
      const bool right = version == expected.version;
      EXPECT_EQ(code, right ? kSPNoError : kSPSuiteNotFoundError) << expected.name << " " << version;
      EXPECT_EQ(table != nullptr, right) << expected.name << " " << version;
    }
  }
  EXPECT_EQ(host::suiteCatalog().size(), std::size(kExpected));
}

TEST_F(SuiteCatalogTest, NamesAreExact) {
  const void* table = nullptr;
  for (const char* name : {"", "AI Art", "AI Art Suite ", "ai art suite"}) {
    EXPECT_EQ(host.basic()->AcquireSuite(name, kAIArtSuiteVersion, &table), kSPSuiteNotFoundError) << name;
  }
}

// A slot left empty would crash the plug-in that calls it; a name given twice or forgotten would make
// refusals hit the wrong call.
TEST_F(SuiteCatalogTest, TablesAreFullAndEntriesNamedOnce) {
  for (const host::SuiteOffer& offer : host::suiteCatalog()) {
    ASSERT_NE(offer.table, nullptr) << offer.name;
    std::set<std::string> names;
    const auto* slots = static_cast<void* const*>(offer.table);
    for (std::size_t i = 0; i < offer.entries.size(); ++i) {
      EXPECT_NE(slots[i], nullptr) << offer.name << " " << i;
      EXPECT_STREQ(offer.entries[i]->suite, offer.name);
      EXPECT_TRUE(names.insert(offer.entries[i]->name).second) << offer.name << " " << offer.entries[i]->name;
    }
  }
  EXPECT_EQ(host::findSuite(kAIArtSuite)->entries.size() * sizeof(void*), sizeof(AIArtSuite));
  EXPECT_EQ(host::findSuite(kAILayerSuite)->entries.size() * sizeof(void*), sizeof(AILayerSuite));
  EXPECT_EQ(host::findSuite(kSPBasicSuite)->entries.size() * sizeof(void*), sizeof(SPBasicSuite));
}

TEST_F(SuiteCatalogTest, CountsWhatIsHeld) {
  const std::int32_t before = host.holds();
  const std::int32_t artBefore = host.holds(kAIArtSuite);
  acquire<AIArtSuite>(kAIArtSuite, kAIArtSuiteVersion);
  EXPECT_EQ(host.holds(kAIArtSuite), artBefore + 1);
  EXPECT_EQ(host.holds(), before + 1);
  EXPECT_EQ(host.basic()->ReleaseSuite(kAIArtSuite, kAIArtSuiteVersion), kSPNoError);
  EXPECT_EQ(host.holds(), before);
  EXPECT_EQ(host.basic()->ReleaseSuite(kAIArtSuite, kAIArtSuiteVersion - 1), kSPSuiteNotFoundError);
  EXPECT_EQ(host.basic()->ReleaseSuite("AI Tag Suite", 1004), kSPSuiteNotFoundError);
  EXPECT_EQ(host.holds("no such suite"), 0);
}

TEST_F(SuiteCatalogTest, BasicSuiteComparesBytes) {
  const SPBasicSuite& basic = *host.basic();
  EXPECT_EQ(basic.IsEqual("AI Menu", "AI Menu"), 1);
  EXPECT_EQ(basic.IsEqual("AI Menu", "AI menu"), 0);
  EXPECT_EQ(basic.IsEqual("AI Menu", "AI Menu "), 0);
  EXPECT_EQ(basic.IsEqual(nullptr, "AI Menu"), 0);
  EXPECT_EQ(basic.IsEqual(nullptr, nullptr), 0);
}

TEST_F(SuiteCatalogTest, BasicSuiteAllocates) {
  void* block = nullptr;
  EXPECT_EQ(host.basic()->AllocateBlock(0, &block), kSPNoError);
  EXPECT_NE(block, nullptr);
  EXPECT_EQ(host.basic()->FreeBlock(block), kSPNoError);
  EXPECT_EQ(host.basic()->AllocateBlock(~std::size_t{0}, &block), kSPOutOfMemoryError);
  EXPECT_EQ(block, nullptr);
  EXPECT_EQ(host.basic()->FreeBlock(nullptr), kSPNoError);
}

TEST(HostTest, TablesFailWithoutAHost) {
  const SPBasicSuite* basic = host::Host().basic();
  const void* table = &basic;
  EXPECT_NE(basic->AcquireSuite(kAIArtSuite, kAIArtSuiteVersion, &table), kSPNoError);
  EXPECT_EQ(table, nullptr);
  EXPECT_EQ(basic->IsEqual("a", "a"), 0);
}

TEST(HostTest, NothingOfAHostLivesOnInTheNext) {
  AIUnicodeStringHandle leftOver = nullptr;
  const auto strings = [](host::Host& host) {
    const void* table = nullptr;
    host.basic()->AcquireSuite(kAIUnicodeStringSuite, kAIUnicodeStringSuiteVersion, &table);
    return static_cast<const AIUnicodeStringSuite*>(table);
  };
  {
    host::Host first;
    ASSERT_EQ(strings(first)->New("a", 1, kAIUTF8CharacterEncoding, &leftOver), kNoErr);
    EXPECT_EQ(first.refusal().add("AI Unicode String Suite:New"), "");
  }
  host::Host second;
  EXPECT_EQ(second.holds(), 0);
  AIUnicodeStringHandle fresh = nullptr;
  ASSERT_EQ(strings(second)->New("b", 1, kAIUTF8CharacterEncoding, &fresh), kNoErr);
  EXPECT_EQ(strings(second)->Dispose(leftOver), kBadParameterErr);
  EXPECT_EQ(strings(second)->Dispose(fresh), kNoErr);
}

}  // namespace
