// Views and windows as plug-ins' dialogs use them.
#include "NativeView.h"

#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QWindow>

#include "Application.h"
#include "HostWindow.h"

namespace {

using NativeViews = WidgetTest;

TEST_F(NativeViews, ButtonsLeaveAShownWindowAsItStands) {
  QDialog dialog;
  dialog.setWindowModality(Qt::ApplicationModal);
  EXPECT_EQ(NativeWindowOf(&dialog), nullptr) << "the system does not know it yet";
  dialog.setGeometry(60, 70, 320, 240);
  dialog.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
  const QRect before = dialog.geometry();
  NativeWindow* window = NativeWindowOf(&dialog);
  SetStyleMask(window, 0);
  EXPECT_EQ(StyleMask(window), 0U);
  SetStyleMask(window, kResizableWindow);
  EXPECT_EQ(StyleMask(window), kResizableWindow);
  for (int button = -1; button <= kStandardWindowButtons; ++button) HideStandardWindowButton(window, button);
  const Qt::WindowFlags buttons =
      Qt::WindowCloseButtonHint | Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint;
  for (const Qt::WindowFlags flags : {dialog.windowFlags(), dialog.windowHandle()->flags()}) {
    EXPECT_EQ(flags & buttons, Qt::WindowFlags());
    EXPECT_TRUE(flags.testFlag(Qt::CustomizeWindowHint));
  }
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_EQ(dialog.geometry(), before);
  EXPECT_EQ(QApplication::activeModalWidget(), &dialog);
}

TEST_F(NativeViews, SubviewsStayVisible) {
  QWidget host, child;
  host.show();
  child.show();
  AddSubview(NativeViewOf(&host), NativeViewOf(&child));
  EXPECT_TRUE(child.isVisible());
  EXPECT_EQ(Superview(NativeViewOf(&child)), NativeViewOf(&host));
  RemoveFromSuperview(NativeViewOf(&child));
  EXPECT_EQ(child.parentWidget(), nullptr);
}

}  // namespace
