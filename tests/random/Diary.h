// What a random user did last.
#pragma once

#include <deque>
#include <iostream>
#include <string>
#include <utility>

namespace host {

class Diary {
 public:
  // `aloud`: every line goes to standard error at once, so that it is there even after a crash.
  explicit Diary(bool aloud) : aloud_(aloud) {}

  // To be told before it is done.
  void note(std::string line) {
    if (aloud_) std::cerr << line << std::endl;
    lines_.push_back(std::move(line));
    if (lines_.size() > kKept) lines_.pop_front();
  }
  std::string lastLines() const {
    std::string text;
    for (const std::string& line : lines_) text += line + "\n";
    return text;
  }

 private:
  static constexpr std::size_t kKept = 60;

  const bool aloud_;
  std::deque<std::string> lines_;
};

}  // namespace host
