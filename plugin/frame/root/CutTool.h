// A tool with which marks of one shape are placed by hand: one click, one mark.
#pragma once

#include <cstdint>
#include <memory>

#include "AIColor.h"
#include "HMX_AITool.h"

namespace Vandrell::Corvane {

class CutOption;
class CutPlugin;
class TableHeadAnnotator;

class CutTool : public HMX_AITool {
 public:
  // `name` is the title too, in English. `data` says where the tool stands in the palette; never null.
  CutTool(CutPlugin* owner, const char* name, int iconID, std::uint32_t markShape, AIAddToolData* data);
  ~CutTool() override;

  // The command for register marks, whose shape may be that of the other tool. Its code is handed on; without
  // a document nothing is asked.
  AIErr EditOptions(const AIToolMessage& message) override;
  AIErr TrackCursor(const AIToolMessage& message) override;
  // Draws a mark at the cursor. The user is told if the host refuses it. The other tool's colours are the
  // defaults again.
  AIErr MouseDown(const AIToolMessage& message) override;
  AIErr MouseDrag(const AIToolMessage& message) override;  // does nothing, as does MouseUp
  AIErr MouseUp(const AIToolMessage& message) override;
  AIErr Select(const AIToolMessage& message) override;    // from now on the artboards show the table head
  AIErr Deselect(const AIToolMessage& message) override;  // and no longer

  // Of the next marks; kept until the other tool is used, the document changes or the session ends.
  void SetColors(const AIColor& fill, const AIColor& stroke);
  void ResetColors();  // to black without a stroke
  void RefreshAnnotator();

 private:
  void ResetOtherTools() const;
  CutOption MarkOption() const;
  AIRealPoint MarkPoint(const AIRealPoint& cursor) const;

  const std::uint32_t shape;  // a RegmarkShape
  AIColor fillColor;
  AIColor strokeColor;
  AIRealPoint cursorOffset{0, 0};                 // from the hot spot to the point meant; view pixels, y up
  std::shared_ptr<TableHeadAnnotator> annotator;  // null until the tool is first selected
};

}  // namespace Vandrell::Corvane
