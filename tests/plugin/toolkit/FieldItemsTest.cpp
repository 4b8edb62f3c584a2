// Text fields, sliders and radios under mouse and keyboard.
#include <string>

#include "DialogWorld.h"
#include "RVADM_Radio.h"
#include "RVADM_RadioGroup.h"
#include "RVADM_Slider.h"
#include "RVADM_TextEdit.h"

namespace qRVADM {
namespace {

using FieldItemsTest = DialogTest;

// Notes what it notifies of.
template <typename Item>
struct Noted : Item {
  using Item::Item;
  void Notify(int code) override {
    if (code != kBoundsChanged) codes.push_back(code);
    Item::Notify(code);
  }

  std::vector<int> codes;
};

TEST_F(FieldItemsTest, TextIsCompleteWhenAnEditedFieldIsLeft) {
  TestDialog dialog;
  Noted<RVADM_TextEdit> field(&dialog, "old", false, false);
  RVADM_TextEdit other(&dialog, "", false, false);
  dialog.Open();
  field.setFocus();
  other.setFocus();
  EXPECT_TRUE(dialog.notified.empty()) << "left as it was";
  field.setFocus();
  QTest::keyClicks(&field, "ab");
  EXPECT_EQ(std::count(field.codes.begin(), field.codes.end(), kIntermediateChange), 2);
  EXPECT_TRUE(dialog.notified.empty());
  other.setFocus();
  EXPECT_EQ(dialog.notified, std::vector<const RVADM_Item*>{&field});
  char text[8];
  field.GetText(text, sizeof text, false);
  EXPECT_STREQ(text, "oldab");
  field.codes.clear();
  field.selectAll();
  EXPECT_EQ(field.codes, std::vector<int>{kTextSelectionChanged});
}

TEST_F(FieldItemsTest, ReturnAndEscapeGoOnToAModalDialogButEndTheEditingOnAPalette) {
  for (const bool onPalette : {false, true}) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Left}) {
      TestDialog dialog;
      if (onPalette) dialog.BecomePalette();
      RVADM_TextEdit field(&dialog, "", false, false);
      dialog.Open();
      field.setFocus();
      QTest::keyClick(dialog.windowHandle(), Qt::Key_X);
      QTest::keyClick(dialog.windowHandle(), key);
      const bool ends = onPalette && key != Qt::Key_Left;
      const bool finishes = ends || key == Qt::Key_Return || key == Qt::Key_Enter;
      EXPECT_EQ(dialog.isVisible(), onPalette || key != Qt::Key_Escape) << key;
      EXPECT_EQ(dialog.focusWidget() == &field, !ends) << key;
      if (onPalette || key != Qt::Key_Escape) {
        EXPECT_EQ(dialog.TimesNotified(&field), finishes ? 1 : 0) << key;
      }
    }
  }
}

TEST_F(FieldItemsTest, SlidersNotifyOfDragsAndOnRequestOfValues) {
  for (const bool reportsValues : {false, true}) {
    TestDialog dialog;
    Noted<RVADM_Slider> slider(&dialog, reportsValues, 0.0, 10.0, 0.1);
    slider.resize(300, 30);
    dialog.Open();
    slider.SetValue(1.5);
    EXPECT_EQ(slider.value(), 15);
    EXPECT_EQ(slider.GetValue(), 1.5);
    slider.SetValue(0.29);
    EXPECT_EQ(slider.value(), 2);
    EXPECT_TRUE(slider.codes.empty());
    EXPECT_FALSE(slider.signalsBlocked());
    slider.SetValue(0);
    Press(dialog, {7, 15});
    QTest::mouseMove(dialog.windowHandle(), {150, 15});
    Release(dialog, {150, 15});
    EXPECT_GT(slider.GetValue(), 3);
    const std::vector<int> expected = reportsValues ? std::vector<int>{3, 2} : std::vector<int>{3};
    EXPECT_EQ(slider.codes, expected);
    EXPECT_EQ(dialog.TimesNotified(&slider), reportsValues ? 1 : 0);
  }
}

TEST_F(FieldItemsTest, OneRadioOfAGroupIsChecked) {
  TestDialog dialog;
  auto* first = new RVADM_RadioGroup(&dialog);
  auto* second = new RVADM_RadioGroup(&dialog);
  RVADM_ItemParent* parents[] = {first, first, second, second, &dialog, &dialog};
  std::vector<RVADM_Radio*> radios;
  for (RVADM_ItemParent* parent : parents) {
    radios.push_back(new RVADM_Radio(parent, "Radio"));
    EXPECT_EQ(radios.back()->parentWidget(), &dialog);
    EXPECT_EQ(radios.back()->GetDialog(), &dialog);
    radios.back()->move(0, 40 * static_cast<int>(radios.size()));
  }
  dialog.Open();
  for (const std::size_t clicked : {0U, 2U, 4U, 1U, 5U}) Click(dialog, *radios[clicked]);
  std::string checked;
  for (RVADM_Radio* radio : radios) checked += radio->IsChecked() ? 'x' : '-';
  EXPECT_EQ(checked, "-xx--x");
  EXPECT_EQ(dialog.notified.size(), 5U);
  radios[0]->SetChecked(true);
  EXPECT_FALSE(radios[1]->IsChecked());
  EXPECT_EQ(dialog.notified.size(), 5U);
}

}  // namespace
}  // namespace qRVADM
