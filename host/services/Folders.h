// Where the application's folders lie.
#pragma once

#include <string>

namespace host {

// Absolute paths in UTF-8; an empty one is a folder the application does not have. None need exist.
struct Folders {
  std::string configuration;  // preferences
  std::string state;          // what is kept from run to run, but is nobody's choice
  std::string plugins;        // plug-ins that came with the application
  std::string userPlugins;    // a user's own plug-ins
  std::string userData;       // what belongs to a user and is no preference
};

// The folders of the user who runs this process, by the XDG base directory standard: relative
// values of its variables count as unset. `plugins` is empty: it depends on where the application lies.
// Without any home folder all are empty.
Folders userFolders();

}  // namespace host
