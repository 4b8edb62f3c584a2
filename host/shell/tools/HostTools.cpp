#include "HostTools.h"

#include <QKeyEvent>
#include <algorithm>
#include <utility>

#include "Host.h"
#include "PanTool.h"
#include "SelectTool.h"
#include "ToolGlyphs.h"
#include "ZoomTool.h"

namespace host {

HostTools::HostTools(Host& host, std::function<void()> selectionDone) : host_(host) {
  add(std::make_unique<SelectTool>(std::move(selectionDone)));
  add(std::make_unique<PanTool>());
  add(std::make_unique<ZoomTool>());
  host_.tools().select(tools_.front().handle);
}

void HostTools::add(std::unique_ptr<HostTool> tool) {
  const HostTool::Face face = tool->face();
  ToolRecord record;
  record.name = record.title = face.name;
  record.tooltip = record.title + " (" + QKeySequence(face.key).toString().toStdString() + ")";
  if (!tools_.empty()) record.toolset = host_.tools().all().find(tools_.front().handle)->toolset;
  tools_.push_back({host_.tools().add(std::move(record)).handle, std::move(tool)});
}

const HostTools::Entry* HostTools::find(AIToolHandle handle) const {
  const auto found =
      std::find_if(tools_.begin(), tools_.end(), [&](const Entry& entry) { return entry.handle == handle; });
  return found == tools_.end() ? nullptr : &*found;
}

HostTool* HostTools::selected() const {
  const ToolRecord* selected = host_.tools().selected();
  const Entry* entry = selected == nullptr ? nullptr : find(selected->handle);
  return entry == nullptr ? nullptr : entry->tool.get();
}

AIToolHandle HostTools::withKey(const QKeyEvent& event) const {
  if (event.modifiers() != Qt::NoModifier) return nullptr;
  const auto found = std::find_if(tools_.begin(), tools_.end(),
                                  [&](const Entry& entry) { return entry.tool->face().key == event.key(); });
  return found == tools_.end() ? nullptr : found->handle;
}

QIcon HostTools::icon(AIToolHandle tool, const QColor& ink) const {
  const Entry* entry = find(tool);
  return entry == nullptr ? QIcon() : glyphIcon(entry->tool->face().drawing, ink);
}

}  // namespace host
