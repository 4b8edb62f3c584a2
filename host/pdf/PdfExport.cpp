#include "PdfExport.h"

#include <qpdf/Pl_Flate.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFExc.hh>
#include <qpdf/QPDFWriter.hh>

#include <algorithm>
#include <cmath>

#include "PdfFonts.h"
#include "PdfPage.h"
#include "PdfProof.h"
#include "PdfSpotNames.h"

namespace host {
namespace {

constexpr double kLongestSide = 14400;  // units of a page
// Against the best a fiftieth is lost, in a third of the time.
constexpr int kCompression = 4;

// Points in a unit of the page: 1 unless the artboard is beyond what a page can be.
double userUnitOf(const Document& document, const Artboard& artboard) {
  const AIRealRect& page = artboard.position;
  const double side = std::max(page.right - page.left, page.top - page.bottom) * document.scale();
  return std::max(1.0, std::ceil(side / kLongestSide));
}

class Export {
 public:
  Export(const SvgDrawing& drawing, const PdfOptions& options)
      : drawing_(drawing),
        options_(options),
        effects_(drawing),
        choice_(*drawing.document, options),
        plan_(drawing, effects_, choice_),
        layers_(prepared(pdf_), *drawing.document, choice_),
        inks_(pdf_, *drawing.document),
        pictures_(drawing),
        parts_{drawing, choice_, plan_, layers_, inks_, states_, pictures_, groups_} {}

  // Empty, or a clause on why not.
  std::string write(PdfFile& file) {
    std::vector<std::string> contents;
    const auto& artboards = drawing_.document->state().artboards;
    for (std::size_t i = 0; i < artboards.size(); ++i) {
      contents.push_back(PdfPage(parts_, i, userUnitOf(*drawing_.document, artboards[i])).content());
    }
    std::vector<QPDFObjectHandle> forms;
    if (std::string reason = pictures_.drawInto(pdf_, options_.file, forms); !reason.empty()) return reason;
    const QPDFObjectHandle resources = pdf_.makeIndirectObject(resourcesWith(forms));
    for (std::size_t i = 0; i < contents.size(); ++i) addPage(i, contents[i], resources);
    nameIt();
    file.bytes = bytes();
    file.remarks = losses();
    return {};
  }

 private:
  static QPDF& prepared(QPDF& pdf) {
    pdf.emptyPDF();
    return pdf;
  }

  QPDFObjectHandle resourcesWith(const std::vector<QPDFObjectHandle>& forms) {
    auto objects = QPDFObjectHandle::newDictionary();
    for (std::size_t i = 0; i < forms.size(); ++i) objects.replaceKey(pdfResource("P", i), forms[i]);
    auto resources = QPDFObjectHandle::newDictionary();
    resources.replaceKey("/ColorSpace", pdf_.makeIndirectObject(inks_.resources()));
    resources.replaceKey("/ExtGState", pdf_.makeIndirectObject(states_.resources()));
    groups_.drawInto(pdf_, resources, objects);
    resources.replaceKey("/Properties", layers_.resources());
    resources.replaceKey("/XObject", objects);
    return resources;
  }

  void addPage(std::size_t artboard, const std::string& content, const QPDFObjectHandle& resources) {
    const double unit = userUnitOf(*drawing_.document, drawing_.document->state().artboards[artboard]);
    const AIRealPoint size = pageSize(*drawing_.document, artboard, unit);
    const QPDFObjectHandle::Rectangle box(0, 0, size.x, size.y);
    auto page = QPDFObjectHandle::newDictionary();
    page.replaceKey("/Type", QPDFObjectHandle::newName("/Page"));
    page.replaceKey("/MediaBox", QPDFObjectHandle::newFromRectangle(box));
    page.replaceKey("/TrimBox", QPDFObjectHandle::newFromRectangle(box));
    if (unit > 1) page.replaceKey("/UserUnit", QPDFObjectHandle::newInteger(static_cast<long long>(unit)));
    page.replaceKey("/Resources", resources);
    page.replaceKey("/Contents", QPDFObjectHandle::newStream(&pdf_, content));
    pdf_.addPage(pdf_.makeIndirectObject(page), false);
  }

  void nameIt() {
    auto info = QPDFObjectHandle::newDictionary();
    info.replaceKey("/Producer", QPDFObjectHandle::newUnicodeString("corvane-host"));
    if (!options_.title.empty())
      info.replaceKey("/Title", QPDFObjectHandle::newUnicodeString(options_.title));
    pdf_.getTrailer().replaceKey("/Info", pdf_.makeIndirectObject(info));
  }

  std::string bytes() {
    Pl_Flate::setCompressionLevel(kCompression);
    QPDFWriter writer(pdf_);
    writer.setOutputMemory();
    writer.setMinimumPDFVersion("1.7");
    writer.setObjectStreamMode(qpdf_o_preserve);
    writer.setDeterministicID(true);
    writer.write();
    const auto buffer = writer.getBufferSharedPointer();
    return {reinterpret_cast<const char*>(buffer->getBuffer()), buffer->getSize()};
  }

  std::vector<std::string> losses() const {
    std::vector<std::string> remarks = fontsNotAtHand(drawing_);
    for (ArtId id = 1; id <= drawing_.document->artSlots(); ++id) {
      const char* loss = plan_.lossOf(id);
      if (drawing_.document->art(id) == nullptr || loss == nullptr) continue;
      remarks.push_back(nameOfObject(drawing_, id) + " is painted with inks and loses " + loss);
    }
    return remarks;
  }

  const SvgDrawing& drawing_;
  const PdfOptions& options_;
  QPDF pdf_;
  SvgEffects effects_;
  PdfChoice choice_;
  PdfPlan plan_;
  PdfLayers layers_;
  PdfInks inks_;
  PdfStates states_;
  PdfPictures pictures_;
  PdfGroups groups_;
  PdfParts parts_;
};

}  // namespace

std::variant<PdfFile, std::string> exportPdf(std::string svg, const TextOutliner* outliner,
                                             const PdfOptions& options) {
  auto read = readSvg(std::move(svg), outliner);
  if (const SvgError* error = std::get_if<SvgError>(&read)) return error->reason;
  const SvgDrawing& drawing = std::get<SvgDrawing>(read);
  if (std::string trouble = troubleWithSpotNames(drawing); !trouble.empty()) return trouble;
  try {
    PdfFile file;
    std::string reason = Export(drawing, options).write(file);
    if (reason.empty()) reason = proofOf(file.bytes, drawing, options);
    if (!reason.empty()) return reason;
    return file;
  } catch (const QPDFExc& problem) {
    return problem.getMessageDetail();
  }
}

}  // namespace host
