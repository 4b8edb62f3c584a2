// Buttons, labels and boxes under the mouse.
#include <QPointer>
#include <memory>
#include <string>

#include "DialogWorld.h"
#include "RVADM_Frame.h"
#include "RVADM_Group.h"
#include "RVADM_Label.h"
#include "RVADM_ModalDialogButtons.h"
#include "RVADM_NumericEdit.h"
#include "RVADM_PictureLabel.h"
#include "RVADM_PicturePushButton.h"
#include "RVADM_Radio.h"
#include "RVADM_Slider.h"
#include "RVADM_TextEdit.h"
#include "RVADM_TextPushButton.h"

namespace qRVADM {
namespace {

constexpr int kPicture = 16820;

using Actions = std::vector<std::pair<int, std::uint32_t>>;  // with modifiers

// Notes what its Track sees, and whether that was in a context.
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

TEST_F(PlainItemsTest, MayBeDeletedByTheirHandler) {
  TestDialog dialog;
  dialog.Open();
  const std::function<RVADM_Item*()> makers[] = {
      [&] { return new RVADM_TextPushButton(&dialog, "Button"); },
      [&] { return new RVADM_PicturePushButton(&dialog, kPicture, 0); },
      [&] { return new RVADM_Label(&dialog, "Label", false); },
      [&] { return new RVADM_PictureLabel(&dialog, kPicture); },
      [&] { return new RVADM_Radio(&dialog, "Radio"); },
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
  for (const int role : {0, 1, 2}) {
    auto* button = buttons.emplace_back(new RVADM_TextPushButton(&dialog, "Button"));
    box.AddButton(role, button, role == 1);
    EXPECT_EQ(button->isDefault(), role == 1) << role;
    EXPECT_EQ(box.size(), box.sizeHint());
  }
  box.EndWithCommit(buttons[0], 5);
  box.EndWithoutCommit(buttons[1], 6);
  for (const int role : {2, 0, 1}) {
    dialog.Open();
    Click(dialog, *buttons[static_cast<std::size_t>(role)]);
    EXPECT_EQ(dialog.isVisible(), role == 2);
  }
  EXPECT_EQ(dialog.result(), 6);
  EXPECT_EQ(dialog.committed, std::vector<int>{5});
  EXPECT_EQ(dialog.notified, (std::vector<const RVADM_Item*>{buttons[2], buttons[0], buttons[1]}));
}

}  // namespace
}  // namespace qRVADM
