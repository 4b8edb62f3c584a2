#include "DrawingExport.h"

#include <algorithm>
#include <filesystem>
#include <utility>
#include <variant>

#include "DrawingFile.h"
#include "PdfExport.h"
#include "PngExport.h"
#include "QtTextOutliner.h"

namespace host {
namespace {

struct ExportFailure {
  std::string reason;
};

constexpr char kPng[] = ".png";
constexpr char kSvg[] = ".svg";
constexpr char kPdf[] = ".pdf";

// The file's bytes, or a clause on why there are none.
using Made = std::variant<std::string, ExportFailure>;

Made makePng(const SvgDrawing& drawing, std::string svg, const std::string& input) {
  PngOptions options;
  options.file = input;
  auto picture = renderPng(drawing, std::move(svg), options);
  if (std::string* reason = std::get_if<std::string>(&picture)) return ExportFailure{std::move(*reason)};
  return std::move(std::get<PngPicture>(picture).bytes);
}

Made makePdf(std::string svg, const std::string& name, const std::string& input,
             std::vector<std::string>& remarks) {
  PdfOptions options;
  options.title = name;
  options.file = input;
  const QtTextOutliner outliner;
  auto made = exportPdf(std::move(svg), &outliner, options);
  if (std::string* reason = std::get_if<std::string>(&made)) return ExportFailure{std::move(*reason)};
  PdfFile& file = std::get<PdfFile>(made);
  remarks.insert(remarks.end(), file.remarks.begin(), file.remarks.end());
  return std::move(file.bytes);
}

}  // namespace

const std::vector<ExportFormat>& exportFormats() {
  static const std::vector<ExportFormat> formats{
      {kPdf, "PDF files"}, {kPng, "PNG pictures"}, {kSvg, "SVG drawings"}};
  return formats;
}

const ExportFormat* exportFormatOf(const std::string& output) {
  const std::string end = std::filesystem::path(output).extension().string();
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

std::string exportDrawing(const SvgDrawing& drawing, const std::string& name, const std::string& input,
                          const std::string& output, std::vector<std::string>& remarks) {
  const std::string end = exportFormatOf(output)->end;
  Made made = writeSvg(drawing);
  if (end == kPng) made = makePng(drawing, std::move(std::get<std::string>(made)), input);
  if (end == kPdf) made = makePdf(std::move(std::get<std::string>(made)), name, input, remarks);
  if (const ExportFailure* failure = std::get_if<ExportFailure>(&made)) {
    return "cannot draw " + name + ": " + failure->reason;
  }
  return saveBytes(output, std::get<std::string>(made));
}

}  // namespace host
