// The real host with the real plug-in and a drawing, for tests.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "Bounds.h"
#include "DialogAnswerer.h"
#include "Host.h"
#include "OffscreenApplication.h"
#include "Session.h"
#include "SvgDrawing.h"

namespace host {

constexpr char kMarksKey[] = "Add brevia Register Marks...";

inline std::filesystem::path corvaneBundle() {
  return std::filesystem::path(CORVANE_BIN) / "corvane.bundle";
}
inline std::filesystem::path testBundle(const std::string& name) {
  return std::filesystem::path(CORVANE_TEST_BUNDLES) / (name + ".bundle");
}

inline std::string readText(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream) throw std::runtime_error("cannot read " + file.string());
  return {std::istreambuf_iterator<char>(stream), {}};
}

inline SvgDrawing drawingOf(std::string svg) {
  auto read = readSvg(std::move(svg), nullptr);
  if (const SvgError* error = std::get_if<SvgError>(&read)) throw std::runtime_error(error->reason);
  return std::move(std::get<SvgDrawing>(read));
}

// One square of 200 pt, 100 pt from the left and the lower edge of a page of 600 x 800 pt. With a scale a
// document unit is that many points.
inline std::string squareOnPage(int scale = 1) {
  return "<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:ch=\"urn:x-corvane-host:drawing:1\" ch:scale=\"" +
         std::to_string(scale) +
         "\" width=\"600pt\" height=\"800pt\" viewBox=\"0 0 600 800\">\n"
         "  <rect x=\"100\" y=\"500\" width=\"200\" height=\"200\" fill=\"#f00\"/>\n"
         "</svg>\n";
}

// Two paths, the lower one filled, and a text; a reserved layer that is not on top.
inline std::string pathsAndText(int scale = 1) {
  return "<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:ch=\"urn:x-corvane-host:drawing:1\" "
         "xmlns:inkscape=\"http://www.inkscape.org/namespaces/inkscape\" ch:scale=\"" +
         std::to_string(scale) +
         "\" width=\"400pt\" height=\"400pt\" viewBox=\"0 0 400 400\">\n"
         "  <g inkscape:groupmode=\"layer\" inkscape:label=\"Lumenfold\">"
         "<rect x=\"150\" y=\"150\" width=\"9\" height=\"9\"/></g>\n"
         "  <g inkscape:groupmode=\"layer\" inkscape:label=\"Art\">\n"
         "    <rect inkscape:label=\"low\" x=\"120\" y=\"120\" width=\"90\" height=\"90\" fill=\"#00f\"/>\n"
         "    <path inkscape:label=\"high\" d=\"M 200,120 H 300\" stroke=\"#000\"/>\n"
         "    <text inkscape:label=\"text\" x=\"120\" y=\"300\">Cut here</text>\n"
         "  </g>\n"
         "</svg>\n";
}

// The topmost one of that title; 0 if there is none.
inline LayerId layerTitled(const Document& document, const std::string& title) {
  for (const LayerId id : document.state().layers) {
    if (document.layer(id)->title == title) return id;
  }
  return 0;
}

// 0 if there is none of that name.
inline ArtId artNamed(const Document& document, const std::string& name) {
  for (ArtId id = 1; id <= document.artSlots(); ++id) {
    const Art* art = document.art(id);
    if (art != nullptr && art->name == name) return id;
  }
  return 0;
}

// Of the topmost layer with that title, from the bottom up; nothing if there is no such layer.
inline std::vector<ArtId> artOn(const Document& document, const std::string& title) {
  std::vector<ArtId> found;
  const LayerId layer = layerTitled(document, title);
  if (layer == 0) return found;
  ArtId art = document.art(document.layer(layer)->root)->lastChild;
  for (; art != 0; art = document.art(art)->above) found.push_back(art);
  return found;
}

inline std::vector<AIRealPoint> centresOn(const Document& document, const std::string& title) {
  std::vector<AIRealPoint> centres;
  for (const ArtId art : artOn(document, title)) {
    const AIRealRect box = artBounds(document, art, nullptr, 0);
    centres.push_back({(box.left + box.right) / 2, (box.bottom + box.top) / 2});
  }
  return centres;
}

// A host without a window, the plug-in started, and a drawing open in it if one is given.
struct World {
  explicit World(const std::optional<std::string>& svg = std::nullopt) {
    complaint = session.loadPlugin(corvaneBundle());
    session.start();
    if (svg) open(*svg);
  }

  void open(const std::string& svg) {
    drawing = drawingOf(svg);
    session.openDocument(drawing.document, "drawing", {});
  }

  // Options of the marks command: shape 0 round, 1 cross; action 1 corner, 2 auto, 3 edge; points.
  void setOptions(std::int32_t shape, std::int32_t action, double size, double weight, double amount = 0.5) {
    Preferences& preferences = host.preferences();
    preferences.put("Corvane", "Shape", shape + 1);
    preferences.put("Corvane", "Action", action + 1);
    preferences.put("Corvane", "Size", size);
    preferences.put("Corvane", "StrokeWeight", weight);
    preferences.put("Corvane", "sliderrealvalue", amount);
  }

  struct Application {
    Application() { ensureApplication(); }
  };

  Application application;
  Host host;
  Session session{host};
  DialogAnswerer answerer{host};  // what the plug-in's dialogs say stands among the alerts
  std::string complaint;
  SvgDrawing drawing;
};

}  // namespace host
