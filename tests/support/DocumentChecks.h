// What holds in any document, whatever was done to it.
#pragma once

#include <string>
#include <vector>

namespace host {

class Document;

// A sentence for each promise that is broken: the tree of art, the layers and their roots, what styles and
// swatches refer to, the choices and the selection.
std::vector<std::string> brokenPromises(const Document& document);

// All of the document that a file has words for, a line each; numbers are rounded to four places.
std::vector<std::string> contentLines(const Document& document);

}  // namespace host
