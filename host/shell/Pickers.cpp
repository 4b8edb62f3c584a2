#include "Pickers.h"

#include <QWidget>

#include "Handles.h"
#include "Host.h"
#include "HostDialog.h"
#include "PaintPicker.h"
#include "RGBPicker.h"

namespace host {
namespace {

bool pickRGBColor(const std::string& title, AIRGBColor& color) {
  auto* picker = new RGBPicker(QString::fromStdString(title), color, HostDialog::parent());
  HostDialog dialog(picker);
  if (!dialog.accepted()) return false;
  color = picker->color();
  return true;
}

}  // namespace

Pickers::Pickers(Host& host, const QWidget& window) : host_(host) {
  host_.pickRGBColor = pickRGBColor;
  host_.pickPaint = [this](AISwatchRef first, AIColor& paint) { return pickPaint(first, paint); };
  host_.uiScaleFactor = [&window] { return window.devicePixelRatioF(); };
}

Pickers::~Pickers() {
  host_.pickRGBColor = nullptr;
  host_.pickPaint = nullptr;
  host_.uiScaleFactor = nullptr;
}

bool Pickers::pickPaint(AISwatchRef first, AIColor& paint) {
  const Document* document = host_.currentDocument();
  const SwatchId swatch = document == nullptr ? 0 : idOfHandle(first, HandleKind::Swatch, document->serial());
  auto* picker = new PaintPicker(document, swatch, paint, HostDialog::parent());
  HostDialog dialog(picker);
  if (!dialog.accepted()) return false;
  paint = picker->paint();
  return true;
}

}  // namespace host
