#include "DrawingTabs.h"

#include <QLabel>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>
#include <utility>

#include "CanvasFrame.h"
#include "DrawingView.h"
#include "Host.h"
#include "OpenDrawing.h"

namespace host {

QString titleOf(const OpenDrawing& drawing) {
  return QString::fromStdString(drawing.shown->title);
}

DrawingTabs::DrawingTabs(const QString& hint, ViewEvents& events, Commands commands)
    : events_(events), commands_(std::move(commands)), tabs_(new QTabWidget) {
  auto* label = new QLabel(hint);
  label->setAlignment(Qt::AlignCenter);
  addWidget(label);
  tabs_->setDocumentMode(true);
  tabs_->setAccessibleName("Drawings");
  addWidget(tabs_);
  connect(tabs_, &QTabWidget::currentChanged, this, [this](int index) {
    if (index >= 0) commands_.chosen(viewAt(index).drawing());
  });
}

int DrawingTabs::drawings() const {
  return tabs_->count();
}

int DrawingTabs::current() const {
  return tabs_->currentIndex();
}

void DrawingTabs::turnTo(int index) {
  tabs_->setCurrentIndex(index);
}

CanvasFrame& DrawingTabs::frameAt(int index) const {
  return *static_cast<CanvasFrame*>(tabs_->widget(index));
}

DrawingView& DrawingTabs::viewAt(int index) const {
  return frameAt(index).view();
}

DrawingView* DrawingTabs::viewOf(const OpenDocument& open) const {
  for (int i = 0; i < drawings(); ++i) {
    if (viewAt(i).drawing().shown == &open) return &viewAt(i);
  }
  return nullptr;
}

void DrawingTabs::turnTo(OpenDrawing& drawing) {
  if (DrawingView* known = viewOf(*drawing.shown)) return tabs_->setCurrentWidget(known->parentWidget());
  auto* frame = new CanvasFrame(drawing, events_,
                                [this, &drawing](AIRulerUnits units) { chooseUnits(drawing, units); });
  frame->showRulers(showsRulers_);
  const int index = tabs_->addTab(frame, titleOf(drawing));
  tabs_->tabBar()->setTabButton(index, QTabBar::RightSide, closeButtonFor(frame->view()));
  tabs_->setCurrentIndex(index);
  frame->view().setFocus();
}

void DrawingTabs::remove(const OpenDrawing& drawing) {
  const QSignalBlocker whileHalfGone(tabs_);
  DrawingView* const view = viewOf(*drawing.shown);
  if (view == nullptr) return;
  // The next one comes up while all are whole: a plug-in that hears of it may ask for any view.
  const int index = tabs_->indexOf(view->parentWidget());
  if (index == current()) tabs_->setCurrentIndex(index + 1 < drawings() ? index + 1 : index - 1);
  delete view->parentWidget();
}

void DrawingTabs::chooseUnits(OpenDrawing& drawing, AIRulerUnits units) {
  drawing.document().setRulerUnits(units);
  if (DrawingView* view = viewOf(*drawing.shown)) view->refresh();
  if (commands_.unitsChosen) commands_.unitsChosen(drawing);
}

void DrawingTabs::showRulers(bool shown) {
  showsRulers_ = shown;
  for (int i = 0; i < drawings(); ++i) frameAt(i).showRulers(shown);
}

QToolButton* DrawingTabs::closeButtonFor(DrawingView& view) {
  auto* button = new QToolButton;
  button->setText("\u00d7");
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::NoFocus);
  button->setToolTip("Close");
  button->setAccessibleName("Close " + titleOf(view.drawing()));
  connect(button, &QToolButton::clicked, &view, [this, &view] { commands_.close(view.drawing()); });
  return button;
}

void DrawingTabs::refresh() {
  setCurrentIndex(drawings() > 0 ? 1 : 0);
  for (int i = 0; i < drawings(); ++i) {
    const OpenDrawing& drawing = viewAt(i).drawing();
    viewAt(i).refresh();
    tabs_->setTabText(i, titleOf(drawing).replace('&', "&&") + (drawing.isModified() ? "*" : ""));
    tabs_->setTabToolTip(i, QString::fromStdString(drawing.shown->file));
  }
}

}  // namespace host
