// How the user hears of failures that may come in any number, at any time.
#pragma once

#include <set>
#include <string>

namespace host {

// An alert of the host or, while there is no host, a line on standard error.
void tellOfFailure(const std::string& sentence);

// One report at a time, from the event loop if one runs: never within the handler that failed. What fails
// again and again without the user's doing, such as painting, is told once.
class FailureReports {
 public:
  void note(const std::string& sentence, bool isUsersDoing);

 private:
  void tell(const std::string& sentence);

  bool isTelling_ = false;  // or about to; other failures are passed over meanwhile
  std::set<std::string> told_;
};

}  // namespace host
