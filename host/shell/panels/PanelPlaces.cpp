#include "PanelPlaces.h"

#include <Qt>

#include "Preferences.h"

namespace host {
namespace {

struct Flag {
  const char* suffix;
  bool PanelPlace::*field;
};
struct Number {
  const char* suffix;
  int PanelPlace::*field;
};

constexpr Flag kFlags[] = {{"shown", &PanelPlace::isShown},
                           {"floating", &PanelPlace::floats},
                           {"collapsed", &PanelPlace::isCollapsed}};
constexpr Number kNumbers[] = {{"area", &PanelPlace::area},
                               {"left", &PanelPlace::left},
                               {"top", &PanelPlace::top},
                               {"width", &PanelPlace::width},
                               {"height", &PanelPlace::height}};

std::string prefixOf(const std::string& identifier) {
  return "panels/" + identifier;
}

bool isArea(int area) {
  return area == Qt::LeftDockWidgetArea || area == Qt::RightDockWidgetArea || area == Qt::TopDockWidgetArea ||
         area == Qt::BottomDockWidgetArea;
}

}  // namespace

std::optional<PanelPlace> rememberedPlace(const Preferences& preferences, const std::string& identifier) {
  const std::string prefix = prefixOf(identifier);
  PanelPlace place;
  for (const auto& [suffix, field] : kFlags) {
    place.*field = preferences.boolean(prefix, suffix).value_or(false);
  }
  for (const auto& [suffix, field] : kNumbers) {
    place.*field = preferences.integer(prefix, suffix).value_or(0);
  }
  if (!isArea(place.area)) return std::nullopt;
  return place;
}

void rememberPlace(Preferences& preferences, const std::string& identifier, const PanelPlace& place) {
  const std::string prefix = prefixOf(identifier);
  for (const auto& [suffix, field] : kFlags) preferences.put(prefix, suffix, place.*field);
  for (const auto& [suffix, field] : kNumbers) preferences.put(prefix, suffix, std::int32_t{place.*field});
}

}  // namespace host
