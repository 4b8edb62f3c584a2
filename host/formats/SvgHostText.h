// How this host notes in an SVG file what SVG has no words for: paints that are not plain RGB, overprint,
// swatches, processing steps, and which layers it added itself. All of it lies in kHostNamespace, beside
// plain SVG that shows the same thing to every other program.
//
// Attributes of an element:
//   ch:fill="cmyk(0 0 0 1)"        the paint that `fill` shows an RGB fallback of; likewise ch:stroke
//   ch:fill-overprint="true"       likewise ch:stroke-overprint
//   ch:kind="compound"             a compound path although it has but one subpath, or none
//   ch:kind="group"                a group although it has no content and no name: programs leave such ones
//                                  behind, which do not count
//   ch:added="layer"               a layer that this host added: leave it out of account when telling
//                                  whether a file has layers of its own
//   ch:title=""                    a layer without a title, which would be called by its id otherwise
//   ch:step="Structural/Cutting"   the processing step that was chosen for a layer, or "none"
//
// A paint is gray(K), with 0 white and 1 black, cmyk(C M Y K), rgb(R G B), custom('NAME' TINT), with 0
// full strength and 1 no ink, gradient('REFERENCE' R G B) or pattern('REFERENCE' R G B), with the RGB
// fallback of the server, or none. Components run from 0 to 1. A backslash in a quoted name guards the
// character behind it.
//
// The swatches lie in <metadata>, a child of the root element, in list order; `group` counts from 1:
//   <ch:swatches>
//     <ch:color name="Cut" definition="cmyk(0 1 0 0)" spot="true" registration="true"/>
//     <ch:group name="Cut Line Types" kind="0"/>
//     <ch:swatch name="Cut" paint="custom('Cut' 0)" group="1"/>
//   </ch:swatches>
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Document.h"
#include "SvgFallbackColour.h"
#include "SvgSource.h"

namespace host {

// Local names of the attributes above.
constexpr char kHostFill[] = "fill";
constexpr char kHostStroke[] = "stroke";
constexpr char kHostFillOverprint[] = "fill-overprint";
constexpr char kHostStrokeOverprint[] = "stroke-overprint";
constexpr char kHostKind[] = "kind";
constexpr char kHostAdded[] = "added";
constexpr char kHostTitle[] = "title";
constexpr char kHostStep[] = "step";

// The paint in words; empty for a custom colour or a server that the document does not have.
std::string paintText(const AIColor& color, const Document& document);
// Nullopt if the text is no paint, or names a custom colour that the document does not have. A server
// that the document does not have yet is added. When this stands beside a `fill` or `stroke`, it counts
// only while that still shows fallbackRgb() of it: other programs change one and leave the other.
std::optional<AIColor> paintFrom(std::string_view text, Document& document);

// A layer's step, see Layer::step. Nullopt for a text that names none and is not "none" either.
std::string stepText(const std::string& step);
std::optional<std::string> stepFrom(std::string_view text);

// The definition of a custom colour: cmyk(C M Y K), rgb(R G B) or lab(L A B). Flags are not part of it.
std::string definitionText(const AICustomColor& definition);
std::optional<AICustomColor> definitionFrom(std::string_view text);

// The swatches and groups of the document, and the custom colours that they and art use, as the element
// <ch:swatches>, in UTF-8; empty if it has none of them. `prefix` is what kHostNamespace is bound to. Each
// element stands on a line of its own behind `lineBreak` (without one before the first), inner ones `indent`
// further in.
std::string swatchesText(const Document& document, std::string_view prefix = "ch",
                         std::string_view lineBreak = "\n", std::string_view indent = "  ");
// The element that swatchesText() wrote; 0 if the file has none.
NodeIndex swatchesNode(const SvgSource& source);
// Adds what it says to the document, which has no swatches yet. Gives the elements that are not
// understood. A file's swatches of other make are to be added behind these, and only under names that
// are not taken.
std::vector<NodeIndex> readSwatches(const SvgSource& source, Document& document);

}  // namespace host
