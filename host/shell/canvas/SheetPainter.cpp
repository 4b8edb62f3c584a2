#include "SheetPainter.h"

#include <QFontMetricsF>
#include <QPainter>

#include "CanvasPlace.h"
#include "Document.h"
#include "PictureRenderer.h"

namespace host {
namespace {

constexpr int kShadowReach = 7;  // pixels
constexpr int kShadowDarkness = 8;
constexpr int kNameSize = 11;
constexpr int kNameDistance = 5;

bool isDark(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() < 128;
}

// A frame outside of `rect`. Only what lies in `view` is painted: coordinates may be beyond what Qt can take.
void paintFrame(QPainter& painter, const QRectF& view, const QRectF& rect, double width,
                const QColor& colour) {
  const auto bar = [&](double x, double y, double across, double down) {
    painter.fillRect(QRectF(x, y, across, down) & view, colour);
  };
  bar(rect.left() - width, rect.top() - width, rect.width() + 2 * width, width);
  bar(rect.left() - width, rect.bottom(), rect.width() + 2 * width, width);
  bar(rect.left() - width, rect.top(), width, rect.height());
  bar(rect.right(), rect.top(), width, rect.height());
}

// Frames round each other, fainter outwards, a little lower than the sheet.
void paintShadow(QPainter& painter, const QRectF& view, const QRectF& sheet) {
  for (int i = 0; i < kShadowReach; ++i) {
    const QColor faint(0, 0, 0, kShadowDarkness * (kShadowReach - i));
    paintFrame(painter, view, sheet.translated(0, 1).adjusted(-i, -i, i, i), 1, faint);
  }
}

void paintName(QPainter& painter, const Sheet& sheet, const QColor& colour) {
  QFont font = painter.font();
  font.setPixelSize(kNameSize);
  font.setBold(sheet.isActive);
  painter.setFont(font);
  painter.setPen(colour);
  const QFontMetricsF metrics(font);
  const QString shown = metrics.elidedText(sheet.name, Qt::ElideRight, sheet.place.width());
  painter.drawText(QPointF(sheet.place.left(), sheet.place.top() - kNameDistance - metrics.descent()), shown);
}

}  // namespace

std::vector<Sheet> sheetsAt(const CanvasPlace& place, const Document& document) {
  const AIRealRect bounds = unionOfArtboards(document);
  const DocumentState& state = document.state();
  std::vector<Sheet> sheets;
  for (std::size_t i = 0; i < state.artboards.size(); ++i) {
    const Artboard& artboard = state.artboards[i];
    const PixelRect part = placeInPicture(artboard.position, bounds, place.width, place.height);
    const QString name =
        artboard.name.empty() ? "Artboard " + QString::number(i + 1) : QString::fromStdString(artboard.name);
    sheets.push_back({place.inWidget(part), name, i == state.activeArtboard});
  }
  return sheets;
}

QColor pasteboardColour(const QPalette& palette) {
  return isDark(palette) ? QColor(0x46, 0x46, 0x46) : QColor(0xb6, 0xb6, 0xb6);
}

void paintSheets(QPainter& painter, const QRectF& view, const std::vector<Sheet>& sheets,
                 const QPalette& palette) {
  painter.fillRect(view, pasteboardColour(palette));
  for (const Sheet& sheet : sheets) paintShadow(painter, view, sheet.place);
  for (const Sheet& sheet : sheets) painter.fillRect(sheet.place & view, Qt::white);
}

void paintSheetEdges(QPainter& painter, const QRectF& view, const std::vector<Sheet>& sheets,
                     const QPalette& palette) {
  const QColor edge(isDark(palette) ? QColor(0x1c, 0x1c, 0x1c) : QColor(0x6e, 0x6e, 0x6e));
  const double pixel = 1 / painter.device()->devicePixelRatioF();
  const bool several = sheets.size() > 1;
  for (const Sheet& sheet : sheets) {
    const bool isStrong = several && sheet.isActive;
    paintFrame(painter, view, sheet.place, isStrong ? 2 : pixel,
               isStrong ? palette.color(QPalette::Highlight) : edge);
    if (several) paintName(painter, sheet, palette.color(QPalette::WindowText));
  }
}

}  // namespace host
