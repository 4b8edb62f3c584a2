// The plug-in's tools in the palette of the host.
#include <memory>

#include "CutOption.h"
#include "CutPlugin.h"
#include "CutTool.h"
#include "TextKey.h"

namespace Vandrell::Corvane {
namespace {

constexpr const char* kRoundToolName = TextKey("brevia Register Round Mark Tool");
constexpr const char* kCrossToolName = TextKey("brevia Register Cross Mark Tool");
constexpr int kRoundToolIcon = 16201;
constexpr int kCrossToolIcon = 16203;

}  // namespace

void CutPlugin::MakeTools() {
  const auto make = [this](const char* name, int iconID, RegmarkShape shape, AIAddToolData& data) {
    auto tool = std::make_unique<CutTool>(this, name, iconID, shape, &data);
    if (AddTool(tool.get()) == kNoErr) tools[shape] = tool.release();
  };
  AIAddToolData roundData;
  make(kRoundToolName, kRoundToolIcon, kRoundRegmark, roundData);
  AIAddToolData crossData;  // shares the place of the round tool
  sAITool->GetToolNumberFromName(kRoundToolName, &crossData.sameGroupAs);
  sAITool->GetToolNumberFromName(kRoundToolName, &crossData.sameToolsetAs);
  make(kCrossToolName, kCrossToolIcon, kCrossRegmark, crossData);
}

}  // namespace Vandrell::Corvane
