// Texts are readable in both themes.
#include "ThemePalette.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include <gtest/gtest.h>

namespace {

using host::Theme;

double linear(double channel) {
  return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour) {
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

// From 1 to 21: https://www.w3.org/TR/WCAG21/#dfn-contrast-ratio
double contrast(const QColor& one, const QColor& other) {
  const double a = luminance(one);
  const double b = luminance(other);
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

using P = QPalette;

const std::pair<P::ColorRole, std::vector<P::ColorRole>> kTextsOn[] = {
    {P::Window, {P::WindowText, P::Text, P::Link, P::LinkVisited}},
    {P::Base, {P::Text, P::PlaceholderText, P::Link, P::LinkVisited}},
    {P::Midlight, {P::WindowText}},
    {P::AlternateBase, {P::Text}},
    {P::Button, {P::ButtonText}},
    {P::Highlight, {P::HighlightedText}},
    {P::ToolTipBase, {P::ToolTipText}}};

TEST(ThemePalette, TextsStandOutFromTheirGrounds) {
  for (const Theme theme : {Theme::Light, Theme::Dark}) {
    const QPalette palette = host::themePalette(theme);
    for (const auto& [ground, texts] : kTextsOn) {
      for (const P::ColorRole text : texts) {
        for (const P::ColorGroup group : {P::Active, P::Inactive, P::Disabled}) {
          EXPECT_GE(contrast(palette.color(group, text), palette.color(group, ground)),
                    group == P::Disabled ? 2.5 : 4.5)
              << text << " on " << ground << " in group " << group << ", theme " << static_cast<int>(theme);
        }
      }
    }
    const QPalette field = host::activeFieldPalette(palette);
    for (const QPalette::ColorRole role : {QPalette::Text, QPalette::PlaceholderText}) {
      EXPECT_GE(contrast(field.color(role), field.color(QPalette::Base)), 4.5) << role;
    }
    EXPECT_GE(contrast(host::iconInk(theme), palette.color(QPalette::Window)), 4.5);
    EXPECT_GE(contrast(host::iconInk(Theme::Light), field.color(QPalette::Base)), 4.5);
  }
}

}  // namespace
