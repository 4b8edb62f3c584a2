// Keeps copies of unsaved drawings, so that a crash takes no work away.
#pragma once

#include <QTimer>
#include <cstdint>
#include <map>
#include <mutex>
#include <string>

#include "RecoveryFolder.h"
#include "TaskThread.h"

namespace host {

class Workspace;
struct OpenDrawing;

class Autosave {
 public:
  // Every change is in a copy after at most `seconds`. `root`: where the copies of all runs lie; empty, or no
  // seconds: none are kept. The workspace must outlive it. With the object the copies go: the end is orderly.
  Autosave(const Workspace& workspace, const std::string& root, int seconds);
  Autosave(const Autosave&) = delete;
  Autosave& operator=(const Autosave&) = delete;

  // Returns when all that is unsaved is on the disk.
  void writeNow();
  // To be called after a drawing was saved or closed: its copy goes.
  void follow();

 private:
  void writeChanged();
  void write(const OpenDrawing& drawing);
  void removeNeedless();
  void complainOnce();

  const Workspace& workspace_;
  const bool isOn_;
  std::map<std::uint32_t, std::uint64_t> written_;  // Document::stateMark by Document::serial
  std::mutex mutex_;
  std::string failure_;  // guarded by mutex_: the first there was
  bool hasComplained_ = false;
  RecoveryFolder folder_;  // used by the thread
  TaskThread thread_;
  QTimer timer_;
};

}  // namespace host
