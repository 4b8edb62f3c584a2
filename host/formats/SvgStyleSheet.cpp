#include "SvgStyleSheet.h"

#include <algorithm>

#include "SvgQuoted.h"
#include "SvgScanner.h"

namespace host {
namespace {

void blankOut(std::string& text, std::size_t begin, std::size_t end) {
  std::fill(text.begin() + static_cast<std::ptrdiff_t>(begin),
            text.begin() + static_cast<std::ptrdiff_t>(end), ' ');
}

// Comments, and the <!-- --> that old files put round their rules, become blanks.
std::string withoutComments(std::string text) {
  for (std::size_t at = text.find("/*"); at != std::string::npos; at = text.find("/*", at)) {
    blankOut(text, at, std::min(text.find("*/", at + 2), text.size() - 2) + 2);
  }
  for (const std::string_view mark : {"<!--", "-->"}) {
    for (std::size_t at = text.find(mark); at != std::string::npos; at = text.find(mark, at)) {
      blankOut(text, at, at + mark.size());
    }
  }
  return text;
}

// What stands behind "{", which is taken, up to its "}", which is taken too.
std::string_view takeBlock(SvgScanner& scanner) {
  scanner.take('{');
  const std::string_view rest = scanner.rest();
  int depth = 1;
  std::size_t length = 0;
  while (!scanner.atEnd() && depth > 0) {
    const char c = scanner.next();
    if (c == '{') ++depth;
    if (c == '}') --depth;
    if (depth > 0) ++length;
  }
  return rest.substr(0, length);
}

bool matters(std::string_view atRule) {
  return atRule != "charset" && atRule != "namespace" && atRule != "font-face";
}

void skipAtRule(SvgScanner& scanner, std::vector<std::string>& leftOut) {
  scanner.take('@');
  const std::string_view name = scanner.identifier();
  if (matters(name)) leftOut.push_back("its @" + std::string(name) + " rule is not followed");
  scanner.until(";{");
  if (scanner.peek() == '{') takeBlock(scanner);
  scanner.take(';');
}

}  // namespace

std::vector<std::string> SvgStyleSheet::add(std::string text) {
  std::vector<std::string> leftOut;
  SvgScanner scanner(texts_.emplace_back(withoutComments(std::move(text))));
  for (scanner.skipBlanks(); !scanner.atEnd(); scanner.skipBlanks()) {
    if (scanner.peek() == '@') {
      skipAtRule(scanner, leftOut);
      continue;
    }
    const std::string_view selectors = scanner.until("{");
    const std::string_view block = takeBlock(scanner);
    readRule(selectors, block, leftOut);
  }
  return leftOut;
}

void SvgStyleSheet::readRule(std::string_view selectors, std::string_view block,
                             std::vector<std::string>& leftOut) {
  auto declarations = std::make_shared<std::vector<SvgDeclaration>>();
  SvgDeclarationReader reader(block);
  while (const auto declaration = reader.next()) declarations->push_back(*declaration);
  if (declarations->empty()) return;
  SvgScanner scanner(selectors);
  do {
    const std::string_view text = withoutBlanksAround(scanner.until(","));
    if (auto selector = SvgSelector::parse(text)) {
      addRule({std::move(*selector), declarations});
    } else {
      leftOut.push_back("its selector " + quoted(text) + " is not followed");
    }
  } while (scanner.take(','));
}

void SvgStyleSheet::addRule(Rule rule) {
  const auto index = static_cast<std::uint32_t>(rules_.size());
  const SvgSelector& selector = rule.selector;
  if (!selector.subjectId().empty()) {
    byId_[selector.subjectId()].push_back(index);
  } else if (!selector.subjectClass().empty()) {
    byClass_[selector.subjectClass()].push_back(index);
  } else if (!selector.subjectType().empty()) {
    byType_[selector.subjectType()].push_back(index);
  } else {
    universal_.push_back(index);
  }
  rules_.push_back(std::move(rule));
}

void SvgStyleSheet::declareFor(const SvgSource& source, NodeIndex element, std::uint64_t base,
                               std::uint64_t importantBase, SvgDeclaredValues& values) const {
  const auto declare = [&](const RuleIndexes& indexes) {
    for (const std::uint32_t index : indexes) {
      const Rule& rule = rules_[index];
      if (!rule.selector.matches(source, element)) continue;
      const std::uint64_t weight = (std::uint64_t{rule.selector.specificity()} << 24) + index + 1;
      for (const SvgDeclaration& declaration : *rule.block) {
        values.declare(declaration.property, declaration.value,
                       weight + (declaration.important ? importantBase : base));
      }
    }
  };
  const auto declareNamed = [&](const auto& map, std::string_view name) {
    const auto found = map.find(name);
    if (found != map.end()) declare(found->second);
  };
  declare(universal_);
  if (!byType_.empty()) declareNamed(byType_, source.node(element).name);
  if (!byId_.empty()) declareNamed(byId_, source.attribute(element, "id").value_or(""));
  if (byClass_.empty()) return;
  SvgScanner words(source.attribute(element, "class").value_or(""));
  for (words.skipBlanks(); !words.atEnd(); words.skipBlanks())
    declareNamed(byClass_, words.until(" \t\n\r\f"));
}

}  // namespace host
