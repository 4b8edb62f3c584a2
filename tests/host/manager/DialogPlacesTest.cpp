// What dialogs are parented on, and what counts as a palette.
#include <QDialog>
#include <QMainWindow>
#include <QPushButton>
#include <optional>

#include "Application.h"
#include "HostWindow.h"
#include "PanelIcons.h"
#include "QtManager.h"

namespace {

using RVADMQtManager::QtManager;
using RVADMQtManager::SharedResources;

class DialogPlaces : public WidgetTest {};

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
  EXPECT_EQ(QtManager::GetModalDialogParent(nullptr, true), &*window);
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
  const struct {
    const char* what;
    const QWidget* widget;
    bool expected;
  } rows[] = {{"the palette", &palette, true},
              {"a button in it", &inPalette, true},
              {"a button beside it", &beside, false},
              {"the window", &window, false},
              {"a dialog over it", &dialog, false},
              {"a button of that", &inDialog, false},
              {"nothing", nullptr, false}};
  for (const auto& row : rows) EXPECT_EQ(QtManager::IsOnNonModalDialog(row.widget), row.expected) << row.what;
  frame.setParent(nullptr);  // as a palette is taken apart
  EXPECT_FALSE(QtManager::IsOnNonModalDialog(&inPalette));
}

TEST_F(DialogPlaces, PanelsKeepTheirLastIcons) {
  int panel = 0;
  EXPECT_FALSE(host::panelIconIds(&panel));
  SharedResources::RegisterPanelIcon(&panel, 1, 1);
  SharedResources::RegisterPanelIcon(&panel, 17100, 18100);
  ASSERT_TRUE(host::panelIconIds(&panel));
  EXPECT_EQ(host::panelIconIds(&panel)->light, 17100);
  EXPECT_EQ(host::panelIconIds(&panel)->dark, 18100);
  SharedResources::UnregisterPanelIcon(&panel);
  SharedResources::UnregisterPanelIcon(&panel);
  EXPECT_FALSE(host::panelIconIds(&panel));
}

}  // namespace
