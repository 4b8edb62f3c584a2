#include <iostream>

#include "Commands.h"
#include "Complain.h"
#include "DrawingFile.h"
#include "DrawingReport.h"
#include "Preflight.h"

namespace host {

ExitCode runInfo(const InfoArguments& arguments) {
  auto opened = openDrawing(arguments.input);
  if (const std::string* reason = std::get_if<std::string>(&opened)) {
    complain(*reason);
    return kExitCouldNot;
  }
  const SvgDrawing& drawing = std::get<SvgDrawing>(opened);
  const std::string name = shownName(arguments.input);
  std::vector<Finding> found;
  if (arguments.check) found = preflight(*drawing.document);
  const std::vector<Finding>* const findings = arguments.check ? &found : nullptr;
  std::cout << (arguments.json ? reportAsJson(drawing, name, findings)
                               : reportAsText(drawing, name, findings))
            << std::flush;
  if (!std::cout) {
    complain("cannot write to standard output");
    return kExitCouldNot;
  }
  return found.empty() ? kExitDone : kExitWithMessages;
}

}  // namespace host
