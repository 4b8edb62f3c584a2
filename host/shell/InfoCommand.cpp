#include <iostream>

#include "Commands.h"
#include "Complain.h"
#include "DrawingFile.h"
#include "DrawingReport.h"

namespace host {

ExitCode runInfo(const InfoArguments& arguments) {
  auto opened = openDrawing(arguments.input);
  if (const std::string* reason = std::get_if<std::string>(&opened)) {
    complain(*reason);
    return kExitCouldNot;
  }
  const SvgDrawing& drawing = std::get<SvgDrawing>(opened);
  const std::string name = shownName(arguments.input);
  std::cout << (arguments.json ? reportAsJson(drawing, name) : reportAsText(drawing, name)) << std::flush;
  if (!std::cout) {
    complain("cannot write to standard output");
    return kExitCouldNot;
  }
  return kExitDone;
}

}  // namespace host
