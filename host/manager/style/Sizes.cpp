#include "Sizes.h"

#include <QStyleOption>
#include <QWidget>
#include <algorithm>

#include "Buttons.h"
#include "Measures.h"
#include "Menus.h"

namespace host::look {
namespace {

constexpr int kRingSlack = 2;  // between a text and the ring around it

QSize pushButtonSize(const Measures& measures, const QSize& contents, const QWidget* widget) {
  const int width = contents.width() + 2 * measures.buttonPadding();
  return {closesModalDialog(widget) ? std::max(width, measures.modalButtonWidth()) : width,
          std::max(measures.control(), contents.height() + 2 * measures.padding())};
}

QSize fieldSize(const Measures& measures, const QSize& contents, int besides) {
  return {contents.width() + besides, std::max(measures.control(), contents.height() + 2)};
}

// Without a frame it stands in another field, which adds the room around it.
QSize lineEditSize(const Measures& measures, const QStyleOption* option, const QSize& contents) {
  const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
  const bool inner = frame != nullptr && frame->lineWidth == 0;
  return inner ? contents : fieldSize(measures, contents, 2 * measures.padding());
}

QSize choiceSize(const Measures& measures, const QSize& contents) {
  return {measures.indicator() + measures.sidePadding() + contents.width() + 2 * kRingSlack,
          std::max(measures.indicator(), contents.height()) + 2};
}

// Lines and icons are as wide in every font.
std::optional<int> fixedMetric(QStyle::PixelMetric metric) {
  switch (metric) {
    case QStyle::PM_ButtonShiftHorizontal:
    case QStyle::PM_ButtonShiftVertical:
    case QStyle::PM_MenuBarVMargin:
    case QStyle::PM_MenuBarPanelWidth:
    case QStyle::PM_MenuBarItemSpacing:
    case QStyle::PM_MenuHMargin:
    case QStyle::PM_TabBarTabShiftHorizontal:
    case QStyle::PM_TabBarTabShiftVertical:
    case QStyle::PM_TabBarTabOverlap:
    case QStyle::PM_TabBarBaseOverlap:
      return 0;
    case QStyle::PM_DefaultFrameWidth:
    case QStyle::PM_MenuPanelWidth:
    case QStyle::PM_DockWidgetFrameWidth:
    case QStyle::PM_ToolTipLabelFrameWidth:
      return 1;
    case QStyle::PM_ComboBoxFrameWidth:
    case QStyle::PM_SpinBoxFrameWidth:
      return 2;
    case QStyle::PM_SplitterWidth:
    case QStyle::PM_DockWidgetSeparatorExtent:
      return 5;
    case QStyle::PM_ToolBarIconSize:
    case QStyle::PM_SmallIconSize:
    case QStyle::PM_ListViewIconSize:
      return 16;
    default:
      return std::nullopt;
  }
}

}  // namespace

std::optional<QSize> sizeOf(QStyle::ContentsType type, const QStyleOption* option, const QSize& contents,
                            const QWidget* widget) {
  const Measures measures(option, widget);
  switch (type) {
    case QStyle::CT_PushButton:
      return pushButtonSize(measures, contents, widget);
    case QStyle::CT_CheckBox:
    case QStyle::CT_RadioButton:
      return choiceSize(measures, contents);
    case QStyle::CT_ToolButton:
      return contents + QSize(2, 2) * measures.padding();
    case QStyle::CT_LineEdit:
      return lineEditSize(measures, option, contents);
    case QStyle::CT_ComboBox:
      return fieldSize(measures, contents, 2 * measures.sidePadding() + measures.arrowArea());
    case QStyle::CT_SpinBox:
      return fieldSize(measures, contents, measures.spinArea() + 2 * measures.padding());
    case QStyle::CT_MenuBarItem:
      return QSize(contents.width() + 2 * measures.sidePadding(), measures.bar());
    case QStyle::CT_MenuItem:
      if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option)) {
        return menuItemSize(*item, contents, widget);
      }
      return std::nullopt;
    default:
      return std::nullopt;
  }
}

std::optional<int> metricOf(QStyle::PixelMetric metric, const QStyleOption* option, const QWidget* widget) {
  if (const auto fixed = fixedMetric(metric)) return fixed;
  const Measures measures(option, widget);
  switch (metric) {
    case QStyle::PM_MenuBarHMargin:
    case QStyle::PM_MenuVMargin:
    case QStyle::PM_DockWidgetTitleMargin:
    case QStyle::PM_HeaderMargin:
      return measures.padding();
    case QStyle::PM_IndicatorWidth:
    case QStyle::PM_IndicatorHeight:
    case QStyle::PM_ExclusiveIndicatorWidth:
    case QStyle::PM_ExclusiveIndicatorHeight:
      return measures.indicator();
    case QStyle::PM_CheckBoxLabelSpacing:
    case QStyle::PM_RadioButtonLabelSpacing:
      return measures.sidePadding();
    case QStyle::PM_ScrollBarExtent:
      return measures.scrollBar();
    case QStyle::PM_ScrollBarSliderMin:
      return 2 * measures.text();
    case QStyle::PM_SliderLength:
    case QStyle::PM_SliderThickness:
    case QStyle::PM_SliderControlThickness:
      return measures.sliderHandle();
    case QStyle::PM_TabBarTabHSpace:
      return 2 * measures.buttonPadding();
    case QStyle::PM_TabBarTabVSpace:
      return 2 * measures.padding() + 2;
    case QStyle::PM_TabCloseIndicatorWidth:
    case QStyle::PM_TabCloseIndicatorHeight:
      return measures.indicator() + 2;
    case QStyle::PM_MenuButtonIndicator:
      return measures.text();
    default:
      return std::nullopt;
  }
}

std::optional<int> hintOf(QStyle::StyleHint hint) {
  switch (hint) {
    case QStyle::SH_EtchDisabledText:
    case QStyle::SH_DitherDisabledText:
    case QStyle::SH_DialogButtonBox_ButtonsHaveIcons:
    case QStyle::SH_ComboBox_Popup:
    case QStyle::SH_Widget_Animate:
    case QStyle::SH_Widget_Animation_Duration:
    case QStyle::SH_ScrollBar_Transient:
      return 0;
    case QStyle::SH_ItemView_ShowDecorationSelected:
    case QStyle::SH_MenuBar_MouseTracking:
    case QStyle::SH_Menu_MouseTracking:
    case QStyle::SH_ComboBox_ListMouseTracking:
      return 1;
    default:
      return std::nullopt;
  }
}

}  // namespace host::look
