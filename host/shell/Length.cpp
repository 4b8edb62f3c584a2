#include "Length.h"

#include <array>
#include <charconv>
#include <cmath>

namespace host {
namespace {

struct Unit {
  std::string_view name;
  double points;
};

constexpr std::array<Unit, 7> kUnits{{{"", 1.0},
                                      {"pt", 1.0},
                                      {"mm", 72.0 / 25.4},
                                      {"cm", 72.0 / 2.54},
                                      {"in", 72.0},
                                      {"pc", 12.0},
                                      {"px", 0.75}}};

}  // namespace

std::optional<double> pointsOf(std::string_view text) {
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || !std::isfinite(value) || value < 0) return std::nullopt;
  text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  for (const Unit& unit : kUnits) {
    if (unit.name == text) return value * unit.points;
  }
  return std::nullopt;
}

}  // namespace host
