// The clip paths of a file.
#pragma once

#include <functional>
#include <unordered_map>
#include <vector>

#include "SvgClipMath.h"
#include "SvgOutline.h"
#include "SvgReading.h"
#include "SvgTexts.h"

namespace host {

class SvgClips {
 public:
  SvgClips(SvgReading& reading, SvgTexts& texts) : reading_(reading), texts_(texts) {}

  // The clip of an element by its `clip-path`; null if it has none or none that counts. `userBox` gives the
  // box of what the element draws, without strokes, in its user space, y down; it is asked only if need be.
  ClipPointer clipOf(NodeIndex element, const SvgContext& context,
                     const std::function<AIRealRect()>& userBox);

 private:
  using UserBox = std::function<AIRealRect()>;
  struct Remembered {
    AIRealMatrix documentFromUser;
    ClipPointer clip;
  };
  // What a clip path holds, as it is gathered.
  struct Content {
    std::vector<Clip::Outline> outlines;
    ClipPointer ownClip;  // of an outline by itself
  };

  NodeIndex clipPathOf(NodeIndex element, std::string_view reference);
  ClipPointer read(NodeIndex clipPath, const SvgContext& context, const UserBox& userBox);
  ClipPointer readContent(NodeIndex clipPath, const SvgContext& context, const UserBox& userBox);
  SvgContext contextInsideClip(NodeIndex clipPath, const SvgContext& context, const UserBox& userBox);
  void addChild(NodeIndex child, const SvgContext& outer, Content& content);
  void addUsed(NodeIndex use, const SvgContext& context, Content& content);
  void addOutline(NodeIndex element, const SvgContext& context, const SvgDeclaredValues& declared,
                  Content& content);

  SvgReading& reading_;
  SvgTexts& texts_;
  SvgOutline outline_;
  std::vector<NodeIndex> active_;  // clip paths that are being read
  std::unordered_map<NodeIndex, Remembered> last_;
};

}  // namespace host
