// The gallery, a second plug-in on the toolkit, in the real window: what it shows, and what it lives through.
#include <gmock/gmock.h>

#include <QApplication>
#include <QDialog>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QtTest/QTest>

#include "AINotifier.h"
#include "QtManager.h"
#include "WindowWorld.h"

namespace host {
namespace {

using RVADMQtManager::QtManager;
using testing::HasSubstr;

constexpr char kDialogItem[] = "Gallery of Items...";
constexpr char kPaletteItem[] = "Gallery Palette";
constexpr char kModal[] = "RVADM_ModalDialog";
const std::filesystem::path kGallery = std::filesystem::path(CORVANE_BIN) / "gallery.bundle";

QAbstractButton* buttonIn(const QWidget& window, const QString& text) {
  for (auto* button : window.findChildren<QAbstractButton*>()) {
    if (button->isVisible() && (button->text() == text || button->accessibleName() == text)) return button;
  }
  return nullptr;
}

// Answers every modal dialog that comes up with Escape, and notes what it was. The first one gets a visit
// before.
class Visitor {
 public:
  explicit Visitor(std::function<void(QWidget&)> visit = nullptr) : visit_(std::move(visit)) {
    QObject::connect(&timer_, &QTimer::timeout, [this] { step(); });
    timer_.start(5);
  }
  const std::vector<std::string>& dismissed() const { return dismissed_; }

 private:
  void step() {
    QWidget* const dialog = QApplication::activeModalWidget();
    if (dialog == nullptr || !dialog->isVisible() || dialog == visited_) return;
    if (visit_) return begin(dialog);
    dismissed_.emplace_back(dialog->metaObject()->className());
    QTest::keyClick(dialog, Qt::Key_Escape);
  }

  // Not from the timer, which stands still while it is at work.
  void begin(QWidget* dialog) {
    visited_ = dialog;
    QTimer::singleShot(0, dialog, [this, visit = std::exchange(visit_, nullptr)] {
      visit(*visited_);
      visited_ = nullptr;
    });
  }

  QTimer timer_;
  std::function<void(QWidget&)> visit_;
  QWidget* visited_ = nullptr;  // during the visit; what comes up over it is answered
  std::vector<std::string> dismissed_;
};

class GalleryTest : public testing::Test {
 protected:
  ~GalleryTest() override {
    EXPECT_EQ(QtManager::DialogCount(), world.host.panels().all().size()) << "the palettes";
    EXPECT_EQ(world.host.contexts().depth(), 0U);
    world.session.shutdown();
    QCoreApplication::processEvents();
    EXPECT_EQ(QtManager::DialogCount(), 0);
  }

  // What had to be dismissed while the gallery's dialog was up, in order.
  std::vector<std::string> visitDialog(std::function<void(QWidget&)> visit) {
    const Visitor visitor(std::move(visit));
    EXPECT_EQ(world.session.chooseMenuItem(kDialogItem), kSPNoError);
    return visitor.dismissed();
  }
  QWidget& palette() {
    world.session.chooseMenuItem(kPaletteItem);
    QCoreApplication::processEvents();
    for (auto* widget : world.window->findChildren<QWidget*>()) {
      if (widget->inherits("RVADM_NonModalDialog") && widget->isVisible()) return *widget;
    }
    throw std::runtime_error("no palette");
  }
  void turnPage() {
    QTest::mouseClick(buttonIn(*world.window, "Change the state of Gallery Palette"), Qt::LeftButton);
    QCoreApplication::processEvents();
  }

  WindowWorld world{{corvaneBundle(), kGallery}};
};

struct Fault {
  const char* button;
  std::vector<std::string> dismissed;  // in the dialog
};
const Fault kFaults[] = {
    {"Message...", {"RVADM_MessageDialog", kModal}},
    {"Critical Message...", {"RVADM_CriticalMessageDialog", kModal}},
    {"Three Answers...", {"RVADM_MessageDialog", kModal}},
    {"Second Dialog...", {kModal, kModal}},
    {"Throw", {"QMessageBox", kModal}},
    {"Delete This Button", {kModal}},
    {"Close Twice", {}},
    {"Resize Forever", {kModal}},
    {"Refused Panel", {kModal}},
};

TEST_F(GalleryTest, TheDialogLivesThroughEveryFault) {
  for (const Fault& fault : kFaults) {
    const auto dismissed = visitDialog([&](QWidget& dialog) {
      QAbstractButton* const button = buttonIn(dialog, fault.button);
      ASSERT_NE(button, nullptr) << fault.button;
      QTest::mouseClick(button, Qt::LeftButton);
      QTest::qWait(50);  // for what comes of it later
    });
    EXPECT_EQ(dismissed, fault.dismissed) << fault.button;
  }
  ASSERT_EQ(world.host.alerts().size(), 1U);
  EXPECT_THAT(world.host.alerts()[0].text, HasSubstr("thrown by the gallery"));
  world.host.interactionAllowed = false;
  EXPECT_EQ(visitDialog(nullptr), std::vector<std::string>()) << "nobody is to be asked";
}

TEST_F(GalleryTest, ThePaletteLivesThroughEveryFault) {
  QWidget& shown = palette();
  turnPage();
  for (const Fault& fault : kFaults) {
    QAbstractButton* const button = buttonIn(shown, fault.button);
    ASSERT_NE(button, nullptr) << fault.button;
    std::vector<std::string> expected = fault.dismissed;
    if (!expected.empty()) expected.pop_back();  // the dialog itself
    const Visitor visitor;
    QTest::mouseClick(button, Qt::LeftButton);
    QTest::qWait(50);
    EXPECT_EQ(visitor.dismissed(), expected) << fault.button;
    if (!shown.isVisible()) palette();
  }
}

TEST_F(GalleryTest, FollowsTheThemeAndHasItsOwnTextsBesideAnotherPlugin) {
  QWidget& shown = palette();
  const QImage light = shown.grab().toImage();
  setTheme(Theme::Dark);
  world.session.notify(kAIUIBrightnessChangedNotifier);
  EXPECT_NE(shown.grab().toImage(), light);
  setTheme(Theme::Light);
  world.session.notify(kAIUIBrightnessChangedNotifier);
  EXPECT_EQ(shown.grab().toImage(), light);
  EXPECT_THAT(world.menuTree(), HasSubstr("Gallery Palette [x]"));
  EXPECT_THAT(world.menuTree(), HasSubstr(world.textOf(kMarksKey)));
}

}  // namespace
}  // namespace host
