#include <filesystem>
#include <iostream>

#include "Commands.h"
#include "Complain.h"
#include "DrawingFile.h"
#include "PngExport.h"

namespace host {

ExitCode runExport(const ExportArguments& arguments) {
  const std::string kind = std::filesystem::path(arguments.output).extension().string();
  if (kind != ".png" && kind != ".svg") {
    complain("cannot tell what to write from the name " + arguments.output + "; name it .png or .svg");
    return kExitUsage;
  }
  auto opened = openDrawing(arguments.input);
  if (const std::string* reason = std::get_if<std::string>(&opened)) {
    complain(*reason);
    return kExitCouldNot;
  }
  const SvgDrawing& drawing = std::get<SvgDrawing>(opened);
  std::string bytes = writeSvg(drawing);
  if (kind == ".png") {
    PngOptions options;
    if (arguments.input != kStandardStream) options.file = arguments.input;
    auto picture = renderPng(drawing, std::move(bytes), options);
    if (const std::string* reason = std::get_if<std::string>(&picture)) {
      complain("cannot draw " + shownName(arguments.input) + ": " + *reason);
      return kExitCouldNot;
    }
    bytes = std::move(std::get<PngPicture>(picture).bytes);
  }
  const std::string reason = saveBytes(arguments.output, bytes);
  if (!reason.empty()) {
    complain(reason);
    return kExitCouldNot;
  }
  std::cerr << shownName(arguments.input) << ": exported to " << arguments.output << '\n';
  return kExitDone;
}

}  // namespace host
