// The texts that ship with the product.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "CheckTexts.h"
#include "DateKeys.h"
#include "LineTypeNames.h"
#include "SourceKeys.h"

namespace texts {
namespace {

namespace fs = std::filesystem;

const fs::path kSource = CORVANE_SOURCE;
const fs::path kShipped = kSource / "plugin" / "bundle";
const fs::path kBuilt = fs::path(CORVANE_BIN) / "corvane.bundle" / "Contents" / "Resources";

std::string Content(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

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

TEST(BundleTexts, LieInTheBuiltBundleAsTheyAre) {
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(kShipped)) {
    if (!entry.is_regular_file()) continue;
    const fs::path file = entry.path().lexically_relative(kShipped);
    EXPECT_TRUE(fs::is_regular_file(kBuilt / file) && Content(entry.path()) == Content(kBuilt / file))
        << file;
  }
}

}  // namespace
}  // namespace texts
