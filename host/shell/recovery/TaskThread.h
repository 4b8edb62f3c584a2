// Work that is not to keep the event loop waiting.
#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

namespace host {

// Does one task after another, in the order in which they came, beside the thread that posts them.
class TaskThread {
 public:
  TaskThread() = default;
  TaskThread(const TaskThread&) = delete;
  TaskThread& operator=(const TaskThread&) = delete;
  ~TaskThread();  // does what is still to be done

  void post(std::function<void()> task);  // which must not throw
  void finish();                          // returns when everything posted is done

 private:
  void run();

  std::mutex mutex_;
  std::condition_variable changed_;
  std::deque<std::function<void()>> tasks_;  // the one under way is the first
  bool ends_ = false;
  std::thread thread_;  // begins with the first task
};

}  // namespace host
