#include <filesystem>
#include <iostream>
#include <nlohmann/json.hpp>
#include <optional>
#include <set>
#include <utility>

#include "AlertLine.h"
#include "Commands.h"
#include "Complain.h"
#include "DialogAnswerer.h"
#include "DrawingFile.h"
#include "DrawingReport.h"
#include "HiddenPanels.h"
#include "JobMarks.h"
#include "MarksProduct.h"
#include "OffscreenApplication.h"
#include "Session.h"
#include "Startup.h"

namespace host {
namespace {

namespace fs = std::filesystem;

// What one drawing came to.
struct Outcome {
  std::vector<AIRealPoint> marks;  // centres in points, in drawing order
  std::int32_t notPlaced = 0;
  std::vector<std::string> messages;
};

std::vector<AIRealPoint> marksIn(const Document& document) {
  std::vector<AIRealPoint> centres;
  for (const JobMark& mark : marksOf(document)) {
    centres.push_back({mark.centre.x * document.scale(), mark.centre.y * document.scale()});
  }
  return centres;
}

std::string asJson(const std::string& input, const std::string& output, const Outcome& outcome) {
  nlohmann::ordered_json json{{"input", input}, {"marks", nlohmann::ordered_json::array()}};
  for (const AIRealPoint& centre : outcome.marks) json["marks"].push_back({{"x", centre.x}, {"y", centre.y}});
  json["not_placed"] = outcome.notPlaced;
  json["messages"] = outcome.messages;
  json["output"] = output;
  return json.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace) + "\n";
}

class MarksRun {
 public:
  MarksRun(const MarksArguments& arguments, const CommonOptions& common)
      : arguments_(arguments), common_(common), host_(userPreferences(), userFolders()), session_(host_) {}

  ExitCode run() {
    if (const ExitCode code = prepare(); code != kExitDone) return code;
    session_.start();
    ExitCode worst = kExitDone;
    for (const auto& [input, output] : jobs_) {
      const ExitCode code = mark(input, output);
      if (worst != kExitCouldNot && code != kExitDone) worst = code;
    }
    session_.shutdown();
    return worst;
  }

 private:
  ExitCode prepare() {
    for (const std::string& wrong : {overlayOptions(), armRefusals(host_, common_), listJobs()}) {
      if (wrong.empty()) continue;
      complain(wrong);
      return kExitUsage;
    }
    if (const std::string reason = makeFolder(); !reason.empty()) {
      complain(reason);
      return kExitCouldNot;
    }
    host_.showAlert = [](const Alert& alert) { std::cerr << alertLine(alert) << '\n'; };
    ensureApplication();
    answerer_.emplace(host_);
    if (const std::string reason = loadPlugin(session_, common_); !reason.empty()) {
      complain(reason);
      refusals_.tell(host_);
      return kExitCouldNot;
    }
    return kExitDone;
  }

  // Anew for every drawing, since the product stores what it used: its dialog opens with these options and
  // is accepted as it stands. Empty, or a sentence on a preference that is none.
  std::string overlayOptions() {
    const auto overlay = [this](const char* key, PreferenceValue value) {
      host_.preferences().overlay(kMarksProduct.preferencePrefix, key, std::move(value));
    };
    overlay(kMarksProduct.sizeKey, arguments_.size);
    overlay(kMarksProduct.weightKey, arguments_.weight);
    overlay(kMarksProduct.amountKey, arguments_.amount);
    overlay(kMarksProduct.shapeKey, static_cast<std::int32_t>(arguments_.shape) + 1);
    overlay(kMarksProduct.placementKey, static_cast<std::int32_t>(arguments_.placement) + 1);
    overlay(kMarksProduct.notPlacedKey, std::int32_t{0});
    return overlayPreferences(host_, common_);
  }

  // Pairs inputs with outputs. Empty, or a sentence on two drawings that would become one file.
  std::string listJobs() {
    std::set<std::string> taken;
    for (const std::string& input : arguments_.inputs) {
      std::string output = arguments_.output;
      if (output.empty()) {
        const std::string name = input == kStandardStream ? "stdin.svg" : fs::path(input).filename().string();
        output = (fs::path(arguments_.outFolder) / name).string();
      }
      if (!taken.insert(output).second) return "two of the drawings would both be saved as " + output;
      jobs_.emplace_back(input, output);
    }
    return {};
  }

  // Empty, or why there is no folder for the marked drawings.
  std::string makeFolder() const {
    std::error_code error;
    if (!arguments_.outFolder.empty()) fs::create_directories(arguments_.outFolder, error);
    return error ? "cannot make the folder " + arguments_.outFolder + ": " + error.message() : "";
  }

  ExitCode mark(const std::string& input, const std::string& output) {
    auto opened = openDrawing(input);
    if (const std::string* reason = std::get_if<std::string>(&opened)) {
      complain(*reason);
      return kExitCouldNot;
    }
    const SvgDrawing drawing = std::move(std::get<SvgDrawing>(opened));
    const std::size_t alertsBefore = host_.alerts().size();
    overlayOptions();
    session_.openDocument(drawing.document, shownName(input), input == kStandardStream ? "" : input);
    const std::optional<SPErr> code = session_.chooseMenuItem(kMarksProduct.menuKey);
    session_.closeDocument(*drawing.document);
    refusals_.tell(host_);
    if (!code || *code != kSPNoError) {
      complain(code ? "the plug-in failed on " + shownName(input) + " with code " + std::to_string(*code)
                    : std::string("the plug-in offers no command \"") + kMarksProduct.menuKey + "\"");
      return kExitCouldNot;
    }
    if (const std::string reason = saveBytes(output, writeSvg(drawing)); !reason.empty()) {
      complain(reason);
      return kExitCouldNot;
    }
    return report(input, output, outcomeOf(*drawing.document, alertsBefore));
  }

  Outcome outcomeOf(const Document& document, std::size_t alertsBefore) {
    Outcome outcome;
    outcome.marks = marksIn(document);
    outcome.notPlaced =
        host_.preferences().integer(kMarksProduct.preferencePrefix, kMarksProduct.notPlacedKey).value_or(0);
    for (std::size_t i = alertsBefore; i < host_.alerts().size(); ++i) {
      outcome.messages.push_back(host_.alerts()[i].text);
    }
    return outcome;
  }

  ExitCode report(const std::string& input, const std::string& output, const Outcome& outcome) {
    if (arguments_.json) std::cout << asJson(input, output, outcome) << std::flush;
    const std::size_t count = outcome.marks.size();
    std::cerr << shownName(input) << ": ";
    if (count == 0) {
      std::cerr << "no marks were placed";
    } else {
      std::cerr << count << (count == 1 ? " mark" : " marks");
    }
    if (outcome.notPlaced > 0) std::cerr << ", " << outcome.notPlaced << " found no room";
    std::cerr << "; saved to " << (output == kStandardStream ? "standard output" : output) << '\n';
    const bool quiet = outcome.messages.empty() && count > 0 && host_.refusal().refused().empty();
    return quiet ? kExitDone : kExitWithMessages;
  }

  const MarksArguments& arguments_;
  const CommonOptions& common_;
  Host host_;
  HiddenPanels panels_{host_};
  std::optional<DialogAnswerer> answerer_;  // while plug-ins are at work
  Session session_;
  std::vector<std::pair<std::string, std::string>> jobs_;  // input and output
  RefusalReport refusals_;
};

}  // namespace

ExitCode runMarks(const MarksArguments& arguments, const CommonOptions& common) {
  return MarksRun(arguments, common).run();
}

}  // namespace host
