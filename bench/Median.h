// The time of a piece of work.
#pragma once

#include <algorithm>
#include <chrono>
#include <functional>
#include <vector>

namespace bench {

// Seconds, the median of so many runs.
inline double median(int runs, const std::function<void()>& work) {
  using Clock = std::chrono::steady_clock;
  std::vector<double> seconds;
  for (int i = 0; i < runs; ++i) {
    const auto start = Clock::now();
    work();
    seconds.push_back(std::chrono::duration<double>(Clock::now() - start).count());
  }
  std::sort(seconds.begin(), seconds.end());
  return seconds[seconds.size() / 2];
}

}  // namespace bench
