// The keys that the product asks the text database for, and what it expects of their texts.
#pragma once

#include <cstddef>
#include <map>
#include <string>

namespace texts {

// Sizes of the buffers that texts and keys must fit into, with the closing NUL.
constexpr std::size_t kTextSize = 8192;
constexpr std::size_t kAlertSize = 512;
constexpr std::size_t kKeySize = 1024;

struct AskedKey {
  enum class Kind {
    Text,          // an English text of the interface
    Alert,         // the same, shown by the host: a printf format
    LineTypeName,  // the name of a line type, a layer and a spot colour
    DateFormat,
    DateWord
  };
  Kind kind = Kind::Text;
  std::string english;  // the text that the key stands for; empty for dates
  std::string place;    // who asks, for messages
};

// By canonical key.
using AskedKeys = std::map<std::string, AskedKey>;

// Where a text is asked for in several ways, the strictest counts.
void AskFor(AskedKeys& keys, const AskedKey& asked);

}  // namespace texts
