#include "AIPreference.h"

#include <cmath>
#include <cstring>

#include "Entry.h"
#include "Suites.h"
#include "Utf8.h"

namespace host {
namespace {

std::string_view orEmpty(const char* text) {
  return text == nullptr ? std::string_view() : text;
}

AIErr preferenceExists(Host& host, const char* prefix, const char* suffix, AIBoolean* exists) {
  if (suffix == nullptr || exists == nullptr) return kBadParameterErr;
  *exists = host.preferences().exists(orEmpty(prefix), suffix) ? 1 : 0;
  return kNoErr;
}

AIErr getBoolean(Host& host, const char* prefix, const char* suffix, AIBoolean* value) {
  if (suffix == nullptr || value == nullptr) return kBadParameterErr;
  if (const auto found = host.preferences().boolean(orEmpty(prefix), suffix)) *value = *found ? 1 : 0;
  return kNoErr;
}

AIErr getInteger(Host& host, const char* prefix, const char* suffix, std::int32_t* value) {
  if (suffix == nullptr || value == nullptr) return kBadParameterErr;
  if (const auto found = host.preferences().integer(orEmpty(prefix), suffix)) *value = *found;
  return kNoErr;
}

AIErr getReal(Host& host, const char* prefix, const char* suffix, AIReal* value) {
  if (suffix == nullptr || value == nullptr) return kBadParameterErr;
  if (const auto found = host.preferences().real(orEmpty(prefix), suffix)) *value = *found;
  return kNoErr;
}

AIErr getString(Host& host, const char* prefix, const char* suffix, char* value, std::int32_t size) {
  if (suffix == nullptr || value == nullptr || size < 1) return kBadParameterErr;
  const auto found = host.preferences().string(orEmpty(prefix), suffix);
  if (!found) return kNoErr;
  const std::string_view text = utf8Prefix(*found, static_cast<std::size_t>(size) - 1);
  std::memcpy(value, text.data(), text.size());
  value[text.size()] = '\0';
  return kNoErr;
}

AIErr put(Host& host, const char* prefix, const char* suffix, PreferenceValue value) {
  if (suffix == nullptr) return kBadParameterErr;
  return host.preferences().put(orEmpty(prefix), suffix, std::move(value)) ? kNoErr : kBadParameterErr;
}

AIErr putBoolean(Host& host, const char* prefix, const char* suffix, AIBoolean value) {
  return put(host, prefix, suffix, value != 0);
}

AIErr putInteger(Host& host, const char* prefix, const char* suffix, std::int32_t value) {
  return put(host, prefix, suffix, value);
}

AIErr putReal(Host& host, const char* prefix, const char* suffix, AIReal value) {
  return put(host, prefix, suffix, value);
}

AIErr putString(Host& host, const char* prefix, const char* suffix, const char* value) {
  return value == nullptr ? kBadParameterErr : put(host, prefix, suffix, std::string(value));
}

}  // namespace

SuiteOffer preferenceSuite() {
  SuiteEntries entries(kAIPreferenceSuite);
  static const AIPreferenceSuite table{
      entries.add<preferenceExists>("PreferenceExists"), entries.add<getBoolean>("GetBooleanPreference"),
      entries.add<putBoolean>("PutBooleanPreference"),   entries.add<getInteger>("GetIntegerPreference"),
      entries.add<putInteger>("PutIntegerPreference"),   entries.add<getReal>("GetRealPreference"),
      entries.add<putReal>("PutRealPreference"),         entries.add<getString>("GetStringPreference"),
      entries.add<putString>("PutStringPreference"),
  };
  return entries.offer(kAIPreferenceSuiteVersion, &table);
}

}  // namespace host
