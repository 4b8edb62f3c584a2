#include "PaintTable.h"

#include <unordered_map>

#include "Bars.h"
#include "Buttons.h"
#include "Fields.h"
#include "Frames.h"
#include "Items.h"
#include "Menus.h"
#include "Ranges.h"

namespace host::look {
namespace {

using Table = std::unordered_map<int, PaintFunction>;

template <typename Part>
PaintFunction in(const Table& table, Part part) {
  const auto found = table.find(static_cast<int>(part));
  return found != table.end() ? found->second : nullptr;
}

const Table& primitives() {
  static const Table table{
      {QStyle::PE_PanelButtonCommand, pushButtonPanel},
      {QStyle::PE_PanelButtonTool, toolButtonPanel},
      {QStyle::PE_IndicatorButtonDropDown, toolButtonPanel},
      {QStyle::PE_FrameDefaultButton, nothing},
      {QStyle::PE_FrameFocusRect, focusRing},
      {QStyle::PE_IndicatorCheckBox, checkBoxIndicator},
      {QStyle::PE_IndicatorItemViewItemCheck, checkBoxIndicator},
      {QStyle::PE_IndicatorRadioButton, radioButtonIndicator},
      {QStyle::PE_IndicatorArrowUp, arrowUp},
      {QStyle::PE_IndicatorArrowDown, arrowDown},
      {QStyle::PE_IndicatorArrowLeft, arrowLeft},
      {QStyle::PE_IndicatorArrowRight, arrowRight},
      {QStyle::PE_PanelLineEdit, lineEditPanel},
      {QStyle::PE_FrameLineEdit, viewFrame},
      {QStyle::PE_Frame, viewFrame},
      {QStyle::PE_FrameWindow, windowFrame},
      {QStyle::PE_PanelMenu, menuPanel},
      {QStyle::PE_FrameMenu, nothing},
      {QStyle::PE_PanelTipLabel, toolTipPanel},
      {QStyle::PE_PanelMenuBar, menuBarPanel},
      {QStyle::PE_IndicatorToolBarHandle, toolBarHandle},
      {QStyle::PE_IndicatorToolBarSeparator, toolBarSeparator},
      {QStyle::PE_IndicatorDockWidgetResizeHandle, splitter},
      {QStyle::PE_FrameDockWidget, dockFrame},
      {QStyle::PE_PanelStatusBar, statusBarPanel},
      {QStyle::PE_FrameStatusBarItem, nothing},
      {QStyle::PE_FrameTabWidget, tabWidgetFrame},
      {QStyle::PE_FrameTabBarBase, tabBarBase},
      {QStyle::PE_IndicatorTabClose, tabClose},
      {QStyle::PE_IndicatorHeaderArrow, headerArrow},
      {QStyle::PE_IndicatorBranch, branch},
      {QStyle::PE_IndicatorItemViewItemDrop, dropMark},
      {QStyle::PE_PanelItemViewItem, itemPanel},
      {QStyle::PE_PanelScrollAreaCorner, plainGround},
  };
  return table;
}

const Table& controls() {
  static const Table table{
      {QStyle::CE_PushButton, pushButton},
      {QStyle::CE_PushButtonLabel, pushButtonLabel},
      {QStyle::CE_MenuBarItem, menuBarItem},
      {QStyle::CE_MenuBarEmptyArea, menuBarPanel},
      {QStyle::CE_MenuItem, menuItem},
      {QStyle::CE_MenuEmptyArea, nothing},
      {QStyle::CE_ToolBar, toolBar},
      {QStyle::CE_TabBarTabShape, tabShape},
      {QStyle::CE_DockWidgetTitle, dockTitle},
      {QStyle::CE_HeaderSection, headerSection},
      {QStyle::CE_HeaderEmptyArea, headerEmptyArea},
      {QStyle::CE_Splitter, splitter},
      {QStyle::CE_SizeGrip, sizeGrip},
      {QStyle::CE_RubberBand, rubberBand},
      {QStyle::CE_ShapedFrame, shapedFrame},
      {QStyle::CE_ProgressBarGroove, progressGroove},
      {QStyle::CE_ProgressBarContents, progressContents},
      {QStyle::CE_ProgressBarLabel, progressLabel},
  };
  return table;
}

const Table& complexControls() {
  static const Table table{
      {QStyle::CC_ComboBox, comboBox},   {QStyle::CC_SpinBox, spinBox},   {QStyle::CC_Slider, slider},
      {QStyle::CC_ScrollBar, scrollBar}, {QStyle::CC_GroupBox, groupBox},
  };
  return table;
}

}  // namespace

PaintFunction painterOf(QStyle::PrimitiveElement element) {
  return in(primitives(), element);
}

PaintFunction painterOf(QStyle::ControlElement element) {
  return in(controls(), element);
}

PaintFunction painterOf(QStyle::ComplexControl control) {
  return in(complexControls(), control);
}

}  // namespace host::look
