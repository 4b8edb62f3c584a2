// Which art is written as it is, and which is left to librsvg.
#pragma once

#include <vector>

#include "SvgDrawing.h"
#include "SvgEffects.h"

namespace host {

// A paint that only this host knows the meaning of, and no other program draws right: inks, not RGB.
bool isInk(const AIColor& color);

enum class PdfWay {
  Native,  // by its own paths and paints; a group: each of its parts in its own way
  Picture  // by librsvg, with all it holds: there are no inks in it
};

class PdfPlan {
 public:
  // Both must outlive this.
  PdfPlan(const SvgDrawing& drawing, const SvgEffects& effects);

  PdfWay wayOf(ArtId art) const {
    const Record& record = records_[art];
    return record.wantsPicture && !record.hasInk && record.element != 0 ? PdfWay::Picture : PdfWay::Native;
  }
  NodeIndex elementOf(ArtId art) const { return records_[art].element; }  // of the file; 0 if it has none
  // What art that librsvg should draw loses for the sake of its inks, such as "its mask"; null if nothing.
  const char* lossOf(ArtId art) const { return records_[art].loss; }
  // The opacities of a path, those of the groups round it counted in.
  double fillOpacityOf(ArtId art) const;
  double strokeOpacityOf(ArtId art) const;

 private:
  struct Record {
    bool hasInk = false;        // in it or below
    bool wantsPicture = false;  // in it or below
    NodeIndex element = 0;
    const char* loss = nullptr;
  };
  void survey(ArtId art);
  void surveyLeaf(const Art& art, Record& record) const;
  NodeIndex elementOf(const Art& art) const;
  const SvgEffect& effectOf(const Art& art) const;
  double opacityOf(ArtId art) const;

  const SvgDrawing& drawing_;
  const SvgEffects& effects_;
  std::vector<Record> records_;  // by art id
};

}  // namespace host
