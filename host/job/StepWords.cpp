#include "StepWords.h"

#include <algorithm>
#include <cctype>
#include <numeric>
#include <utility>

#include "ProcessingSteps.h"

namespace host {
namespace {

constexpr char kNoStep[] = "none";
constexpr std::size_t kSlips = 2;  // letters by which a word may differ from the one that was meant

std::string typeOf(const std::string& step) {
  return step.substr(step.find('/') + 1);
}

// How many letters are to be put in, left out or changed (Levenshtein).
std::size_t distance(const std::string& a, const std::string& b) {
  std::vector<std::size_t> row(b.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 0; i < a.size(); ++i) {
    std::size_t diagonal = std::exchange(row[0], i + 1);
    for (std::size_t j = 0; j < b.size(); ++j) {
      const std::size_t changed = diagonal + (a[i] == b[j] ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({changed, row[j] + 1, row[j + 1] + 1});
    }
  }
  return row.back();
}

bool isLike(const std::string& word, const std::string& step) {
  const std::string whole = inSmallLetters(step);
  const std::string type = typeOf(whole);
  const bool holdsIt = !word.empty() && whole.find(word) != std::string::npos;
  return holdsIt || distance(word, type) <= kSlips || distance(word, whole) <= kSlips;
}

}  // namespace

std::string inSmallLetters(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(), [](unsigned char letter) {
    return static_cast<char>(letter < 0x80 ? std::tolower(letter) : letter);
  });
  return text;
}

std::optional<std::string> stepMeantBy(const std::string& text) {
  const std::string word = inSmallLetters(text);
  if (word == kNoStep) return std::string();
  for (const std::string& step : processingSteps()) {
    const std::string whole = inSmallLetters(step);
    if (word == whole || word == typeOf(whole)) return step;
  }
  return std::nullopt;
}

std::vector<std::string> stepsLike(const std::string& text) {
  const std::string word = inSmallLetters(text);
  std::vector<std::string> like;
  for (const std::string& step : processingSteps()) {
    if (isLike(word, step)) like.push_back(step);
  }
  return like.empty() ? processingSteps() : like;
}

}  // namespace host
