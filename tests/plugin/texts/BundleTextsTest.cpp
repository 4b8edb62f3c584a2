// The texts that ship with the product.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "CheckTexts.h"
#include "DateKeys.h"
#include "LineTypeNames.h"
#include "SourceKeys.h"

namespace texts {
namespace {

namespace fs = std::filesystem;

const fs::path kSource = CORVANE_SOURCE;
const fs::path kShipped = kSource / "plugin" / "bundle";

TEST(BundleTexts, AreSoundInEveryLanguage) {
  EXPECT_THAT(Localisations(kShipped), testing::ElementsAre("de", "es", "fr", "ja", "pt_BR"));
  AskedKeys asked;
  AskForSourceTexts(asked, kSource, "plugin");
  AskForLineTypeNames(asked, kShipped / "CurveLayerDefinition.json");
  AskForDates(asked);
  EXPECT_THAT(CheckTexts(kShipped, asked), testing::IsEmpty());
}

TEST(GalleryTexts, AreSoundInEveryLanguage) {
  const fs::path texts = kSource / "samples" / "gallery" / "bundle";
  EXPECT_THAT(Localisations(texts), testing::ElementsAre("de", "ja"));
  AskedKeys asked;
  AskForSourceTexts(asked, kSource, "samples/gallery");
  EXPECT_THAT(CheckTexts(texts, asked, {"rv"}), testing::IsEmpty());
}

}  // namespace
}  // namespace texts
