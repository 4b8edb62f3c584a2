#include <iostream>
#include <string>
#include <vector>

#include "Commands.h"
#include "Complain.h"
#include "DrawingExport.h"
#include "DrawingFile.h"
#include "StepOptions.h"
#include "WordList.h"

namespace host {
namespace {

ExportExtras extrasOf(const ExportArguments& arguments) {
  return {arguments.printFile, arguments.cutFile, arguments.summary};
}

ExportJob jobOf(const ExportArguments& arguments) {
  const bool isStream = arguments.input == kStandardStream;
  return {shownName(arguments.input), isStream ? std::string() : arguments.input, arguments.output,
          extrasOf(arguments)};
}

// A sentence on what makes no sense, whatever the drawing holds; empty if all is well.
std::string complaintAbout(const ExportArguments& arguments) {
  const ExportFormat* format = exportFormatOf(arguments.output);
  if (format == nullptr) {
    return "cannot tell what to write from the name " + arguments.output + "; name it " + exportEnds();
  }
  const ExportExtras extras = extrasOf(arguments);
  if (extras.any() && format->kind != ExportKind::Pdf) {
    return "--print-file, --cut-file and --summary go with a .pdf, not with " + arguments.output;
  }
  if (!arguments.steps.empty() && format->kind == ExportKind::Png) {
    return "--step goes with a .pdf or a .svg, not with " + arguments.output;
  }
  return overwritten(jobOf(arguments));
}

ExitCode refuse(const std::string& complaint, ExitCode code) {
  complain(complaint);
  return code;
}

}  // namespace

ExitCode runExport(const ExportArguments& arguments) {
  if (const std::string complaint = complaintAbout(arguments); !complaint.empty()) {
    return refuse(complaint, kExitUsage);
  }
  auto opened = openDrawing(arguments.input);
  if (const std::string* reason = std::get_if<std::string>(&opened)) return refuse(*reason, kExitCouldNot);
  const SvgDrawing& drawing = std::get<SvgDrawing>(opened);
  if (const std::string complaint = chooseSteps(arguments.steps, *drawing.document); !complaint.empty()) {
    return refuse(complaint, kExitUsage);
  }
  const ExportJob job = jobOf(arguments);
  const Exported exported = exportDrawing(drawing, job);
  if (!exported.failure.empty()) return refuse(exported.failure, kExitCouldNot);
  for (const std::string& remark : exported.remarks) std::cerr << job.name << ": " << remark << '\n';
  std::cerr << job.name << ": exported to " << wordList(exportFiles(job.output, job.extras), "and") << '\n';
  return exported.remarks.empty() ? kExitDone : kExitWithMessages;
}

}  // namespace host
