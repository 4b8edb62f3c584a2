// Drop-down lists, with a user at mouse and keyboard.
#include <QAbstractItemView>
#include <QWheelEvent>

#include "DialogWorld.h"
#include "RVADM_DropDownList.h"

namespace qRVADM {
namespace {

class DropDownListTest : public DialogTest {
 protected:
  DropDownListTest() {
    QApplication::setDoubleClickInterval(10);
    for (const char* text : {"Round", "Cross", "round"}) new RVADM_ComboEntry(list, text, false);
    list->SetBounds({10, 10, 130, 34});
    dialog.Open();
  }
  QWidget& Popup() const { return *list->view()->parentWidget(); }
  void ClickRow(int row) const {
    QTest::mouseClick(list->view()->viewport(), Qt::LeftButton, {},
                      list->view()->visualRect(list->model()->index(row, 0)).center());
  }

  TestDialog dialog;
  RVADM_DropDownList* list = new RVADM_DropDownList(&dialog);
};

TEST_F(DropDownListTest, OnlyTheUserNotifies) {
  RVADM_ComboEntry* cross = list->FindEntry("Cross");
  cross->Select(true);
  EXPECT_EQ(list->GetActiveEntry(), cross);
  cross->Select(false);
  EXPECT_EQ(list->GetActiveEntry(), nullptr);
  cross->SetText("Kreuz", false);
  delete list->GetEntry(0);
  EXPECT_TRUE(dialog.notified.empty());
  RVADM_ComboEntry* entries[] = {cross, list->FindEntry("round")};
  for (int row = 0; row < 2; ++row) {
    Click(dialog, *list);
    ASSERT_TRUE(Popup().isVisible());
    QTest::qWait(50);  // a release that may belong to the opening click does not count
    ClickRow(row);
    EXPECT_FALSE(Popup().isVisible());
    EXPECT_EQ(list->GetActiveEntry(), entries[row]);
    EXPECT_EQ(dialog.TimesNotified(list), row + 1);
    EXPECT_TRUE(list->HasFocus());
  }
  QTest::keyClick(list, Qt::Key_Up);
  EXPECT_EQ(list->GetActiveEntry(), cross);
  EXPECT_EQ(dialog.TimesNotified(list), 3);
}

TEST_F(DropDownListTest, WheelGoesToWhatLiesBehind) {
  QWheelEvent wheel({5, 5}, list->mapToGlobal({5, 5}), {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase,
                    false);
  list->FindEntry("Round")->Select(true);
  EXPECT_FALSE(QApplication::sendEvent(list, &wheel) && wheel.isAccepted());
  EXPECT_EQ(list->currentIndex(), 0);
}

TEST_F(DropDownListTest, PicturesFollowTheTheme) {
  bundle.WritePicture(17310, Qt::red);
  bundle.WritePicture(18310, Qt::blue);
  list->GetEntry(0)->SetPicture(16310);
  list->GetEntry(1)->SetPicture(-1);
  const auto colorOf = [this](int row) { return list->itemIcon(row).pixmap(16).toImage().pixelColor(8, 8); };
  EXPECT_EQ(colorOf(0), QColor(Qt::red));
  EXPECT_EQ(colorOf(1).alpha(), 0);
  EXPECT_TRUE(list->itemIcon(2).isNull());
  host::setTheme(host::Theme::Dark);
  QEvent changed(static_cast<QEvent::Type>(RVADMQtManager::kThemeChangedEvent));
  QApplication::sendEvent(list, &changed);
  EXPECT_EQ(colorOf(0), QColor(Qt::blue));
  list->GetEntry(0)->SetPicture(0);
  EXPECT_TRUE(list->itemIcon(0).isNull());
}

}  // namespace
}  // namespace qRVADM
