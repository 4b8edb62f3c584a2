#include "PanelTitle.h"

#include <QHBoxLayout>
#include <QLabel>

#include "PanelTitleButton.h"

namespace host {
namespace {

using Glyph = PanelTitleButton::Glyph;

constexpr int kIconSide = 16;       // pixels
constexpr int kTextSize = 12;       // as that of plug-ins' dialogs
constexpr int kLongestTitle = 320;  // what is longer ends in dots

PanelTitleButton* addButton(QWidget& title, Glyph glyph, const std::function<void()>& command) {
  auto* button = new PanelTitleButton(glyph);
  QObject::connect(button, &QToolButton::clicked, &title, command);
  title.layout()->addWidget(button);
  return button;
}

}  // namespace

PanelTitle::PanelTitle(const Commands& commands) : icon_(new QLabel), text_(new QLabel) {
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::Midlight);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(6, 2, 2, 2);
  row->setSpacing(1);
  icon_->setFixedSize(kIconSide, kIconSide);
  row->addWidget(icon_);
  row->addSpacing(4);
  text_->setTextFormat(Qt::PlainText);
  QFont font = text_->font();
  font.setPixelSize(kTextSize);
  text_->setFont(font);
  row->addWidget(text_, 1);
  state_ = addButton(*this, Glyph::State, commands.changeState);
  menu_ = addButton(*this, Glyph::Menu, commands.openMenu);
  collapse_ = addButton(*this, Glyph::Collapse, commands.collapse);
  float_ = addButton(*this, Glyph::Float, commands.floatOrDock);
  close_ = addButton(*this, Glyph::Close, commands.close);
}

void PanelTitle::show(const Content& content) {
  showText(content.title);
  icon_->setPixmap(content.icon.pixmap(window()->windowHandle(), QSize(kIconSide, kIconSide)));
  icon_->setVisible(!content.icon.isNull());
  state_->setVisible(content.hasStates);
  menu_->setVisible(content.hasMenu);
  const auto named = [&](const char* what) { return QString(what) + " " + content.title; };
  state_->show(Glyph::State, named("Change the state of"));
  menu_->show(Glyph::Menu, named("Menu of"));
  collapse_->show(content.isCollapsed ? Glyph::Expand : Glyph::Collapse,
                  named(content.isCollapsed ? "Expand" : "Collapse"));
  float_->show(content.floats ? Glyph::Dock : Glyph::Float, named(content.floats ? "Dock" : "Float"));
  close_->show(Glyph::Close, named("Close"));
}

void PanelTitle::showText(const QString& title) {
  const QString shown = text_->fontMetrics().elidedText(title, Qt::ElideRight, kLongestTitle);
  text_->setText(shown);
  text_->setToolTip(shown == title ? QString() : title.toHtmlEscaped());
}

QPoint PanelTitle::menuCorner() const {
  return menu_->mapToGlobal(QPoint(0, menu_->height()));
}

}  // namespace host
