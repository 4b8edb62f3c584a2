#include "QtTextOutliner.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainterPath>
#include <QString>
#include <QStringList>
#include <utility>

#include "OffscreenApplication.h"

namespace host {
namespace {

// Outlines are made at this size and scaled, so that hinting and rounding don't show.
constexpr int kDesignPixels = 1000;

QFont fontOf(const TextRun& run) {
  QStringList families;
  for (QString family : QString::fromStdString(run.family).split(QLatin1Char(','))) {
    family = family.trimmed();
    family.remove(QLatin1Char('"')).remove(QLatin1Char('\''));
    if (!family.isEmpty()) families << family;
  }
  QFont font;
  if (!families.isEmpty()) font.setFamilies(families);
  font.setPixelSize(kDesignPixels);
  // CSS counts weights from 100 to 900, Qt 5 from 0 to 99 with 50 for normal and 75 for bold.
  font.setWeight(run.weight <= 400 ? run.weight / 8 : 50 + (run.weight - 400) / 12);
  font.setItalic(run.italic);
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

AIRealPoint scaled(const QPainterPath::Element& element, double factor) {
  return {element.x * factor, element.y * factor};
}

std::vector<PathGeometry> pathsOf(const QPainterPath& outline, double factor) {
  std::vector<PathGeometry> paths;
  for (int i = 0; i < outline.elementCount(); ++i) {
    const QPainterPath::Element element = outline.elementAt(i);
    const AIRealPoint point = scaled(element, factor);
    if (element.isMoveTo()) {
      PathGeometry path;
      path.closed = true;
      path.segments.push_back({point, point, point, 1});
      paths.push_back(std::move(path));
    } else if (element.isLineTo()) {
      paths.back().segments.push_back({point, point, point, 1});
    } else if (element.isCurveTo() && i + 2 < outline.elementCount()) {
      paths.back().segments.back().out = point;
      const AIRealPoint in = scaled(outline.elementAt(i + 1), factor);
      const AIRealPoint end = scaled(outline.elementAt(i + 2), factor);
      paths.back().segments.push_back({end, in, end, 1});
      i += 2;
    }
  }
  return paths;
}

}  // namespace

TextOutline QtTextOutliner::outline(const TextRun& run) const {
  ensureApplication();
  const QFont font = fontOf(run);
  const QString text = QString::fromStdString(run.text);
  const double factor = run.size / kDesignPixels;
  QPainterPath path;
  path.addText(0, 0, font, text);
  return {pathsOf(path, factor), QFontMetricsF(font).horizontalAdvance(text) * factor};
}

}  // namespace host
