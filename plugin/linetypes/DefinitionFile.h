// JSON files that define line types.
#pragma once

#include <string>
#include <vector>

#include "LineType.h"
#include "LineTypeTree.h"

namespace Vandrell::Corvane {

// Names of the files, without their folder and extension.
constexpr char kStandardFile[] = "CurveLayerDefinition";  // in the bundle, never written
constexpr char kCustomFile[] = "CustomLayerDefinition";   // in the presets folder

// `folder` without a "/" at its end.
std::string DefinitionFilePath(const std::string& folder, const char* name);

// Of a folder too; where a link leads counts.
bool FileExists(const std::string& path);

// The tree of a whole file. Throws boost::property_tree::ptree_error for what is no file of moderate size,
// cannot be read, or is no JSON or one that is nested deeper than any definition.
LineTypeTree ReadDefinitionFile(const std::string& path);

// Appends the line types among the children of a group, whatever their keys are. False if there are others,
// which are left out. Throws boost::property_tree::ptree_error for a child that is a bare value: this is no
// group.
bool ReadLineTypes(const LineTypeTree& group, std::vector<LineType>& types);

}  // namespace Vandrell::Corvane
