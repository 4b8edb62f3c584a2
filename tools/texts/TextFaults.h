// What can be wrong with one text.
#pragma once

#include <string>
#include <vector>

#include "AskedKeys.h"

namespace texts {

// The language of the English files, which lie in no localisation.
constexpr char kEnglish[] = "";

// The ends of sentences about `text`, the text of `asked` in `language`: "is empty".
std::vector<std::string> TextFaults(const AskedKey& asked, const std::string& language,
                                    const std::string& text);

}  // namespace texts
