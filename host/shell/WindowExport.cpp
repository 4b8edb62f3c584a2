#include "WindowExport.h"

#include <QMainWindow>
#include <algorithm>
#include <optional>

#include "AlertBox.h"
#include "DrawingExport.h"
#include "ExportDialog.h"
#include "OpenDrawing.h"
#include "Preflight.h"
#include "Session.h"
#include "WaitCursor.h"
#include "WindowParts.h"
#include "WindowSettings.h"

namespace host {
namespace {

constexpr std::size_t kMostRemarks = 8;  // that a box has room for

std::size_t countFindings(const Document& document) {
  const WaitCursor cursor;
  return preflight(document).size();
}

// False if the user thought better of it.
bool askHow(const WindowParts& parts, const Document& document, ExportJob& job) {
  const std::optional<ExportChoice> choice = askHowToExport(
      document, job.output, parts.settings.exportExtras(), countFindings(document), &parts.window);
  if (!choice) return false;
  job.extras = choice->extras;
  parts.settings.setExportExtras(job.extras);
  parts.store();
  parts.session.edit("Processing Steps", [&](Document& current) { chooseSteps(current, choice->steps); });
  return true;
}

void showRemarks(const std::vector<std::string>& remarks, QWidget& window) {
  if (remarks.empty()) return;
  std::string text = "Exported, but not all is as in the drawing:";
  for (std::size_t i = 0; i < std::min(remarks.size(), kMostRemarks); ++i) text += "\n\n" + remarks[i];
  if (remarks.size() > kMostRemarks) {
    text += "\n\nand " + std::to_string(remarks.size() - kMostRemarks) + " more";
  }
  showAlertBox({AlertKind::Message, text}, &window);
}

}  // namespace

void exportFromWindow(const WindowParts& parts, const std::string& output) {
  const OpenDrawing& drawing = *parts.drawing();
  const ExportFormat* format = exportFormatOf(output);
  if (format == nullptr) {
    return parts.tell({"cannot tell what to write from the name " + output + "; name it " + exportEnds()});
  }
  ExportJob job{drawing.shown->title, drawing.shown->file, output, {}};
  if (format->kind == ExportKind::Pdf && !askHow(parts, *drawing.drawing.document, job)) return;
  parts.refresh();
  if (const std::string reason = overwritten(job); !reason.empty()) return parts.tell({reason});
  const Exported exported = [&] {
    const WaitCursor cursor;
    return exportDrawing(drawing.drawing, job);
  }();
  if (!exported.failure.empty()) return parts.tell({exported.failure});
  showRemarks(exported.remarks, parts.window);
}

}  // namespace host
