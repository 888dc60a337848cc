// Independent readers of what the paper writes: poppler's tools for PDF, libpng for PNG.
#pragma once

#include <cairo.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

#include "paper/surface.hpp"
#include "support/folder.hpp"

namespace dialwright {

// What a writer wrote, and what it said.
struct Written {
  std::string bytes;
  std::string problem;
};

template <class Write, class... Arguments>
Written written(Write write, const SheetPlot& sheet, const Arguments&... arguments) {
  Written result;
  const Sink sink = [&](std::string_view chunk) { result.bytes += chunk; };
  result.problem = write(sheet, sink, arguments...);
  return result;
}

// An image's pixels, red in the highest byte of three.
struct Picture {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels;

  // The brightness, 0 to 255: that of the green.
  int at(int x, int y) const {
    return static_cast<int>(pixels[static_cast<std::size_t>(y * width + x)] >> 8 & 255);
  }
  // Where a stroke crosses, in pixels from the left (or top): the middle of what differs from the
  // ground between two pixels of a row (or column); a NaN where there is no ink.
  double crossingOfRow(int y, int from, int to) const {
    return crossing(from, to, [&](int x) { return at(x, y); });
  }
  double crossingOfColumn(int x, int from, int to) const {
    return crossing(from, to, [&](int y) { return at(x, y); });
  }
  int inkedPixels(int left, int top, int right, int bottom) const {
    int count = 0;
    for (int y = top; y < bottom; ++y) {
      for (int x = left; x < right; ++x) count += std::abs(at(x, y) - at(0, 0)) > 60 ? 1 : 0;
    }
    return count;
  }

 private:
  template <class Brightness>
  double crossing(int from, int to, Brightness brightness) const {
    double sum = 0, moment = 0;
    for (int i = from; i < to; ++i) {
      const double ink = std::abs(brightness(i) - at(0, 0));
      sum += ink;
      moment += ink * (i + 0.5);
    }
    return moment / sum;
  }
};

inline Picture pictureOf(std::string_view png) {
  const auto read = [](void* from, unsigned char* into, unsigned int count) {
    auto& left = *static_cast<std::string_view*>(from);
    if (left.size() < count) return CAIRO_STATUS_READ_ERROR;
    left.copy(reinterpret_cast<char*>(into), count);
    left.remove_prefix(count);
    return CAIRO_STATUS_SUCCESS;
  };
  const CairoSurface image(cairo_image_surface_create_from_png_stream(read, &png));
  Picture picture{
      cairo_image_surface_get_width(image.get()), cairo_image_surface_get_height(image.get()), {}};
  const auto* row =
      reinterpret_cast<const std::uint32_t*>(cairo_image_surface_get_data(image.get()));
  for (int y = 0; y < picture.height; ++y, row += cairo_image_surface_get_stride(image.get()) / 4) {
    for (int x = 0; x < picture.width; ++x) picture.pixels.push_back(row[x] & 0xFFFFFF);
  }
  return picture;
}

// A PDF in a folder of its own that poppler's tools are run on.
class PdfReader {
 public:
  explicit PdfReader(const std::string& bytes) { folder_.put("it.pdf", bytes); }

  // The value of a line of pdfinfo.
  std::string info(const std::string& key) const {
    std::istringstream lines(output("pdfinfo it.pdf"));
    for (std::string line; std::getline(lines, line);) {
      if (line.starts_with(key + ":"))
        return line.substr(line.find_first_not_of(' ', key.size() + 1));
    }
    return {};
  }
  std::string text(int page) const {
    const std::string number = std::to_string(page);
    return output("pdftotext -f " + number + " -l " + number + " it.pdf -");
  }
  // The left edge of a word's box on the first page, in points; below 0 when it isn't there.
  std::pair<double, double> placeOf(const std::string& word) const {
    std::istringstream lines(output("pdftotext -bbox it.pdf -"));
    for (std::string line; std::getline(lines, line);) {
      std::pair<double, double> place;
      if (line.find(">" + word + "<") == std::string::npos) continue;
      std::sscanf(line.c_str(), " <word xMin=\"%lf\" yMin=\"%lf\"", &place.first, &place.second);
      return place;
    }
    return {-1, -1};
  }
  Picture rendered(int page, int dotsPerInch) const {
    output("pdftoppm -png -gray -singlefile -f " + std::to_string(page) + " -r " +
           std::to_string(dotsPerInch) + " it.pdf it");
    return pictureOf(folder_.get("it.png"));
  }

 private:
  std::string output(const std::string& command) const {
    const std::string inside = "cd '" + folder_.path().string() + "' && " + command + " >out";
    return std::system(inside.c_str()) == 0 ? folder_.get("out") : std::string();
  }

  Folder folder_;
};

}  // namespace dialwright
