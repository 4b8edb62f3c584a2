#include "DialogUse.h"

#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTimer>
#include <QtTest/QTest>
#include <algorithm>

#include "Chance.h"
#include "Diary.h"
#include "OffscreenApplication.h"
#include "WidgetUse.h"

namespace host {
namespace {

bool isInMenuBar(const QMenu& menu) {
  const QList<QWidget*> holders = menu.menuAction()->associatedWidgets();
  return std::any_of(holders.begin(), holders.end(), [](const QWidget* holder) {
    const auto* outer = qobject_cast<const QMenu*>(holder);
    return qobject_cast<const QMenuBar*>(holder) != nullptr || (outer != nullptr && isInMenuBar(*outer));
  });
}

}  // namespace

DialogUse::DialogUse(Chance& chance, Diary& diary) : chance_(chance), diary_(diary) {
  ensureApplication();  // without one no timer runs
  look();
}

// What is done here may bring up the next dialog, whose loop needs somebody too: so it first sees to that.
void DialogUse::look() {
  QTimer::singleShot(1, &context_, [this] { look(); });
  if (QWidget* popup = QApplication::activePopupWidget()) {
    auto* menu = qobject_cast<QMenu*>(popup);
    if (menu != nullptr && isInMenuBar(*menu)) return;  // somebody is on his way through it
    ++done_;
    if (menu != nullptr && done_ < kEnough) return useMenu(*menu, chance_, diary_);
    QTest::keyClick(popup, chance_.oneIn(3) ? Qt::Key_Down
                           : done_ % 2 == 0 ? Qt::Key_Return
                                            : Qt::Key_Escape);
    return;
  }
  QWidget* const modal = QApplication::activeModalWidget();
  if (modal == nullptr || !modal->isVisible()) return;
  ++done_;
  QApplication::setActiveWindow(modal);  // no window manager does it here
  if (done_ < kEnough && !chance_.oneIn(6)) {
    use(*modal);
  } else {
    leave(*modal);
  }
}

void DialogUse::use(QWidget& dialog) {
  QWidget* const widget = anyWidgetIn(dialog, chance_);
  if (widget == nullptr) return leave(dialog);
  useWidget(*widget, chance_, diary_);
}

void DialogUse::leave(QWidget& dialog) {
  const int way = chance_.below(3);
  diary_.note("leaves \"" + dialog.windowTitle().toStdString() + "\" by way " + std::to_string(way));
  if (way == 2) {
    dialog.close();
  } else {
    QTest::keyClick(&dialog, way == 0 ? Qt::Key_Return : Qt::Key_Escape);
  }
}

}  // namespace host
