#include "Icons.h"

#include <QApplication>

#include "BrightnessMode.h"
#include "LoadPixmap.h"

namespace qRVADM {
namespace {

bool AddPixmap(QIcon& icon, const QPixmap& pixmap, QIcon::Mode mode, QIcon::State state) {
  if (pixmap.isNull()) return false;
  icon.addPixmap(pixmap, mode, state);
  return true;
}

}  // namespace

bool AddIconPixmaps(QIcon& icon, int id, int brightnessMode, QIcon::Mode mode, QIcon::State state) {
  const bool added = AddPixmap(icon, LoadPixmap(id, brightnessMode, 1.0), mode, state);
  const double ratio = qApp->devicePixelRatio();
  if (ratio > 1.0) AddPixmap(icon, LoadPixmap(id, brightnessMode, ratio), mode, state);
  return added;
}

QIcon GetIcon(int id) {
  QIcon icon;
  AddIconPixmaps(icon, id, kHostBrightness, QIcon::Normal, QIcon::Off);
  return icon;
}

}  // namespace qRVADM
