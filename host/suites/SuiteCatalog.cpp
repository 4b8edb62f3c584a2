#include "SuiteCatalog.h"

#include <algorithm>

#include "Suites.h"

namespace host {
namespace {

struct HeldSuite {
  const char* name;
  std::int32_t version;
};

// Suites that plug-ins ask for and hold, and no plug-in calls.
constexpr HeldSuite kHeldSuites[] = {
    {"AI Action Manager Suite", 1005},
    {"AI Art Set Suite", 1009},
    {"AI Cloud Document Suite", 1001},
    {"AI Command Manager Suite", 1005},
    {"AI Cursor Snap Suite", 1016},
    {"AI Dictionary Suite", 1010},
    {"AI Document List Suite", 1011},
    {"AI Expand Suite", 1004},
    {"AI Font Suite", 1006},
    {"AI MdMemory Suite", 1003},
    {"AI Modal Parent Suite", 1002},
    {"AI Placed Suite", 1010},
    {"AI Plugin Group Suite", 1006},
    {"AI Real Bezier Suite", 1004},
    {"AI Shape Construction Suite", 1008},
    {"AI Swatch Libraries Suite", 1008},
    {"AI Tag Suite", 1004},
    {"AI Text Frame Suite", 1004},
    {"AI Transform Art Suite", 1003},
    {"AI UID Suite", 1008},
    {"AI UID Utils Suite", 1009},
    {"AI UIDREF Suite", 1008},
    {"AI User Interface Theme Suite", 1002},
    {"AIATE Paint Suite", 1003},
    {"ATE ApplicationPaint Suite", 1},
    {"ATE ArrayApplicationPaintRef Suite", 1},
    {"ATE CharFeatures Suite", 102},
    {"ATE DocumentTextResources Suite", 101},
    {"ATE Font Suite", 1},
    {"ATE ParaFeatures Suite", 101},
    {"ATE Paragraph Suite", 1},
    {"ATE ParagraphsIterator Suite", 1},
    {"ATE Story Suite", 1},
    {"ATE TextFrame Suite", 101},
    {"ATE TextFramesIterator Suite", 1},
    {"ATE TextLine Suite", 2},
    {"ATE TextLinesIterator Suite", 1},
    {"ATE TextRange Suite", 1},
    {"ATE TextRanges Suite", 1},
    {"ATE TextRangesIterator Suite", 1},
    {"ATE TextRunsIterator Suite", 1},
    {"SP Suites Suite", 2},
};

constexpr struct {
} kNoEntries;

std::vector<SuiteOffer> makeCatalog() {
  std::vector<SuiteOffer> catalog = {
      annotatorDrawerSuite(),
      annotatorSuite(),
      artSuite(),
      artboardSuite(),
      colorConversionSuite(),
      contextSuite(),
      customColorSuite(),
      dataFilterSuite(),
      documentSuite(),
      documentViewSuite(),
      filePathSuite(),
      foldersSuite(),
      hitTestSuite(),
      layerSuite(),
      matchingArtSuite(),
      menuSuite(),
      notifierSuite(),
      paintStyleSuite(),
      panelFlyoutMenuSuite(),
      panelSuite(),
      pathSuite(),
      pathStyleSuite(),
      preferenceSuite(),
      realMathSuite(),
      runtimeSuite(),
      swatchGroupSuite(),
      swatchListSuite(),
      toolSuite(),
      unicodeStringSuite(),
      userInteractionSuite(),
      userSuite(),
      accessSuite(),
      basicSuite(),
      blocksSuite(),
      pluginsSuite(),
  };
  for (const HeldSuite& held : kHeldSuites) catalog.push_back({held.name, held.version, &kNoEntries, {}});
  std::sort(catalog.begin(), catalog.end(), [](const SuiteOffer& a, const SuiteOffer& b) {
    return std::string_view(a.name) < std::string_view(b.name);
  });
  return catalog;
}

}  // namespace

const std::vector<SuiteOffer>& suiteCatalog() {
  static const std::vector<SuiteOffer> catalog = makeCatalog();
  return catalog;
}

const SuiteOffer* findSuite(std::string_view name) {
  const auto& catalog = suiteCatalog();
  const auto found =
      std::lower_bound(catalog.begin(), catalog.end(), name,
                       [](const SuiteOffer& offer, std::string_view wanted) { return offer.name < wanted; });
  return found != catalog.end() && found->name == name ? &*found : nullptr;
}

}  // namespace host
