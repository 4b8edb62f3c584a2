#include "Stage.h"

#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QStackedWidget>
#include <QtTest/QTest>
#include <cstdlib>
#include <utility>

#include "DrawingTabs.h"
#include "DrawingView.h"
#include "OpenDrawing.h"
#include "PreferredLanguages.h"
#include "WindowSettings.h"

namespace host {
namespace {

constexpr char kPaletteKey[] = "Create Line Type Layers";
constexpr int kPatience = 10000;  // ms
constexpr int kRest = 200;        // ms; by then clicks have counted and keys are back where they belong

// Layers of line types among others, some locked or hidden; text, an instance, a clip, a gradient, a compound
// path, an open path, groups in groups, two artboards.
constexpr char kMixture[] =
    R"svg(<svg xmlns="http://www.w3.org/2000/svg" xmlns:inkscape="http://www.inkscape.org/namespaces/inkscape"
  xmlns:sodipodi="http://sodipodi.sourceforge.net/DTD/sodipodi-0.dtd" width="300mm" height="200mm"
  viewBox="0 0 300 200">
<sodipodi:namedview><inkscape:page x="0" y="0" width="180" height="200"/>
<inkscape:page x="200" y="0" width="100" height="100" inkscape:label="Card"/></sodipodi:namedview>
<defs><linearGradient id="lg"><stop stop-color="red"/><stop offset="1"/></linearGradient>
<clipPath id="cut"><circle cx="60" cy="60" r="30"/></clipPath><path id="part" d="M0,0h20v9z"/></defs>
<g inkscape:groupmode="layer" inkscape:label="Lumenfold"><rect width="9" height="9"/></g>
<g inkscape:groupmode="layer" inkscape:label="Kiss Cut" sodipodi:insensitive="true"/>
<g inkscape:groupmode="layer" inkscape:label="Art &amp; more" transform="translate(5 5)">
 <!-- kept --><g inkscape:label="group" transform="rotate(10)"><rect x="20" y="20" width="40" height="30"
   fill="url(#lg)"/><g style="fill:none;stroke:#f0f;stroke-width:2;stroke-dasharray:3 1"><path
   d="M80,20 C90,80 120,0 130,60"/><path d="M20,90 h50 v50 h-50 z M30,100 h30 v30 h-30 z"
   fill-rule="evenodd" fill="#00f"/></g></g>
 <g clip-path="url(#cut)"><rect x="40" y="40" width="80" height="80" fill="#0f0"/></g>
 <text x="20" y="160" font-size="20">Cut here</text><use href="#part" x="120" y="120"/>
 <rect x="140" y="140" width="12" height="12" sodipodi:insensitive="true"/></g>
<g inkscape:groupmode="layer" inkscape:label="Below" style="display:none"><circle cx="150" cy="50" r="20"/></g>
<path d="M10,180 H170" stroke="#000" fill="none"/></svg>
)svg";

}  // namespace

Stage::Stage(std::uint64_t seed, bool aloud) : chance(seed), diary(aloud) {
  setenv("CORVANE_SHARED_DATA", scratch_.file("shared").c_str(), 1);
  setenv("HOME", scratch_.path.c_str(), 1);  // menus show files in it under the same names each time
  qSetGlobalQHashSeed(0);                    // the same order each time
  for (const char* name : {"full-bleed-poster", "sticker-sheet", "two-cards-a4", "tea-carton"}) {
    const std::string bytes = readText(std::string(CORVANE_EXAMPLES) + "/" + name + ".svg");
    keep(scratch_.write(name + std::string(".svg"), bytes));
  }
  keep(scratch_.write("mixture & more.svg", kMixture));
  keep(scratch_.write("mixture 2.svg", kMixture));
  keep(scratch_.write("square.svg", squareOnPage(10)));
  keep(scratch_.write("broken.svg", "<svg><g></svg>"));
  startAgain();
  QApplication::setDoubleClickInterval(1);  // lists of plug-ins wait so long for a second click
}

void Stage::startAgain() {
  world_.reset();
  ++lives_;
  preferSystemLanguages();
  language_.clear();
  Folders folders;
  folders.state = scratch_.file("state");
  world_.emplace(std::vector{corvaneBundle()}, folders, 1);
  menu_ = firstItem();
}

// --- what is there ---

std::vector<OpenDrawing*> Stage::drawings() {
  std::vector<OpenDrawing*> all;
  for (QStackedWidget* stack : window().findChildren<QStackedWidget*>()) {
    const auto* tabs = dynamic_cast<DrawingTabs*>(stack);
    for (int i = 0; tabs != nullptr && i < tabs->drawings(); ++i) all.push_back(&tabs->viewAt(i).drawing());
  }
  return all;
}

DrawingView* Stage::view() {
  const OpenDocument* const current = world().host.documents().current();
  if (current == nullptr) return nullptr;
  for (QStackedWidget* stack : window().findChildren<QStackedWidget*>()) {
    if (const auto* tabs = dynamic_cast<DrawingTabs*>(stack)) return tabs->viewOf(*current);
  }
  return nullptr;
}

OpenDrawing* Stage::drawing() {
  const DrawingView* const shown = view();
  return shown == nullptr ? nullptr : &shown->drawing();
}

Document* Stage::document() {
  return world().host.currentDocument();
}

QDockWidget* Stage::palette() {
  auto* dock = window().findChild<QDockWidget*>(kPaletteKey);
  return dock != nullptr && dock->isVisible() ? dock : nullptr;
}

std::string Stage::newFile(const std::string& end) {
  return scratch_.file("made " + std::to_string(++made_) + end);
}

// --- the menus ---

void Stage::chooseProductMenu(const std::string& key) {
  diary.note("chooses " + key);
  world().choose({"Window", world().textOf("Vandrell"), world().textOf("corvane "), world().textOf(key)});
}

void Stage::chooseAnyInMenus() {
  world().activate();
  QPointer<QWidget> holder = window().menuBar();
  std::string way = "chooses in the menus:";
  while (holder) {
    std::vector<QAction*> choices;
    for (QAction* action : holder->actions()) {
      const bool quits = action->shortcut() == QKeySequence("Ctrl+Q");
      if (action->isEnabled() && action->isVisible() && !action->isSeparator() && !quits)
        choices.push_back(action);
    }
    if (choices.empty()) break;
    QAction* const chosen = chance.anyOf(choices);
    const QPointer<QMenu> inside = chosen->menu();
    way += " / " + chosen->text().toStdString();
    if (!inside) diary.note(way);
    auto* const bar = qobject_cast<QMenuBar*>(holder);
    const QRect place =
        bar != nullptr ? bar->actionGeometry(chosen) : qobject_cast<QMenu*>(holder)->actionGeometry(chosen);
    QTest::mouseClick(holder, Qt::LeftButton, {}, place.center());
    if (inside && !QTest::qWaitFor([&] { return !inside || inside->isVisible(); })) break;
    holder = inside;
  }
  while (QWidget* popup = QApplication::activePopupWidget()) popup->close();
}

// --- time ---

AIMenuItemHandle Stage::firstItem() {
  return (*world().host.menus().items().begin()).handle;
}

bool Stage::isQuiet() {
  return world().session.isIdle() && QApplication::activeModalWidget() == nullptr;
}

bool Stage::settle() {
  QTest::qWait(chance.oneIn(5) ? 1 : kRest);  // some users are quick
  const bool isThere = QTest::qWaitFor([this] { return isQuiet() || dialogs.isStuck(); }, kPatience);
  // Another language comes when the session was idle for a moment: with a new menu.
  const std::string chosen = WindowSettings(world().host.preferences()).language();
  if (std::exchange(language_, chosen) == chosen || !isThere) return isThere && isQuiet();
  ++lives_;
  const bool hasCome = QTest::qWaitFor([this] { return firstItem() != menu_; }, kPatience);
  menu_ = firstItem();
  return hasCome && isQuiet();
}

}  // namespace host
