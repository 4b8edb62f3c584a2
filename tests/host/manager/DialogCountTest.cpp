// Dialogs are counted until they are really gone, in whatever loop that happens.
#include <QDialog>
#include <QEventLoop>
#include <QTimer>
#include <functional>
#include <memory>
#include <vector>

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

TEST_F(DialogCount, DropsAfterWhatWasPostedBeforeEvenInANestedLoop) {
  std::vector<int> counts;
  const auto note = [&] { counts.push_back(QtManager::DialogCount()); };
  inLoop([&](QEventLoop& outer) {
    inLoop([&](QEventLoop& nested) {
      QTimer::singleShot(50, &nested, [&] {
        note();
        nested.quit();
      });
      QMetaObject::invokeMethod(&nested, note, Qt::QueuedConnection);
      dialog_.reset();
      note();
    });
    outer.quit();
  });
  EXPECT_EQ(counts, (std::vector<int>{1, 1, 0}));
}

TEST_F(DialogCount, DropsIfTheLoopEndsFirst) {
  inLoop([&](QEventLoop& loop) {
    dialog_.reset();
    loop.quit();
  });
  EXPECT_EQ(QtManager::DialogCount(), 0);
  QtManager::DecreaseDialogCountLater(nullptr);
  EXPECT_EQ(QtManager::DialogCount(), 0) << "and stays there";
  QtManager::IncreaseDialogCount();
  QCoreApplication::processEvents();  // what the first dialog posted does not take away the second
  EXPECT_EQ(QtManager::DialogCount(), 1);
  QtManager::DecreaseDialogCount();
}

}  // namespace
