#include "StatusLine.h"

#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QStatusBar>
#include <QTimer>
#include <QToolButton>
#include <cmath>
#include <optional>
#include <utility>

#include "DrawingView.h"
#include "Host.h"
#include "OpenDrawing.h"
#include "RemarksDialog.h"
#include "ZoomText.h"

namespace host {
namespace {

constexpr double kPresets[] = {0.1, 0.25, 0.5, 0.75, 1, 1.5, 2, 4, 8, 16};
constexpr int kZoomWidth = 9;  // characters

}  // namespace

StatusLine::StatusLine(QStatusBar& bar, std::function<DrawingView*()> view)
    : view_(std::move(view)), zoom_(new QComboBox), artboard_(new QLabel), remarks_(new QToolButton) {
  remarks_->setObjectName("Remarks");
  remarks_->setAutoRaise(true);
  remarks_->setFocusPolicy(Qt::TabFocus);
  remarks_->setToolTip("What of the drawing was not understood, or only assumed");
  connect(remarks_, &QToolButton::clicked, this, [this] {
    if (const DrawingView* shown = view_())
      showRemarksDialog(shown->drawing().drawing.remarks, remarks_->window());
  });
  bar.addPermanentWidget(remarks_);
  bar.addPermanentWidget(artboard_);
  makeZoom(bar);
  refresh();
}

void StatusLine::makeZoom(QStatusBar& bar) {
  zoom_->setEditable(true);
  zoom_->setInsertPolicy(QComboBox::NoInsert);
  zoom_->setAccessibleName("Zoom");
  zoom_->setToolTip("Zoom");
  zoom_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  zoom_->setMinimumContentsLength(kZoomWidth);
  for (const double preset : kPresets) zoom_->addItem(QString::fromStdString(zoomText(preset)));
  connect(zoom_, QOverload<int>::of(&QComboBox::activated), this,
          [this](int index) { chooseZoom(zoom_->itemText(index)); });
  connect(zoom_->lineEdit(), &QLineEdit::returnPressed, this, [this] { chooseZoom(zoom_->currentText()); });
  connect(zoom_->lineEdit(), &QLineEdit::editingFinished, this, [this] { showZoom(); });
  bar.addPermanentWidget(zoom_);
}

void StatusLine::chooseZoom(const QString& text) {
  DrawingView* view = view_();
  const std::optional<double> zoom = zoomIn(text.toStdString());
  if (view != nullptr && zoom) {
    view->zoomTo(*zoom);
    view->setFocus();
  }
  showZoom();
}

void StatusLine::refresh() {
  DrawingView* view = view_();
  if (view != nullptr) view->installEventFilter(this);  // once, however often
  const OpenDrawing* drawing = view == nullptr ? nullptr : &view->drawing();
  showZoom();
  showArtboard(drawing);
  showRemarks(drawing);
}

// A view is painted whenever it shows another part of the drawing, whoever has moved it.
bool StatusLine::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Paint && watched == view_() && !zoom_->lineEdit()->hasFocus()) {
    QTimer::singleShot(0, this, [this] { showZoom(); });
  }
  return false;
}

void StatusLine::showZoom() {
  const DrawingView* view = view_();
  zoom_->setEnabled(view != nullptr);
  const QString text =
      view == nullptr ? QString() : QString::fromStdString(zoomText(view->drawing().shown->view.zoom()));
  if (zoom_->currentText() != text) zoom_->setEditText(text);
}

void StatusLine::showArtboard(const OpenDrawing* drawing) {
  artboard_->setVisible(drawing != nullptr);
  if (drawing == nullptr) return;
  const DocumentState& state = drawing->document().state();
  if (state.activeArtboard >= state.artboards.size()) return artboard_->clear();
  const QString name = QString::fromStdString(state.artboards[state.activeArtboard].name);
  QString text = "Artboard " + QString::number(state.activeArtboard + 1) + " of " +
                 QString::number(state.artboards.size());
  if (!name.isEmpty()) text += ": " + name;
  artboard_->setTextFormat(Qt::PlainText);
  artboard_->setText(artboard_->fontMetrics().elidedText(text, Qt::ElideRight, 200));
  artboard_->setToolTip(text.toHtmlEscaped());
}

void StatusLine::showRemarks(const OpenDrawing* drawing) {
  const std::size_t count = drawing == nullptr ? 0 : drawing->drawing.remarks.size();
  remarks_->setVisible(count > 0);
  remarks_->setText(QString::number(count) + (count == 1 ? " remark" : " remarks"));
}

}  // namespace host
