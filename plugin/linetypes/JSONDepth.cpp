#include "JSONDepth.h"

#include <algorithm>

namespace Vandrell::Corvane {
namespace {

// Behind the quotation mark that closes the string which `text` begins within.
std::string_view BehindString(std::string_view text) {
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] == '"') return text.substr(at + 1);
    if (text[at] == '\\') ++at;
  }
  return {};
}

}  // namespace

std::size_t JSONDepth(std::string_view text) {
  std::size_t open = 0, most = 0;
  while (!text.empty()) {
    const char c = text.front();
    text.remove_prefix(1);
    if (c == '"') text = BehindString(text);
    if (c == '[' || c == '{') most = std::max(most, ++open);
    if ((c == ']' || c == '}') && open > 0) --open;
  }
  return most;
}

}  // namespace Vandrell::Corvane
