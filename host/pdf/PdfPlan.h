// Which art is written as it is, and which is left to librsvg.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "SvgDrawing.h"
#include "SvgEffects.h"

namespace host {

class PdfChoice;

// A paint that only this host knows the meaning of, and no other program draws right: inks, not RGB.
bool isInk(const AIColor& color);
// A gradient or a pattern.
bool isServer(const AIColor& color);

enum class PdfWay : std::uint8_t {
  Native,  // by its own paths and paints; a group: each of its parts in its own way
  Picture  // by librsvg, with all it holds: there are no inks in it
};

// What librsvg draws of a path beside its inks.
enum class PdfRest : std::uint8_t {
  None,
  Fill,    // a gradient or pattern below a stroke in an ink
  Stroke,  // the like above a fill in an ink, and its markers
  Markers  // above it
};

class PdfPlan {
 public:
  // All must outlive this.
  PdfPlan(const SvgDrawing& drawing, const SvgEffects& effects, const PdfChoice& choice);

  PdfWay wayOf(ArtId art) const {
    const Record& record = records_[art];
    return record.wantsPicture && !record.hasInk && record.element != 0 ? PdfWay::Picture : PdfWay::Native;
  }
  PdfRest restOf(ArtId art) const { return records_[art].rest; }
  NodeIndex elementOf(ArtId art) const { return records_[art].element; }  // of the file; 0 if it has none
  // What art that librsvg should draw loses for the sake of its inks, such as "its mask"; null if nothing.
  const char* lossOf(ArtId art) const { return records_[art].loss; }

  bool isFaded(ArtId art) const;  // by an opacity of its own
  // Is native art drawn as a whole and then faded, so that what overlaps in it does not show through? Never
  // what a table reads: lines and marks stay on the page itself.
  bool fadesAsOne(ArtId art) const { return records_[art].fadesAsOne; }
  // And is what lies in it mixed with nothing else?
  bool isolates(ArtId art) const { return records_[art].isolates; }
  bool showsPaper() const;  // may art be mixed with the white of the page?
  // How it is mixed with what lies below, such as "multiply"; empty: normally. What a table reads covers.
  std::string_view blendModeOf(ArtId art) const {
    return records_[art].isRead ? std::string_view() : effectOf(art).blendMode;
  }
  // Where the x axis of its element points in the document; of length 1.
  AIRealPoint axisOf(ArtId art) const { return effectOf(art).axis; }
  // That of the art and of the groups round it, as far as they do not fade as one.
  double opacityOf(ArtId art) const { return records_[art].opacity; }
  double opacityRound(ArtId art) const;  // of the groups alone
  double fillOpacityOf(ArtId art) const;
  double strokeOpacityOf(ArtId art) const;

 private:
  struct Record {
    bool hasInk = false;        // in it or below
    bool isRead = false;        // a line type or a mark, in it or below
    bool wantsPicture = false;  // in it or below
    bool overlaps = false;      // painted in more than one step
    bool holdsDots = false;     // with square caps
    bool holdsBlend = false;    // something in it is mixed with what lies below this, too
    bool isolates = false;
    bool fadesAsOne = false;
    PdfRest rest = PdfRest::None;
    NodeIndex element = 0;
    double opacity = 1;
    const char* loss = nullptr;
  };
  void survey(LayerId layer);
  void surveyArt(ArtId id, bool isOfMarks);
  void surveyPath(const Art& art, const SvgEffect& effect, Record& record) const;
  const char* lossOf(const AIPathStyle& style, const SvgEffect& effect, PdfRest rest) const;
  bool isDotted(const Art& art) const;
  void surveyBody(const Body& body, Record& record) const;
  static void decideFading(const SvgEffect& effect, Record& record);
  NodeIndex elementOf(const Art& art) const;
  const SvgEffect& effectOf(ArtId art) const { return effects_.of(records_[art].element); }

  const SvgDrawing& drawing_;
  const SvgEffects& effects_;
  const PdfChoice& choice_;
  std::vector<Record> records_;  // by art id
};

}  // namespace host
