// Dialogs are counted until they are really gone, in whatever loop that happens.
#include <QDialog>
#include <QEventLoop>
#include <QTimer>
#include <functional>
#include <memory>

#include "Application.h"
#include "QtManager.h"

namespace {

using RVADMQtManager::QtManager;

class CountedDialog : public QDialog {
 public:
  CountedDialog() { QtManager::IncreaseDialogCount(); }
  ~CountedDialog() override { QtManager::DecreaseDialogCountLater(this); }
};

class DialogCount : public WidgetTest {
 protected:
  // In an event loop of its own, to the end of that loop.
  static void inLoop(const std::function<void(QEventLoop&)>& act) {
    QEventLoop loop;
    QTimer::singleShot(0, &loop, [&] { act(loop); });
    loop.exec();
  }

  std::unique_ptr<CountedDialog> dialog_ = std::make_unique<CountedDialog>();
};

TEST_F(DialogCount, DropsAtOnceWithoutALoop) {
  EXPECT_EQ(QtManager::DialogCount(), 1);
  dialog_.reset();
  EXPECT_EQ(QtManager::DialogCount(), 0);
}

TEST_F(DialogCount, DropsAfterWhatWasPostedBefore) {
  int during = -1, posted = -1, later = -1;
  inLoop([&](QEventLoop& loop) {
    QTimer::singleShot(50, &loop, [&] {
      later = QtManager::DialogCount();
      loop.quit();
    });
    QMetaObject::invokeMethod(
        &loop, [&] { posted = QtManager::DialogCount(); }, Qt::QueuedConnection);
    dialog_.reset();
    during = QtManager::DialogCount();
  });
  EXPECT_EQ(during, 1);
  EXPECT_EQ(posted, 1);
  EXPECT_EQ(later, 0);
}

TEST_F(DialogCount, DropsInTheNestedLoopThatItWasDestroyedIn) {
  int nested = -1;
  inLoop([&](QEventLoop& outer) {
    inLoop([&](QEventLoop& inner) {
      dialog_.reset();
      QTimer::singleShot(20, &inner, [&] {
        nested = QtManager::DialogCount();
        inner.quit();
      });
    });
    outer.quit();
  });
  EXPECT_EQ(nested, 0);
}

TEST_F(DialogCount, DropsIfTheLoopEndsFirst) {
  inLoop([&](QEventLoop& loop) {
    dialog_.reset();
    loop.quit();
  });
  EXPECT_EQ(QtManager::DialogCount(), 0);
  QtManager::IncreaseDialogCount();
  QCoreApplication::processEvents();  // what the first dialog posted does not take away the second
  EXPECT_EQ(QtManager::DialogCount(), 1);
  QtManager::DecreaseDialogCount();
}

TEST_F(DialogCount, StaysAtZero) {
  dialog_.reset();
  QtManager::DecreaseDialogCount();
  QtManager::DecreaseDialogCountLater(nullptr);
  EXPECT_EQ(QtManager::DialogCount(), 0);
  QtManager::IncreaseDialogCount();
  EXPECT_EQ(QtManager::DialogCount(), 1);
  QtManager::DecreaseDialogCount();
}

}  // namespace
