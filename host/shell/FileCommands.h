// The commands of the menu File.
#pragma once

#include <string>
#include <vector>

#include "FileChooser.h"
#include "RecentFiles.h"

class QAction;
class QMenu;

namespace host {

class Autosave;
struct OpenDrawing;
struct WindowParts;

class FileCommands {
 public:
  // The others must outlive it.
  FileCommands(const WindowParts& parts, Autosave& autosave, FileChooser chooser);

  // Opens the files that can be opened. A sentence for each of the others.
  std::vector<std::string> openFiles(const std::vector<std::string>& files);
  void openAndTell(const std::vector<std::string>& files);

  // Closes it, after asking what is to become of unsaved changes.
  void close(OpenDrawing& drawing);
  // The same with all of them; false, and none is closed, if the user thought better of it or a save failed.
  bool closeAll();

  // To be called after documents may have changed.
  void refresh();

 private:
  void makeActions();
  void open();
  void save();
  void saveAs();
  void exportAs();
  void openRecent(const std::string& file);

  bool saveTo(OpenDrawing& drawing, const std::string& file);
  bool saveOrAskWhere(OpenDrawing& drawing);
  // Asks about each that has changes, or about the rest of them at once. False if the user thought better of
  // it, or a drawing that is to be saved was not.
  bool mayLose(const std::vector<OpenDrawing*>& drawings);
  void drop(const OpenDrawing& drawing);  // unasked
  void changeRecent();
  void listRecent();

  const WindowParts& parts_;
  Autosave& autosave_;
  FileChooser chooser_;
  RecentFiles recent_;
  std::vector<std::string> listed_;
  QMenu* recentMenu_ = nullptr;
  std::vector<QAction*> ofDrawing_;  // those that need one
};

}  // namespace host
