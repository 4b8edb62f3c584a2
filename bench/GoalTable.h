// A table of figures, each beside its peer of the same run, with the ratio and the goal.
#pragma once

#include <string>
#include <vector>

namespace bench {

class GoalTable {
 public:
  // A figure that should be at most `goal` (or, with atLeast, at least). `note` says how it came about.
  void atMost(const std::string& figure, double value, double goal, const std::string& note = {});
  void atLeast(const std::string& figure, double value, double goal, const std::string& note = {});
  // All rows so far, aligned; the number of goals that were not met. They are also appended, a line each with
  // tabs between the columns, to the file that the environment variable CORVANE_BENCH_ROWS names.
  int print() const;

 private:
  struct Row {
    std::string figure, value, goal, note;
    bool met;
  };
  void appendTo(const char* file) const;

  std::vector<Row> rows_;
};

}  // namespace bench
