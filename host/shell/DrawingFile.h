// Drawings on disk, or on standard input and output.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <variant>

#include "SvgDrawing.h"

namespace host {

constexpr char kStandardStream[] = "-";

// The error is a clause with the place in the file and the reason.
std::variant<SvgDrawing, std::string> readDrawing(const std::string& file);
// The error is a sentence that names the file too.
std::variant<SvgDrawing, std::string> openDrawing(const std::string& file);

// Replaces the file as a whole, or not at all. Empty, or a sentence on why not.
std::string saveBytes(const std::string& file, std::string_view bytes);

// For people and for documents without a file: "standard input" for "-".
std::string shownName(const std::string& file);

}  // namespace host
