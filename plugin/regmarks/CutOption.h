// What the user chose for register marks.
#pragma once

#include <cstdint>

#include "AIColor.h"

namespace Vandrell::Corvane {

// Values of CutOption::shape and RegmarkStyle::shape. Any other value stands for no mark at all.
enum RegmarkShape : std::uint32_t { kRoundRegmark = 0, kCrossRegmark = 1 };

// Values of CutOption::action. Any other value does nothing, like kMarksManually.
enum RegmarkAction : std::uint32_t { kMarksManually = 0, kCornerMarks = 1, kAutoMarks = 2, kEdgeRing = 3 };

// Prefix of all preferences of register marks, and the key of the mark tool chosen last (an integer:
// 0 round, 1 cross). The other keys belong to CutOption.
constexpr char kRegmarkPreferencePrefix[] = "Corvane";
constexpr char kSelectedToolPreference[] = "SelectedTool";

// Weight of a stroke that was switched on without one, in points: 1 mm.
constexpr double kDefaultRegmarkStrokeWeight = 2.8346456692913384;

// Lives for one command. The colours are not stored with the rest: after the command the mark tool of
// that shape keeps them.
class CutOption {
 public:
  // The defaults. Measures the art of the current document, whose size sets the scale of `count`.
  CutOption();
  CutOption(const CutOption&) = default;
  CutOption& operator=(const CutOption&) = default;
  virtual ~CutOption();

  // Preferences that are not there leave their defaults. Results of the store are not looked at.
  void LoadPreferences();
  void SavePreferences() const;

  std::uint32_t shape = kRoundRegmark;
  std::uint32_t action = kCornerMarks;
  std::int64_t maxCount;                              // the Many end of the Few to Many scale
  std::int64_t count;                                 // sectors along the long side for kAutoMarks; Few is 2
  double size = 17.007874015748033;                   // points: 6 mm
  double strokeWeight = kDefaultRegmarkStrokeWeight;  // points
  AIColor fillColor;
  AIColor strokeColor;
};

}  // namespace Vandrell::Corvane
