#include "InputIcon.h"

#include <QIcon>
#include <QLineEdit>
#include <QVariant>

#include "BrightnessMode.h"
#include "Icons.h"
#include "QtManager.h"

namespace qRVADM {
namespace {

using RVADMQtManager::kActiveInputIconProperty;
using RVADMQtManager::kInactiveInputIconProperty;

QIcon LightIcon(int id, int selectedId) {
  QIcon icon;
  if (id > 0) AddIconPixmaps(icon, id, kLightBrightness, QIcon::Normal, QIcon::Off);
  if (selectedId > 0) AddIconPixmaps(icon, selectedId, kLightBrightness, QIcon::Normal, QIcon::On);
  return icon;
}

}  // namespace

QIcon IconInField(QWidget& picture, const QIcon& icon, int id, int selectedId) {
  if (qobject_cast<QLineEdit*>(picture.parent()) == nullptr) return icon;
  QIcon light = LightIcon(id, selectedId);
  picture.setProperty(kActiveInputIconProperty, light.isNull() ? QVariant() : QVariant(light));
  if (picture.property(kInactiveInputIconProperty).userType() != QMetaType::QIcon) return icon;
  picture.setProperty(kInactiveInputIconProperty, icon);
  return light;
}

}  // namespace qRVADM
