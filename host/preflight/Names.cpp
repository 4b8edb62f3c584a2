#include <QString>
#include <algorithm>
#include <map>

#include "Checks.h"
#include "Paint.h"
#include "ProcessingSteps.h"

namespace host {
namespace {

// What a reader takes a name for: no case, no blanks of any kind, letters composed.
std::string readName(const std::string& name) {
  QString read;
  for (const QChar letter : QString::fromStdString(name).normalized(QString::NormalizationForm_KC)) {
    const bool isUnseen = letter.isSpace() || letter.category() == QChar::Other_Format;
    if (!isUnseen) read.append(letter);
  }
  return read.toCaseFolded().toStdString();
}

// Single blanks between words, none around.
std::string tidied(const std::string& name) {
  return QString::fromStdString(name).simplified().toStdString();
}

// A plain cut may go through or not, so it has no usual step, but nobody prints it.
bool isUsual(const std::string& name) {
  return !usualStepOf(tidied(name)).empty() || readName(name) == "cut";
}

// A name as it is written, and what bears it.
struct Spelling {
  std::string name;
  bool isSpot = false, isLayer = false, isSwatch = false;

  std::string told() const {
    std::string bearers = isLayer ? "layer" : "";
    if (isSpot || isSwatch)
      bearers += (bearers.empty() ? "" : " and ") + std::string(isSpot ? "color" : "swatch");
    return inQuotes(name) + " (" + bearers + ")";
  }
};

class NameCheck {
 public:
  explicit NameCheck(const PreflightJob& job) : job_(job) {
    const Document& document = job.document;
    for (const LayerId id : document.state().layers) at(document.layer(id)->title).isLayer = true;
    for (const SwatchId id : document.state().swatches) {
      const Swatch& swatch = *document.swatch(id);
      if (swatch.color.kind == kCustomColor && !swatch.name.empty()) at(swatch.name).isSwatch = true;
      addColor(swatch.color);
    }
    for (const PreflightJob::Type& type : job.types) at(type.is.name).isSpot = true;
    findPainted();
  }

  void report(Findings& findings) const {
    for (const auto& [ignored, spellings] : names_) {
      if (spellings.size() > 1) reportMisses(spellings, findings);
      if (spellings.size() == 1) reportLonely(spellings.front(), findings);
    }
  }

 private:
  Spelling& at(const std::string& name) {
    std::vector<Spelling>& spellings = names_[readName(name)];
    const auto found = std::find_if(spellings.begin(), spellings.end(),
                                    [&](const Spelling& spelling) { return spelling.name == name; });
    if (found != spellings.end()) return *found;
    spellings.push_back({name});
    return spellings.back();
  }

  const CustomColor* addColor(const AIColor& color) {
    if (color.kind != kCustomColor) return nullptr;
    const CustomColor* custom = job_.document.customColor(
        idOfHandle(color.c.c.color, HandleKind::CustomColor, job_.document.serial()));
    if (custom == nullptr || (custom->definition.flag & kCustomSpotColor) == 0) return nullptr;
    at(custom->name).isSpot = true;
    return custom;
  }

  void findPainted() {
    for (auto object = job_.drawn.objects.rbegin(); object != job_.drawn.objects.rend(); ++object) {
      const AIPathStyle* style = object->style;
      if (style == nullptr) continue;
      const CustomColor* stroke = paintsStroke(*style) ? addColor(style->stroke.color) : nullptr;
      const CustomColor* fill = paintsFill(*style) ? addColor(style->fill.color) : nullptr;
      for (const CustomColor* color : {stroke, fill}) {
        if (color == nullptr) continue;
        std::vector<ArtId>& art = painted_[color->name];
        if (art.empty() || art.back() != object->art) art.push_back(object->art);
      }
    }
  }

  // Of all art painted in these but the one that is a line type.
  void reportMisses(const std::vector<Spelling>& spellings, Findings& findings) const {
    const bool concernsTable = std::any_of(spellings.begin(), spellings.end(),
                                           [](const Spelling& s) { return s.isSpot || s.isSwatch; });
    if (!concernsTable) return;
    std::string told;
    std::vector<ArtId> art;
    for (const Spelling& spelling : spellings) {
      told += (told.empty() ? "" : &spelling == &spellings.back() ? " and " : ", ") + spelling.told();
      const auto painted = painted_.find(spelling.name);
      if (painted == painted_.end() || (spelling.isSpot && spelling.isLayer)) continue;
      art.insert(art.end(), painted->second.begin(), painted->second.end());
    }
    findings.push_back({FindingKind::NearMissName,
                        told + " differ in case or blanks only: a table takes them for different types",
                        std::move(art), spellings.front().name});
  }

  // The name of a usual line type that is but half of one.
  void reportLonely(const Spelling& spelling, Findings& findings) const {
    if (!isUsual(spelling.name) || spelling.isLayer == spelling.isSpot) return;
    const auto painted = painted_.find(spelling.name);
    if (spelling.isSpot && painted != painted_.end()) {
      findings.push_back({FindingKind::NearMissName,
                          "The color " + inQuotes(spelling.name) +
                              " is in use, but no layer has its name: its lines are an ink like any other",
                          painted->second, spelling.name});
    }
    if (spelling.isLayer) {
      findings.push_back(
          {FindingKind::NearMissName,
           "The layer " + inQuotes(spelling.name) +
               " is named like a line type, but no spot color is: its lines are printed, not cut",
           artOnLayer(spelling.name), spelling.name});
    }
  }

  std::vector<ArtId> artOnLayer(const std::string& title) const {
    std::vector<ArtId> art;
    for (auto object = job_.drawn.objects.rbegin(); object != job_.drawn.objects.rend(); ++object) {
      const LayerId layer = job_.document.layerOfArt(object->art);
      if (job_.document.layer(layer)->title != title) continue;
      if (art.empty() || art.back() != object->art) art.push_back(object->art);
    }
    return art;
  }

  const PreflightJob& job_;
  std::map<std::string, std::vector<Spelling>> names_;  // by what they are read as
  std::map<std::string, std::vector<ArtId>> painted_;   // by colour, from the top down
};

}  // namespace

void checkNames(const PreflightJob& job, Findings& findings) {
  NameCheck(job).report(findings);
}

}  // namespace host
