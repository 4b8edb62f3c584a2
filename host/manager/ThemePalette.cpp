#include "ThemePalette.h"

namespace host {
namespace {

struct Shade {
  QRgb normal, disabled;
};

struct Row {
  QPalette::ColorRole role;
  Shade light, dark;
};

constexpr Row kRows[] = {
    {QPalette::Window, {0xfff0f0f0, 0xfff0f0f0}, {0xff323232, 0xff323232}},
    {QPalette::WindowText, {0xff222222, 0xff8c8c8c}, {0xffe2e2e2, 0xff8a8a8a}},
    {QPalette::Base, {0xffffffff, 0xfff5f5f5}, {0xff252525, 0xff2c2c2c}},
    {QPalette::AlternateBase, {0xfff7f7f7, 0xfff2f2f2}, {0xff2a2a2a, 0xff2e2e2e}},
    {QPalette::Text, {0xff1c1c1c, 0xff8c8c8c}, {0xffe6e6e6, 0xff8a8a8a}},
    {QPalette::PlaceholderText, {0xff6b6b6b, 0xff969696}, {0xff9c9c9c, 0xff7c7c7c}},
    {QPalette::Button, {0xfffcfcfc, 0xfff4f4f4}, {0xff474747, 0xff393939}},
    {QPalette::ButtonText, {0xff222222, 0xff8c8c8c}, {0xffececec, 0xff8a8a8a}},
    {QPalette::BrightText, {0xffffffff, 0xffffffff}, {0xffffffff, 0xffffffff}},
    {QPalette::Light, {0xffffffff, 0xfff8f8f8}, {0xff5a5a5a, 0xff444444}},
    {QPalette::Midlight, {0xffe3e3e3, 0xffe9e9e9}, {0xff3f3f3f, 0xff383838}},
    {QPalette::Mid, {0xffacacac, 0xffd0d0d0}, {0xff656565, 0xff4a4a4a}},
    {QPalette::Dark, {0xffd2d2d2, 0xffdcdcdc}, {0xff232323, 0xff282828}},
    {QPalette::Shadow, {0xff7a7a7a, 0xffb4b4b4}, {0xff141414, 0xff202020}},
    {QPalette::Highlight, {0xff1f6fd0, 0xffcacaca}, {0xff2d72c4, 0xff4c4c4c}},
    {QPalette::HighlightedText, {0xffffffff, 0xff6e6e6e}, {0xffffffff, 0xffa0a0a0}},
    {QPalette::Link, {0xff1660b8, 0xff8c8c8c}, {0xff7ab5f5, 0xff8a8a8a}},
    {QPalette::LinkVisited, {0xff6a4fb0, 0xff8c8c8c}, {0xffb9a3ef, 0xff8a8a8a}},
    {QPalette::ToolTipBase, {0xffffffff, 0xffffffff}, {0xff1c1c1c, 0xff1c1c1c}},
    {QPalette::ToolTipText, {0xff222222, 0xff8c8c8c}, {0xffe2e2e2, 0xff8a8a8a}},
};

}  // namespace

QPalette themePalette(Theme theme) {
  QPalette palette;
  for (const Row& row : kRows) {
    const Shade& shade = theme == Theme::Dark ? row.dark : row.light;
    palette.setColor(QPalette::Active, row.role, QColor(shade.normal));
    palette.setColor(QPalette::Inactive, row.role, QColor(shade.normal));
    palette.setColor(QPalette::Disabled, row.role, QColor(shade.disabled));
  }
  return palette;
}

QPalette activeFieldPalette(const QPalette& around) {
  const QPalette light = themePalette(Theme::Light);
  QPalette palette = around;
  for (const QPalette::ColorRole role : {QPalette::Text, QPalette::PlaceholderText}) {
    palette.setColor(role, light.color(QPalette::Active, role));
  }
  const bool darkAround = around.color(QPalette::Window).lightness() < 128;
  palette.setColor(QPalette::Base, darkAround ? QColor(0xec, 0xec, 0xec) : QColor(Qt::white));
  return palette;
}

QColor iconInk(Theme theme) {
  return theme == Theme::Dark ? QColor(0xd6, 0xd6, 0xd6) : QColor(0x3b, 0x3b, 0x3b);
}

}  // namespace host
