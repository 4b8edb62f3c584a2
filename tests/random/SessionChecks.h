// What holds in the window between any two actions of its user.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace host {

class Stage;
struct OpenDrawing;

class SessionChecks {
 public:
  explicit SessionChecks(Stage& stage) : stage_(stage) {}

  // After each action. A sentence for each promise that is broken, as with the others.
  std::vector<std::string> look();
  // What was written is read back the same, and a drawing without changes is what its file holds.
  std::vector<std::string> lookAtFiles();
  // Undo goes all the way back to the bytes there were, and redo to those there are.
  std::vector<std::string> goBackAndForth();

 private:
  struct Seen {
    std::string bytes;  // as it was opened
    std::uint64_t revision = 0;
    std::uint64_t selectionRevision = 0;
  };

  void expect(bool holds, const std::string& promise);
  void lookAt(const OpenDrawing& drawing);
  void lookAtMenu();
  void lookAtLayers();
  void lookAtPlugins();
  void readBack(const OpenDrawing& drawing);

  Stage& stage_;
  std::map<std::uint32_t, Seen> seen_;  // by Document::serial
  int life_ = 0;
  std::int32_t holds_ = 0;  // of suites, as the plug-in's life began
  std::vector<std::string> broken_;
};

}  // namespace host
