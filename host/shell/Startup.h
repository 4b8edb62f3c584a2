// What every run begins with that loads a plug-in.
#pragma once

#include <cstddef>
#include <string>

#include "CommandLine.h"
#include "Host.h"

namespace host {

class Session;

// The user's stored preferences; a file that can't be understood is complained of and leaves them empty.
Preferences userPreferences();

// The preferences and refusals of the command line. Empty, or a sentence on one that is wrongly written.
std::string overlayPreferences(Host& host, const CommonOptions& options);
std::string armRefusals(Host& host, const CommonOptions& options);

// Loads the bundle the user named, or the one beside the program. Empty, or a sentence on why it stays out.
std::string loadPlugin(Session& session, const CommonOptions& options);

// Says on standard error which calls were refused, each once.
class RefusalReport {
 public:
  void tell(Host& host);

 private:
  std::size_t told_ = 0;
};

}  // namespace host
