#include "Doings.h"

#include <QApplication>
#include <QDockWidget>
#include <QListWidget>
#include <QPushButton>
#include <QWheelEvent>
#include <QtTest/QTest>
#include <vector>

#include "DrawingView.h"
#include "Duplicate.h"
#include "OpenDrawing.h"
#include "Stage.h"
#include "WidgetUse.h"

namespace host {
namespace {

constexpr std::size_t kManyDrawings = 4;

// --- files ---

std::string nameOf(const std::string& file) {
  return std::filesystem::path(file).filename().string();
}

void open(Stage& stage) {
  if (stage.drawings().size() >= kManyDrawings) return stage.world().press(Qt::Key_W, Qt::ControlModifier);
  stage.world().filesToOpen = {stage.anyFile()};
  if (stage.chance.oneIn(4)) stage.world().filesToOpen.push_back(stage.anyFile());
  stage.diary.note("opens " + nameOf(stage.world().filesToOpen.back()));
  stage.world().press(Qt::Key_O, Qt::ControlModifier);
}

void save(Stage& stage) {
  stage.diary.note("saves");
  stage.world().press(Qt::Key_S, Qt::ControlModifier);
}

void saveAs(Stage& stage) {
  const bool isPossible = !stage.chance.oneIn(6);
  std::string& file = stage.world().fileToSave;
  file = stage.newFile(isPossible ? ".svg" : "/missing/none.svg");
  if (stage.chance.oneIn(5)) file = stage.anyFile();
  stage.diary.note("saves as " + nameOf(file));
  stage.world().press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
  if (std::filesystem::exists(file)) stage.keep(file);
  file.clear();
}

void exportAs(Stage& stage) {
  constexpr const char* kEnds[] = {".png", ".svg", ".pdf", ".txt", "/missing/none.pdf"};
  std::string& file = stage.world().fileToSave;
  file = stage.newFile(stage.chance.anyOf(kEnds));
  if (stage.chance.oneIn(5)) file = stage.anyFile();
  stage.diary.note("exports to " + nameOf(file));
  stage.world().press(Qt::Key_E, Qt::ControlModifier);
  file.clear();
}

void close(Stage& stage) {
  stage.diary.note("closes");
  stage.world().press(Qt::Key_W, Qt::ControlModifier);
}

void quit(Stage& stage) {
  stage.diary.note("quits");
  if (stage.window().close()) stage.startAgain();
}

// --- the drawing ---

ArtId anyArt(Stage& stage, const Document& document) {
  if (document.artSlots() == 0) return 0;
  for (int i = 0; i < 20; ++i) {
    const auto id = static_cast<ArtId>(1 + stage.chance.below(static_cast<int>(document.artSlots())));
    if (document.art(id) != nullptr) return id;
  }
  return 0;
}

// On an outline if there is one in sight, else anywhere.
QPoint anyPlace(Stage& stage, const DrawingView& view) {
  const Art* const art = view.drawing().document().art(anyArt(stage, view.drawing().document()));
  if (art == nullptr || !art->path || art->path->segments.empty()) return anyPointIn(view, stage.chance);
  const AIRealPoint at = view.drawing().shown->view.toPixels(stage.chance.anyOf(art->path->segments).p);
  if (!(at.x >= 0 && at.y >= 0 && at.x < view.width() && at.y < view.height()))
    return anyPointIn(view, stage.chance);
  return {static_cast<int>(at.x), static_cast<int>(at.y)};
}

void clickDrawing(Stage& stage) {
  DrawingView* const view = stage.view();
  if (view == nullptr) return open(stage);
  const QPoint place = anyPlace(stage, *view);
  const Qt::KeyboardModifiers modifiers = anyModifiers(stage.chance);
  stage.diary.note("clicks the drawing at " + std::to_string(place.x()) + "," + std::to_string(place.y()) +
                   " with " + std::to_string(static_cast<int>(modifiers)));
  QTest::mouseClick(view, Qt::LeftButton, modifiers, place);
}

void dragInDrawing(Stage& stage) {
  constexpr Qt::MouseButton kButtons[] = {Qt::LeftButton, Qt::LeftButton, Qt::LeftButton, Qt::MiddleButton};
  DrawingView* const view = stage.view();
  if (view == nullptr) return open(stage);
  const QPoint from = anyPointIn(*view, stage.chance);
  const QPoint to = anyPointIn(*view, stage.chance) + QPoint(stage.chance.below(60) - 30, 0);
  const Qt::KeyboardModifiers modifiers = anyModifiers(stage.chance);
  stage.diary.note("drags in the drawing");
  drag(*view, from, to, modifiers, stage.chance.anyOf(kButtons));
}

void turnWheel(Stage& stage) {
  DrawingView* const view = stage.view();
  if (view == nullptr) return open(stage);
  const QPoint place = anyPointIn(*view, stage.chance);
  const QPoint angle(0, 120 * (stage.chance.below(7) - 3));
  stage.diary.note("turns the wheel");
  QWheelEvent event(place, view->mapToGlobal(place), {}, angle, Qt::NoButton, anyModifiers(stage.chance),
                    Qt::NoScrollPhase, false);
  QApplication::sendEvent(view, &event);
}

void pressKey(Stage& stage) {
  constexpr Qt::Key kKeys[] = {Qt::Key_Escape, Qt::Key_V,    Qt::Key_H,    Qt::Key_Z,   Qt::Key_Left,
                               Qt::Key_Right,  Qt::Key_Up,   Qt::Key_Home, Qt::Key_Tab, Qt::Key_Space,
                               Qt::Key_Return, Qt::Key_Plus, Qt::Key_F6};
  DrawingView* const view = stage.view();
  if (view == nullptr) return open(stage);
  const Qt::Key key = stage.chance.anyOf(kKeys);
  stage.diary.note("presses key " + std::to_string(key));
  QTest::keyClick(view, key);
}

void chooseTool(Stage& stage) {
  const int number = 1 + stage.chance.below(5);
  stage.diary.note("chooses tool " + std::to_string(number));
  stage.world().press(static_cast<Qt::Key>(Qt::Key_0 + number), Qt::AltModifier);
}

void fit(Stage& stage) {
  stage.diary.note("fits the artboard");
  stage.world().press(Qt::Key_0, Qt::ControlModifier);
}

// --- editing ---

void undo(Stage& stage) {
  for (int times = 1 + stage.chance.below(3); times > 0; --times) {
    stage.diary.note("undoes");
    stage.world().press(Qt::Key_Z, Qt::ControlModifier);
  }
}

void redo(Stage& stage) {
  for (int times = 1 + stage.chance.below(3); times > 0; --times) {
    stage.diary.note("redoes");
    stage.world().press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  }
}

void selectMany(Stage& stage) {
  constexpr Qt::Key kKeys[] = {Qt::Key_A, Qt::Key_A, Qt::Key_I};
  stage.diary.note("selects all or the inverse");
  stage.world().press(stage.chance.anyOf(kKeys), Qt::ControlModifier);
}

void deleteSelected(Stage& stage) {
  stage.diary.note("deletes");
  stage.world().press(Qt::Key_Delete, {});
}

// As a plug-in may, whatever is not locked or hidden.
void changeArt(Stage& stage) {
  Document* const document = stage.document();
  if (document == nullptr) return open(stage);
  const ArtId id = anyArt(stage, *document);
  const ArtId reference = anyArt(stage, *document);
  const auto order = static_cast<AIPaintOrder>(1 + stage.chance.below(4));
  const int way = stage.chance.below(4);
  if (!document->isEditable(id) || !document->isEditable(reference) || document->art(id)->parent == 0) return;
  stage.diary.note("changes art " + std::to_string(id) + " by way " + std::to_string(way) + ", reference " +
                   std::to_string(reference) + ", order " + std::to_string(order));
  stage.world().session.edit("Change Art", [&](Document& changed) {
    if (way == 0) changed.moveArt(id, order, reference);
    if (way == 1) duplicateArt(changed, id, order, reference);
    if (way == 2) changed.setName(id, "name & \"more\"");
    if (way == 3 && !changed.isSelected(id)) changed.deleteArt(id);
  });
  stage.window().refresh();
}

// --- the window ---

void useProductMenu(Stage& stage) {
  constexpr const char* kKeys[] = {kMarksKey, "Create Line Type Layers"};
  stage.world().activate();
  stage.chooseProductMenu(stage.chance.anyOf(kKeys));
}

void openPreferences(Stage& stage) {
  stage.diary.note("opens the preferences");
  stage.world().activate();
  stage.world().choose(
      {"Edit", stage.world().textOf("Vandrell "), stage.world().textOf("corvane Preferences...")});
}

void useAny(Stage& stage, const QWidget& top) {
  if (QWidget* widget = anyWidgetIn(top, stage.chance)) useWidget(*widget, stage.chance, stage.diary);
}

void usePalette(Stage& stage) {
  QDockWidget* const palette = stage.palette();
  if (palette == nullptr) return stage.chooseProductMenu("Create Line Type Layers");
  auto* const list = palette->findChild<QListWidget*>();
  const int way = stage.chance.below(10);
  if (way < 5 && list != nullptr) {
    const QPoint place = anyPointIn(*list->viewport(), stage.chance);
    const Qt::KeyboardModifiers modifiers = anyModifiers(stage.chance);
    stage.diary.note("clicks the palette's rows at " + std::to_string(place.y()));
    return QTest::mouseClick(list->viewport(), Qt::LeftButton, modifiers, place);
  }
  for (QPushButton* button : palette->findChildren<QPushButton*>()) {
    if (way > 8 || !button->isVisible()) continue;
    stage.diary.note("presses " + button->text().toStdString());
    return QTest::mouseClick(button, Qt::LeftButton);
  }
  useAny(stage, *palette);
}

void usePanel(Stage& stage) {
  std::vector<QDockWidget*> shown;
  for (QDockWidget* dock : stage.window().findChildren<QDockWidget*>()) {
    if (dock->isVisible()) shown.push_back(dock);
  }
  if (!shown.empty()) useAny(stage, *stage.chance.anyOf(shown));
}

void useWindow(Stage& stage) {
  useAny(stage, stage.window());
}

void useMenus(Stage& stage) {
  stage.chooseAnyInMenus();
}

void resize(Stage& stage) {
  const QSize size(300 + stage.chance.below(1200), 200 + stage.chance.below(900));
  stage.diary.note("resizes to " + std::to_string(size.width()) + "x" + std::to_string(size.height()));
  stage.window().resize(size);
}

struct Doing {
  int weight;
  void (*act)(Stage&);
};

constexpr Doing kDoings[] = {{5, open},      {4, save},           {3, saveAs},          {2, exportAs},
                             {2, close},     {1, quit},           {12, clickDrawing},   {6, dragInDrawing},
                             {3, turnWheel}, {6, pressKey},       {4, chooseTool},      {2, fit},
                             {8, undo},      {5, redo},           {4, selectMany},      {4, deleteSelected},
                             {8, changeArt}, {4, useProductMenu}, {2, openPreferences}, {10, usePalette},
                             {8, usePanel},  {3, useWindow},      {8, useMenus},        {1, resize}};

}  // namespace

void doAnything(Stage& stage) {
  int total = 0;
  for (const Doing& doing : kDoings) total += doing.weight;
  int chosen = stage.chance.below(total);
  for (const Doing& doing : kDoings) {
    chosen -= doing.weight;
    if (chosen < 0) return doing.act(stage);
  }
}

}  // namespace host
