#include "BuiltinIcons.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QString>
#include <QSvgRenderer>
#include <array>
#include <cstdlib>
#include <cstring>
#include <map>

#include "QtManager.h"
#include "ThemePalette.h"

namespace host {
namespace {

constexpr int kNominalSize = 16;
constexpr char kInkInSource[] = "#123456";  // stands in the sources for the ink of the theme

QByteArray inkedSource(int id, Theme theme) {
  QFile source(QStringLiteral(":/manager-icons/%1.svg").arg(id));
  if (!source.open(QIODevice::ReadOnly)) return {};
  return source.readAll().replace(kInkInSource, iconInk(theme).name().toLatin1());
}

QByteArray rendered(int id, Theme theme, int scale) {
  QSvgRenderer renderer(inkedSource(id, theme));
  if (!renderer.isValid()) return {};
  QImage image(kNominalSize * scale, kNominalSize * scale, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  renderer.render(&painter);
  painter.end();
  QByteArray png;
  QBuffer buffer(&png);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "PNG");
  return png;
}

}  // namespace

const QByteArray& builtinIcon(int id, Theme theme, int scale) {
  static std::map<std::array<int, 3>, QByteArray> made;
  const std::array<int, 3> key{id, static_cast<int>(theme), scale};
  const auto found = made.find(key);
  return found != made.end() ? found->second : made.emplace(key, rendered(id, theme, scale)).first->second;
}

}  // namespace host

int RVADMQtManager::SharedResources::GetBuiltinResource(int id, int& variant, char*& data) {
  constexpr int kDark = 1;
  constexpr int kDouble = 2;
  data = nullptr;
  const host::Theme theme = (variant & kDark) != 0 ? host::Theme::Dark : host::Theme::Light;
  const QByteArray& png = host::builtinIcon(id, theme, (variant & kDouble) != 0 ? 2 : 1);
  if (png.isEmpty()) return 0;
  data = static_cast<char*>(std::malloc(static_cast<std::size_t>(png.size())));
  if (data == nullptr) return 0;
  std::memcpy(data, png.constData(), static_cast<std::size_t>(png.size()));
  variant &= kDark | kDouble;
  return png.size();
}
