// What the selected tool tells, in the status bar.
#pragma once

#include <QLabel>
#include <string>

#include "Document.h"
#include "ToolInfo.h"

namespace host {

// Such as "X 12.50 mm   Y -3.00 mm", in the unit of the document's rulers.
std::string infoText(const ToolInfo& info, const Document& document);

// How much is selected and how large it is together, such as "3 objects, 20.00 \u00d7 12.50 mm"; empty if
// nothing is. `extent` is that of all that is selected.
std::string selectionText(const Document& document, const AIRealRect& extent);

class InfoDisplay : public QLabel {
 public:
  InfoDisplay();
  void show(const std::string& text) { setText(QString::fromStdString(text)); }
};

}  // namespace host
