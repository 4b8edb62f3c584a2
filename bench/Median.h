// The time of pieces of work.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <functional>
#include <vector>

namespace bench {

inline double median(std::vector<double> of) {
  std::sort(of.begin(), of.end());
  return of[of.size() / 2];
}

// Of two that took turns the median of what each round says, for a machine may be slower in one than in the
// next.
inline double medianRatio(const std::vector<double>& times, const std::vector<double>& peer) {
  std::vector<double> ratios;
  for (std::size_t round = 0; round < times.size(); ++round) ratios.push_back(times[round] / peer[round]);
  return median(ratios);
}

inline double seconds(const std::function<void()>& work) {
  using Clock = std::chrono::steady_clock;
  const auto start = Clock::now();
  work();
  return std::chrono::duration<double>(Clock::now() - start).count();
}

// Seconds, the median of so many runs.
inline double median(int runs, const std::function<void()>& work) {
  std::vector<double> times;
  for (int i = 0; i < runs; ++i) times.push_back(seconds(work));
  return median(times);
}

}  // namespace bench
