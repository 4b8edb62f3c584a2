// What the selected tool tells, in the status bar.
#pragma once

#include <QLabel>
#include <string>

#include "ToolInfo.h"

namespace host {

// Such as "X 12.50 pt   Y -3.00 pt". `pointsPerUnit`: of the document that the tool works in.
std::string infoText(const ToolInfo& info, double pointsPerUnit);

class InfoDisplay : public QLabel {
 public:
  InfoDisplay();
  void show(const ToolInfo& info, double pointsPerUnit);
};

}  // namespace host
