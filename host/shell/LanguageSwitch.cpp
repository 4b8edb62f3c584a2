#include "LanguageSwitch.h"

#include <QCoreApplication>
#include <QLocale>
#include <algorithm>
#include <filesystem>
#include <set>
#include <system_error>
#include <utility>

#include "Host.h"
#include "PreferredLanguages.h"
#include "QtLanguage.h"
#include "Session.h"

namespace host {
namespace {

namespace fs = std::filesystem;

constexpr char kEnglish[] = "en";
constexpr char kLocalisationEnd[] = ".lproj";
constexpr int kRetryAfter = 50;  // ms

void addLanguages(const fs::path& bundle, std::set<std::string>& tags) {
  std::error_code error;
  for (fs::directory_iterator entry(bundle / "Contents" / "Resources", error), end; !error && entry != end;
       entry.increment(error)) {
    if (entry->path().extension() != kLocalisationEnd) continue;
    if (const auto tag = languageTag(entry->path().stem().string())) tags.insert(*tag);
  }
}

}  // namespace

LanguageSwitch::LanguageSwitch(Host& host, Session& session, std::string present,
                               std::function<void(const std::vector<std::string>&)> changed)
    : host_(host),
      session_(session),
      changed_(std::move(changed)),
      chosen_(std::move(present)),
      spoken_(chosen_) {
  timer_.setInterval(kRetryAfter);
  QObject::connect(&timer_, &QTimer::timeout, [this] { changeIfIdle(); });
}

void LanguageSwitch::choose(const std::string& language) {
  chosen_ = language;
  timer_.start();
}

std::vector<std::string> LanguageSwitch::offered() const {
  std::set<std::string> tags{kEnglish};
  for (const PluginRecord& plugin : host_.plugins()) addLanguages(plugin.bundle, tags);
  std::vector<std::string> inOrder(tags.begin(), tags.end());
  std::sort(inOrder.begin(), inOrder.end(), [](const std::string& a, const std::string& b) {
    return QString::fromStdString(nameOfLanguage(a))
               .compare(QString::fromStdString(nameOfLanguage(b)), Qt::CaseInsensitive) < 0;
  });
  return inOrder;
}

void LanguageSwitch::changeIfIdle() {
  if (spoken_ != chosen_ && !session_.isIdle()) return;
  timer_.stop();
  if (spoken_ == chosen_) return;
  spoken_ = chosen_;
  if (chosen_.empty()) {
    preferSystemLanguages();
  } else {
    preferLanguage(chosen_);
  }
  speakPreferredLanguage(*QCoreApplication::instance());
  changed_(session_.restart());
}

std::string nameOfLanguage(const std::string& tag) {
  // To QLocale these are what is spoken in one of their countries.
  if (tag == kEnglish) return "English";
  if (tag == "es") return "español";
  const QLocale locale(QString::fromStdString(tag).replace('-', '_'));
  QString name = locale.nativeLanguageName();
  if (tag.find('-') != std::string::npos) name += " (" + locale.nativeCountryName() + ")";
  return name.isEmpty() ? tag : name.toStdString();
}

}  // namespace host
