#include "Bounds.h"
#include "Checks.h"
#include "Paint.h"

namespace host {
namespace {

// By its paint, or else by the layer it is on.
std::size_t typeOfText(const PreflightJob& job, const DrawnArt::Object& object) {
  if (object.style != nullptr) {
    const AIPathStyle& style = *object.style;
    const std::size_t stroke = paintsStroke(style) ? job.typeOf(style.stroke.color) : PreflightJob::kNone;
    if (stroke != PreflightJob::kNone) return stroke;
    const std::size_t fill = paintsFill(style) ? job.typeOf(style.fill.color) : PreflightJob::kNone;
    if (fill != PreflightJob::kNone) return fill;
  }
  const std::string& layer = job.document.layer(job.document.layerOfArt(object.art))->title;
  for (std::size_t i = 0; i < job.types.size(); ++i) {
    if (job.types[i].is.name == layer) return i;
  }
  return PreflightJob::kNone;
}

}  // namespace

void checkLiveText(const PreflightJob& job, Findings& findings) {
  std::vector<Tally> tallies(job.types.size());
  ArtId last = 0;
  for (auto object = job.drawn.objects.rbegin(); object != job.drawn.objects.rend(); ++object) {
    if (object->art == last || job.document.art(object->art)->type != kTextFrameArt) continue;
    const std::size_t type = typeOfText(job, *object);
    if (type == PreflightJob::kNone) continue;
    last = object->art;
    const AIRealRect box = artBounds(job.document, object->art, nullptr, kNoStrokeBounds);
    tallies[type].add(object->art, {box.left, box.top});
  }
  for (std::size_t i = 0; i < tallies.size(); ++i) {
    const Tally& tally = tallies[i];
    const std::string& name = job.types[i].is.name;
    if (tally.count == 0) continue;
    findings.push_back({FindingKind::LiveText,
                        counted(tally.count, "text") + " in " + name + verb(tally.count, " is", " are") +
                            " still text" + where(job, tally) +
                            ": no table follows a font; turn letters into paths",
                        tally.art, name});
  }
}

}  // namespace host
