// The window of a random session, and the way to what is in it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Chance.h"
#include "DialogUse.h"
#include "Diary.h"
#include "WindowWorld.h"

class QDockWidget;

namespace host {

class DrawingView;
class Workspace;
struct OpenDrawing;

class Stage {
 public:
  Stage(std::uint64_t seed, bool aloud);

  WindowWorld& world() { return *world_; }
  MainWindow& window() { return *world_->window; }
  DrawingView* view();  // null if no drawing is open, as with the next two
  OpenDrawing* drawing();
  Document* document();
  std::vector<OpenDrawing*> drawings();
  QDockWidget* palette();  // of line types; null if it is not shown

  // Drawings that can be opened, what was saved among them; and a file that is none of those.
  std::string anyFile() { return chance.anyOf(files_); }
  std::string newFile(const std::string& end);
  void keep(const std::string& file) { files_.push_back(file); }

  void chooseProductMenu(const std::string& key);
  void chooseAnyInMenus();
  int lives() const { return lives_; }  // of the plug-in, so far; another language is another life
  // The application ends, if it is still there, and starts again.
  void startAgain();
  // Waits until nothing is under way, mostly until no timer runs either. False if that never comes.
  bool settle();

  Chance chance;
  Diary diary;
  DialogUse dialogs{chance, diary};

 private:
  bool isQuiet();
  AIMenuItemHandle firstItem();

  ScratchFolder scratch_;
  std::vector<std::string> files_;
  int made_ = 0;
  int lives_ = 0;
  AIMenuItemHandle menu_ = nullptr;  // the first item of this life
  std::string language_;
  std::optional<WindowWorld> world_;
};

}  // namespace host
