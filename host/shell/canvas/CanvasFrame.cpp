#include "CanvasFrame.h"

#include <QContextMenuEvent>
#include <QGridLayout>
#include <QLabel>
#include <QMenu>
#include <utility>

#include "DrawingView.h"
#include "OpenDrawing.h"
#include "Ruler.h"
#include "RulerUnits.h"

namespace host {

CanvasFrame::CanvasFrame(OpenDrawing& drawing, ViewEvents& events,
                         std::function<void(AIRulerUnits)> chooseUnits)
    : view_(new DrawingView(drawing, events)),
      top_(new Ruler(Qt::Horizontal, *view_)),
      left_(new Ruler(Qt::Vertical, *view_)),
      corner_(new QLabel),
      chooseUnits_(std::move(chooseUnits)) {
  corner_->setAlignment(Qt::AlignCenter);
  corner_->setFont(rulerFont());
  corner_->setFixedSize(Ruler::thickness(), Ruler::thickness());
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(0);
  grid->addWidget(corner_, 0, 0);
  grid->addWidget(top_, 0, 1);
  grid->addWidget(left_, 1, 0);
  grid->addWidget(view_, 1, 1);
  setFocusProxy(view_);
  view_->setContextMenuPolicy(Qt::PreventContextMenu);
  view_->onMove = [this] { refreshRulers(); };
  view_->onPointer = [this](const std::optional<QPointF>& pointer) {
    top_->markPointer(pointer);
    left_->markPointer(pointer);
  };
  refreshRulers();
}

void CanvasFrame::showRulers(bool shown) {
  for (QWidget* part :
       {static_cast<QWidget*>(corner_), static_cast<QWidget*>(top_), static_cast<QWidget*>(left_)}) {
    part->setVisible(shown);
  }
}

void CanvasFrame::refreshRulers() {
  const RulerUnit& units = rulerUnit(view_->drawing().document().rulerUnits());
  corner_->setText(units.sign);
  corner_->setToolTip(units.name);
  top_->refresh();
  left_->refresh();
}

void CanvasFrame::contextMenuEvent(QContextMenuEvent* event) {
  QMenu menu(this);
  const AIRulerUnits present = view_->drawing().document().rulerUnits();
  for (const RulerUnit& choice : rulerUnits()) {
    QAction* action = menu.addAction(choice.name, this, [this, &choice] { chooseUnits_(choice.units); });
    action->setCheckable(true);
    action->setChecked(choice.units == present);
  }
  menu.exec(event->globalPos());
}

}  // namespace host
