// Makes and ends Cairo's surfaces.
#include "paper/surface.hpp"

#include <cairo-pdf.h>

#include <array>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <string>

#include "sheet/frame.hpp"

namespace dialwright {

namespace {

std::string creationDate() {
  std::time_t seconds = 946684800;  // the first day of 2000
  if (const char* epoch = std::getenv("SOURCE_DATE_EPOCH")) {
    std::from_chars(epoch, epoch + std::strlen(epoch), seconds);
  }
  std::tm date{};
  std::array<char, 32> text{};
  if (gmtime_r(&seconds, &date) == nullptr) return {};
  return {text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%SZ", &date)};
}

}  // namespace

cairo_status_t writeToSink(void* sink, const unsigned char* bytes, unsigned int count) {
  try {
    const auto& take = *static_cast<const Sink*>(sink);
    const std::string_view chunk(reinterpret_cast<const char*>(bytes), count);
    return take(chunk) ? CAIRO_STATUS_SUCCESS : CAIRO_STATUS_WRITE_ERROR;
  } catch (...) {  // no exception may pass through Cairo
    return CAIRO_STATUS_WRITE_ERROR;
  }
}

CairoSurface pdfSurface(const Sink& sink, double width, double height) {
  CairoSurface surface(cairo_pdf_surface_create_for_stream(
      writeToSink, const_cast<Sink*>(&sink), width * kPointsPerMeter, height * kPointsPerMeter));
  cairo_pdf_surface_set_metadata(surface.get(), CAIRO_PDF_METADATA_CREATE_DATE,
                                 creationDate().c_str());
  return surface;
}

// The twip of the sheet is a 56700th of a metre, a trifle less than a 20th of a point.
CairoContext pdfContext(cairo_surface_t* surface) {
  CairoContext cairo(cairo_create(surface));
  cairo_scale(cairo.get(), kPointsPerMeter / kTwipsPerMeter, kPointsPerMeter / kTwipsPerMeter);
  return cairo;
}

std::string finish(cairo_surface_t* surface) {
  cairo_surface_finish(surface);
  const cairo_status_t status = cairo_surface_status(surface);
  return status == CAIRO_STATUS_SUCCESS ? std::string() : cairo_status_to_string(status);
}

}  // namespace dialwright
