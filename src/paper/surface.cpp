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

cairo_status_t writeToSink(void* closure, const unsigned char* bytes, unsigned int count) {
  auto& to = *static_cast<CairoSink*>(closure);
  if (to.failure) return CAIRO_STATUS_WRITE_ERROR;
  try {
    to.sink({reinterpret_cast<const char*>(bytes), count});
    return CAIRO_STATUS_SUCCESS;
  } catch (...) {  // no exception may pass through Cairo
    to.failure = std::current_exception();
    return CAIRO_STATUS_WRITE_ERROR;
  }
}

CairoSurface pdfSurface(CairoSink& sink, double width, double height) {
  CairoSurface surface(cairo_pdf_surface_create_for_stream(
      writeToSink, &sink, width * kPointsPerMeter, height * kPointsPerMeter));
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

std::string outcome(cairo_status_t status, const CairoSink& sink) {
  if (sink.failure) std::rethrow_exception(sink.failure);
  return status == CAIRO_STATUS_SUCCESS ? std::string() : cairo_status_to_string(status);
}

std::string finish(cairo_surface_t* surface, const CairoSink& sink) {
  cairo_surface_finish(surface);
  return outcome(cairo_surface_status(surface), sink);
}

}  // namespace dialwright
