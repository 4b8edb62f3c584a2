#include "DecodePNG.h"

#include <QBuffer>
#include <QByteArray>
#include <QImageReader>

#include "PictureLimits.h"

namespace qRVADM {
namespace {

QSize StatedSize(const QByteArray& bytes) {
  QBuffer buffer;
  buffer.setData(bytes);
  return QImageReader(&buffer, "PNG").size();
}

}  // namespace

QPixmap DecodePNG(const QByteArray& bytes) {
  const QSize size = StatedSize(bytes);
  QPixmap pixmap;
  if (!IsDecodable(size.width(), size.height()) || !pixmap.loadFromData(bytes, "PNG")) return {};
  return pixmap;
}

}  // namespace qRVADM
