#include "ToolPalette.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "Host.h"
#include "HostTools.h"
#include "PluginPictures.h"
#include "ThemePalette.h"

namespace host {
namespace {

constexpr int kIconSide = 20;  // pixels
constexpr int kPlacesWithKeys = 9;

struct Group {
  bool ofPlugin;
  int toolset;
  int number;

  bool operator<(const Group& other) const {
    return std::tie(ofPlugin, toolset, number) < std::tie(other.ofPlugin, other.toolset, other.number);
  }
};

// A group is what its first tool is.
std::vector<Group> groupsOf(const ToolTable& tools) {
  std::vector<Group> groups;
  for (const ToolRecord& tool : tools.all()) {
    const bool known = std::any_of(groups.begin(), groups.end(),
                                   [&](const Group& group) { return group.number == tool.group; });
    if (!known) groups.push_back({tool.plugin != nullptr, tool.toolset, tool.group});
  }
  std::sort(groups.begin(), groups.end());
  return groups;
}

QKeySequence keysOf(int place) {
  return place <= kPlacesWithKeys ? QKeySequence("Alt+" + QString::number(place)) : QKeySequence();
}

}  // namespace

ToolPalette::ToolPalette(Host& host, const HostTools& ownTools, ToolPlace::Commands commands)
    : QToolBar("Tools"), host_(host), ownTools_(ownTools), commands_(std::move(commands)) {
  setAccessibleName("Tools");
  setOrientation(Qt::Vertical);
  setMovable(false);
  setIconSize({kIconSide, kIconSide});
  setContextMenuPolicy(Qt::PreventContextMenu);
}

void ToolPalette::refresh() {
  if (groupsOf(host_.tools()).size() != places_.size()) build();
  for (const auto& [group, place] : places_) showGroup(group, *place);
}

void ToolPalette::build() {
  clear();
  for (const auto& [group, place] : places_) place->deleteLater();  // one of them may be at work right now
  places_.clear();
  const Group* before = nullptr;
  const std::vector<Group> groups = groupsOf(host_.tools());
  for (const Group& group : groups) {
    if (before != nullptr && before->toolset != group.toolset) addSeparator();
    before = &group;
    auto* place = new ToolPlace(keysOf(static_cast<int>(places_.size()) + 1), commands_);
    place->setIconSize(iconSize());
    addWidget(place);
    places_[group.number] = place;
  }
}

void ToolPalette::showGroup(int group, ToolPlace& place) {
  std::vector<PaletteTool> tools;
  for (const ToolRecord& tool : host_.tools().all()) {
    if (tool.group != group) continue;
    const bool isOwn = tool.plugin == nullptr;
    tools.push_back({tool.handle, QString::fromStdString(tool.title), QString::fromStdString(tool.tooltip),
                     isOwn ? ownTools_.icon(tool.handle, iconInk(theme())) : toolIcon(host_, tool, theme())});
  }
  const ToolRecord* selected = host_.tools().selected();
  place.show(tools, host_.tools().visibleMember(group)->handle,
             selected == nullptr ? nullptr : selected->handle);
}

}  // namespace host
