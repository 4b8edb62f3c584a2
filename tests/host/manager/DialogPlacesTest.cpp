// What dialogs are parented on, and what counts as a palette.
#include <QDialog>
#include <QMainWindow>
#include <QPushButton>
#include <optional>

#include "Application.h"
#include "HostWindow.h"
#include "QtManager.h"

namespace {

using RVADMQtManager::QtManager;

using DialogPlaces = WidgetTest;

TEST_F(DialogPlaces, ParentIsTheNearestWindowThatIsUp) {
  EXPECT_EQ(QtManager::GetModalDialogParent(nullptr, true), nullptr);
  std::optional<QMainWindow> window(std::in_place);
  host::setHostWindow(&*window);
  EXPECT_EQ(QtManager::GetModalDialogParent(nullptr, true), &*window);

  QWidget tool;
  QPushButton hint(&tool);
  EXPECT_EQ(QtManager::GetModalDialogParent(&hint, true), &*window) << "its window is not up";
  tool.show();
  EXPECT_EQ(QtManager::GetModalDialogParent(&hint, true), &tool);

  QDialog dialog(&*window);
  dialog.setModal(true);
  dialog.show();
  EXPECT_EQ(QtManager::GetModalDialogParent(nullptr, true), &dialog);
  EXPECT_EQ(QtManager::GetModalDialogParent(&hint, true), &tool);
  EXPECT_EQ(QtManager::GetModalDialogParent(nullptr, false), &*window);
  dialog.close();
  dialog.setParent(nullptr);
  window.reset();
  EXPECT_EQ(QtManager::GetModalDialogParent(nullptr, true), nullptr);
}

TEST_F(DialogPlaces, PaletteHoldsWhatIsInItButNoDialogOverIt) {
  QMainWindow window;
  QWidget palette(&window);
  QtManager::RegisterPalette(&palette);
  QtManager::RegisterPalette(nullptr);
  QWidget frame(&palette);
  QPushButton inPalette(&frame);
  QPushButton beside(&window);
  QDialog dialog(&palette);
  QPushButton inDialog(&dialog);
  const std::pair<const QWidget*, bool> rows[] = {{&palette, true}, {&inPalette, true}, {&beside, false},
                                                  {&window, false}, {&dialog, false},   {&inDialog, false},
                                                  {nullptr, false}};
  for (const auto& [widget, expected] : rows) EXPECT_EQ(QtManager::IsOnNonModalDialog(widget), expected);
  frame.setParent(nullptr);  // as a palette is taken apart
  EXPECT_FALSE(QtManager::IsOnNonModalDialog(&inPalette));
}

}  // namespace
