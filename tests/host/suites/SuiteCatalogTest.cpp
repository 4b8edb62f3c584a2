#include "SuiteCatalog.h"

#include <set>

#include "HostFixture.h"

namespace {

class SuiteCatalogTest : public HostFixture {};

// A slot left empty would crash the plug-in that calls it; a name given twice or forgotten would make
// refusals hit the wrong call.
TEST_F(SuiteCatalogTest, TablesAreFullEntriesNamedOnceAndVersionsExact) {
  for (const host::SuiteOffer& offer : host::suiteCatalog()) {
    ASSERT_NE(offer.table, nullptr) << offer.name;
    std::set<std::string> names;
    const auto* slots = static_cast<void* const*>(offer.table);
    for (std::size_t i = 0; i < offer.entries.size(); ++i) {
      EXPECT_NE(slots[i], nullptr) << offer.name << " " << i;
      EXPECT_STREQ(offer.entries[i]->suite, offer.name);
      EXPECT_TRUE(names.insert(offer.entries[i]->name).second) << offer.name << " " << offer.entries[i]->name;
    }
    for (const std::int32_t version : {offer.version - 1, offer.version + 1}) {
      const void* table = this;
      EXPECT_EQ(host.basic()->AcquireSuite(offer.name, version, &table), kSPSuiteNotFoundError) << offer.name;
      EXPECT_EQ(table, nullptr) << offer.name;
    }
  }
  EXPECT_EQ(host::findSuite(kAIArtSuite)->entries.size() * sizeof(void*), sizeof(AIArtSuite));
  EXPECT_EQ(host::findSuite(kAILayerSuite)->entries.size() * sizeof(void*), sizeof(AILayerSuite));
  EXPECT_EQ(host::findSuite(kSPBasicSuite)->entries.size() * sizeof(void*), sizeof(SPBasicSuite));
}

TEST_F(SuiteCatalogTest, ARuleOfRefusalNamesACallThatThereIs) {
  const std::pair<const char*, const char*> cases[] = {{"", "no suite \"\""},
                                                       {"AI Art Suite:NewArtt", "no entry \"NewArtt\""},
                                                       {"AI Art Suite:", "no entry \"\""},
                                                       {"AI Tag Suite:Show", "no entry \"Show\""},
                                                       {"AI Art Suite:NewArt:0", "\"0\""},
                                                       {"AI Art Suite:NewArt:3rd", "\"3rd\""},
                                                       {"SP Basic Suite:IsEqual", "no result"}};
  for (const auto& [rule, complaint] : cases) {
    EXPECT_THAT(host.refusal().add(rule), testing::HasSubstr(complaint)) << rule;
  }
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
