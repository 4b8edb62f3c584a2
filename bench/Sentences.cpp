#include "Sentences.h"

#include <random>

namespace bench {
namespace {

const std::vector<std::string> kWords = {
    "add",   "all",  "art",    "artboard", "cannot", "colour", "create", "custom", "cut",    "deleted",
    "draw",  "edit", "file",   "found",    "group",  "hidden", "layer",  "line",   "locked", "mark",
    "moved", "name", "opened", "page",     "path",   "placed", "read",   "saved",  "select", "selection",
    "shape", "spot", "stroke", "swatch",   "table",  "the",    "tool",   "type",   "weight", "width"};

std::string sentence(std::mt19937& random, int number) {
  std::uniform_int_distribution<std::size_t> word(0, kWords.size() - 1), length(2, 6);
  std::string text = "T" + std::to_string(number);
  for (std::size_t i = length(random); i > 0; --i) text += " " + kWords[word(random)];
  return text + " now";
}

// The marks that mean something in XML do not occur in the words.
template <typename Entry>
std::string listed(const std::vector<Sentence>& sentences, const Entry& entry) {
  std::string text;
  for (const Sentence& one : sentences) text += entry(one);
  return text;
}

}  // namespace

std::vector<Sentence> sentences(int count, unsigned seed) {
  std::mt19937 random(seed);
  std::vector<Sentence> result;
  for (int i = 0; i < count; ++i) {
    const std::string key = sentence(random, static_cast<int>(seed) * count + i);
    result.push_back({key, "Satz " + key});
  }
  return result;
}

std::string asTextFile(const std::vector<Sentence>& sentences) {
  return listed(sentences,
                [](const Sentence& one) { return "\"" + one.key + "\" : \"" + one.translation + "\"\n"; });
}

std::string asPortableObject(const std::vector<Sentence>& sentences) {
  return "msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=UTF-8\\n\"\n" +
         listed(sentences, [](const Sentence& one) {
           return "\nmsgid \"" + one.key + "\"\nmsgstr \"" + one.translation + "\"\n";
         });
}

std::string asTranslationSource(const std::vector<Sentence>& sentences, const std::string& context) {
  return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<!DOCTYPE TS>\n<TS version=\"2.1\" "
         "language=\"de\"><context><name>" +
         context + "</name>\n" +
         listed(sentences,
                [](const Sentence& one) {
                  return "<message><source>" + one.key + "</source><translation>" + one.translation +
                         "</translation></message>\n";
                }) +
         "</context></TS>\n";
}

}  // namespace bench
