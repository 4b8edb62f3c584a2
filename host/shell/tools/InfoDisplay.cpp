#include "InfoDisplay.h"

#include "Geometry.h"
#include "RulerUnits.h"

namespace host {
namespace {

constexpr int kIndent = 6;  // pixels

}  // namespace

std::string infoText(const ToolInfo& info, const Document& document) {
  std::string text;
  for (const auto& [variable, value] : info) {
    if (!text.empty()) text += "   ";
    text += variable == kInfoDocX ? "X " : "Y ";
    text += lengthText(value * document.scale(), document.rulerUnits());
  }
  return text;
}

std::string selectionText(const Document& document, const AIRealRect& extent) {
  const std::size_t count = document.selectedCount();
  if (count == 0) return {};
  std::string text = std::to_string(count) + (count == 1 ? " object" : " objects");
  if (isEmpty(extent)) return text;
  const AIRulerUnits units = document.rulerUnits();
  const double width = (extent.right - extent.left) * document.scale();
  const double height = (extent.top - extent.bottom) * document.scale();
  return text + ", " + lengthNumber(width, units) + " \u00d7 " + lengthText(height, units);
}

InfoDisplay::InfoDisplay() {
  setTextFormat(Qt::PlainText);
  setAccessibleName("Selection and place of the pointer");
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);  // no text makes the window wider
  setIndent(kIndent);
}

}  // namespace host
