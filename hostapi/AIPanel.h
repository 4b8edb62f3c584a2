// Panels: places beside the document for what a plug-in shows all the time.
//
// Sizes are in units of the host's interface: pixels at scale 1. They are those of the view, without the
// title and the frame around it. A handle that is null or of a panel that is gone gives kBadParameterErr.
#pragma once

#include "AITypes.h"
#include "NativeView.h"

constexpr char kAIPanelSuite[] = "AI Panel Suite";
constexpr std::int32_t kAIPanelSuiteVersion = 1004;

constexpr AIErr kNoPanelsErr = ErrorCode("!PNL");  // nothing in this run of the host shows panels

// The plug-in's answers to what happens to its panel; the results are dropped. Called on the main thread,
// outside any message. A callback may destroy its panel.
using AIPanelCallback = AIErr (*)(AIPanelRef panel);
using AIPanelVisibilityCallback = AIErr (*)(AIPanelRef panel, AIBoolean isVisible);
using AIPanelFlyoutSelectionCallback = AIErr (*)(AIPanelRef panel, std::uint32_t itemID);

// Pictures by resource id in the plug-in's bundle; a list of one each for a light and for a dark ground.
struct AIPanelIcons {
  const std::int32_t* lightIds;
  const std::int32_t* darkIds;
  std::int32_t count;  // of each list
};

struct AIPanelSuite {
  // A hidden panel. `identifier` is the same in every language and session: by it the host knows the panel's
  // place, size and visibility of last time; an identifier that another panel has is kBadParameterErr. Not
  // `resizable`: by the user; SetSize works all the same. `stateCount`: a panel of two states has a button
  // that leads from one to the next, and from the last to the first. `menu` may be null. `userData` is
  // handed back by GetUserData. kNoPanelsErr where no panels can be.
  AIErr (*Create)(SPPluginRef plugin, AIUnicodeStringHandle identifier, AIUnicodeStringHandle title,
                  std::int32_t stateCount, AISize minimumSize, AIBoolean resizable, AIPanelFlyoutMenuRef menu,
                  void* userData, AIPanelRef* panel);
  // Its view ends with it, and whatever stands in the view unless it was taken out before.
  AIErr (*Destroy)(AIPanelRef panel);

  // What the panel's content stands in; the host's, good until the panel is destroyed.
  AIErr (*GetPlatformView)(AIPanelRef panel, NativeView** view);
  AIErr (*GetUserData)(AIPanelRef panel, void** userData);

  AIErr (*Show)(AIPanelRef panel, AIBoolean show);
  AIErr (*IsShown)(AIPanelRef panel, AIBoolean* isShown);
  AIErr (*SetTitle)(AIPanelRef panel, AIUnicodeStringHandle title);
  AIErr (*GetTitle)(AIPanelRef panel, AIUnicodeStringHandle title);
  AIErr (*SetIcons)(AIPanelRef panel, const AIPanelIcons* icons);  // PNG; the lists are copied
  AIErr (*SetSVGIcons)(AIPanelRef panel, std::int32_t lightId, std::int32_t darkId);

  AIErr (*GetSize)(AIPanelRef panel, AISize* size);
  // Held between the limits below. The size callback has been called when this returns, if the size has
  // changed; where the place that the panel stands in leaves it another size, it is called once more later.
  AIErr (*SetSize)(AIPanelRef panel, AISize size);
  // A limit that would pass the other is kBadParameterErr; the size follows the limits.
  AIErr (*GetMinimumSize)(AIPanelRef panel, AISize* size);
  AIErr (*SetMinimumSize)(AIPanelRef panel, AISize size);
  AIErr (*GetMaximumSize)(AIPanelRef panel, AISize* size);  // 16384 a side at first
  AIErr (*SetMaximumSize)(AIPanelRef panel, AISize size);
  // The user changes the height in steps of this many units, counted from the minimum. 0 and 1: freely.
  AIErr (*SetVerticalStep)(AIPanelRef panel, AIReal step);
  AIErr (*SetFlyoutMenu)(AIPanelRef panel, AIPanelFlyoutMenuRef menu);  // null: none
  // Of a panel that floats: its upper left corner on the screen, y down. One that has no place of last time
  // is docked, and goes there when the user first lets it float.
  AIErr (*Move)(AIPanelRef panel, std::int32_t x, std::int32_t y);

  // Null: none.
  AIErr (*SetFlyoutSelectionCallback)(AIPanelRef panel, AIPanelFlyoutSelectionCallback callback);
  AIErr (*SetFlyoutOpeningCallback)(AIPanelRef panel, AIPanelCallback callback);  // before the menu opens
  AIErr (*SetVisibilityCallback)(AIPanelRef panel, AIPanelVisibilityCallback callback);
  AIErr (*SetSizeCallback)(AIPanelRef panel, AIPanelCallback callback);
  AIErr (*SetStateCallback)(AIPanelRef panel, AIPanelCallback callback);
};

extern const AIPanelSuite* sAIPanel;
