// Counts something for as long as it lives.
#pragma once

namespace host {

class Counted {
 public:
  explicit Counted(int& count) : count_(count) { ++count_; }
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;
  ~Counted() { --count_; }

 private:
  int& count_;
};

}  // namespace host
