#include "PluginPictures.h"

#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

#include "Host.h"

namespace host {
namespace {

// Null if there is none. A picture in single resolution where a doubled one was asked for says so.
QPixmap pictureOf(const ResourceTable& pictures, std::int32_t id, ResourceTable::Version version) {
  const auto file = pictures.picture(id, version);
  if (!file) return {};
  QPixmap pixmap = QPixmap::fromImage(QImage(QString::fromStdString(*file)));
  const bool doubled = version.doubled && pictures.picture(id, {version.dark, false}) != file;
  pixmap.setDevicePixelRatio(doubled ? 2 : 1);
  return pixmap;
}

// Null if there is none.
QPixmap drawingOf(const ResourceTable& pictures, std::int32_t id, ResourceTable::Version version) {
  const auto file = pictures.picture(id, {version.dark, false});
  QSvgRenderer drawing(QString::fromStdString(file.value_or(std::string())));
  if (!drawing.isValid()) return {};
  const int scale = version.doubled ? 2 : 1;
  QPixmap pixmap(drawing.defaultSize() * scale);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  drawing.render(&painter);
  painter.end();
  pixmap.setDevicePixelRatio(scale);
  return pixmap;
}

}  // namespace

QIcon toolIcon(Host& host, const ToolRecord& tool, Theme theme) {
  const bool dark = theme == Theme::Dark;
  QIcon icon;
  for (const bool doubled : {false, true}) {
    const std::int32_t id = dark ? tool.darkIcon : tool.lightIcon;
    const QPixmap pixmap = pictureOf(host.pictures(tool.plugin), id, {dark, doubled});
    if (!pixmap.isNull()) icon.addPixmap(pixmap);
  }
  return icon;
}

QIcon panelIcon(Host& host, const PanelRecord& panel, Theme theme) {
  const bool dark = theme == Theme::Dark;
  const std::vector<std::int32_t>& ids = dark ? panel.icons.darkIds : panel.icons.lightIds;
  QIcon icon;
  if (ids.empty()) return icon;
  const auto picture = panel.icons.isVector ? drawingOf : pictureOf;
  for (const bool doubled : {false, true}) {
    const QPixmap pixmap = picture(host.pictures(panel.plugin), ids.front(), {dark, doubled});
    if (!pixmap.isNull()) icon.addPixmap(pixmap);
  }
  return icon;
}

QCursor pictureCursor(const ResourceTable& pictures, std::int32_t id, double ratio) {
  const QPixmap pixmap = pictureOf(pictures, id, {false, ratio > 1});
  return pixmap.isNull() ? QCursor(Qt::CrossCursor) : QCursor(pixmap);
}

}  // namespace host
