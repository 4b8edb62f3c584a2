#include <map>

#include "Bounds.h"
#include "Checks.h"
#include "Paint.h"

namespace host {
namespace {

class LayerCheck {
 public:
  explicit LayerCheck(const PreflightJob& job) : job_(job), others_(job.types.size()) {
    for (std::size_t i = 0; i < job.types.size(); ++i) typeOfTitle_.emplace(job.types[i].is.name, i);
    ArtId last = 0;
    for (auto object = job.drawn.objects.rbegin(); object != job.drawn.objects.rend(); ++object) {
      if (object->art != last) add(*object);
      last = object->art;
    }
  }

  void report(Findings& findings) const {
    for (std::size_t type = 0; type < job_.types.size(); ++type) {
      const std::string& name = job_.types[type].is.name;
      for (const auto& [layer, tally] : astray_) {
        if (layer.first != type) continue;
        const std::string& title = job_.document.layer(layer.second)->title;
        findings.push_back({FindingKind::WrongLayer,
                            counted(tally.count, "path") + " in " + name +
                                verb(tally.count, " lies", " lie") + " on the layer " + title +
                                where(job_, tally) + ": a table that goes by layers misses " +
                                verb(tally.count, "it", "them"),
                            tally.art, name});
      }
      const Tally& others = others_[type];
      if (others.count == 0) continue;
      findings.push_back({FindingKind::WrongLayer,
                          counted(others.count, "object") + " on the layer " + name +
                              verb(others.count, " is", " are") + " not painted in it" + where(job_, others) +
                              ": a table that goes by layers cuts " + verb(others.count, "it", "them"),
                          others.art, name});
    }
  }

 private:
  void add(const DrawnArt::Object& object) {
    const bool isText = job_.document.art(object.art)->type == kTextFrameArt;
    const bool isPainted =
        object.style == nullptr || paintsFill(*object.style) || paintsStroke(*object.style);
    if (isText || !isPainted) return;
    const LayerId layer = job_.document.layerOfArt(object.art);
    const auto found = typeOfTitle_.find(job_.document.layer(layer)->title);
    const std::size_t wanted = found == typeOfTitle_.end() ? PreflightJob::kNone : found->second;
    const std::size_t type = object.isBody ? PreflightJob::kNone : job_.typeOf(object.art);
    if (type == wanted) return;
    const AIRealRect box = artBounds(job_.document, object.art, nullptr, kNoStrokeBounds);
    if (type != PreflightJob::kNone) astray_[{type, layer}].add(object.art, {box.left, box.top});
    if (type == PreflightJob::kNone) others_[wanted].add(object.art, {box.left, box.top});
  }

  const PreflightJob& job_;
  std::map<std::string, std::size_t> typeOfTitle_;
  std::map<std::pair<std::size_t, LayerId>, Tally> astray_;  // by type and the layer it is on
  std::vector<Tally> others_;                                // on the layer of a type
};

}  // namespace

void checkLayers(const PreflightJob& job, Findings& findings) {
  LayerCheck(job).report(findings);
}

}  // namespace host
