// Pixels of a drawing, drawn from its SVG as a browser would.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
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

// A drawing as it was when it was loaded, to be drawn any number of times: all artboards as they lie beside
// each other, on white.
class SvgPicture {
 public:
  // `svg` is the file as it would be saved; `file` is where it lies, for the images it links to, and may be
  // empty. The error is a clause without a full stop.
  static std::variant<SvgPicture, std::string> load(const SvgDrawing& drawing, std::string svg,
                                                    const std::filesystem::path& file);
  SvgPicture(SvgPicture&&) noexcept;
  SvgPicture& operator=(SvgPicture&&) noexcept;
  ~SvgPicture();

  // What is drawn, in document units.
  const AIRealRect& bounds() const { return bounds_; }

  // Draws the whole into `place`; pixels outside it stay. Empty, or a clause on why not.
  std::string draw(const PixelBuffer& pixels, const PixelRect& place) const;

 private:
  struct Handle;

  SvgPicture(std::unique_ptr<Handle> handle, const AIRealRect& bounds);

  std::unique_ptr<Handle> handle_;
  AIRealRect bounds_;
};

// The artboards of a document together, in document units.
AIRealRect unionOfArtboards(const Document& document);

}  // namespace host
