#include "SvgSelector.h"

#include <algorithm>

#include "SvgScanner.h"

namespace host {
namespace {

constexpr std::uint32_t kIdWeight = 1U << 20;
constexpr std::uint32_t kClassWeight = 1U << 10;
constexpr std::uint32_t kTypeWeight = 1;

}  // namespace

bool hasWord(std::string_view list, std::string_view name) {
  SvgScanner scanner(list);
  for (scanner.skipBlanks(); !scanner.atEnd(); scanner.skipBlanks()) {
    if (scanner.until(" \t\n\r\f") == name) return true;
  }
  return false;
}

bool SvgSelector::readCompound(SvgScanner& scanner, Compound& compound) {
  const bool any = scanner.take('*');
  if (!any) compound.type = scanner.identifier();
  bool something = any || !compound.type.empty();
  while (scanner.peek() == '.' || scanner.peek() == '#') {
    const bool isClass = scanner.next() == '.';
    const std::string_view name = scanner.identifier();
    if (name.empty()) return false;
    if (isClass) {
      compound.classes.push_back(name);
    } else if (compound.id.empty() || compound.id == name) {
      compound.id = name;
    } else {
      return false;
    }
    something = true;
  }
  return something;
}

std::optional<SvgSelector> SvgSelector::parse(std::string_view text) {
  SvgSelector selector;
  SvgScanner scanner(withoutBlanksAround(text));
  bool child = false;
  do {
    Compound compound;
    compound.childOfPrevious = child;
    if (!readCompound(scanner, compound)) return std::nullopt;
    selector.specificity_ += (compound.id.empty() ? 0 : kIdWeight) +
                             kClassWeight * static_cast<std::uint32_t>(compound.classes.size()) +
                             (compound.type.empty() ? 0 : kTypeWeight);
    selector.compounds_.push_back(std::move(compound));
    const bool blank = isSvgBlank(scanner.peek());
    scanner.skipBlanks();
    child = scanner.take('>');
    if (!child && !blank && !scanner.atEnd()) return std::nullopt;
    scanner.skipBlanks();
  } while (!scanner.atEnd() || child);
  return selector;
}

std::string_view SvgSelector::subjectClass() const {
  const auto& classes = compounds_.back().classes;
  return classes.empty() ? std::string_view() : classes.front();
}

bool SvgSelector::matchesCompound(const SvgSource& source, NodeIndex element, const Compound& compound) {
  if (!compound.type.empty() && !source.is(element, compound.type)) return false;
  if (!compound.id.empty() && source.attribute(element, "id") != compound.id) return false;
  if (compound.classes.empty()) return true;
  const std::string_view words = source.attribute(element, "class").value_or("");
  return std::all_of(compound.classes.begin(), compound.classes.end(),
                     [&](std::string_view name) { return hasWord(words, name); });
}

NodeIndex SvgSelector::matchChain(const SvgSource& source, NodeIndex innermost, std::size_t begin,
                                  std::size_t end) const {
  NodeIndex at = innermost;
  for (std::size_t i = end; i > begin; --i) {
    if (i != end) at = source.node(at).parent;
    if (at == 0 || !matchesCompound(source, at, compounds_[i - 1])) return 0;
  }
  return at;
}

// Chains of "child of" are matched from the subject outwards, each at the nearest place: one that lies
// nearer leaves the more room for those before it, so there is nothing to go back for.
bool SvgSelector::matches(const SvgSource& source, NodeIndex element) const {
  NodeIndex at = element;
  for (std::size_t end = compounds_.size(); end > 0;) {
    std::size_t begin = end - 1;
    while (compounds_[begin].childOfPrevious) --begin;
    const bool isSubject = end == compounds_.size();
    NodeIndex outermost = matchChain(source, at, begin, end);
    while (outermost == 0 && !isSubject && at != 0) {
      at = source.node(at).parent;
      outermost = matchChain(source, at, begin, end);
    }
    if (outermost == 0) return false;
    at = source.node(outermost).parent;
    end = begin;
  }
  return true;
}

}  // namespace host
