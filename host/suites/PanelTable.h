// The panels that plug-ins have made.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "AIPanel.h"
#include "PanelView.h"

namespace host {

struct PanelIcons {
  bool isVector = false;               // SVG, else PNG
  std::vector<std::int32_t> lightIds;  // resource ids in the plug-in's bundle
  std::vector<std::int32_t> darkIds;
};

constexpr AIReal kLargestPanelSide = 16384;

struct PanelRecord {
  AIPanelRef handle = nullptr;
  SPPluginRef plugin = nullptr;
  std::string identifier;  // in no language; no two panels share one
  std::string title;       // UTF-8, for people
  std::int32_t stateCount = 1;
  bool isResizable = false;  // by the user
  AISize minimum{};
  AISize maximum{kLargestPanelSide, kLargestPanelSide};
  AIReal verticalStep = 0;  // 0 and 1: none
  PanelIcons icons;
  AIPanelFlyoutMenuRef menu = nullptr;  // null: none
  void* userData = nullptr;

  AIPanelFlyoutSelectionCallback onFlyoutSelection = nullptr;
  AIPanelCallback onFlyoutOpening = nullptr;
  AIPanelVisibilityCallback onVisibility = nullptr;
  AIPanelCallback onSize = nullptr;
  AIPanelCallback onState = nullptr;

  int callsUnderWay = 0;  // of the plug-in, about this panel
  std::unique_ptr<PanelView> view;
};

// The size that a panel of this size and these limits really has.
AISize heldWithin(const PanelRecord& panel, AISize size);

class PanelTable {
 public:
  // Who shows the panels that are made; not owned. Null: nobody, and none can be made.
  PanelViews* views = nullptr;

  // With its view. Null if the identifier is taken, nobody shows panels, or no more ids are to be had.
  PanelRecord* add(PanelRecord panel);
  bool remove(AIPanelRef panel);              // false if there is no such panel
  PanelRecord* find(AIPanelRef panel) const;  // null if there is no such panel
  bool has(const std::string& identifier) const;
  // Keeps the record, though no longer the view, even if the panel goes.
  std::shared_ptr<PanelRecord> hold(AIPanelRef panel) const;
  const std::vector<std::shared_ptr<PanelRecord>>& all() const { return panels_; }  // oldest first

 private:
  std::vector<std::shared_ptr<PanelRecord>> panels_;
};

}  // namespace host
