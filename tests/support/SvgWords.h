// Drawings for tests in few words.
#pragma once

#include <memory>
#include <string>

#include "SvgDrawing.h"

namespace host {

// `size` are attributes of the root element. Prefixes are ch, inkscape and sodipodi.
inline std::string svgText(const std::string& size, const std::string& swatches, const std::string& content) {
  return "<svg xmlns='http://www.w3.org/2000/svg' xmlns:ch='urn:x-corvane-host:drawing:1'"
         " xmlns:inkscape='http://www.inkscape.org/namespaces/inkscape'"
         " xmlns:sodipodi='http://sodipodi.sourceforge.net/DTD/sodipodi-0.dtd' " +
         size + "><metadata><ch:swatches>" + swatches + "</ch:swatches></metadata>" + content + "</svg>";
}

inline std::string layer(const std::string& title, const std::string& content, const std::string& more = {}) {
  return "<g inkscape:groupmode='layer' inkscape:label='" + title + "' " + more + ">" + content + "</g>";
}

inline std::string spot(const std::string& name, const std::string& definition = "rgb(1 0 0)") {
  return "<ch:color name='" + name + "' definition='" + definition + "' spot='true'/>";
}

// "stroke" or "fill" in a custom colour, where other programs are shown the fallback.
inline std::string inked(const std::string& side, const std::string& name,
                         const std::string& fallback = "#ff0000") {
  return " " + side + "='" + fallback + "' ch:" + side + "=\"custom('" + name + "' 0)\" ";
}

inline std::shared_ptr<Document> documentOf(const std::string& svg) {
  const auto read = readSvg(svg, nullptr);
  return std::get<SvgDrawing>(read).document;
}

}  // namespace host
