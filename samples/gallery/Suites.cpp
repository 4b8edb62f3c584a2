#include "Suites.h"

#include <type_traits>

#include "AIColorConversion.h"
#include "AIContext.h"
#include "AICustomColor.h"
#include "AIDataFilter.h"
#include "AIFilePath.h"
#include "AIMenu.h"
#include "AINotifier.h"
#include "AIPaintStyle.h"
#include "AIPanel.h"
#include "AIPanelFlyoutMenu.h"
#include "AIPreference.h"
#include "AISwatchList.h"
#include "AIUnicodeString.h"
#include "AIUser.h"
#include "SPPlugins.h"

const SPBasicSuite* sSPBasic = nullptr;
const SPPluginsSuite* sSPPlugins = nullptr;
const AIColorConversionSuite* sAIColorConversion = nullptr;
const AIContextSuite* sAIContext = nullptr;
const AICustomColorSuite* sAICustomColor = nullptr;
const AIDataFilterSuite* sAIDataFilter = nullptr;
const AIFilePathSuite* sAIFilePath = nullptr;
const AIMenuSuite* sAIMenu = nullptr;
const AINotifierSuite* sAINotifier = nullptr;
const AIPaintStyleSuite* sAIPaintStyle = nullptr;
const AIPanelSuite* sAIPanel = nullptr;
const AIPanelFlyoutMenuSuite* sAIPanelFlyoutMenu = nullptr;
const AIPreferenceSuite* sAIPreference = nullptr;
const AISwatchListSuite* sAISwatchList = nullptr;
const AIUnicodeStringSuite* sAIUnicodeString = nullptr;
const AIUserSuite* sAIUser = nullptr;

namespace gallery {
namespace {

struct Row {
  const char* name;
  std::int32_t version;
  void (*set)(const void* suite);
  bool held = false;
};

template <auto* pointer>
Row Suite(const char* name, std::int32_t version) {
  using Pointer = std::remove_pointer_t<decltype(pointer)>;
  return {name, version, [](const void* suite) { *pointer = static_cast<Pointer>(suite); }};
}

Row theSuites[] = {
    Suite<&sSPPlugins>(kSPPluginsSuite, kSPPluginsSuiteVersion),
    Suite<&sAIColorConversion>(kAIColorConversionSuite, kAIColorConversionSuiteVersion),
    Suite<&sAIContext>(kAIContextSuite, kAIContextSuiteVersion),
    Suite<&sAICustomColor>(kAICustomColorSuite, kAICustomColorSuiteVersion),
    Suite<&sAIDataFilter>(kAIDataFilterSuite, kAIDataFilterSuiteVersion),
    Suite<&sAIFilePath>(kAIFilePathSuite, kAIFilePathSuiteVersion),
    Suite<&sAIMenu>(kAIMenuSuite, kAIMenuSuiteVersion),
    Suite<&sAINotifier>(kAINotifierSuite, kAINotifierSuiteVersion),
    Suite<&sAIPaintStyle>(kAIPaintStyleSuite, kAIPaintStyleSuiteVersion),
    Suite<&sAIPanel>(kAIPanelSuite, kAIPanelSuiteVersion),
    Suite<&sAIPanelFlyoutMenu>(kAIPanelFlyoutMenuSuite, kAIPanelFlyoutMenuSuiteVersion),
    Suite<&sAIPreference>(kAIPreferenceSuite, kAIPreferenceSuiteVersion),
    Suite<&sAISwatchList>(kAISwatchListSuite, kAISwatchListSuiteVersion),
    Suite<&sAIUnicodeString>(kAIUnicodeStringSuite, kAIUnicodeStringSuiteVersion),
    Suite<&sAIUser>(kAIUserSuite, kAIUserSuiteVersion),
};

}  // namespace

SPErr AcquireSuites(const SPBasicSuite* basic) {
  sSPBasic = basic;
  for (Row& row : theSuites) {
    const void* suite = nullptr;
    if (const SPErr error = basic->AcquireSuite(row.name, row.version, &suite); error != kSPNoError) {
      ReleaseSuites();
      return error;
    }
    row.set(suite);
    row.held = true;
  }
  return kSPNoError;
}

void ReleaseSuites() {
  for (Row& row : theSuites) {
    if (row.held) sSPBasic->ReleaseSuite(row.name, row.version);
    row.set(nullptr);
    row.held = false;
  }
}

}  // namespace gallery
