#include "TextModules.h"

#include <strings.h>

#include <algorithm>
#include <cstdlib>
#include <new>

#include "FindTextResource.h"
#include "RV_LOCALE.h"
#include "TextState.h"

namespace {

constexpr char kBaseModule[] = "rv";
constexpr char kExtension[] = ".asc";

// For users of English the bundle chooses the base file, which is not read again.
void ReadLocalisedFile(RDB_Database* database, const TextState& state, const char* name,
                       const std::optional<std::string>& baseFile) {
  if (!state.currentLanguage) return;
  const char* language = state.currentLanguage->c_str();
  if (const auto file = FindTextResource(language, name, kExtension)) {
    if (file != baseFile) RDB_LoadText(database, file->c_str());
    return;
  }
  const auto compiled = FindTextResource(language, name, nullptr);
  if (!compiled) return;
  if (const RDB_Handle texts = RDB_LoadCompiled(compiled->c_str())) RDB_Merge(database, texts.get());
}

void DropDatabases(TextState& state) {
  state.mainDatabase.reset();
  state.reverseDatabase.reset();
  state.missingDatabase.reset();
}

}  // namespace

void RegisterTextModule(const char* name) {
  TextState& state = TheTextState();
  setenv("LOCALE_PATH", state.localePathCopy, 1);
  EnsureTextInitialised();
  const auto isNamedSo = [name](const std::string& module) { return strcasecmp(module.c_str(), name) == 0; };
  if (std::any_of(state.moduleNames.begin(), state.moduleNames.end(), isNamedSo)) return;
  try {
    state.moduleNames.emplace_back(name);
    LoadTextModule(name);
  } catch (const std::bad_alloc&) {  // NOLINT(bugprone-empty-catch): the module stays out, unsaid
  }
}

void SetLanguage(const char* name) {
  TextState& state = TheTextState();
  if (name == nullptr || state.currentLanguage == name) return;
  EnsureTextInitialised();
  state.currentLanguage = name;
  DropDatabases(state);
  if (const char* missing = std::getenv("LOCALE_MISSING")) {
    state.missingDatabase = RDB_Create();
    RDB_LoadText(state.missingDatabase.get(), missing);
  }
  LoadTextModule(kBaseModule);
  for (const std::string& module : state.moduleNames) LoadTextModule(module.c_str());
  rvLocale = &kLocaleMethods;
}

void EnsureTextInitialised() {
  TextState& state = TheTextState();
  if (state.textInitialised != 0) return;
  state.textInitialised = 1;
  const char* language = std::getenv("RVLANG");
  SetLanguage(language != nullptr ? language : "C");
}

void LoadTextModule(const char* name) {
  TextState& state = TheTextState();
  RDB_Handle database = RDB_Create();
  if (!database) return;
  const auto baseFile = FindTextResource(nullptr, name, kExtension);
  if (baseFile) RDB_LoadText(database.get(), baseFile->c_str());
  ReadLocalisedFile(database.get(), state, name, baseFile);
  if (state.reverseDatabase) {
    const RDB_Handle inverted = RDB_Invert(database.get());
    RDB_Merge(state.reverseDatabase.get(), inverted.get());
  }
  if (state.mainDatabase) {
    RDB_Merge(state.mainDatabase.get(), database.get());
  } else {
    state.mainDatabase = std::move(database);
  }
}

void FreeTextState() {
  TextState& state = TheTextState();
  DropDatabases(state);
  state.moduleNames.clear();
  state.currentLanguage.reset();
  state.textInitialised = 0;
}
