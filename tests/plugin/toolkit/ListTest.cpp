// List boxes and their rows, with a user at mouse and keyboard.
#include <QHelpEvent>
#include <QListWidget>
#include <memory>

#include "DialogWorld.h"
#include "IADMDrawer.h"
#include "RVADM_ListBox.h"
#include "RVADM_TabListBox.h"
#include "RVADM_TabListEntry.h"
#include "RVADM_TextPushButton.h"

namespace qRVADM {
namespace {

constexpr int kDoubleClickMilliseconds = 200;
using Rows = std::vector<int>;

struct TestEntry : RVADM_ListEntry {
  using RVADM_ListEntry::RVADM_ListEntry;
  void Draw(IADMDrawer& drawer) override {
    drawer.GetBoundsRect(&bounds);
    RVADM_ListEntry::Draw(drawer);
    Call(drawn);
  }
  bool Track(ADMTracker& tracker) override {
    last = tracker;
    Call(tracked);
    return true;
  }
  // `act` may delete this, and the original with it. NOLINTNEXTLINE(performance-unnecessary-value-param)
  static void Call(std::function<void()> act) {
    if (act) act();
  }
  ADMRect bounds{};
  ADMTracker last;
  std::function<void()> drawn, tracked;
};

struct ListDialog : TestDialog {
  void OnItemNotifyAsync(RVADM_Item*) override {
    ++later;
    if (reactLater) reactLater();
  }
  int later = 0;
  std::function<void()> reactLater;
};

class ListTest : public DialogTest {
 protected:
  ListTest() { QApplication::setDoubleClickInterval(kDoubleClickMilliseconds); }

  // Six rows, "row 0" to "row 5", 20 pixels high each.
  RVADM_ListBox& Open(bool multi) {
    rows.clear();
    dialog.reset();  // before the next: a dialog stands on the one that is up
    dialog = std::make_unique<ListDialog>();
    list = new RVADM_ListBox(dialog.get(), multi);
    list->SetRowHeight(20);
    for (int row = 0; row < 6; ++row) {
      rows.push_back(new TestEntry(list, ("row " + std::to_string(row)).c_str(), false));
    }
    list->SetBounds({10, 10, 210, 190});
    dialog->Open();
    return *list;
  }
  RVADM_ListBox& OpenWithSelection(const Rows& selected) {
    Open(true);
    for (const int row : selected) rows[static_cast<std::size_t>(row)]->Select(true);
    return *list;
  }

  QPoint InRow(int row, const QPoint& place = {60, 10}) const {
    return list->viewport()->mapTo(dialog.get(), QPoint(0, 20 * row) + place);
  }
  void ClickRow(int row, Qt::KeyboardModifiers keys = Qt::NoModifier) {
    Press(*dialog, InRow(row), Qt::LeftButton, keys);
    Release(*dialog, InRow(row), Qt::LeftButton, keys);
  }
  void DoubleClickRow(int row) { QTest::mouseDClick(dialog->windowHandle(), Qt::LeftButton, {}, InRow(row)); }
  bool ShowTip(int row) {
    const QPoint place(60, 20 * row + 10);
    QHelpEvent tip(QEvent::ToolTip, place, list->viewport()->mapToGlobal(place));
    return QApplication::sendEvent(list->viewport(), &tip);
  }
  // What is shown as selected, without asking the list.
  Rows Shown() const {
    Rows shown;
    for (int row = 0; row < list->count(); ++row) {
      if (list->item(row)->isSelected()) shown.push_back(row);
    }
    return shown;
  }
  static void WaitForDelay() { QTest::qWait(kDoubleClickMilliseconds + 100); }

  std::unique_ptr<ListDialog> dialog;
  RVADM_ListBox* list = nullptr;
  std::vector<TestEntry*> rows;
};

// --- the delay ---

TEST_F(ListTest, ClickOnAMultipleSelectionWaitsForADoubleClick) {
  const Rows all{1, 2, 3}, cut{2};
  const struct {
    const char* name;
    std::function<void()> meanwhile;
    Rows atOnce, afterwards;
    int notified;
  } cases[] = {{"nothing", [] {}, all, cut, 1},
               {"a read", [this] { EXPECT_EQ(list->GetSelectedCount(), 1); }, cut, cut, 1},
               {"the next click",
                [this] { Press(*dialog, InRow(4), Qt::LeftButton, Qt::ControlModifier); },
                {2, 4},
                {2, 4},
                2},
               {"a row less", [this] { delete rows[5]; }, all, all, 0},
               {"ClearSelection", [this] { list->ClearSelection(); }, {}, {}, 1},
               {"Clear", [this] { list->Clear(); }, {}, {}, 0}};
  for (const auto& c : cases) {
    OpenWithSelection(all);
    ClickRow(2);
    EXPECT_EQ(Shown(), all) << c.name;
    c.meanwhile();
    EXPECT_EQ(Shown(), c.atOnce) << c.name;
    WaitForDelay();
    EXPECT_EQ(Shown(), c.afterwards) << c.name;
    EXPECT_EQ(dialog->TimesNotified(list), c.notified) << c.name;
    EXPECT_EQ(dialog->later, c.notified) << c.name;
  }
}

TEST_F(ListTest, SingleSelectionAndKeysAreNotDelayed) {
  Open(false);
  dialog->react = [this] { EXPECT_EQ(dialog->later, 0) << "comes from the event loop"; };
  Press(*dialog, InRow(2));
  dialog->react = {};
  EXPECT_EQ(Shown(), Rows{2});
  EXPECT_EQ(dialog->TimesNotified(list), 1);
  QTest::mouseMove(dialog->windowHandle(), InRow(4));
  Release(*dialog, InRow(4));
  EXPECT_EQ(Shown(), Rows{2}) << "dragging sweeps nothing";
  list->SetFocus(true);
  QTest::keyClick(list, Qt::Key_Up);
  EXPECT_EQ(list->GetActiveEntry()->text(), "row 3") << "the drag made row 4 the current one";
  QCoreApplication::processEvents();
  EXPECT_EQ(dialog->later, 2);
}

TEST_F(ListTest, DoubleClickActsOnTheWholeSelection) {
  OpenWithSelection({1, 2, 3});
  auto* button = new RVADM_TextPushButton(dialog.get(), "Edit");
  DoubleClickRow(1);  // nobody to notify
  list->SetDoubleClickItem(button);
  DoubleClickRow(1);
  WaitForDelay();
  EXPECT_EQ(Shown(), (Rows{1, 2, 3}));
  EXPECT_EQ(dialog->TimesNotified(list), 0);
  EXPECT_EQ(dialog->TimesNotified(button), 1);
  button->SetEnabled(false);
  DoubleClickRow(1);
  EXPECT_EQ(dialog->TimesNotified(button), 1);
  delete button;
  DoubleClickRow(1);
  EXPECT_EQ(list->GetDoubleClickItem(), nullptr);
}

// --- rows that go while they are in use ---

TEST_F(ListTest, RowsMayGoFromInsideTheirHandlers) {
  QApplication::setDoubleClickInterval(1);
  const std::pair<const char*, std::function<void()>> removals[] = {
      {"the row", [this] { delete list->GetEntry(2); }},
      {"the rows above", [this] { delete list->GetEntry(0), delete list->GetEntry(0); }},
      {"all", [this] { list->Clear(); }}};
  const std::pair<const char*, std::function<void(std::function<void()>)>> moments[] = {
      {"notification", [this](auto remove) { dialog->react = remove; }},
      {"later notification", [this](auto remove) { dialog->reactLater = remove; }},
      {"press", [this](auto remove) { rows[2]->tracked = remove; }},
      {"drag",
       [this](auto remove) {
         Press(*dialog, InRow(2));
         remove();
         QTest::mouseMove(dialog->windowHandle(), InRow(3));
       }},
      {"drawing", [this](auto remove) { rows[2]->drawn = remove; }}};
  for (const auto& [moment, when] : moments) {
    for (const auto& [what, remove] : removals) {
      for (const bool multi : {false, true}) {
        Open(multi);
        bool removed = false;
        when([&removed, act = &remove] {
          if (!std::exchange(removed, true)) (*act)();
        });
        ShowTip(2);
        list->Invalidate();
        DoubleClickRow(2);
        QTest::qWait(40);
        EXPECT_TRUE(removed) << moment << ", " << what;
        QTest::keyClick(list, Qt::Key_Down);
        EXPECT_LE(list->GetSelectedCount(), list->GetEntryCount());
      }
    }
  }
}

TEST_F(ListTest, TheListMayGoFromItsLaterNotificationAndFromATip) {
  Open(true);
  const QPointer<QWidget> alive(list);
  dialog->reactLater = [this] { delete list; };
  Press(*dialog, InRow(1));
  WaitForDelay();
  Release(*dialog, {60, 30});
  EXPECT_FALSE(alive);
  Open(true);
  rows[2]->tracked = [this] { delete list; };
  EXPECT_TRUE(ShowTip(2));
}

// --- rows ---

TEST_F(ListTest, BoxesAreTickedByTheMouse) {
  Open(false);
  rows[1]->SetCheckable();
  rows[1]->SetChecked(false);
  for (const bool checked : {true, false}) {
    Press(*dialog, InRow(1, {8, 10}));
    Release(*dialog, InRow(1, {8, 10}));
    EXPECT_EQ(rows[1]->IsChecked(), checked);
    EXPECT_EQ(rows[1]->last.action, 0) << "the click ends with the box";
    EXPECT_TRUE(Shown().empty());
  }
}

TEST_F(ListTest, ColumnsRunBetweenTabStops) {
  struct Columns : RVADM_TabListBox {
    explicit Columns(RVADM_ItemParent* parent) : RVADM_TabListBox(parent, false) {
      tabCount = 4;
      tabStops = {20, 0x2032};  // one too few
    }
  };
  TestDialog columnDialog;
  auto* entry = new RVADM_TabListEntry(new Columns(&columnDialog), nullptr, false);
  const std::pair<int, int> cells[] = {{3, 20}, {20, 50}, {50, 90}, {3, 90}};
  for (const int column : {0, 1, 2, -1}) {
    ADMRect cell{};
    EXPECT_TRUE(entry->GetTabRect({3, 5, 90, 25}, column, &cell));
    const auto& [left, right] = cells[column < 0 ? 3 : column];
    EXPECT_EQ(ToQRect(cell), ToQRect({left, 5, right, 25})) << column;
  }
}

// --- drawing and tracking ---

TEST_F(ListTest, RowsDrawAndTrackInTheirOwnPixels) {
  Open(false);
  std::size_t whenDrawn = 0, whenTracked = 1;
  rows[1]->drawn = [&] { whenDrawn = host.contexts().depth(); };
  rows[2]->tracked = [&] { whenTracked = host.contexts().depth(); };
  list->viewport()->grab();
  EXPECT_EQ(whenDrawn, 1U) << "drawing has a context in every dialog";
  EXPECT_EQ(ToQRect(rows[1]->bounds), QRect(0, 0, list->viewport()->width(), 20));
  const struct {
    std::function<void()> act;
    int action;
    std::uint32_t modifiers;
  } cases[] = {
      {[this] { ShowTip(2); }, kToolTipAction, 0},
      {[this] { Press(*dialog, InRow(2), Qt::RightButton, Qt::AltModifier); }, kLeftDownAction,
       kRightButtonDown | kAltDown},
      {[this] { Release(*dialog, InRow(2), Qt::RightButton, Qt::AltModifier); }, kLeftUpAction, kAltDown},
      {[this] { QTest::mouseDClick(dialog->windowHandle(), Qt::LeftButton, {}, InRow(2)); },
       kDoubleClickAction, kLeftButtonDown}};
  for (const auto& c : cases) {
    c.act();
    EXPECT_EQ(rows[2]->last.action, c.action);
    EXPECT_EQ(rows[2]->last.modifiers, c.modifiers) << c.action;
    EXPECT_EQ(QPoint(rows[2]->last.x, rows[2]->last.y), QPoint(60, 10)) << c.action;
    EXPECT_EQ(whenTracked, 0U) << "within the message that opened the dialog";
  }
  list->ClearSelection();
  rows[2]->tracked = [this] { *rows[2]->last.handled = true; };
  EXPECT_TRUE(ShowTip(2));
  ClickRow(2);
  EXPECT_TRUE(Shown().empty()) << "handled: the list sees nothing of it";
}

}  // namespace
}  // namespace qRVADM
