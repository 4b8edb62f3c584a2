#include "GoalTable.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>

namespace bench {
namespace {

std::string text(double value) {
  char buffer[32];
  std::snprintf(buffer, sizeof buffer, value >= 100 ? "%.0f" : "%.2f", value);
  return buffer;
}

}  // namespace

void GoalTable::atMost(const std::string& figure, double value, double goal, const std::string& note) {
  rows_.push_back({figure, text(value), "<= " + text(goal), note, value <= goal});
}

void GoalTable::atLeast(const std::string& figure, double value, double goal, const std::string& note) {
  rows_.push_back({figure, text(value), ">= " + text(goal), note, value >= goal});
}

// For whoever gathers the tables of several programs.
void GoalTable::appendTo(const char* file) const {
  std::ofstream rows(file, std::ios::app);
  for (const Row& row : rows_) {
    rows << row.figure << '\t' << row.value << '\t' << row.goal << '\t' << (row.met ? "yes" : "NO") << '\t'
         << row.note << '\n';
  }
}

int GoalTable::print() const {
  if (const char* file = std::getenv("CORVANE_BENCH_ROWS")) appendTo(file);
  std::size_t figureWidth = 6, valueWidth = 5, goalWidth = 4;
  for (const Row& row : rows_) {
    figureWidth = std::max(figureWidth, row.figure.size());
    valueWidth = std::max(valueWidth, row.value.size());
    goalWidth = std::max(goalWidth, row.goal.size());
  }
  const auto line = [&](const Row& row, const char* met) {
    std::printf("%-*s  %*s  %-*s  %-7s  %s\n", static_cast<int>(figureWidth), row.figure.c_str(),
                static_cast<int>(valueWidth), row.value.c_str(), static_cast<int>(goalWidth),
                row.goal.c_str(), met, row.note.c_str());
  };
  line({"figure", "value", "goal", "note", true}, "met");
  int missed = 0;
  for (const Row& row : rows_) {
    line(row, row.met ? "yes" : "NO");
    missed += row.met ? 0 : 1;
  }
  return missed;
}

}  // namespace bench
