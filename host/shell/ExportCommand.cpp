#include <iostream>
#include <string>
#include <vector>

#include "Commands.h"
#include "Complain.h"
#include "DrawingExport.h"
#include "DrawingFile.h"

namespace host {

ExitCode runExport(const ExportArguments& arguments) {
  if (exportFormatOf(arguments.output) == nullptr) {
    complain("cannot tell what to write from the name " + arguments.output + "; name it " + exportEnds());
    return kExitUsage;
  }
  auto opened = openDrawing(arguments.input);
  if (const std::string* reason = std::get_if<std::string>(&opened)) {
    complain(*reason);
    return kExitCouldNot;
  }
  const std::string name = shownName(arguments.input);
  const std::string place = arguments.input == kStandardStream ? std::string() : arguments.input;
  std::vector<std::string> remarks;
  const std::string reason =
      exportDrawing(std::get<SvgDrawing>(opened), name, place, arguments.output, remarks);
  if (!reason.empty()) {
    complain(reason);
    return kExitCouldNot;
  }
  for (const std::string& remark : remarks) std::cerr << name << ": " << remark << '\n';
  std::cerr << name << ": exported to " << arguments.output << '\n';
  return kExitDone;
}

}  // namespace host
