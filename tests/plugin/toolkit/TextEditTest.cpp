// Text fields under the keyboard.
#include <string>

#include "DialogWorld.h"
#include "RVADM_TextEdit.h"

namespace qRVADM {
namespace {

using TextEditTest = DialogTest;

struct CountingField : RVADM_TextEdit {
  using RVADM_TextEdit::RVADM_TextEdit;
  void Notify(int code) override {
    if (code == kIntermediateChange) ++intermediateChanges;
    RVADM_TextEdit::Notify(code);
  }
  int intermediateChanges = 0;
};

TEST_F(TextEditTest, TextIsCompleteWhenAnEditedFieldIsLeft) {
  TestDialog dialog;
  CountingField field(&dialog, "old", false, false);
  RVADM_TextEdit other(&dialog, "", false, false);
  dialog.Open();
  field.setFocus();
  other.setFocus();
  EXPECT_TRUE(dialog.notified.empty()) << "left as it was";
  field.setFocus();
  QTest::keyClicks(&field, "ab");
  EXPECT_EQ(field.intermediateChanges, 2);
  EXPECT_TRUE(dialog.notified.empty());
  other.setFocus();
  EXPECT_EQ(dialog.notified, std::vector<const RVADM_Item*>{&field});
  char text[8];
  field.GetText(text, sizeof text, false);
  EXPECT_STREQ(text, "oldab");
}

TEST_F(TextEditTest, ReturnAndEscapeGoOnToAModalDialogButEndTheEditingOnAPalette) {
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

}  // namespace
}  // namespace qRVADM
