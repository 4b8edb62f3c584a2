#include "FileCommands.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QMainWindow>
#include <QMenu>
#include <algorithm>
#include <filesystem>
#include <iterator>
#include <utility>

#include "Autosave.h"
#include "DrawingExport.h"
#include "DrawingTabs.h"
#include "Host.h"
#include "MenuBar.h"
#include "UnsavedQuestion.h"
#include "WindowExport.h"
#include "WindowParts.h"
#include "Workspace.h"

namespace host {
namespace {

constexpr int kLongestPath = 60;  // characters of a path in a menu

// With the user's own folder as "~", and what is too long without its middle.
QString shownPath(const std::string& file) {
  QString path = QString::fromStdString(file);
  const QString home = QDir::homePath() + "/";
  if (home.size() > 1 && path.startsWith(home)) path.replace(0, home.size(), "~/");
  if (path.size() > kLongestPath) {
    path.replace(kLongestPath / 2, path.size() - kLongestPath, "\u2026");
  }
  return path.replace('&', "&&");
}

bool isThere(const std::string& file) {
  std::error_code ignored;
  return std::filesystem::exists(file, ignored);
}

std::string proposedExport(const OpenDrawing& drawing) {
  const std::string& own = drawing.shown->file.empty() ? drawing.shown->title : drawing.shown->file;
  return std::filesystem::path(own).replace_extension(exportFormats().front().end).string();
}

}  // namespace

FileCommands::FileCommands(const WindowParts& parts, Autosave& autosave, FileChooser chooser)
    : parts_(parts), autosave_(autosave), chooser_(std::move(chooser)), recent_(parts.settings) {
  makeActions();
  listRecent();
}

void FileCommands::makeActions() {
  QAction* open = parts_.command("&Open...", {QKeySequence("Ctrl+O")}, [this] { this->open(); });
  recentMenu_ = new QMenu("Open &Recent", &parts_.window);
  QAction* save = parts_.command("&Save", {QKeySequence("Ctrl+S")}, [this] { this->save(); });
  QAction* saveAs = parts_.command("Save &As...", {QKeySequence("Ctrl+Shift+S")}, [this] { this->saveAs(); });
  QAction* exportAs = parts_.command("&Export...", {QKeySequence("Ctrl+E")}, [this] { this->exportAs(); });
  QAction* close = parts_.command("&Close", {QKeySequence("Ctrl+W")}, [this] {
    if (OpenDrawing* drawing = parts_.drawing()) this->close(*drawing);
  });
  ofDrawing_ = {save, saveAs, exportAs, close};
  parts_.menus.setOwnItems("File Open", {open, recentMenu_->menuAction()});
  parts_.menus.setOwnItems("File Save", {save, saveAs, exportAs, close});
}

void FileCommands::refresh() {
  for (QAction* action : ofDrawing_) action->setEnabled(parts_.drawing() != nullptr);
  autosave_.follow();
}

// --- opening ---

void FileCommands::open() {
  openAndTell(chooser_.toOpen(&parts_.window));
}

std::vector<std::string> FileCommands::openFiles(const std::vector<std::string>& files) {
  std::vector<std::string> complaints;
  for (const std::string& file : files) {
    auto opened = parts_.workspace.open(file);
    if (std::string* reason = std::get_if<std::string>(&opened)) {
      complaints.push_back(std::move(*reason));
      if (!isThere(file)) recent_.drop(file);
    } else {
      OpenDrawing& drawing = *std::get<OpenDrawing*>(opened);
      parts_.tabs.turnTo(drawing);
      recent_.add(drawing.shown->file);
    }
  }
  changeRecent();
  parts_.refresh();
  return complaints;
}

void FileCommands::openAndTell(const std::vector<std::string>& files) {
  parts_.tell(openFiles(files));
}

void FileCommands::openRecent(const std::string& file) {
  openAndTell({file});
}

void FileCommands::changeRecent() {
  listRecent();
  parts_.store();
}

void FileCommands::listRecent() {
  const std::vector<std::string> files = recent_.all();
  recentMenu_->menuAction()->setEnabled(!files.empty());
  if (files == std::exchange(listed_, files)) return;
  for (QAction* action : recentMenu_->actions()) {
    recentMenu_->removeAction(action);
    action->deleteLater();  // one of them may be at work right now
  }
  int number = 0;
  for (const std::string& file : files) {
    const QString mnemonic = ++number < 10 ? "&" + QString::number(number) : "1&0";
    QAction* action =
        parts_.command(mnemonic + " " + shownPath(file), {}, [this, file] { openRecent(file); });
    recentMenu_->addAction(action);
  }
  if (files.empty()) return;
  recentMenu_->addSeparator();
  recentMenu_->addAction(parts_.command("&Clear Recent Files", {}, [this] {
    recent_.clear();
    changeRecent();
  }));
}

// --- saving ---

void FileCommands::save() {
  if (OpenDrawing* drawing = parts_.drawing()) saveOrAskWhere(*drawing);
}

void FileCommands::saveAs() {
  OpenDrawing* drawing = parts_.drawing();
  if (drawing == nullptr) return;
  const std::string& own = drawing->shown->file;
  const std::string file = chooser_.toSave(&parts_.window, own.empty() ? drawing->shown->title : own);
  if (!file.empty()) saveTo(*drawing, file);
}

void FileCommands::exportAs() {
  OpenDrawing* drawing = parts_.drawing();
  if (drawing == nullptr || !chooser_.toExport) return;
  const std::string output = chooser_.toExport(&parts_.window, proposedExport(*drawing));
  if (output.empty()) return;
  const std::string reason = parts_.workspace.whyNotOver(output);
  if (!reason.empty()) return parts_.tell({"cannot export to " + output + ": " + reason});
  exportFromWindow(parts_, output);
}

// Whatever happens to the process meanwhile, the work is on the disk.
bool FileCommands::saveTo(OpenDrawing& drawing, const std::string& file) {
  autosave_.writeNow();
  const std::string reason = parts_.workspace.save(drawing, file);
  if (reason.empty()) {
    recent_.add(drawing.shown->file);
    changeRecent();
  } else {
    parts_.tell({reason});
  }
  parts_.refresh();
  return reason.empty();
}

bool FileCommands::saveOrAskWhere(OpenDrawing& drawing) {
  std::string file = drawing.shown->file;
  if (file.empty()) file = chooser_.toSave(&parts_.window, drawing.shown->title);
  return !file.empty() && saveTo(drawing, file);
}

// --- closing ---

bool FileCommands::mayLose(const std::vector<OpenDrawing*>& drawings) {
  std::vector<OpenDrawing*> changed;
  std::copy_if(drawings.begin(), drawings.end(), std::back_inserter(changed),
               [](const OpenDrawing* drawing) { return drawing->isModified(); });
  for (auto rest = changed.begin(); rest != changed.end(); ++rest) {
    parts_.tabs.turnTo(**rest);
    const auto others = static_cast<std::size_t>(changed.end() - rest) - 1;
    switch (askAboutUnsaved(titleOf(**rest), others, &parts_.window)) {
      case UnsavedAnswer::Save:
        if (!saveOrAskWhere(**rest)) return false;
        break;
      case UnsavedAnswer::SaveAll:
        return std::all_of(rest, changed.end(), [this](OpenDrawing* drawing) {
          parts_.tabs.turnTo(*drawing);
          return saveOrAskWhere(*drawing);
        });
      case UnsavedAnswer::Discard:
        break;
      case UnsavedAnswer::DiscardAll:
        return true;
      case UnsavedAnswer::Cancel:
        return false;
    }
  }
  return true;
}

void FileCommands::close(OpenDrawing& drawing) {
  if (mayLose({&drawing})) drop(drawing);
}

bool FileCommands::closeAll() {
  std::vector<OpenDrawing*> drawings;
  for (const auto& drawing : parts_.workspace.all()) drawings.push_back(drawing.get());
  if (!mayLose(drawings)) return false;
  while (OpenDrawing* drawing = parts_.drawing()) drop(*drawing);
  return true;
}

void FileCommands::drop(const OpenDrawing& drawing) {
  parts_.tabs.remove(drawing);
  parts_.workspace.close(drawing);
  if (OpenDrawing* current = parts_.drawing()) parts_.tabs.turnTo(*current);
  parts_.refresh();
}

}  // namespace host
