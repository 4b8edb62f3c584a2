#include "Commands.h"

#include "PreferredLanguages.h"

namespace host {
namespace {

struct Runner {
  const CommonOptions& common;
  ExitCode operator()(const WindowArguments& arguments) const { return runWindow(arguments, common); }
  ExitCode operator()(const MarksArguments& arguments) const { return runMarks(arguments, common); }
  ExitCode operator()(const ExportArguments& arguments) const { return runExport(arguments); }
  ExitCode operator()(const InfoArguments& arguments) const { return runInfo(arguments); }
};

}  // namespace

int runCommandLine(int argc, char** argv) {
  const auto parsed = parseCommandLine(argc, argv);
  if (const ExitCode* code = std::get_if<ExitCode>(&parsed)) return *code;
  const CommandLine& line = std::get<CommandLine>(parsed);
  if (!line.common.language.empty()) preferLanguage(line.common.language);
  return std::visit(Runner{line.common}, line.command);
}

}  // namespace host
