// Time that stands still while the program works and jumps to the next timer when it would wait: a session
// runs as fast as it can, and with the same seed everything comes in the same order. The functions of the
// system by which the event loop and the tests tell the time and wait are replaced in the whole program.
#include <poll.h>
#include <pthread.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QThreadPool>
#include <atomic>
#include <cstdint>
#include <ctime>

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

// What other threads have begun is done at the time it was begun.
void finishOtherThreads() {
  if (QCoreApplication::instance() != nullptr) QThreadPool::globalInstance()->waitForDone();
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
