#include "Host.h"

#include <numeric>
#include <utility>

#include "Counted.h"
#include "FailureSentence.h"
#include "HitTests.h"
#include "HostObjects.h"
#include "SPBasic.h"
#include "SuiteCatalog.h"

namespace host {
Host* Host::current_ = nullptr;

Host::Host(Preferences preferences, Folders folders)
    : preferences_(std::move(preferences)),
      folders_(std::move(folders)),
      holdCounts_(suiteCatalog().size(), 0),
      objects_(std::make_unique<HostObjects>()),
      hitTests_(std::make_unique<HitTests>()) {
  current_ = this;
}

Host::~Host() {
  if (current_ == this) current_ = nullptr;
}

const SPBasicSuite* Host::basic() const {
  return static_cast<const SPBasicSuite*>(findSuite(kSPBasicSuite)->table);
}

PluginRecord& Host::addPlugin(std::string name, std::string bundle) {
  PluginRecord plugin;
  plugin.name = std::move(name);
  plugin.bundle = std::move(bundle);
  return plugins_.add(std::move(plugin));
}

void Host::forgetRegistrations() {
  contexts_.popTo(0);
  notifiers_.removeIf([](const NotifierRecord&) { return true; });
  annotators_.removeIf([](const AnnotatorRecord&) { return true; });
  menus_.forgetPlugins();
  tools_.forgetPlugins();
  while (!panels_.all().empty()) panels_.remove(panels_.all().back()->handle);
  pictures_.clear();
}

const ResourceTable& Host::pictures(SPPluginRef plugin) {
  static const ResourceTable none;
  const PluginRecord* record = plugins_.find(plugin);
  if (record == nullptr) return none;
  const auto known = pictures_.find(plugin);
  return known != pictures_.end() ? known->second
                                  : pictures_.emplace(plugin, ResourceTable(record->bundle)).first->second;
}

void Host::alert(AlertKind kind, std::string text) {
  alerts_.push_back({kind, std::move(text)});
  const Counted up(alertsUp_);
  if (showAlert) showAlert(Alert(alerts_.back()));
}

void Host::pluginFailed() {
  const std::string sentence = failureSentence();
  if (onPluginFailure) {
    onPluginFailure(sentence);
  } else {
    alert(AlertKind::Error, sentence);
  }
}

std::int32_t& Host::holdCount(const SuiteOffer& offer) {
  return holdCounts_[static_cast<std::size_t>(&offer - suiteCatalog().data())];
}

std::int32_t Host::holds(const std::string& suite) const {
  const SuiteOffer* offer = findSuite(suite);
  return offer == nullptr ? 0 : holdCounts_[static_cast<std::size_t>(offer - suiteCatalog().data())];
}

std::int32_t Host::holds() const {
  return std::accumulate(holdCounts_.begin(), holdCounts_.end(), 0);
}

}  // namespace host
