#include "SuiteCatalog.h"

#include <set>

#include "HostFixture.h"

namespace {

class SuiteCatalogTest : public HostFixture {};

TEST_F(SuiteCatalogTest, OffersEverySuiteInItsVersionAndNoOther) {
  for (const host::SuiteOffer& offer : host::suiteCatalog()) {
    for (const std::int32_t version : {offer.version - 1, offer.version, offer.version + 1}) {
      const void* table = this;
      const SPErr code = host.basic()->AcquireSuite(offer.name, version, &table);
      const bool right = version == offer.version;
      EXPECT_EQ(code, right ? kSPNoError : kSPSuiteNotFoundError) << offer.name << " " << version;
      EXPECT_EQ(table != nullptr, right) << offer.name << " " << version;
    }
  }
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

TEST_F(SuiteCatalogTest, BasicSuiteAllocatesWhatItCan) {
  const SPBasicSuite& basic = *host.basic();
  EXPECT_EQ(basic.IsEqual("AI Menu", "AI menu"), 0);
  EXPECT_EQ(basic.IsEqual(nullptr, nullptr), 0);
  void* block = nullptr;
  EXPECT_EQ(basic.AllocateBlock(0, &block), kSPNoError);
  EXPECT_NE(block, nullptr);
  EXPECT_TRUE(each(kSPNoError, basic.FreeBlock(block), basic.FreeBlock(nullptr)));
  EXPECT_EQ(basic.AllocateBlock(~std::size_t{0}, &block), kSPOutOfMemoryError);
  EXPECT_EQ(block, nullptr);
}

TEST(HostTest, NothingOfAHostLivesOnInTheNext) {
  const auto strings = [](const host::Host& host) {
    const void* table = nullptr;
    host.basic()->AcquireSuite(kAIUnicodeStringSuite, kAIUnicodeStringSuiteVersion, &table);
    return static_cast<const AIUnicodeStringSuite*>(table);
  };
  AIUnicodeStringHandle leftOver = nullptr, fresh = nullptr;
  {
    host::Host first;
    ASSERT_EQ(strings(first)->New("a", 1, kAIUTF8CharacterEncoding, &leftOver), kNoErr);
    EXPECT_EQ(first.refusal().add("AI Unicode String Suite:New"), "");
  }
  host::Host second;
  EXPECT_EQ(second.holds(), 0);
  ASSERT_EQ(strings(second)->New("b", 1, kAIUTF8CharacterEncoding, &fresh), kNoErr);
  EXPECT_EQ(strings(second)->Dispose(leftOver), kBadParameterErr);
}

}  // namespace
