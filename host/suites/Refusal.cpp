#include "Refusal.h"

#include <algorithm>
#include <charconv>

#include "SuiteCatalog.h"

namespace host {
namespace {

struct RuleText {
  std::string_view suite;
  std::string_view entry;
  std::string_view call;
  bool hasEntry = false;
  bool hasCall = false;
};

RuleText splitRule(std::string_view rule) {
  RuleText text;
  const std::size_t first = rule.find(':');
  text.suite = rule.substr(0, first);
  if (first == std::string_view::npos) return text;
  text.hasEntry = true;
  rule.remove_prefix(first + 1);
  const std::size_t second = rule.find(':');
  text.entry = rule.substr(0, second);
  if (second == std::string_view::npos) return text;
  text.hasCall = true;
  text.call = rule.substr(second + 1);
  return text;
}

std::string inQuotes(std::string_view text) {
  return "\"" + std::string(text) + "\"";
}

EntryRecord* findEntry(const SuiteOffer& offer, std::string_view name) {
  const auto found = std::find_if(offer.entries.begin(), offer.entries.end(),
                                  [&](const EntryRecord* entry) { return entry->name == name; });
  return found == offer.entries.end() ? nullptr : *found;
}

// 0 if it is no number of a call.
std::uint64_t callNumber(std::string_view text) {
  std::uint64_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size() ? number : 0;
}

}  // namespace

std::string Refusal::add(std::string_view rule) {
  const RuleText text = splitRule(rule);
  const SuiteOffer* offer = findSuite(text.suite);
  if (offer == nullptr) return "there is no suite " + inQuotes(text.suite) + ".";
  if (!text.hasEntry) {
    withheld_.emplace_back(text.suite);
    return {};
  }
  EntryRecord* entry = findEntry(*offer, text.entry);
  if (entry == nullptr) return inQuotes(text.suite) + " has no entry " + inQuotes(text.entry) + ".";
  if (!entry->refusable) {
    return inQuotes(text.entry) + " of " + inQuotes(text.suite) + " has no result that could tell a failure.";
  }
  const std::uint64_t call = text.hasCall ? callNumber(text.call) : 0;
  if (text.hasCall && call == 0) {
    return inQuotes(text.call) + " in " + inQuotes(rule) + " is not the number of a call, 1 or above.";
  }
  addRule(*entry, call);
  return {};
}

void Refusal::addRule(EntryRecord& entry, std::uint64_t call) {
  entry.watched = true;
  Rule& rule = rules_[&entry];
  if (call == 0) {
    rule.always = true;
  } else {
    rule.which.push_back(rule.calls + call);
  }
}

void Refusal::clear() {
  for (auto& [entry, rule] : rules_) entry->watched = false;
  rules_.clear();
  withheld_.clear();
  nth_ = 0;
}

bool Refusal::withholds(std::string_view suite) {
  if (std::find(withheld_.begin(), withheld_.end(), suite) == withheld_.end()) return false;
  refused_.push_back(std::string(suite) + ", withheld");
  return true;
}

bool Refusal::admitsWatched(EntryRecord& entry) {
  const std::string name = std::string(entry.suite) + ":" + entry.name + ", call ";
  if (entry.watched) {
    Rule& rule = rules_.at(&entry);
    ++rule.calls;
    if (rule.always || std::find(rule.which.begin(), rule.which.end(), rule.calls) != rule.which.end()) {
      refused_.push_back(name + std::to_string(rule.calls));
      return false;
    }
  }
  if (calls_ != nth_) return true;
  refused_.push_back(name + std::to_string(calls_) + " of the run");
  return false;
}

}  // namespace host
