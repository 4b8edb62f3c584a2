// Buttons, labels, boxes and custom items under the mouse.
#include <QKeyEvent>
#include <QPointer>
#include <QWheelEvent>
#include <memory>
#include <string>

#include "DialogWorld.h"
#include "RVADM_CustomItem.h"
#include "RVADM_DropDownList.h"
#include "RVADM_Frame.h"
#include "RVADM_Group.h"
#include "RVADM_Label.h"
#include "RVADM_ModalDialogButtons.h"
#include "RVADM_NumericEdit.h"
#include "RVADM_PictureLabel.h"
#include "RVADM_PicturePushButton.h"
#include "RVADM_Radio.h"
#include "RVADM_RadioGroup.h"
#include "RVADM_Slider.h"
#include "RVADM_TextEdit.h"
#include "RVADM_TextPushButton.h"

namespace qRVADM {
namespace {

constexpr int kPicture = 16820;
constexpr int kPressedPicture = 16821;

using Actions = std::vector<std::pair<int, std::uint32_t>>;  // with modifiers

// Notes what its Track sees.
template <typename Item>
struct Watched : Item {
  template <typename... Arguments>
  explicit Watched(host::Host& contextHost, TestDialog& dialog, Arguments... arguments)
      : Item(&dialog, arguments...), host(contextHost) {}
  bool Track(ADMTracker tracker) override {
    EXPECT_EQ(host.contexts().depth(), 1U);
    actions.emplace_back(tracker.action, tracker.modifiers);
    return allows;
  }

  host::Host& host;
  bool allows = true;
  Actions actions;
};

class PlainItemsTest : public DialogTest {
 protected:
  PlainItemsTest() {
    Request({"SP Basic Suite", "AI User Suite", "AI Unicode String Suite"});
    for (const int id : {kPicture + 1000, kPicture + 2000}) bundle.WritePicture(id, Qt::red);
  }
};

TEST_F(PlainItemsTest, ShowTrackTheMouseAndItMayKeepEventsFromTheWidget) {
  TestDialog dialog;
  Watched<RVADM_Label> label(host, dialog, "Label", false);
  Watched<RVADM_PicturePushButton> button(host, dialog, kPicture, 0);
  Watched<RVADM_PictureLabel> picture(host, dialog, kPicture);
  button.move(100, 0);
  picture.move(200, 0);
  dialog.Open();
  for (const bool allows : {false, true}) {
    label.allows = button.allows = picture.allows = allows;
    for (QWidget* item : {label.GetWidget(), button.GetWidget(), picture.GetWidget()}) Click(dialog, *item);
    for (RVADM_Item* item : std::initializer_list<RVADM_Item*>{&label, &button, &picture}) {
      EXPECT_EQ(dialog.TimesNotified(item), allows ? 1 : 0);
    }
  }
  EXPECT_EQ(label.actions, (Actions{{2, 0}, {2, 0}}));
  EXPECT_EQ(picture.actions, (Actions{{2, 0}, {-2, 0}, {2, 0}, {-2, 0}}));
}

TEST_F(PlainItemsTest, CustomItemsSeeEveryEvent) {
  TestDialog dialog;
  Watched<RVADM_CustomItem> item(host, dialog);
  item.SetBounds({0, 0, 60, 70});
  dialog.Open();
  QCoreApplication::processEvents();
  item.actions.clear();
  const auto key = [&](QEvent::Type type, int code, bool again = false) {
    QKeyEvent event(type, code, {}, {}, again);
    QCoreApplication::sendEvent(&item, &event);
  };
  key(QEvent::KeyPress, Qt::Key_Space);
  key(QEvent::KeyRelease, Qt::Key_Space, true);  // it is held on
  key(QEvent::KeyRelease, Qt::Key_Space);
  EXPECT_EQ(item.actions, (Actions{{-15, 512}, {-15, 512}, {-9, 0}}));
  item.actions.clear();
  Press(dialog, {5, 7}, Qt::LeftButton, Qt::ShiftModifier);
  QTest::mouseMove(dialog.windowHandle(), {95, 8});
  Release(dialog, {95, 8});
  QTest::mouseMove(dialog.windowHandle(), {5, 7});
  EXPECT_EQ(item.actions, (Actions{{2, 4 + 32}, {1, 4}, {-2, 0}})) << "no move unless asked for";
  item.actions.clear();
  QTest::mouseDClick(dialog.windowHandle(), Qt::LeftButton, Qt::ControlModifier, {5, 7});
  QWheelEvent wheel({8, 9}, item.mapToGlobal({8, 9}), {}, {15, -120}, Qt::NoButton, Qt::AltModifier,
                    Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&item, &wheel);
  EXPECT_EQ(item.actions, (Actions{{2, 68}, {-2, 64}, {1000, 68}, {2, 68}, {-2, 64}, {12, 128}}));
}

TEST_F(PlainItemsTest, PictureButtonsFollowTheThemeAndShowThatTheyArePressed) {
  bundle.WritePicture(kPicture + 2000, Qt::blue);
  bundle.WritePicture(kPressedPicture + 1000, Qt::yellow);
  bundle.WritePicture(kPressedPicture + 2000, Qt::magenta);
  TestDialog dialog;
  RVADM_PicturePushButton button(&dialog, kPicture, kPressedPicture);
  dialog.Open();
  const std::pair<host::Theme, QColor> colors[2][2] = {
      {{host::Theme::Dark, Qt::blue}, {host::Theme::Light, Qt::red}},
      {{host::Theme::Dark, Qt::magenta}, {host::Theme::Light, Qt::yellow}}};
  for (const bool isDown : {false, true}) {
    button.setDown(isDown);
    for (const auto& [theme, color] : colors[isDown ? 1 : 0]) {
      host::setTheme(theme);
      RVADMQtManager::QtManager::UpdateUIColorScheme();
      EXPECT_EQ(button.grab().toImage().pixelColor(button.rect().center()), color) << isDown;
    }
  }
}

TEST_F(PlainItemsTest, MayBeDeletedByTheirHandler) {
  TestDialog dialog;
  dialog.Open();
  const std::function<RVADM_Item*()> makers[] = {
      [&] { return new RVADM_TextPushButton(&dialog, "Button"); },
      [&] { return new RVADM_PicturePushButton(&dialog, kPicture, 0); },
      [&] { return new RVADM_Label(&dialog, "Label", false); },
      [&] { return new RVADM_PictureLabel(&dialog, kPicture); },
      [&] { return new RVADM_Slider(&dialog, true, 0, 100, 1); },
      [&] { return new RVADM_TextEdit(&dialog, "Text", false, false); },
      [&] { return new RVADM_NumericEdit(&dialog, false, -1, 0.01, 100, 1); },
      [&] { return new RVADM_NumericEdit(&dialog, true, -1, 0.01, 100, 1); }};
  for (const auto& make : makers) {
    for (const bool byKey : {false, true}) {
      RVADM_Item* item = make();
      const QPointer<QWidget> widget = item->GetWidget();
      auto other = std::make_unique<RVADM_TextEdit>(&dialog, "", false, false);
      dialog.react = [item] { delete item; };
      widget->show();
      other->move(0, 200);
      other->show();
      widget->setFocus();
      QTest::keyClick(dialog.windowHandle(), Qt::Key_X);
      if (byKey) {
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Right, Qt::Key_Return}) {
          if (widget) QTest::keyClick(dialog.windowHandle(), key);
        }
      }
      if (widget) Click(dialog, *widget);
      other->setFocus();
      EXPECT_TRUE(widget.isNull()) << &make - makers;
      dialog.react = nullptr;
      delete widget;
    }
  }
}

TEST_F(PlainItemsTest, GroupsLetClicksThroughUntilTheyHaveAChild) {
  TestDialog dialog;
  RVADM_TextPushButton button(&dialog, "Button");
  RVADM_Group group(&dialog, "Group", false);
  RVADM_Frame frame(&dialog, true);
  button.move(50, 50);
  for (RVADM_Item* box : std::initializer_list<RVADM_Item*>{&group, &frame}) box->SetBounds({0, 0, 300, 200});
  dialog.Open();
  Click(dialog, button);
  EXPECT_EQ(dialog.TimesNotified(&button), 1);
  const QObject noWidget(&group);
  Click(dialog, button);
  EXPECT_EQ(dialog.TimesNotified(&button), 2);
  const QWidget child(&group);
  Click(dialog, button);
  EXPECT_EQ(dialog.TimesNotified(&button), 2);
}

TEST_F(PlainItemsTest, ModalButtonsMayEndTheDialog) {
  TestDialog dialog;
  RVADM_ModalDialogButtons box(&dialog, true);
  std::vector<RVADM_TextPushButton*> buttons;
  for (const int role : {0, 1}) {
    buttons.push_back(new RVADM_TextPushButton(&dialog, "Button"));
    box.AddButton(role, buttons.back(), role == 1);
  }
  box.EndWithCommit(buttons[0], 5);
  box.EndWithoutCommit(buttons[1], 6);
  for (RVADM_TextPushButton* button : buttons) {
    dialog.Open();
    Click(dialog, *button);
    EXPECT_FALSE(dialog.isVisible());
  }
  EXPECT_EQ(dialog.result(), 6);
  EXPECT_EQ(dialog.committed, std::vector<int>{5});
}

TEST_F(PlainItemsTest, DropDownListsNotifyOfTheUsersChoiceAlone) {
  TestDialog dialog;
  RVADM_DropDownList list(&dialog);
  for (const char* text : {"Round", "Cross", "round"}) new RVADM_ComboEntry(&list, text, false);
  dialog.Open();
  RVADM_ComboEntry* const last = list.FindEntry("round");
  last->Select(true);
  last->SetText("rund", false);
  delete list.GetEntry(0);
  EXPECT_TRUE(dialog.notified.empty());
  EXPECT_EQ(list.GetActiveEntry(), last);
  list.SetFocus(true);
  QTest::keyClick(&list, Qt::Key_Up);
  EXPECT_EQ(list.GetActiveEntry(), list.FindEntry("Cross"));
  EXPECT_EQ(dialog.TimesNotified(&list), 1);
  QWheelEvent wheel({5, 5}, list.mapToGlobal({5, 5}), {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase,
                    false);
  QApplication::sendEvent(&list, &wheel);
  EXPECT_EQ(list.currentIndex(), 0) << "the wheel is for what lies behind";
}

TEST_F(PlainItemsTest, OneRadioOfAGroupIsChecked) {
  TestDialog dialog;
  RVADM_RadioGroup first(&dialog);
  RVADM_RadioGroup second(&dialog);
  std::vector<RVADM_Radio*> radios;
  for (RVADM_ItemParent* parent :
       std::initializer_list<RVADM_ItemParent*>{&first, &first, &second, &dialog}) {
    radios.push_back(new RVADM_Radio(parent, "Radio"));
    radios.back()->move(0, 40 * static_cast<int>(radios.size()));
  }
  dialog.Open();
  for (const std::size_t clicked : {0U, 2U, 3U, 1U}) Click(dialog, *radios[clicked]);
  std::string checked;
  for (RVADM_Radio* radio : radios) checked += radio->IsChecked() ? 'x' : '-';
  EXPECT_EQ(checked, "-xxx");
  EXPECT_EQ(dialog.notified.size(), 4U);
}

TEST_F(PlainItemsTest, SlidersGoByStepsAndNotifyOfValuesOnRequest) {
  for (const bool reportsValues : {false, true}) {
    TestDialog dialog;
    RVADM_Slider slider(&dialog, reportsValues, 0.0, 10.0, 0.1);
    slider.resize(300, 30);
    dialog.Open();
    slider.SetValue(0.29);
    EXPECT_EQ(slider.value(), 2);
    EXPECT_EQ(slider.GetValue(), 0.2);
    slider.SetValue(0);
    Press(dialog, {7, 15});
    QTest::mouseMove(dialog.windowHandle(), {150, 15});
    Release(dialog, {150, 15});
    EXPECT_GT(slider.GetValue(), 3);
    EXPECT_EQ(dialog.TimesNotified(&slider), reportsValues ? 1 : 0);
  }
}

}  // namespace
}  // namespace qRVADM
