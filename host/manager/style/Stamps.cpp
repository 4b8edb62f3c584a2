#include "Stamps.h"

#include <QPainter>
#include <QPixmapCache>
#include <QTransform>

namespace host::look {
namespace {

int resolutionOf(const QPainter& painter) {
  const qreal ratio = painter.device()->devicePixelRatioF();
  const int whole = qRound(ratio);
  return qFuzzyCompare(ratio, whole) ? whole : 0;
}

QPixmap drawn(const QSize& size, int resolution, const std::function<void(QPainter&)>& draw) {
  QPixmap pixmap(size * resolution);
  pixmap.setDevicePixelRatio(resolution);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  draw(painter);
  return pixmap;
}

}  // namespace

bool takesStamps(const QPainter& painter) {
  return resolutionOf(painter) > 0 && painter.worldTransform().type() == QTransform::TxNone;
}

QPixmap stamp(const QPainter& onto, const QString& key, const QSize& size,
              const std::function<void(QPainter&)>& draw) {
  const int resolution = resolutionOf(onto);
  const QString full = key + QLatin1Char(' ') + QString::number(size.width()) + QLatin1Char('x') +
                       QString::number(size.height()) + QLatin1Char('@') + QString::number(resolution);
  QPixmap found;
  if (QPixmapCache::find(full, &found)) return found;
  found = drawn(size, resolution, draw);
  QPixmapCache::insert(full, found);
  return found;
}

}  // namespace host::look
