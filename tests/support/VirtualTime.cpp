// Time that stands still while the program works and jumps to the next timer when it would wait: what comes
// first does not depend on the machine, and nobody waits. The functions of the system by which the event loop
// and the tests tell the time and wait are replaced in the whole program.
#include <poll.h>
#include <pthread.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QThreadPool>
#include <atomic>
#include <cstdint>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

constexpr std::int64_t kSecond = 1'000'000'000, kMillisecond = 1'000'000;  // ns

// So far ahead of the true time that a thread which waits for a moment waits until it is woken.
std::atomic<std::int64_t> now{1'000'000'000 * kSecond};
const pthread_t mainThread = pthread_self();

bool isMain() {
  return pthread_equal(pthread_self(), mainThread) != 0;
}

std::int64_t nanoseconds(const timespec& time) {
  return time.tv_sec * kSecond + time.tv_nsec;
}

timespec timeOf(std::int64_t nanoseconds) {
  return {nanoseconds / kSecond, nanoseconds % kSecond};
}

// Whether a thread of this process works or waits for a disk. Source: proc(5), the third field of `stat`.
bool isBusy(const std::filesystem::path& thread) {
  std::ifstream file(thread / "stat");
  std::string stat;
  std::getline(file, stat);
  const std::size_t nameEnd = stat.rfind(')');
  return nameEnd != std::string::npos &&
         (stat.compare(nameEnd, 3, ") R") == 0 || stat.compare(nameEnd, 3, ") D") == 0);
}

bool areOthersBusy() {
  const std::string self = std::to_string(syscall(SYS_gettid));
  std::error_code gone;  // a thread that ends meanwhile
  for (const auto& thread : std::filesystem::directory_iterator("/proc/self/task", gone)) {
    if (thread.path().filename() != self && isBusy(thread.path())) return true;
  }
  return false;
}

// What other threads have begun is done at the time it was begun.
void finishOtherThreads() {
  if (QCoreApplication::instance() != nullptr) QThreadPool::globalInstance()->waitForDone();
  constexpr timespec kGlance{0, kMillisecond / 10};
  while (areOthersBusy()) syscall(SYS_nanosleep, &kGlance, nullptr);
}

int pollSystem(pollfd* files, nfds_t count, const timespec* longest, const sigset_t* signals) {
  constexpr std::size_t kSizeOfKernelSignals = 8;
  timespec copy = longest == nullptr ? timespec{} : *longest;  // the system writes to it
  return static_cast<int>(
      syscall(SYS_ppoll, files, count, longest == nullptr ? nullptr : &copy, signals, kSizeOfKernelSignals));
}

}  // namespace

#pragma GCC visibility push(default)  // for the libraries to find them
extern "C" {

int clock_gettime(clockid_t clock, timespec* time) noexcept {
  if (clock != CLOCK_MONOTONIC) return static_cast<int>(syscall(SYS_clock_gettime, clock, time));
  *time = timeOf(now);
  return 0;
}

int ppoll(pollfd* files, nfds_t count, const timespec* longest, const sigset_t* signals) {
  constexpr timespec kAtOnce{};
  if (!isMain() || longest == nullptr) return pollSystem(files, count, longest, signals);
  int ready = pollSystem(files, count, &kAtOnce, signals);
  if (ready != 0 || nanoseconds(*longest) == 0) return ready;
  finishOtherThreads();
  ready = pollSystem(files, count, &kAtOnce, signals);
  if (ready == 0) now += nanoseconds(*longest);
  return ready;
}

int poll(pollfd* files, nfds_t count, int longest) {
  const timespec time = timeOf(longest * kMillisecond);
  return ppoll(files, count, longest < 0 ? nullptr : &time, nullptr);
}

int nanosleep(const timespec* longest, timespec* left) {
  if (!isMain()) return static_cast<int>(syscall(SYS_nanosleep, longest, left));
  finishOtherThreads();
  now += nanoseconds(*longest);
  return 0;
}

}  // extern "C"
#pragma GCC visibility pop
