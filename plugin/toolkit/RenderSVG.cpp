#include "RenderSVG.h"

#include <QByteArray>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cmath>

#include "PictureLimits.h"

namespace qRVADM {
namespace {

constexpr double kFarthest = 1e9;  // from the origin; beyond it whole numbers overflow

QSize ViewBoxSize(const QSvgRenderer& renderer) {
  const QRectF box = renderer.viewBoxF();
  for (const double edge : {box.left(), box.top(), box.right(), box.bottom()}) {
    if (!(std::abs(edge) <= kFarthest)) return {};
  }
  return renderer.viewBox().size();
}

}  // namespace

QPixmap RenderSVG(const QByteArray& bytes, double ratio) {
  if (bytes.startsWith("\x1F\x8B")) return {};  // packed, and no telling what it would unpack to
  QSvgRenderer renderer(bytes);
  if (!renderer.isValid()) return {};
  const QSize box = ViewBoxSize(renderer);
  const double scale = 0.5 * ratio;
  const double width = std::trunc(box.width() * scale);
  const double height = std::trunc(box.height() * scale);
  if (!IsDecodable(width, height)) return {};
  QImage image(static_cast<int>(width), static_cast<int>(height), QImage::Format_ARGB32);
  if (image.isNull()) return {};
  image.fill(0);
  QPainter painter(&image);
  renderer.render(&painter);
  painter.end();
  return QPixmap::fromImage(image);
}

}  // namespace qRVADM
