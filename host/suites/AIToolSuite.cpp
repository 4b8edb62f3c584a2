#include "AITool.h"

#include "Entry.h"
#include "Suites.h"

namespace host {
namespace {

AIErr getSelectedTool(Host& host, AIToolHandle* tool) {
  if (tool == nullptr) return kBadParameterErr;
  const ToolRecord* selected = host.tools().selected();
  *tool = selected == nullptr ? nullptr : selected->handle;
  return kNoErr;
}

AIErr setSelectedTool(Host& host, AIToolHandle tool) {
  return host.tools().select(tool) ? kNoErr : kBadParameterErr;
}

AIErr restoreSelectedTool(Host& host, AIToolHandle tool) {
  return host.tools().restore(tool) ? kNoErr : kBadParameterErr;
}

}  // namespace

SuiteOffer toolSuite() {
  SuiteEntries entries(kAIToolSuite);
  static const AIToolSuite table{
      entries.add<getSelectedTool>("GetSelectedTool"),
      entries.add<setSelectedTool>("SetSelectedTool"),
      entries.add<restoreSelectedTool>("RestoreSelectedTool"),
  };
  return entries.offer(kAIToolSuiteVersion, &table);
}

}  // namespace host
