#include "RVADM_PictureLabel.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>
#include <QWindow>
#include <algorithm>

#include "AppContext.h"
#include "IADMDrawer.h"
#include "Icons.h"
#include "InputIcon.h"
#include "ItemDefaultPainter.h"
#include "MouseRoute.h"
#include "QtManager.h"

namespace qRVADM {
namespace {

QSize FirstSize(const QIcon& icon) {
  const QList<QSize> sizes = icon.availableSizes(QIcon::Normal, QIcon::Off);
  return sizes.isEmpty() ? QSize(0, 0) : sizes.first();
}

QSize LogicalSize(const QPixmap& pixmap) {
  const qreal ratio = pixmap.devicePixelRatio();
  return {qRound(pixmap.width() / ratio), qRound(pixmap.height() / ratio)};
}

// `size`, or as much of it as fits, in the same proportions.
QSize ShrunkInto(const QSize& space, const QSize& size) {
  if (size.width() <= space.width() && size.height() <= space.height()) return size;
  const double ratio = std::min(static_cast<double>(space.width()) / size.width(),
                                static_cast<double>(space.height()) / size.height());
  return {qRound(size.width() * ratio), qRound(size.height() * ratio)};
}

QRect CentredIn(const QSize& space, const QSize& size) {
  return {QPoint((space.width() - size.width()) / 2, (space.height() - size.height()) / 2), size};
}

// The edges count as inside.
bool IsWithin(const QSize& size, const QPoint& point) {
  return point.x() >= 0 && point.y() >= 0 && point.x() <= size.width() && point.y() <= size.height();
}

}  // namespace

RVADM_PictureLabel::RVADM_PictureLabel(RVADM_ItemParent* itemParent, int id)
    : RVADM_QMetaObjectProxy(itemParent, kPictureLabelKind) {
  SetPicture(id);
}

void RVADM_PictureLabel::SetPicture(int id) {
  iconId = id;
  icon = GetIcon(id);
  resize(FirstSize(icon));
  icon = IconInField(*this, icon, id, 0);
  update();
}

void RVADM_PictureLabel::ShowIcon(const QIcon& shownIcon) {
  icon = shownIcon;
  update();
}

void RVADM_PictureLabel::DefaultPaint(QPaintEvent*) {
  const QSize available = FirstSize(icon);
  if (available.isEmpty()) return;
  const QPixmap pixmap = icon.pixmap(window()->windowHandle(), available,
                                     isEnabled() ? QIcon::Normal : QIcon::Disabled, QIcon::Off);
  const QSize natural = LogicalSize(pixmap);
  const QSize shown = ShrunkInto(size(), natural);
  const bool isScaled = shown != natural || qApp->devicePixelRatio() > pixmap.devicePixelRatio();
  QPainter painter(this);
  // Pictures of the plug-in's own are drawn for the pixels that they get.
  if (isScaled && iconId == 0) painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawPixmap(CentredIn(size(), shown), pixmap);
}

bool RVADM_PictureLabel::event(QEvent* event) {
  if (event->type() != RVADMQtManager::kThemeChangedEvent) return QWidget::event(event);
  if (iconId != 0) SetPicture(iconId);
  return true;
}

void RVADM_PictureLabel::mousePressEvent(QMouseEvent* event) {
  if (TrackPress(*this, *event)) QWidget::mousePressEvent(event);
}

void RVADM_PictureLabel::mouseReleaseEvent(QMouseEvent* event) {
  if (!TrackRelease(*this, *event)) return;
  const QPointer<QWidget> alive(this);
  if (IsWithin(size(), event->pos())) CallDialogSlot("OnPictureLabelClicked");
  if (alive) QWidget::mouseReleaseEvent(event);
}

void RVADM_PictureLabel::mouseMoveEvent(QMouseEvent* event) {
  if (TrackMove(*this, *event)) QWidget::mouseMoveEvent(event);
}

void RVADM_PictureLabel::paintEvent(QPaintEvent* event) {
  ItemDefaultPainter<RVADM_PictureLabel> look(*this, event);
  IADMDrawer drawer(this, &look, ToADMRect(event->rect()));
  const AppContext context;
  Draw(drawer);
}

}  // namespace qRVADM

using namespace qRVADM;
#include "moc_RVADM_PictureLabel.cpp"
