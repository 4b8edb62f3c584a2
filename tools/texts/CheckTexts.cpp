#include "CheckTexts.h"

#include <algorithm>
#include <map>

#include "KeyForm.h"
#include "TextFaults.h"
#include "TextFile.h"

namespace texts {
namespace {

namespace fs = std::filesystem;

std::string FileName(const std::string& language, const std::string& module) {
  return (language == kEnglish ? "" : language + ".lproj/") + module + ".asc";
}

std::string Quoted(const std::string& key) {
  return '"' + OnOneLine(key) + '"';
}

// The files of one language.
class LanguageCheck {
 public:
  LanguageCheck(const fs::path& from, const AskedKeys& askedKeys, const std::vector<std::string>& ofModules,
                std::string ofLanguage, std::vector<std::string>& found)
      : folder(from),
        asked(askedKeys),
        modules(ofModules),
        language(std::move(ofLanguage)),
        findings(found) {}

  void Run() {
    for (const std::string& module : modules) CheckFile(ReadTextFile(folder, FileName(language, module)));
    for (const auto& [key, asker] : asked) {
      if (places.count(key) == 0) CheckMissing(key, asker);
    }
  }

 private:
  void CheckFile(const TextFile& file) {
    if (!file.fault.empty()) findings.push_back(file.name + ": " + file.fault);
    for (const TextEntry& entry : file.entries) CheckEntry(file, entry);
  }

  void CheckEntry(const TextFile& file, const TextEntry& entry) {
    const std::string place = file.name + ':' + std::to_string(entry.line);
    const std::string subject = place + ": the text of " + Quoted(entry.key) + ' ';
    const auto [known, isNew] = places.emplace(entry.key, place);
    if (!isNew) findings.push_back(subject + "stands in " + known->second + " as well");
    if (entry.key.size() >= kKeySize) findings.push_back(subject + "has too long a key");
    const auto asker = asked.find(entry.key);
    if (asker == asked.end()) {
      findings.push_back(subject + "is asked for by nobody");
      return;
    }
    for (const std::string& fault : TextFaults(asker->second, language, entry.text)) {
      findings.push_back(subject + fault);
    }
    if (asker->second.kind == AskedKey::Kind::LineTypeName) CheckIsOnlyName(subject, entry);
  }

  // Of two line types of one name the user would see one.
  void CheckIsOnlyName(const std::string& subject, const TextEntry& entry) {
    const auto [known, isNew] = keysByName.emplace(entry.text, entry.key);
    if (!isNew && known->second != entry.key) {
      findings.push_back(subject + "is that of " + Quoted(known->second) + " too");
    }
  }

  // Dates belong to the base module, all else to the last one.
  void CheckMissing(const std::string& key, const AskedKey& asker) {
    const std::string& module = asker.english.empty() ? modules.front() : modules.back();
    findings.push_back(FileName(language, module) + ": the text of " + Quoted(key) + " is missing; " +
                       asker.place + " asks for it");
  }

  const fs::path& folder;
  const AskedKeys& asked;
  const std::vector<std::string>& modules;
  const std::string language;
  std::vector<std::string>& findings;
  std::map<std::string, std::string> places;      // by key
  std::map<std::string, std::string> keysByName;  // of line types
};

}  // namespace

std::vector<std::string> Localisations(const fs::path& folder) {
  std::vector<std::string> names;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
    if (entry.path().extension() == ".lproj") names.push_back(entry.path().stem().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::vector<std::string> CheckTexts(const fs::path& folder, const AskedKeys& asked,
                                    const std::vector<std::string>& modules) {
  std::vector<std::string> findings;
  std::vector<std::string> languages = Localisations(folder);
  languages.insert(languages.begin(), kEnglish);
  for (const std::string& language : languages) {
    LanguageCheck(folder, asked, modules, language, findings).Run();
  }
  return findings;
}

}  // namespace texts
