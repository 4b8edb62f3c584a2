#include "SvgWriterCase.h"

#include <gtest/gtest.h>

namespace host {

std::string file(const std::string& content, const std::string& rootAttributes) {
  return R"(<svg xmlns="http://www.w3.org/2000/svg" width="96" height="96")" + rootAttributes + ">" +
         content + "</svg>\n";
}

void expectSaved(const std::vector<SvgWriterCase>& cases) {
  for (const SvgWriterCase& example : cases) {
    SCOPED_TRACE(example.name);
    SvgDrawing drawing = readDrawing(example.before);
    ASSERT_NE(drawing.document, nullptr);
    EXPECT_EQ(writeSvg(drawing), example.before);
    drawing.document->beginStep("change");
    example.change(drawing);
    drawing.document->endStep();
    EXPECT_EQ(saved(drawing), example.after);
    drawing.document->undo();
    EXPECT_EQ(writeSvg(drawing), example.before) << "undone changes leave a trace";
  }
}

}  // namespace host
