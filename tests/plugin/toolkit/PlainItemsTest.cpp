// Buttons, labels and boxes under the mouse.
#include <QPointer>
#include <memory>
#include <string>
#include <tuple>

#include "DialogWorld.h"
#include "Pictures.h"
#include "RVADM_Frame.h"
#include "RVADM_Group.h"
#include "RVADM_Label.h"
#include "RVADM_ModalDialogButtons.h"
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

std::tuple<int, int, int, int> Sides(const ADMRect& rect) {
  return {rect.left, rect.top, rect.right, rect.bottom};
}

// Notes what its Track sees, and whether that was in a context.
template <typename Item>
struct Watched : Item {
  template <typename... Arguments>
  explicit Watched(host::Host& contextHost, TestDialog& dialog, Arguments... arguments)
      : Item(&dialog, arguments...), host(contextHost) {}
  bool Track(ADMTracker tracker) override {
    EXPECT_EQ(host.contexts().depth(), 1U);
    actions.emplace_back(tracker.action, tracker.modifiers);
    point = {tracker.x, tracker.y};
    return allows;
  }

  host::Host& host;
  bool allows = true;
  Actions actions;
  QPoint point;
};

class PlainItemsTest : public DialogTest {
 protected:
  PlainItemsTest() {
    for (const int id : {kPicture + 1000, kPicture + 2000}) {
      bundle.Write("png/p" + std::to_string(id) + ".png", PNGPicture(16, 16, Qt::red));
    }
  }
};

TEST_F(PlainItemsTest, HaveRoomForTheirTextInBothFrames) {
  for (const bool onPalette : {false, true}) {
    TestDialog dialog;
    if (onPalette) dialog.BecomePalette();
    const std::tuple<RVADM_Item*, int, bool> items[] = {
        {new RVADM_TextPushButton(&dialog, "Wg\xC3\x84"), kTextPushButtonKind, false},
        {new RVADM_Label(&dialog, "Wg\xC3\x84", true), kLabelKind, false},
        {new RVADM_Radio(&dialog, "Wg\xC3\x84"), kRadioKind, false},
        {new RVADM_TextEdit(&dialog, "Wg\xC3\x84", true, false), kTextEditKind, true},
        {new RVADM_TextEdit(&dialog, "Wg\xC3\x84", true, true), kReadOnlyTextEditKind, true},
        {new RVADM_PicturePushButton(&dialog, kPicture, 0), kPicturePushButtonKind, false},
        {new RVADM_Slider(&dialog, false, 0, 1, 0.1), kSliderKind, false}};
    for (const auto& [item, kind, takesFocus] : items) {
      QWidget* widget = item->GetWidget();
      EXPECT_TRUE(item->IsKind(kind)) << kind;
      const bool isField = qobject_cast<QLineEdit*>(widget) != nullptr;
      EXPECT_EQ(widget->size(), isField ? widget->minimumSizeHint() : widget->sizeHint()) << kind;
      EXPECT_GE(widget->height(), kind == kSliderKind ? 8 : widget->fontMetrics().height()) << kind;
      if (kind != kPicturePushButtonKind) {
        EXPECT_EQ(widget->font().pixelSize(), onPalette ? 10 : 12) << kind;
      }
      if (kind != kLabelKind) {
        EXPECT_EQ(widget->focusPolicy() != Qt::NoFocus, !onPalette || takesFocus) << kind;
      }
    }
  }
}

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

  picture.actions.clear();
  Press(dialog, {203, 4}, Qt::RightButton, Qt::ShiftModifier);
  EXPECT_EQ(picture.point, QPoint(3, 4));
  QTest::mouseMove(dialog.windowHandle(), {230, 4});
  Release(dialog, {230, 4}, Qt::RightButton, Qt::ControlModifier);
  EXPECT_EQ(picture.actions, (Actions{{2, 0x20}, {1, 16}, {-4, 0x40}}));
  EXPECT_EQ(picture.point, QPoint(30, 4));
  Press(dialog, {203, 4}, Qt::MiddleButton);
  Release(dialog, {203, 4}, Qt::MiddleButton, Qt::AltModifier);
  EXPECT_EQ(picture.actions.back(), (Actions::value_type{-3, 0x80}));
  EXPECT_EQ(dialog.TimesNotified(&picture), 2) << "not when released outside";
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
      [&] { return new RVADM_TextEdit(&dialog, "Text", false, false); }};
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

TEST_F(PlainItemsTest, BoxesWithAWindowOfTheirOwnGoBehindTheirSiblings) {
  TestDialog dialog;
  RVADM_TextPushButton button(&dialog, "Button");
  RVADM_Group group(&dialog, "Group", false);
  group.setAttribute(Qt::WA_NativeWindow);
  dialog.Open();
  EXPECT_TRUE(group.windowHandle()->flags().testFlag(Qt::WindowTransparentForInput));
  EXPECT_LT(dialog.children().indexOf(&group), dialog.children().indexOf(&button));
}

TEST_F(PlainItemsTest, BoxesHoldWhatStandsInThem) {
  TestDialog dialog;
  RVADM_Group group(&dialog, "Group", false);
  RVADM_Label label(&dialog, "Label", false);
  ADMRect rect{};
  group.SetInnerRect({30, 40, 130, 90});
  group.GetBounds(&rect);
  EXPECT_EQ(Sides(rect), std::make_tuple(19, 19, 141, 101));
  group.GetContentRect(&rect);
  EXPECT_EQ(Sides(rect), std::make_tuple(11, 5, 111, 71));
  group.AlignItemInside(&label, kAlignLeft | kAlignTop);
  EXPECT_EQ(label.pos(), QPoint(30, 40));
  label.SetBounds({30, 40, 250, 60});
  group.FitToItem(&label, kStretchRight | kStretchBottom);
  group.GetInnerRect(&rect);
  EXPECT_EQ(Sides(rect), std::make_tuple(30, 40, 250, 60));
}

TEST_F(PlainItemsTest, FramesAreLinesOrBoxesByTheirSize) {
  TestDialog dialog;
  const std::tuple<bool, int, int, QFrame::Shape> cases[] = {{false, 40, 40, QFrame::NoFrame},
                                                             {true, 40, 2, QFrame::HLine},
                                                             {true, 2, 2, QFrame::HLine},
                                                             {true, 2, 3, QFrame::VLine},
                                                             {true, 3, 3, QFrame::Box}};
  for (const auto& [bordered, width, height, shape] : cases) {
    RVADM_Frame frame(&dialog, bordered);
    EXPECT_EQ(frame.height(), 2);
    frame.SetSize(width, height);
    EXPECT_EQ(frame.frameShape(), shape) << width << " by " << height;
  }
}

TEST_F(PlainItemsTest, ModalButtonsHaveTheirRolesAndMayEndTheDialog) {
  TestDialog dialog;
  RVADM_ModalDialogButtons box(&dialog, true);
  const std::tuple<int, QDialogButtonBox::ButtonRole, bool> cases[] = {
      {0, QDialogButtonBox::AcceptRole, true}, {1, QDialogButtonBox::RejectRole, true},
      {2, QDialogButtonBox::ApplyRole, true},  {3, QDialogButtonBox::DestructiveRole, true},
      {4, QDialogButtonBox::ResetRole, false}, {5, QDialogButtonBox::YesRole, true},
      {6, QDialogButtonBox::NoRole, true},     {7, QDialogButtonBox::HelpRole, false}};
  std::vector<RVADM_TextPushButton*> buttons;
  for (const auto& [role, boxRole, isModal] : cases) {
    auto* button = buttons.emplace_back(new RVADM_TextPushButton(&dialog, "Button"));
    box.AddButton(role, button, role == 1);
    EXPECT_EQ(box.buttonRole(button), boxRole) << role;
    EXPECT_EQ(button->property(RVADMQtManager::kIsModalButtonProperty), QVariant(isModal)) << role;
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
  EXPECT_STREQ(box.metaObject()->className(), "RVADM_ModalDialogButtons");
}

}  // namespace
}  // namespace qRVADM
