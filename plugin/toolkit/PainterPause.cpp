#include "PainterPause.h"

#include <QPainter>

namespace qRVADM {

PainterPause::PainterPause(QPainter& paused)
    : painter(paused),
      device(paused.isActive() ? paused.device() : nullptr),
      antialiasing(paused.testRenderHint(QPainter::Antialiasing)) {
  if (device != nullptr) painter.end();
}

void PainterPause::Resume() {
  if (device == nullptr) return;
  painter.begin(device);
  painter.setRenderHint(QPainter::Antialiasing, antialiasing);
}

}  // namespace qRVADM
