// Cairo's objects with an owner, and its writing into a sink.
#pragma once

#include <cairo.h>

#include <exception>
#include <memory>
#include <string>

#include "sheet/output_buffer.hpp"

namespace dialwright {

struct CairoFree {
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
  void operator()(cairo_t* cairo) const { cairo_destroy(cairo); }
};

using CairoSurface = std::unique_ptr<cairo_surface_t, CairoFree>;
using CairoContext = std::unique_ptr<cairo_t, CairoFree>;

// Points of a PDF's page in a metre.
inline constexpr double kPointsPerMeter = 72 / 0.0254;

// A sink as Cairo can use it: what the sink throws waits here until Cairo is done.
struct CairoSink {
  const Sink& sink;
  std::exception_ptr failure = {};
};

// Cairo's write function; the closure is a `CairoSink*`.
cairo_status_t writeToSink(void* closure, const unsigned char* bytes, unsigned int count);

// A PDF of pages of one size, in metres. Its creation date is that of SOURCE_DATE_EPOCH, or a fixed
// one: the same drawing gives the same bytes. The sink must outlive the surface.
CairoSurface pdfSurface(CairoSink& sink, double width, double height);

// A context on a PDF that maps twips of a target at true size to the page.
CairoContext pdfContext(cairo_surface_t* surface);

// Throws what the sink threw; else empty for Cairo's success, or what stood in its way.
std::string outcome(cairo_status_t status, const CairoSink& sink);

// Ends the surface and tells the outcome.
std::string finish(cairo_surface_t* surface, const CairoSink& sink);

}  // namespace dialwright
