// Dialogs of the toolkit in the real host, and a user at mouse and keyboard.
#pragma once

#include <QTest>
#include <QWindow>
#include <algorithm>
#include <functional>
#include <vector>

#include "QtManager.h"
#include "RVADM_Item.h"
#include "RVADM_ModalDialog.h"
#include "ToolkitTest.h"

// A modal dialog that is shown without an event loop of its own. Items are made with it as parent before
// Open.
class TestDialog : public qRVADM::RVADM_ModalDialog {
 public:
  TestDialog() : RVADM_ModalDialog(false) {}

  // From here on its items are those of a palette.
  void BecomePalette() { RVADMQtManager::QtManager::RegisterPalette(this); }
  void Open() {
    Init();
    show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(this));
    activateWindow();
  }

  void CreateItems() override { Call(create); }
  void LayoutItems() override {
    SetSize(400, 300);
    Call(layout);
  }
  void OnItemNotify(qRVADM::RVADM_Item* item) override {
    notified.push_back(item);
    Call(react);
  }
  void OnCommit(int result) override { committed.push_back(result); }

  long TimesNotified(const qRVADM::RVADM_Item* item) const {
    return std::count(notified.begin(), notified.end(), item);
  }

  std::function<void()> create, layout, react;  // may be empty
  std::vector<const qRVADM::RVADM_Item*> notified;
  std::vector<int> committed;

 private:
  static void Call(const std::function<void()>& hook) {
    if (hook) hook();
  }
};

// Every test leaves the host as it found it: no dialog counted, no context open. A double click may take as
// long as the test says.
class DialogTest : public ToolkitTest {
 protected:
  DialogTest() { plugin.RequestSuite("AI Context Suite"); }
  ~DialogTest() override {
    QCoreApplication::processEvents();
    EXPECT_EQ(RVADMQtManager::QtManager::DialogCount(), 0);
    EXPECT_EQ(host.contexts().depth(), 0U);
    QApplication::setDoubleClickInterval(usualInterval);
  }

  // The mouse goes the way of the system's events: to whatever lies at that point of the dialog.
  static QPoint InDialog(const TestDialog& dialog, const QWidget& item, const QPoint& point) {
    return item.mapTo(&dialog, point);
  }
  static void Press(TestDialog& dialog, const QPoint& point, Qt::MouseButton button = Qt::LeftButton,
                    Qt::KeyboardModifiers keys = Qt::NoModifier) {
    QTest::mousePress(dialog.windowHandle(), button, keys, point);
  }
  static void Release(TestDialog& dialog, const QPoint& point, Qt::MouseButton button = Qt::LeftButton,
                      Qt::KeyboardModifiers keys = Qt::NoModifier) {
    QTest::mouseRelease(dialog.windowHandle(), button, keys, point);
  }
  static void Click(TestDialog& dialog, const QWidget& item) {
    const QPoint point = InDialog(dialog, item, item.rect().center());
    Press(dialog, point);
    Release(dialog, point);
  }

 private:
  const int usualInterval = QApplication::doubleClickInterval();
};
