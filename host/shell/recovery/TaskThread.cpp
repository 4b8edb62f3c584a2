#include "TaskThread.h"

#include <utility>

namespace host {

TaskThread::~TaskThread() {
  {
    const std::lock_guard<std::mutex> guard(mutex_);
    ends_ = true;
  }
  changed_.notify_all();
  if (thread_.joinable()) thread_.join();
}

void TaskThread::post(std::function<void()> task) {
  {
    const std::lock_guard<std::mutex> guard(mutex_);
    tasks_.push_back(std::move(task));
  }
  if (!thread_.joinable()) thread_ = std::thread([this] { run(); });
  changed_.notify_all();
}

void TaskThread::finish() {
  std::unique_lock<std::mutex> held(mutex_);
  changed_.wait(held, [this] { return tasks_.empty(); });
}

void TaskThread::run() {
  std::unique_lock<std::mutex> held(mutex_);
  for (;;) {
    changed_.wait(held, [this] { return ends_ || !tasks_.empty(); });
    if (tasks_.empty()) return;
    const std::function<void()>& task = tasks_.front();  // stays where it is while others are added
    held.unlock();
    task();
    held.lock();
    tasks_.pop_front();
    changed_.notify_all();
  }
}

}  // namespace host
