// The rules of a file's <style> elements.
#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "SvgDeclarations.h"
#include "SvgSelector.h"

namespace host {

class SvgStyleSheet {
 public:
  // Adds the rules of one <style> element. Gives a clause about each thing that was left out.
  std::vector<std::string> add(std::string text);

  bool empty() const { return rules_.empty(); }
  // Weights of declarations are above `base`, those of important ones above `importantBase`. The declared
  // values live as long as the sheet.
  void declareFor(const SvgSource& source, NodeIndex element, std::uint64_t base, std::uint64_t importantBase,
                  SvgDeclaredValues& values) const;

 private:
  using Block = std::shared_ptr<const std::vector<SvgDeclaration>>;
  struct Rule {
    SvgSelector selector;
    Block block;
  };
  using RuleIndexes = std::vector<std::uint32_t>;

  void readRule(std::string_view selectors, std::string_view block, std::vector<std::string>& leftOut);
  void addRule(Rule rule);

  std::deque<std::string> texts_;
  std::vector<Rule> rules_;
  // By what the subject must have.
  std::unordered_map<std::string_view, RuleIndexes> byId_;
  std::unordered_map<std::string_view, RuleIndexes> byClass_;
  std::unordered_map<std::string_view, RuleIndexes> byType_;
  RuleIndexes universal_;
};

}  // namespace host
