// A modal dialog from Run to its end, with handlers that behave and handlers that do not.
#include <QTimer>
#include <stdexcept>

#include "DialogWorld.h"
#include "RVADM_TextPushButton.h"

namespace qRVADM {
namespace {

class ModalDialogTest : public DialogTest {
 protected:
  ModalDialogTest() { Request({"SP Basic Suite"}); }  // by which dialogs ask whether they may

  // Runs the dialog, and `act` once it is up.
  static int RunWith(TestDialog& dialog, const std::function<void()>& act) {
    QTimer::singleShot(0, &dialog, act);
    return dialog.Run("Title", false);
  }
};

TEST_F(ModalDialogTest, EndsWithTheResultAndCommitsUnlessCancelled) {
  const struct {
    const char* what;
    std::function<void(TestDialog&)> end;
    int result;
    std::vector<int> committed;
  } rows[] = {
      {"OK", [](TestDialog& dialog) { dialog.EndDialog(1, false); }, 1, {1}},
      {"Cancel", [](TestDialog& dialog) { dialog.EndDialog(0, true); }, 0, {}},
      {"twice",
       [](TestDialog& dialog) {
         dialog.EndDialog(3, false);
         dialog.EndDialog(4, true);
       },
       4,
       {3}},
      {"Escape", [](TestDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }, 0, {}},
  };
  for (const auto& row : rows) {
    TestDialog dialog;
    EXPECT_EQ(RunWith(dialog, [&] { row.end(dialog); }), row.result) << row.what;
    EXPECT_EQ(dialog.committed, row.committed) << row.what;
  }
  host.interactionAllowed = false;
  TestDialog silent;
  bool made = false;
  silent.create = [&made] { made = true; };
  EXPECT_EQ(silent.Run("Title", false), -1);
  EXPECT_FALSE(made);
}

TEST_F(ModalDialogTest, EscapeIsTheCancelButton) {
  for (const bool deletesIt : {false, true}) {
    TestDialog dialog;
    RVADM_Item* cancel = nullptr;
    dialog.create = [&] { dialog.SetCancelButton(cancel = new RVADM_TextPushButton(&dialog, "No")); };
    dialog.react = [&] { deletesIt ? delete cancel : dialog.EndDialog(7, true); };
    EXPECT_EQ(RunWith(dialog, [&] { QTest::keyClick(&dialog, Qt::Key_Escape); }), deletesIt ? 0 : 7);
    if (deletesIt) dialog.reject();
    EXPECT_EQ(dialog.notified.size(), 1U) << "a button that is gone is not asked again";
  }
}

TEST_F(ModalDialogTest, WhatThrowsLeavesNothingBehind) {
  TestDialog outer;
  outer.react = [] { throw std::runtime_error("handler"); };
  RVADM_Item* button = nullptr;
  outer.create = [&] { button = new RVADM_TextPushButton(&outer, "Go"); };
  EXPECT_EQ(RunWith(outer,
                    [&] {
                      EXPECT_THROW(button->Notify(kUserChanged), std::runtime_error);
                      TestDialog failing;
                      failing.create = [] { throw std::runtime_error("items"); };
                      EXPECT_THROW(failing.Run("Second", false), std::runtime_error);
                      TestDialog second;
                      EXPECT_EQ(RunWith(second, [&second] { second.EndDialog(5, true); }), 5);
                      EXPECT_EQ(RVADMQtManager::QtManager::DialogCount(), 3);
                      outer.EndDialog(2, true);
                    }),
            2);
  TestDialog resized;
  resized.layout = [] { throw std::runtime_error("layout"); };
  EXPECT_THROW(resized.Init(), std::runtime_error);
  int layouts = 0;
  resized.layout = [&layouts] { ++layouts; };
  resized.resize(333, 222);
  resized.Relayout();
  EXPECT_EQ(layouts, 1) << "layouts run again after one that threw";
}

}  // namespace
}  // namespace qRVADM
