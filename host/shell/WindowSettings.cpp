#include "WindowSettings.h"

#include <algorithm>

#include "Preferences.h"
#include "PreferredLanguages.h"
#include "RecentFiles.h"

namespace host {
namespace {

constexpr char kPrefix[] = "corvane-host";
constexpr char kTheme[] = "Theme";
constexpr char kDark[] = "dark";
constexpr char kLight[] = "light";
constexpr char kLanguage[] = "Language";
constexpr char kRulers[] = "Rulers";
constexpr char kAutosaveSeconds[] = "AutosaveSeconds";
constexpr char kExportPrint[] = "ExportPrintFile";
constexpr char kExportCut[] = "ExportCutFile";
constexpr char kExportSummary[] = "ExportSummary";
constexpr char kMaximized[] = "Maximized";
constexpr int kUsualAutosave = 30;
constexpr int kLongestAutosave = 24 * 60 * 60;
constexpr std::size_t kRecentFiles = RecentFiles::kMost;

std::string recentKey(std::size_t place) {
  return "RecentFile" + std::to_string(place + 1);
}

}  // namespace

Theme WindowSettings::theme() const {
  return preferences_.string(kPrefix, kTheme) == kDark ? Theme::Dark : Theme::Light;
}

void WindowSettings::setTheme(Theme theme) {
  preferences_.put(kPrefix, kTheme, std::string(theme == Theme::Dark ? kDark : kLight));
}

std::string WindowSettings::language() const {
  const std::string stored = preferences_.string(kPrefix, kLanguage).value_or(std::string());
  return languageTag(stored).value_or(std::string());
}

void WindowSettings::setLanguage(const std::string& language) {
  preferences_.put(kPrefix, kLanguage, language);
}

bool WindowSettings::showsRulers() const {
  return preferences_.boolean(kPrefix, kRulers).value_or(true);
}

void WindowSettings::setShowsRulers(bool shows) {
  preferences_.put(kPrefix, kRulers, shows);
}

int WindowSettings::autosaveSeconds() const {
  return std::clamp(preferences_.integer(kPrefix, kAutosaveSeconds).value_or(kUsualAutosave), 0,
                    kLongestAutosave);
}

ExportExtras WindowSettings::exportExtras() const {
  const auto isOn = [this](const char* key) { return preferences_.boolean(kPrefix, key).value_or(false); };
  return {isOn(kExportPrint), isOn(kExportCut), isOn(kExportSummary)};
}

void WindowSettings::setExportExtras(const ExportExtras& extras) {
  preferences_.put(kPrefix, kExportPrint, extras.printFile);
  preferences_.put(kPrefix, kExportCut, extras.cutFile);
  preferences_.put(kPrefix, kExportSummary, extras.summary);
}

std::vector<std::string> WindowSettings::recentFiles() const {
  std::vector<std::string> files;
  for (std::size_t i = 0; i < kRecentFiles; ++i) {
    std::string file = preferences_.string(kPrefix, recentKey(i)).value_or(std::string());
    const bool isNew = std::find(files.begin(), files.end(), file) == files.end();
    if (!file.empty() && isNew) files.push_back(std::move(file));
  }
  return files;
}

void WindowSettings::catchUp() {
  preferences_.catchUp(kPrefix);
}

void WindowSettings::setRecentFiles(const std::vector<std::string>& files) {
  for (std::size_t i = 0; i < kRecentFiles; ++i) {
    const bool isStored = preferences_.exists(kPrefix, recentKey(i));
    if (i < files.size()) {
      preferences_.put(kPrefix, recentKey(i), files[i]);
    } else if (isStored) {
      preferences_.put(kPrefix, recentKey(i), std::string());
    }
  }
}

std::optional<QRect> WindowSettings::place() const {
  const auto left = preferences_.integer(kPrefix, "Left");
  const auto top = preferences_.integer(kPrefix, "Top");
  const auto width = preferences_.integer(kPrefix, "Width");
  const auto height = preferences_.integer(kPrefix, "Height");
  if (!left || !top || width.value_or(0) <= 0 || height.value_or(0) <= 0) return std::nullopt;
  return QRect(*left, *top, *width, *height);
}

void WindowSettings::setPlace(const QRect& place) {
  preferences_.put(kPrefix, "Left", std::int32_t{place.left()});
  preferences_.put(kPrefix, "Top", std::int32_t{place.top()});
  preferences_.put(kPrefix, "Width", std::int32_t{place.width()});
  preferences_.put(kPrefix, "Height", std::int32_t{place.height()});
}

bool WindowSettings::isMaximized() const {
  return preferences_.boolean(kPrefix, kMaximized).value_or(false);
}

void WindowSettings::setMaximized(bool isMaximized) {
  preferences_.put(kPrefix, kMaximized, isMaximized);
}

}  // namespace host
