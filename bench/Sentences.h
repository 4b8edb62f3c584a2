// Sentences of an interface and their translations, the same in every run.
#pragma once

#include <string>
#include <vector>

namespace bench {

struct Sentence {
  std::string key, translation;
};

// Different in every key, 33 bytes long in the mean. Sets of other seeds share no key.
std::vector<Sentence> sentences(int count, unsigned seed);

// The same texts as files: of our own format, for msgfmt and for lrelease.
std::string asTextFile(const std::vector<Sentence>& sentences);
std::string asPortableObject(const std::vector<Sentence>& sentences);
std::string asTranslationSource(const std::vector<Sentence>& sentences, const std::string& context);

}  // namespace bench
