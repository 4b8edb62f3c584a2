#include "RVADM_PicturePushButton.h"

#include <QIcon>
#include <QMouseEvent>
#include <QPixmap>
#include <QStyleOptionToolButton>
#include <QStylePainter>

#include "BrightnessMode.h"
#include "Icons.h"
#include "InputIcon.h"
#include "MouseRoute.h"
#include "QtManager.h"

namespace qRVADM {
namespace {

constexpr QSize kBlankSize(16, 16);

QIcon NormalIcon(int id) {
  if (id >= 0) return GetIcon(id);
  QPixmap blank(kBlankSize);
  blank.fill(Qt::transparent);
  return QIcon(blank);
}

QSize SizeOf(const QIcon& icon) {
  const QList<QSize> sizes = icon.availableSizes(QIcon::Normal, QIcon::Off);
  return sizes.isEmpty() ? kBlankSize : sizes.first();
}

}  // namespace

RVADM_PicturePushButton::RVADM_PicturePushButton(RVADM_ItemParent* itemParent, int normalId, int selectedId)
    : RVADM_QMetaObjectProxy(itemParent, kPicturePushButtonKind), iconId(normalId) {
  SetSelectedPicture(selectedId);
  resize(sizeHint());
  ConnectToDialog(SIGNAL(clicked()), SLOT(OnPictureButtonClicked()), false);
  TakeNoFocusOnPalette();
}

void RVADM_PicturePushButton::SetPicture(int id) {
  ShowPictures(id, 0);
}

void RVADM_PicturePushButton::SetSelectedPicture(int id) {
  ShowPictures(iconId, id);
}

void RVADM_PicturePushButton::SetFlat(bool resizeToIcon) {
  flat = true;
  if (resizeToIcon) resize(iconSize());
  update();
}

void RVADM_PicturePushButton::Notify(int code) {
  if (!notice.Keeps(code)) RVADM_Item::Notify(code);
}

void RVADM_PicturePushButton::ShowPictures(int id, int selectedId) {
  iconId = id;
  selectedIconId = selectedId;
  QIcon icon = NormalIcon(id);
  setIconSize(SizeOf(icon));
  if (selectedId > 0) AddIconPixmaps(icon, selectedId, kHostBrightness, QIcon::Normal, QIcon::On);
  setIcon(IconInField(*this, icon, id, selectedId));
}

bool RVADM_PicturePushButton::event(QEvent* event) {
  if (event->type() != RVADMQtManager::kThemeChangedEvent) {
    return notice.After(*this, [this, event] { return QToolButton::event(event); });
  }
  SetSelectedPicture(selectedIconId);
  return true;
}

void RVADM_PicturePushButton::mousePressEvent(QMouseEvent* event) {
  if (TrackPress(*this, *event)) QToolButton::mousePressEvent(event);
}

void RVADM_PicturePushButton::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionToolButton option;
  initStyleOption(&option);
  if (!isCheckable() && selectedIconId > 0 && isDown()) option.state |= QStyle::State_On;
  if (flat) {
    painter.drawControl(QStyle::CE_ToolButtonLabel, option);
  } else {
    painter.drawComplexControl(QStyle::CC_ToolButton, option);
  }
}

}  // namespace qRVADM
