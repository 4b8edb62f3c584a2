// How the user names files.
#pragma once

#include <functional>
#include <string>
#include <vector>

class QWidget;

namespace host {

// Paths in UTF-8. `parent` is the window that waits for the answer.
struct FileChooser {
  // Files to open, none if the user thought better of it.
  std::function<std::vector<std::string>(QWidget* parent)> toOpen;
  // Where to save what has the path or name `proposed`; empty if the user thought better of it. To replace
  // a file that is there has been agreed to.
  std::function<std::string(QWidget* parent, const std::string& proposed)> toSave;
  // The same for what is written in another format, which the name's end tells.
  std::function<std::string(QWidget* parent, const std::string& proposed)> toExport;
};

FileChooser dialogFileChooser();

}  // namespace host
