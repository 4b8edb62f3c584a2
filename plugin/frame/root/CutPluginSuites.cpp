// The suites the plug-in cannot do without: a host that lacks one keeps the plug-in out.
#include "CutPlugin.h"

namespace Vandrell::Corvane {
namespace {

constexpr const char* kStartupSuites[] = {
    "AI Panel Suite",
    "AI Panel Flyout Menu Suite",
    "AI User Interface Theme Suite",
    "AI Context Suite",
    "AI User Suite",
    "AI Modal Parent Suite",
    "AI Data Filter Suite",
    "AI Runtime Suite",
    "AI Notifier Suite",
    "AI Action Manager Suite",
    "AI Annotator Suite",
    "AI Artboard Suite",
    "AI Art Suite",
    "AI Art Set Suite",
    "AI Cloud Document Suite",
    "AI Cursor Snap Suite",
    "AI Color Conversion Suite",
    "AI Custom Color Suite",
    "AI Document Suite",
    "AI Document View Suite",
    "AI Document List Suite",
    "AI Expand Suite",
    "AI Folders Suite",
    "AI Hit Test Suite",
    "AI Layer Suite",
    "AI Matching Art Suite",
    "AI MdMemory Suite",
    "AI Menu Suite",
    "AI Paint Style Suite",
    "AI Path Suite",
    "AI Path Style Suite",
    "AI Placed Suite",
    "AI Plugin Group Suite",
    "AI Preference Suite",
    "AI Real Math Suite",
    "AI Real Bezier Suite",
    "AI Shape Construction Suite",
    "AI Swatch List Suite",
    "AI Swatch Group Suite",
    "AI Swatch Libraries Suite",
    "AI Tag Suite",
    "AI Text Frame Suite",
    "AIATE Paint Suite",
    "AI Font Suite",
    "ATE ApplicationPaint Suite",
    "ATE TextFrame Suite",
    "ATE TextFramesIterator Suite",
    "ATE TextLine Suite",
    "ATE TextLinesIterator Suite",
    "ATE DocumentTextResources Suite",
    "ATE ArrayApplicationPaintRef Suite",
    "ATE CharFeatures Suite",
    "ATE Font Suite",
    "ATE ParaFeatures Suite",
    "ATE Paragraph Suite",
    "ATE ParagraphsIterator Suite",
    "ATE Story Suite",
    "ATE TextRange Suite",
    "ATE TextRanges Suite",
    "ATE TextRangesIterator Suite",
    "ATE TextRunsIterator Suite",
    "AI Tool Suite",
    "AI Transform Art Suite",
    "AI Dictionary Suite",
    "AI UID Suite",
    "AI UIDREF Suite",
    "AI UID Utils Suite",
    "SP Access Suite",
    "SP Basic Suite",
    "SP Suites Suite",
};

constexpr std::int32_t kAnnotatorDrawerVersion = 1007;

}  // namespace

AIErr CutPlugin::RequestStartupSuites() {
  for (const char* name : kStartupSuites) RequestSuite(name);
  return RequestSuite("AI Annotator Drawer Suite", kAnnotatorDrawerVersion);
}

}  // namespace Vandrell::Corvane
