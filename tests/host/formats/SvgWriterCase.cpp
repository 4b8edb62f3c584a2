#include "SvgWriterCase.h"

#include <cctype>
#include <ostream>

namespace host {

void PrintTo(const SvgWriterCase& example, std::ostream* stream) {
  *stream << example.name;
}

std::string caseName(const testing::TestParamInfo<SvgWriterCase>& info) {
  std::string name = info.param.name;
  for (char& c : name) {
    if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
  }
  return name;
}

std::string file(const std::string& content, const std::string& rootAttributes) {
  return R"(<svg xmlns="http://www.w3.org/2000/svg" width="96" height="96")" + rootAttributes + ">" +
         content + "</svg>\n";
}

TEST_P(SvgWriter, WritesWhatChangedAndNothingElse) {
  SvgDrawing drawing = readDrawing(GetParam().before);
  ASSERT_NE(drawing.document, nullptr);
  EXPECT_EQ(writeSvg(drawing), GetParam().before);
  drawing.document->beginStep("change");
  GetParam().change(drawing);
  drawing.document->endStep();
  EXPECT_EQ(saved(drawing), GetParam().after);
  drawing.document->undo();
  EXPECT_EQ(writeSvg(drawing), GetParam().before) << "undone changes leave a trace";
}

}  // namespace host
