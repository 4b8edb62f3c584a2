// Pixels of a drawing, drawn from its SVG as a browser would.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <variant>

#include "SvgDrawing.h"

namespace host {

// Rows from the top down, 32 bits a pixel: alpha, red, green, blue from the highest byte of the word down,
// colours premultiplied by alpha. Owned by the caller.
struct PixelBuffer {
  std::uint8_t* bytes;
  int width;   // pixels
  int height;  // pixels
  int stride;  // bytes from row to row, a multiple of 4
};

// Pixels, y down, from the upper left corner of a buffer; may reach beyond it.
struct PixelRect {
  double x, y, width, height;
};

// What a picture is made of, by value: it may be taken to another thread while the drawing goes on changing.
struct SvgPictureSource {
  std::string svg;
  std::filesystem::path file;          // where it lies, for the images it links to; may be empty
  AIRealRect bounds{};                 // of all artboards together, document units
  std::optional<PixelRect> shownPart;  // units of the root element, which shows this; nullopt: what it says
};

// `svg` is the file as it would be saved.
SvgPictureSource pictureSource(const SvgDrawing& drawing, std::string svg, const std::filesystem::path& file);

// A drawing as it was when it was loaded, to be drawn any number of times: all artboards as they lie beside
// each other. May be used by any thread, though by one at a time.
class SvgPicture {
 public:
  // The error is a clause without a full stop.
  static std::variant<SvgPicture, std::string> load(SvgPictureSource source);
  SvgPicture(SvgPicture&&) noexcept;
  SvgPicture& operator=(SvgPicture&&) noexcept;
  ~SvgPicture();

  // What is drawn, in document units.
  const AIRealRect& bounds() const { return bounds_; }

  // Draws the whole into `place`, on white or over what is there; pixels outside it stay. Empty, or a clause
  // on why not.
  std::string draw(const PixelBuffer& pixels, const PixelRect& place) const;
  std::string drawOver(const PixelBuffer& pixels, const PixelRect& place) const;

 private:
  struct Handle;

  SvgPicture(std::unique_ptr<Handle> handle, const AIRealRect& bounds);

  std::unique_ptr<Handle> handle_;
  AIRealRect bounds_;
};

// The artboards of a document together, in document units.
AIRealRect unionOfArtboards(const Document& document);

}  // namespace host
