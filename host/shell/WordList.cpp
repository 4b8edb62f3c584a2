#include "WordList.h"

namespace host {

std::string wordList(const std::vector<std::string>& words, const std::string& conjunction) {
  std::string text;
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (i > 0) text += i + 1 == words.size() ? " " + conjunction + " " : ", ";
    text += words[i];
  }
  return text;
}

}  // namespace host
