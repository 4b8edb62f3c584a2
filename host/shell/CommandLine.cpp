#include "CommandLine.h"

#include <CLI/CLI.hpp>
#include <filesystem>
#include <iostream>
#include <map>
#include <utility>

#include "DrawingFile.h"
#include "Length.h"
#include "PreferredLanguages.h"
#include "ProgramName.h"

namespace host {
namespace {

constexpr char kVersionText[] = "corvane-host " CORVANE_VERSION;

// Reads a length with its unit into points.
CLI::Option* addLength(CLI::App& command, const std::string& name, double& points, const std::string& help) {
  return command
      .add_option_function<std::string>(
          name,
          [&points](const std::string& text) {
            const std::optional<double> length = pointsOf(text);
            if (!length)
              throw CLI::ValidationError("\"" + text + "\" is no length; write 10pt, 6mm or 0.25in");
            points = *length;
          },
          help)
      ->type_name("LENGTH");
}

void addLanguage(CLI::App& app, std::string& tag) {
  app.add_option_function<std::string>(
         "--language",
         [&tag](const std::string& text) {
           const std::optional<std::string> read = languageTag(text);
           if (!read) throw CLI::ValidationError("\"" + text + "\" is no language; write de or pt-BR");
           tag = *read;
         },
         "Language of the interface, such as de or pt-BR")
      ->type_name("CODE");
}

void addCommonOptions(CLI::App& app, CommonOptions& common) {
  app.add_option("--plugin", common.plugin, "Bundle to load instead of the one beside the program")
      ->type_name("DIR");
  addLanguage(app, common.language);
  app.add_option("--theme", common.theme, "light or dark")->check(CLI::IsMember({"light", "dark"}));
  app.add_option("--pref", common.preferences, "A preference for this run")
      ->type_name("PREFIX/SUFFIX=VALUE")
      ->allow_extra_args(false);
  app.add_option("--refuse", common.refuse,
                 "Refuse a suite, or an entry's n-th call: \"AI Art Suite:NewArt:3\"")
      ->type_name("SUITE[:ENTRY[:N]]")
      ->allow_extra_args(false);
  app.add_option("--refuse-nth", common.refuseNth, "Refuse the n-th suite call of the run")->type_name("N");
}

void addWindow(CLI::App& app, WindowArguments& window) {
  app.add_option("FILE", window.files, "SVG drawings to open in the window");
  app.add_option("--screenshot", window.screenshot, "Write the window as PNG and end")->type_name("PNG");
}

void addMarks(CLI::App& app, MarksArguments& marks) {
  CLI::App* command = app.add_subcommand("marks", "Place register marks in drawings");
  command->add_option("INPUT", marks.inputs, "SVG drawings; - is standard input")->required();
  CLI::Option* output =
      command->add_option("-o,--output", marks.output, "Marked drawing; - is standard output");
  CLI::Option* folder = command->add_option("--out-dir", marks.outFolder,
                                            "Folder for the marked drawings, named like the inputs");
  output->excludes(folder);
  output->type_name("FILE");
  folder->type_name("DIR");
  const std::map<std::string, Placement> placements{
      {"corner", Placement::Corner}, {"auto", Placement::Auto}, {"edge", Placement::Edge}};
  command->add_option("--placement", marks.placement, "corner, auto or edge (corner)")
      ->transform(CLI::Transformer(placements).description(""))
      ->check(CLI::IsMember({Placement::Corner, Placement::Auto, Placement::Edge}).description(""));
  const std::map<std::string, MarkShape> shapes{{"round", MarkShape::Round}, {"cross", MarkShape::Cross}};
  command->add_option("--shape", marks.shape, "round or cross (round)")
      ->transform(CLI::CheckedTransformer(shapes).description(""));
  addLength(*command, "--size", marks.size, "Diameter of a round mark, bar length of a cross (6mm)");
  addLength(*command, "--weight", marks.weight,
            "Bar thickness of a cross, 1mm if it is 0; a round mark has no stroke (1mm)");
  command->add_option("--amount", marks.amount, "Few to Many, for auto (0.5)")
      ->check(CLI::Range(0.0, 1.0))
      ->type_name("0..1");
  command->add_flag("--json", marks.json, "Say what was placed as JSON, one object an input");
}

void addExport(CLI::App& app, ExportArguments& arguments) {
  CLI::App* command = app.add_subcommand("export", "Write a drawing as PDF, PNG or SVG");
  command->add_option("INPUT", arguments.input, "SVG drawing; - is standard input")->required();
  command->add_option("-o,--output", arguments.output, "FILE.pdf, FILE.png or FILE.svg")
      ->required()
      ->type_name("FILE");
  command
      ->add_option(
          "--step", arguments.steps,
          "Processing step of a line type's layer, such as \"Score=PartialCutting\" or \"Score=none\"")
      ->type_name("NAME=TYPE")
      ->allow_extra_args(false);
  command->add_flag("--print-file", arguments.printFile,
                    "Also write FILE-print.pdf: what is not painted in a line type, and the marks");
  command->add_flag("--cut-file", arguments.cutFile,
                    "Also write FILE-cut.pdf: what is painted in a line type, and the marks");
  command->add_flag("--summary", arguments.summary,
                    "Also write FILE.txt and FILE.json: artboards, line types with their lengths, marks");
}

void addInfo(CLI::App& app, InfoArguments& arguments) {
  CLI::App* command = app.add_subcommand("info", "Tell what a drawing holds and what was not understood");
  command->add_option("INPUT", arguments.input, "SVG drawing; - is standard input")->required();
  command->add_flag("--json", arguments.json, "As one JSON object");
  command->add_flag(
      "--check", arguments.check,
      "Also tell what is likely to go wrong when it is printed and cut; exit code 3 if anything is");
}

// A word that names no file is taken for a command that was meant. A sentence; empty if all is well.
std::string complaintAbout(const WindowArguments& window) {
  for (const std::string& file : window.files) {
    std::error_code ignored;
    const bool isWord = file.find_first_of("./") == std::string::npos && file != kStandardStream;
    if (isWord && !std::filesystem::exists(file, ignored)) {
      return "\"" + file + "\" is neither a command nor a drawing";
    }
  }
  return {};
}

// What belongs to the window and was given to a command. A sentence; empty if all is well.
std::string complaintAbout(const WindowArguments& window, const std::string& command) {
  if (!window.files.empty()) return command + " takes no further file " + window.files.front();
  if (!window.screenshot.empty()) return "--screenshot is for the window, not for " + command;
  return {};
}

// A sentence on what is missing or contradictory; empty if all is well.
std::string complaintAbout(const MarksArguments& marks) {
  if (marks.output.empty() && marks.outFolder.empty())
    return "say where the result goes: -o FILE or --out-dir DIR";
  if (marks.inputs.size() > 1 && marks.outFolder.empty())
    return "several drawings need --out-dir DIR, not -o";
  if (marks.json && marks.output == "-") return "--json and -o - both want standard output";
  return {};
}

void refuse(const std::string& complaint) {
  if (!complaint.empty()) throw CLI::ValidationError(complaint);
}

}  // namespace

std::variant<CommandLine, ExitCode> parseCommandLine(int argc, char** argv) {
  CommonOptions common;
  WindowArguments window;
  MarksArguments marks;
  ExportArguments exporting;
  InfoArguments info;
  CLI::App app(
      "Opens SVG drawings in a window, or runs one command on them, and saves them with nothing lost.",
      kProgramName);
  app.fallthrough();
  app.require_subcommand(0, 1);
  app.set_version_flag("--version", kVersionText);
  addWindow(app, window);
  addCommonOptions(app, common);
  addMarks(app, marks);
  addExport(app, exporting);
  addInfo(app, info);
  try {
    app.parse(argc, argv);
    const std::vector<CLI::App*> commands = app.get_subcommands();
    const std::string command = commands.empty() ? std::string() : commands.front()->get_name();
    if (!command.empty()) refuse(complaintAbout(window, command));
    CommandLine line{std::move(common), {}};
    if (command == "marks") {
      refuse(complaintAbout(marks));
      line.command = std::move(marks);
    } else if (command == "export") {
      line.command = std::move(exporting);
    } else if (command == "info") {
      line.command = std::move(info);
    } else {
      refuse(complaintAbout(window));
      line.command = std::move(window);
    }
    return line;
  } catch (const CLI::Success& wantsText) {
    app.exit(wantsText, std::cout, std::cerr);
    return kExitDone;
  } catch (const CLI::ParseError& complaint) {
    std::cerr << kProgramName << ": " << complaint.what() << "; see corvane-host --help\n";
    return kExitUsage;
  }
}

}  // namespace host
