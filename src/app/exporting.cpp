// Hands the sheet to the writer of a format.
#include "app/exporting.hpp"

#include <algorithm>
#include <array>

#include "paper/picture.hpp"
#include "persist/project.hpp"
#include "sheet/dxf.hpp"
#include "sheet/entity_list.hpp"
#include "sheet/svg.hpp"
#include "shell/names.hpp"

namespace dialwright {

namespace {

using Options = ExportOptions;

PictureOptions pictureOf(const Options& options) {
  PictureOptions picture;
  picture.scale = options.scale;
  picture.inks = options.dark ? Inks::Own : Inks::Paper;
  return picture;
}

std::string dxf(Program& program, const Options&, const Sink& sink) {
  const bool onlyTrue = program.panel().on(Field::ckTrue);
  DXF_Generate(program.sheet(), program.params().PiGreco, sink,
               onlyTrue ? InvertedAxes::True : InvertedAxes::Stored);
  return {};
}

std::string svg(Program& program, const Options& options, const Sink& sink) {
  writeSvg(program.sheet(), sink, {.dark = options.dark});
  return {};
}

std::string pdf(Program& program, const Options& options, const Sink& sink) {
  return writePdf(program.sheet(), sink, pictureOf(options));
}

std::string png(Program& program, const Options& options, const Sink& sink) {
  return writePng(program.sheet(), sink, pictureOf(options));
}

// The sheet's own Save: as it stands on the screen.
std::string bmp(Program& program, const Options& options, const Sink& sink) {
  return writeBmp(program.sheet(), sink, {.scale = options.scale, .inks = Inks::Own});
}

std::string csv(Program& program, const Options&, const Sink& sink) {
  writeEntityList(program.sheet().list(), sink);
  return {};
}

std::string sun(Program& program, const Options&, const Sink& sink) {
  sink(progettoDi(program.panel(), program.sheet()));
  return {};
}

std::string txt(Program& program, const Options&, const Sink& sink) {
  writeTexts(program.sheet().list(), sink);
  return {};
}

constexpr std::array kFormats = {
    ExportFormat{"dxf", dxf}, ExportFormat{"svg", svg}, ExportFormat{"pdf", pdf},
    ExportFormat{"png", png}, ExportFormat{"bmp", bmp}, ExportFormat{"csv", csv},
    ExportFormat{"sun", sun}, ExportFormat{"txt", txt},
};

}  // namespace

std::span<const ExportFormat> exportFormats() { return kFormats; }

const ExportFormat* findExportFormat(std::string_view ending) {
  const auto* row = std::ranges::find_if(kFormats, [ending](const ExportFormat& format) {
    return equalIgnoringCase(format.ending, ending);
  });
  return row == kFormats.end() ? nullptr : row;
}

}  // namespace dialwright
