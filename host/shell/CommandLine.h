// What the user asked for on the command line.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace host {

enum ExitCode : int {
  kExitDone = 0,
  kExitCouldNot = 1,  // one sentence on standard error says why
  kExitUsage = 2,
  kExitWithMessages = 3  // done, but the product had something to say
};

struct CommonOptions {
  std::string plugin;                    // folder of the bundle; empty: the one beside the program
  std::string language;                  // a tag such as "pt-BR"; empty: as the environment says
  std::string theme;                     // "light" or "dark"; empty: the one chosen last
  std::vector<std::string> preferences;  // PREFIX/SUFFIX=VALUE, for this run only
  std::vector<std::string> refuse;
  std::size_t refuseNth = 0;  // 0: none
};

enum class Placement { Corner = 1, Auto = 2, Edge = 3 };
enum class MarkShape { Round = 0, Cross = 1 };

// Lengths in points. "-" as a file is standard input or output.
struct MarksArguments {
  std::vector<std::string> inputs;
  std::string output;     // one input
  std::string outFolder;  // made if it is not there; any number of inputs, and files named like them
  Placement placement = Placement::Corner;
  MarkShape shape = MarkShape::Round;
  double size = 6 * 72 / 25.4;
  double weight = 1 * 72 / 25.4;
  double amount = 0.5;
  bool json = false;
};

struct ExportArguments {
  std::string input;
  std::string output;
  std::vector<std::string> steps;  // NAME=TYPE
  bool printFile = false;
  bool cutFile = false;
  bool summary = false;
};

struct InfoArguments {
  std::string input;
  bool json = false;
  bool check = false;  // also what is likely to go wrong on the table
};

// Without a command the window opens.
struct WindowArguments {
  std::vector<std::string> files;
  std::string screenshot;  // PNG to write before the program ends by itself; empty: it stays open
};

struct CommandLine {
  CommonOptions common;
  std::variant<WindowArguments, MarksArguments, ExportArguments, InfoArguments> command;
};

// Either what to do, or the exit code after help, the version or a complaint was printed.
std::variant<CommandLine, ExitCode> parseCommandLine(int argc, char** argv);

}  // namespace host
