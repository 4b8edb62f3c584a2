// Saving a changed drawing, in tables: what the file was, what changed, what the file is to be.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "TestDrawing.h"

namespace host {

struct SvgWriterCase {
  std::string name;
  std::string before;
  std::function<void(SvgDrawing&)> change;
  std::string after;
};

// Declarations of namespaces, with a blank before each.
constexpr char kInk[] = R"( xmlns:inkscape="http://www.inkscape.org/namespaces/inkscape")";
constexpr char kHost[] = R"( xmlns:ch="urn:x-corvane-host:drawing:1")";
// Both, in the order in which the writer declares them.
const std::string kBoth = std::string(kInk) + kHost;

// A root element of 96 units each way with this content; a unit is 0.75 points.
std::string file(const std::string& content, const std::string& rootAttributes = "");

// Each case gives its bytes, nothing else, and goes back to those that were with the change undone.
void expectSaved(const std::vector<SvgWriterCase>& cases);

}  // namespace host
