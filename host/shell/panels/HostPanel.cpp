#include "HostPanel.h"

#include <QMenu>
#include <QVBoxLayout>
#include <utility>

#include "Host.h"
#include "Session.h"

namespace host {

HostPanel::HostPanel(Host& host, Session& session, std::function<void()> onChange)
    : host_(host), session_(session), onChange_(std::move(onChange)) {}

void HostPanel::fillWith(QWidget& content) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(&content);
  setFocusProxy(&content);
}

QMenu* HostPanel::makeMenu() {
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  fillMenu(*menu);
  return menu;
}

void HostPanel::addCommand(QMenu& menu, const QString& text, bool isEnabled, std::function<void()> command) {
  QAction* action = menu.addAction(text);
  action->setEnabled(isEnabled);
  connect(action, &QAction::triggered, this, std::move(command));
}

std::shared_ptr<Document> HostPanel::document() const {
  OpenDocument* const current = host_.documents().current();
  return current == nullptr ? nullptr : current->document;
}

void HostPanel::edit(const char* stepName, const std::function<void(Document&)>& change) {
  if (!session_.takesCommands()) return;
  session_.edit(stepName, change);
  refresh();
  onChange_();
}

void HostPanel::choose(const std::function<void(Document&)>& choice) {
  Document* const current = host_.currentDocument();
  if (current == nullptr || !session_.takesCommands()) return;
  choice(*current);
  refresh();
  onChange_();
}

}  // namespace host
