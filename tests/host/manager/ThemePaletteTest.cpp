// Texts are readable in both themes.
#include "ThemePalette.h"

#include <algorithm>
#include <cmath>

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

struct Pair {
  QPalette::ColorRole text, ground;
};

constexpr Pair kPairs[] = {
    {QPalette::WindowText, QPalette::Window},
    {QPalette::WindowText, QPalette::Midlight},
    {QPalette::Text, QPalette::Base},
    {QPalette::Text, QPalette::AlternateBase},
    {QPalette::Text, QPalette::Window},
    {QPalette::PlaceholderText, QPalette::Base},
    {QPalette::ButtonText, QPalette::Button},
    {QPalette::HighlightedText, QPalette::Highlight},
    {QPalette::ToolTipText, QPalette::ToolTipBase},
    {QPalette::Link, QPalette::Window},
    {QPalette::Link, QPalette::Base},
    {QPalette::LinkVisited, QPalette::Base},
    {QPalette::LinkVisited, QPalette::Window},
};

TEST(ThemePalette, TextsStandOutFromTheirGrounds) {
  for (const Theme theme : {Theme::Light, Theme::Dark}) {
    const QPalette palette = host::themePalette(theme);
    for (const Pair& pair : kPairs) {
      for (const auto& [group, least] :
           {std::pair{QPalette::Active, 4.5}, {QPalette::Inactive, 4.5}, {QPalette::Disabled, 2.5}}) {
        EXPECT_GE(contrast(palette.color(group, pair.text), palette.color(group, pair.ground)), least)
            << pair.text << " on " << pair.ground << " in group " << group
            << ", dark: " << (theme == Theme::Dark);
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
