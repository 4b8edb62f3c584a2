#include "DrawingExport.h"

#include <algorithm>
#include <filesystem>
#include <utility>
#include <variant>

#include "DrawingFile.h"
#include "JobSummary.h"
#include "PdfExport.h"
#include "PngExport.h"
#include "ProcessingSteps.h"
#include "QtTextOutliner.h"
#include "StepWords.h"
#include "WordList.h"

namespace host {
namespace {

constexpr char kPrintEnd[] = "-print.pdf";
constexpr char kCutEnd[] = "-cut.pdf";
constexpr char kTextEnd[] = ".txt";
constexpr char kJsonEnd[] = ".json";

struct ExportFailure {
  std::string reason;
};

// A file's bytes, or a clause on why there are none.
using Made = std::variant<std::string, ExportFailure>;

// "sheet-cut.pdf" for "sheet.pdf".
std::string beside(const std::string& output, const char* end) {
  const std::filesystem::path path(output);
  return (path.parent_path() / path.stem()).string() + end;
}

class Exporting {
 public:
  Exporting(const SvgDrawing& drawing, const ExportJob& job)
      : drawing_(drawing),
        job_(job),
        title_(std::filesystem::path(job.name).filename().string()),
        svg_(writeSvg(drawing)) {}

  Exported run() {
    make();
    if (result_.failure.empty()) write();
    return std::move(result_);
  }

 private:
  void make() {
    switch (exportFormatOf(job_.output)->kind) {
      case ExportKind::Png:
        return keep(job_.output, png());
      case ExportKind::Svg:
        return keep(job_.output, svg_);
      case ExportKind::Pdf:
        break;
    }
    keepPdf(job_.output, PdfPart::Whole);
    if (job_.extras.printFile) keepPdf(beside(job_.output, kPrintEnd), PdfPart::Print);
    if (job_.extras.cutFile) keepPdf(beside(job_.output, kCutEnd), PdfPart::Cut);
    if (!job_.extras.summary) return;
    const JobSummary summary = summaryOf(*drawing_.document);
    keep(beside(job_.output, kTextEnd), summaryAsText(summary, title_));
    keep(beside(job_.output, kJsonEnd), summaryAsJson(summary, title_));
  }

  Made png() const {
    PngOptions options;
    options.file = job_.input;
    auto picture = renderPng(drawing_, svg_, options);
    if (std::string* reason = std::get_if<std::string>(&picture)) return ExportFailure{std::move(*reason)};
    return std::move(std::get<PngPicture>(picture).bytes);
  }

  Made pdf(PdfPart part) {
    PdfOptions options;
    options.title = title_;
    options.file = job_.input;
    options.steps = stepsOf(*drawing_.document);
    options.part = part;
    const QtTextOutliner outliner;
    auto made = exportPdf(svg_, &outliner, options);
    if (std::string* reason = std::get_if<std::string>(&made)) return ExportFailure{std::move(*reason)};
    PdfFile& file = std::get<PdfFile>(made);
    if (part == PdfPart::Whole) keepRemarks(std::move(file.remarks));  // a part has no others
    return std::move(file.bytes);
  }

  // Objects without names may all say the same.
  void keepRemarks(std::vector<std::string> remarks) {
    remarks.erase(std::unique(remarks.begin(), remarks.end()), remarks.end());
    result_.remarks = std::move(remarks);
  }

  void keepPdf(std::string file, PdfPart part) {
    if (result_.failure.empty()) keep(std::move(file), pdf(part));
  }

  // After a failure nothing more is kept.
  void keep(std::string file, Made made) {
    if (!result_.failure.empty()) return;
    if (const ExportFailure* failure = std::get_if<ExportFailure>(&made)) {
      result_.failure = "cannot draw " + job_.name + ": " + failure->reason;
    } else {
      made_.emplace_back(std::move(file), std::move(std::get<std::string>(made)));
    }
  }

  void write() {
    std::vector<std::string> written;
    for (const auto& [file, bytes] : made_) {
      result_.failure = saveBytes(file, bytes);
      if (result_.failure.empty()) {
        written.push_back(file);
        continue;
      }
      if (!written.empty())
        result_.failure += "; " + wordList(written, "and") + (written.size() > 1 ? " are" : " is") + " there";
      return;
    }
  }

  const SvgDrawing& drawing_;
  const ExportJob& job_;
  const std::string title_;
  const std::string svg_;
  std::vector<std::pair<std::string, std::string>> made_;  // files and their bytes
  Exported result_;
};

}  // namespace

const std::vector<ExportFormat>& exportFormats() {
  static const std::vector<ExportFormat> formats{{ExportKind::Pdf, ".pdf", "PDF files"},
                                                 {ExportKind::Png, ".png", "PNG pictures"},
                                                 {ExportKind::Svg, ".svg", "SVG drawings"}};
  return formats;
}

const ExportFormat* exportFormatOf(const std::string& output) {
  const std::string end = inSmallLetters(std::filesystem::path(output).extension().string());
  const auto& all = exportFormats();
  const auto found =
      std::find_if(all.begin(), all.end(), [&](const ExportFormat& format) { return end == format.end; });
  return found == all.end() ? nullptr : &*found;
}

std::string exportEnds() {
  std::string text;
  for (const ExportFormat& format : exportFormats())
    text += (text.empty() ? "" : " or ") + std::string(format.end);
  return text;
}

std::vector<std::string> exportFiles(const std::string& output, const ExportExtras& extras) {
  std::vector<std::string> files{output};
  if (extras.printFile) files.push_back(beside(output, kPrintEnd));
  if (extras.cutFile) files.push_back(beside(output, kCutEnd));
  if (extras.summary) files.insert(files.end(), {beside(output, kTextEnd), beside(output, kJsonEnd)});
  return files;
}

std::string overwritten(const ExportJob& job) {
  if (exportFormatOf(job.output)->kind == ExportKind::Svg) return {};
  for (const std::string& file : exportFiles(job.output, job.extras)) {
    std::error_code isMissing;
    if (!std::filesystem::equivalent(file, job.input, isMissing)) continue;
    return file + " would be written over the drawing itself";
  }
  return {};
}

Exported exportDrawing(const SvgDrawing& drawing, const ExportJob& job) {
  return Exporting(drawing, job).run();
}

}  // namespace host
