#include "LayerDelegate.h"

#include <QApplication>
#include <QPainter>

#include "LayerModel.h"
#include "PanelGlyphs.h"
#include "PanelList.h"

namespace host {
namespace {

// Pixels.
constexpr int kZoneWidth = 22;   // of the eye and of the lock
constexpr int kSignWidth = 16;   // of the pen and of the square
constexpr double kFaint = 0.35;  // the ink of signs that say no
constexpr double kPale = 0.6;    // the ink of a hidden layer's title

QRect titlePlace(const QRect& row) {
  return row.adjusted(2 * kZoneWidth + 2, 0, -2 * kSignWidth - 2, 0);
}

QColor thinned(QColor ink, double strength) {
  ink.setAlphaF(strength);
  return ink;
}

void paintSigns(QPainter& painter, const QRect& place, const LayerRow& row, const QColor& ink) {
  const double y = place.top() + place.height() / 2.0;
  const QColor faint = thinned(ink, kFaint);
  const auto draw = [&](double x, PanelGlyph glyph, const QColor& colour) {
    drawPanelGlyph(painter, {x, y}, glyph, colour);
  };
  const double eye = place.left() + kZoneWidth / 2.0;
  draw(eye, row.isVisible ? PanelGlyph::Eye : PanelGlyph::ClosedEye, row.isVisible ? ink : faint);
  draw(eye + kZoneWidth, row.isLocked ? PanelGlyph::Lock : PanelGlyph::OpenLock, row.isLocked ? ink : faint);
  const double square = place.right() - kSignWidth / 2.0;
  if (row.isCurrent) draw(square - kSignWidth, PanelGlyph::Pen, ink);
  if (row.hasSelection) draw(square, PanelGlyph::Square, ink);
}

}  // namespace

LayerZone layerZoneAt(const QRect& row, const QPoint& point) {
  const int x = point.x() - row.left();
  if (x < kZoneWidth) return LayerZone::Eye;
  return x < 2 * kZoneWidth ? LayerZone::Lock : LayerZone::Title;
}

void LayerDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const {
  const auto* model = static_cast<const LayerModel*>(index.model());
  const LayerRow& row = model->at(index.row());
  QStyleOptionViewItem panel = option;
  initStyleOption(&panel, index);
  const QStyle* style = panel.widget == nullptr ? QApplication::style() : panel.widget->style();
  style->drawPrimitive(QStyle::PE_PanelItemViewItem, &panel, painter, panel.widget);
  const bool isChosen = panel.state.testFlag(QStyle::State_Selected);
  const QColor ink = panel.palette.color(isChosen ? QPalette::HighlightedText : QPalette::Text);
  paintSigns(*painter, panel.rect, row, ink);
  const QRect place = titlePlace(panel.rect);
  painter->setFont(panel.font);
  painter->setPen(row.isVisible ? ink : thinned(ink, kPale));
  painter->drawText(place, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                    panel.fontMetrics.elidedText(row.title, Qt::ElideRight, place.width()));
}

QSize LayerDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
  return {2 * kZoneWidth + 2 * kSignWidth, panelRowHeight(option.font)};
}

void LayerDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                         const QModelIndex&) const {
  editor->setGeometry(titlePlace(option.rect));
}

}  // namespace host
