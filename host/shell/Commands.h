// The commands of the command line. Data goes to standard output, words to standard error.
#pragma once

#include "CommandLine.h"

namespace host {

ExitCode runWindow(const WindowArguments& arguments, const CommonOptions& common);
ExitCode runMarks(const MarksArguments& arguments, const CommonOptions& common);
ExitCode runExport(const ExportArguments& arguments);
ExitCode runInfo(const InfoArguments& arguments);

// Parses the command line, runs its command and answers with the exit code.
int runCommandLine(int argc, char** argv);

}  // namespace host
