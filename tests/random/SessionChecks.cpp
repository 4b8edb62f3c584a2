#include "SessionChecks.h"

#include <QAbstractItemModel>
#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QListView>
#include <algorithm>
#include <utility>

#include "DocumentChecks.h"
#include "OpenDrawing.h"
#include "QtManager.h"
#include "Stage.h"

namespace host {
namespace {

// Where two texts differ, in few words.
std::string difference(const std::vector<std::string>& one, const std::vector<std::string>& other) {
  const auto [left, right] = std::mismatch(one.begin(), one.end(), other.begin(), other.end());
  const auto line = [](const auto& at, const auto& end) { return at == end ? std::string("nothing") : *at; };
  return "line " + std::to_string(left - one.begin()) + " is\n    " + line(right, other.end()) +
         "\n  not\n    " + line(left, one.end());
}

}  // namespace

void SessionChecks::expect(bool holds, const std::string& promise) {
  if (!holds) broken_.push_back(promise);
}

std::vector<std::string> SessionChecks::look() {
  for (const OpenDrawing* drawing : stage_.drawings()) lookAt(*drawing);
  lookAtMenu();
  lookAtLayers();
  lookAtPlugins();
  return std::exchange(broken_, {});
}

void SessionChecks::lookAt(const OpenDrawing& drawing) {
  const Document& document = drawing.document();
  Seen& seen = seen_[document.serial()];
  if (seen.revision == 0) {
    seen.bytes = writeSvg(drawing.drawing);
    expect(document.undoCount() > 0 || readText(drawing.shown->file) == seen.bytes,
           "a fresh drawing is its file");
  }
  expect(document.revision() >= seen.revision, "the revision grows");
  const bool isSame = seen.revision == document.revision();
  if (isSame && seen.selectionRevision == document.selectionRevision()) return;
  seen.revision = document.revision();
  seen.selectionRevision = document.selectionRevision();
  for (const std::string& promise : brokenPromises(document))
    expect(false, drawing.shown->title + ": " + promise);
}

void SessionChecks::lookAtMenu() {
  const OpenDrawing* const drawing = stage_.drawing();
  expect((drawing != nullptr) == (stage_.document() != nullptr), "the current drawing has a view");
  const bool isModified = drawing != nullptr && drawing->isModified();
  expect(stage_.window().isWindowModified() == isModified, "the title tells whether there are changes");
  const struct {
    const char* keys;
    bool isEnabled;
  } items[] = {
      {"Ctrl+S", drawing != nullptr},
      {"Ctrl+A", drawing != nullptr},
      {"Ctrl+Z", drawing != nullptr && drawing->document().undoCount() > 0},
      {"Ctrl+Shift+Z", drawing != nullptr && !drawing->document().redoName().empty()},
      {"Del", drawing != nullptr && drawing->document().selectedCount() > 0},
  };
  for (const QAction* action : stage_.window().actions()) {
    for (const auto& item : items) {
      if (action->shortcut() != QKeySequence(item.keys)) continue;
      expect(action->isEnabled() == item.isEnabled,
             std::string(item.keys) + " works when there is work for it");
    }
  }
}

void SessionChecks::lookAtLayers() {
  const auto* dock = stage_.window().findChild<QDockWidget*>("corvane-host Layers");
  const QAbstractItemModel& rows = *dock->findChild<QListView*>()->model();
  std::vector<std::string> shown;
  for (int row = 0; row < rows.rowCount(); ++row)
    shown.push_back(rows.index(row, 0).data().toString().toStdString());
  std::vector<std::string> titles;
  if (const Document* document = stage_.document()) {
    for (const LayerId id : document->state().layers) titles.push_back(document->layer(id)->title);
  }
  expect(dock->isHidden() || shown == titles, "the panel shows the layers: " + difference(titles, shown));
}

void SessionChecks::lookAtPlugins() {
  Host& host = stage_.world().host;
  expect(host.contexts().depth() == 0, "all contexts have ended");
  const auto palettes = static_cast<int>(host.panels().all().size());
  expect(RVADMQtManager::QtManager::DialogCount() <= palettes, "no dialog is left");
  // The first dialog acquires that one for good.
  const std::int32_t held = host.holds() - host.holds("AS User Interaction Suite");
  if (std::exchange(life_, stage_.lives()) != stage_.lives()) holds_ = held;
  expect(held == holds_, "suites are released: " + std::to_string(held) + " not " + std::to_string(holds_));
}

std::vector<std::string> SessionChecks::lookAtFiles() {
  for (const OpenDrawing* drawing : stage_.drawings()) {
    const std::string bytes = writeSvg(drawing->drawing);
    if (!drawing->isModified() && !drawing->shown->file.empty()) {
      expect(readText(drawing->shown->file) == bytes, drawing->shown->title + " without changes is its file");
    }
    auto read = readSvg(bytes, nullptr);
    const auto* again = std::get_if<SvgDrawing>(&read);
    if (again == nullptr) {
      expect(false,
             drawing->shown->title + " can be read again: " + std::get<SvgError>(read).reason + "\n" + bytes);
      continue;
    }
    const std::vector<std::string> content = contentLines(drawing->document());
    const std::vector<std::string> readContent = contentLines(*again->document);
    expect(content == readContent, drawing->shown->title + " is read as it was written: " +
                                       difference(content, readContent) + "\n" + bytes.substr(0, 4000));
    expect(writeSvg(*again) == bytes, drawing->shown->title + " is written as it was read");
  }
  return std::exchange(broken_, {});
}

std::vector<std::string> SessionChecks::goBackAndForth() {
  for (const OpenDrawing* drawing : stage_.drawings()) {
    Document& document = drawing->document();
    const std::string bytes = writeSvg(drawing->drawing);
    const std::size_t steps = document.undoCount();
    const std::uint64_t mark = document.stateMark();
    for (std::size_t i = 0; i < steps; ++i) {
      document.undo();
      for (const std::string& promise : brokenPromises(document))
        expect(false, "on the way back: " + promise);
    }
    expect(document.undoCount() == 0 && !document.undo(), "all steps are undone");
    expect(writeSvg(drawing->drawing) == seen_[document.serial()].bytes,
           drawing->shown->title + " is what it was as it was opened");
    for (std::size_t i = 0; i < steps; ++i) document.redo();
    expect(document.stateMark() == mark && writeSvg(drawing->drawing) == bytes,
           drawing->shown->title + " is what it was before it went back");
  }
  stage_.window().refresh();
  return std::exchange(broken_, {});
}

}  // namespace host
