// What a custom item sees of mouse and keys.
#include "RVADM_CustomItem.h"

#include <QKeyEvent>
#include <QWheelEvent>

#include "DialogWorld.h"

namespace qRVADM {
namespace {

class Watcher : public RVADM_CustomItem {
 public:
  Watcher(TestDialog& dialog, host::Host& pluginHost) : RVADM_CustomItem(&dialog), host(pluginHost) {
    SetBounds({10, 20, 60, 70});
  }
  bool Track(ADMTracker tracker) override {
    seen.push_back({tracker.action, int(tracker.modifiers), int(tracker.key), tracker.x, tracker.y});
    EXPECT_EQ(host.contexts().depth(), 1U);
    if (deleteInTrack) delete this;
    return true;
  }

  host::Host& host;
  std::vector<std::vector<int>> seen;  // action, modifiers, key, x, y
  bool deleteInTrack = false;
};

class CustomItemTest : public DialogTest {
 protected:
  CustomItemTest() {
    dialog.create = [this] { item = new Watcher(dialog, host); };
    dialog.Open();
    QCursor::setPos(item->mapToGlobal({3, 4}));
    QCoreApplication::processEvents();
    item->seen.clear();
  }

  void Key(QEvent::Type type, int key, Qt::KeyboardModifiers modifiers = {}, bool again = false) const {
    QKeyEvent event(type, key, modifiers, {}, again);
    QCoreApplication::sendEvent(item, &event);
  }
  void Wheel() const {
    QWheelEvent event({8, 9}, item->mapToGlobal({8, 9}), {}, {15, -120}, Qt::MiddleButton, Qt::AltModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(item, &event);
  }

  TestDialog dialog;
  Watcher* item = nullptr;
  const QPoint at{10 + 5, 20 + 7};
};

constexpr auto kDown = QEvent::KeyPress;
constexpr auto kUp = QEvent::KeyRelease;

TEST_F(CustomItemTest, EveryEventIsATracker) {
  using Seen = std::vector<std::vector<int>>;
  const struct {
    const char* what;
    std::function<void()> act;
    Seen seen;
  } rows[] = {
      {"left", [&] { Press(dialog, at); }, {{2, 4, 0, 5, 7}}},
      {"drag", [&] { QTest::mouseMove(dialog.windowHandle(), at + QPoint(90, 1)); }, {{1, 4, 0, 95, 8}}},
      {"left up", [&] { Release(dialog, at + QPoint(90, 1)); }, {{-2, 0, 0, 95, 8}}},
      {"middle", [&] { Press(dialog, at, Qt::MiddleButton, Qt::ShiftModifier); }, {{3, 8 + 32, 0, 5, 7}}},
      {"middle up", [&] { Release(dialog, at, Qt::MiddleButton); }, {{-3, 0, 0, 5, 7}}},
      {"right", [&] { Press(dialog, at, Qt::RightButton, Qt::MetaModifier); }, {{4, 16 + 256, 0, 5, 7}}},
      {"right up", [&] { Release(dialog, at, Qt::RightButton); }, {{-4, 0, 0, 5, 7}}},
      {"no move unless asked for", [&] { QTest::mouseMove(dialog.windowHandle(), at); }, {}},
      {"move",
       [&] {
         item->setMouseTracking(true);
         QTest::mouseMove(dialog.windowHandle(), at + QPoint(1, 0));
         item->setMouseTracking(false);
       },
       {{-1, 0, 0, 6, 7}}},
      {"double click",
       [&] { QTest::mouseDClick(dialog.windowHandle(), Qt::LeftButton, Qt::ControlModifier, at); },
       {{2, 4 + 64, 0, 5, 7},
        {-2, 64, 0, 5, 7},
        {1000, 4 + 64, 0, 5, 7},
        {2, 4 + 64, 0, 5, 7},
        {-2, 64, 0, 5, 7}}},
      {"space", [&] { Key(kDown, Qt::Key_Space); }, {{-15, 512, 32, 3, 4}}},
      {"held on", [&] { Key(kUp, Qt::Key_Space, {}, true); }, {{-15, 512, 32, 3, 4}}},
      {"with space", [&] { Press(dialog, at); }, {{2, 4 + 512, 0, 5, 7}}},
      {"", [&] { Release(dialog, at); }, {{-2, 512, 0, 5, 7}}},
      {"space up", [&] { Key(kUp, Qt::Key_Space); }, {{-9, 0, 32, 3, 4}}},
      {"0", [&] { Key(kDown, Qt::Key_0); }, {{-15, 0, 48, 3, 4}}},
      {"Control", [&] { Key(kUp, Qt::Key_Control, Qt::ControlModifier); }, {{-15, 0, 244, 3, 4}}},
      {"wheel", [&] { Wheel(); }, {{12, 8 + 128, 0, -120, 15}}},
      {"wheel's button is kept", [&] { Key(kDown, Qt::Key_A); }, {{-15, 8, 0, 3, 4}}},
  };
  for (const auto& row : rows) {
    item->seen.clear();
    row.act();
    EXPECT_EQ(item->seen, row.seen) << row.what;
  }
}

}  // namespace
}  // namespace qRVADM
