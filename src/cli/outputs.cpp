// Choosing formats and writing files.
#include "cli/outputs.hpp"

#include <array>
#include <iostream>

#include "app/viewer.hpp"
#include "cli/errors.hpp"
#include "paper/picture.hpp"
#include "persist/project.hpp"
#include "persist/safe_file.hpp"
#include "sheet/dxf.hpp"
#include "sheet/entity_list.hpp"
#include "sheet/svg.hpp"
#include "shell/names.hpp"

namespace dialwright {

namespace {

using Writing = void (*)(Program& program, const Request& request, const Sink& sink);

// A picture that can't be made ends the command.
void demand(const std::string& problem) {
  if (!problem.empty()) throw CommandFailure(problem);
}

// A PDF is at true size unless a scale is asked for; a bitmap is in the sheet's scale.
PictureOptions pictureOf(const Request& request, Inks inks) {
  PictureOptions options;
  if (request.scale != 0) options.scale = request.scale;
  options.inks = inks;
  return options;
}

Inks inksOf(const Request& request) { return request.dark ? Inks::Own : Inks::Paper; }

struct FormatRow {
  std::string_view ending;
  Writing write;
};

constexpr std::array kFormats = {
    FormatRow{"dxf", [](Program& p, const Request&,
                        const Sink& sink) { DXF_Generate(p.sheet(), p.params().PiGreco, sink); }},
    FormatRow{"svg", [](Program& p, const Request& r,
                        const Sink& sink) { writeSvg(p.sheet(), sink, {.dark = r.dark}); }},
    FormatRow{"pdf",
              [](Program& p, const Request& r, const Sink& sink) {
                demand(writePdf(p.sheet(), sink, pictureOf(r, inksOf(r))));
              }},
    FormatRow{"png",
              [](Program& p, const Request& r, const Sink& sink) {
                demand(writePng(p.sheet(), sink, pictureOf(r, inksOf(r))));
              }},
    // The sheet's own Save: as it stands on the screen.
    FormatRow{"bmp",
              [](Program& p, const Request& r, const Sink& sink) {
                demand(writeBmp(p.sheet(), sink, pictureOf(r, Inks::Own)));
              }},
    FormatRow{"csv", [](Program& p, const Request&,
                        const Sink& sink) { writeEntityList(p.sheet().list(), sink); }},
    FormatRow{"sun", [](Program& p, const Request&,
                        const Sink& sink) { sink(progettoDi(p.panel(), p.sheet())); }},
    FormatRow{"txt", [](Program& p, const Request&,
                        const Sink& sink) { writeTexts(p.sheet().list(), sink); }},
};

std::string allEndings() {
  std::string all;
  for (const FormatRow& row : kFormats) all += (all.empty() ? "." : " .") + std::string(row.ending);
  return all;
}

const FormatRow& formatOf(std::string_view ending, const std::string& where) {
  for (const FormatRow& row : kFormats) {
    if (equalIgnoringCase(row.ending, ending)) return row;
  }
  throw UsageError(where + ": no format '" + std::string(ending) + "'; there are " + allEndings());
}

}  // namespace

std::vector<Output> outputsOf(const Request& request) {
  std::vector<Output> outputs;
  for (const std::string& path : request.outputs) {
    if (path == "-") {
      if (request.format.empty())
        throw UsageError("-o - needs --format; there are " + allEndings());
      outputs.push_back({path, &formatOf(request.format, "--format") - kFormats.data()});
      continue;
    }
    const std::string ending = std::filesystem::path(path).extension().string();
    if (ending.size() < 2)
      throw UsageError(path + ": the file's ending chooses the format; there are " + allEndings());
    outputs.push_back({path, &formatOf(ending.substr(1), path) - kFormats.data()});
  }
  return outputs;
}

void requirePdf(const std::vector<std::string>& paths) {
  for (const std::string& path : paths) {
    if (path == "-") continue;
    const std::string ending = std::filesystem::path(path).extension().string();
    if (!equalIgnoringCase(ending, ".pdf")) throw UsageError(path + ": pages are written as .pdf");
  }
}

void writeTo(const std::string& path, const Writer& writer) {
  if (path != "-") return replaceFile(path, writer);
  writer([](std::string_view chunk) {
    std::cout.write(chunk.data(), static_cast<std::streamsize>(chunk.size()));
  });
  std::cout.flush();
  if (!std::cout)
    throw CommandFailure("standard output took no more: the disk may be full or the reader gone");
}

void writeOutputs(Program& program, const std::vector<Output>& outputs, const Request& request) {
  for (const Output& output : outputs) {
    const FormatRow& format = kFormats[static_cast<std::size_t>(output.format)];
    writeTo(output.path, [&](const Sink& sink) { format.write(program, request, sink); });
    if (format.ending == "dxf" && output.path != "-") {
      openViewer(request.viewer.empty() ? program.viewer() : request.viewer, output.path);
    }
  }
}

}  // namespace dialwright
