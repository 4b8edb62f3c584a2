// The work that runs left behind which did not come to their end.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "FileLock.h"
#include "RecoveryNote.h"

namespace host {

struct LostDrawing {
  RecoveryNote note;
  std::string copy;  // path of the SVG
};

// While the object is there no other process finds these sessions.
class DeadSessions {
 public:
  // Looks in the folder of all runs, which need not exist. Sessions without work are cleared away.
  explicit DeadSessions(const std::filesystem::path& root);
  DeadSessions(const DeadSessions&) = delete;
  DeadSessions& operator=(const DeadSessions&) = delete;

  // The oldest first.
  const std::vector<LostDrawing>& drawings() const { return drawings_; }

  // Clears away all copies. Those named in `damaged`, by their paths, are kept in folders which are not found
  // again; the paths they have there come back, in the same order.
  std::vector<std::string> clear(const std::vector<std::string>& damaged = {});

 private:
  struct Session {
    std::filesystem::path folder;
    FileLock lock;
  };

  std::vector<LostDrawing> drawings_;
  std::vector<Session> sessions_;
};

}  // namespace host
