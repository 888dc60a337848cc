// Choosing formats and writing files.
#include "cli/outputs.hpp"

#include <filesystem>
#include <iostream>

#include "app/viewer.hpp"
#include "cli/errors.hpp"
#include "persist/safe_file.hpp"
#include "shell/names.hpp"

namespace dialwright {

namespace {

std::string allEndings() {
  std::string all;
  for (const ExportFormat& row : exportFormats())
    all += (all.empty() ? "." : " .") + std::string(row.ending);
  return all;
}

const ExportFormat* formatOf(std::string_view ending, const std::string& where) {
  const ExportFormat* format = findExportFormat(ending);
  if (format != nullptr) return format;
  throw UsageError(where + ": no format '" + std::string(ending) + "'; there are " + allEndings());
}

ExportOptions optionsOf(const Request& request) {
  ExportOptions options;
  if (request.scale != 0) options.scale = request.scale;
  options.dark = request.dark;
  return options;
}

}  // namespace

std::vector<Output> outputsOf(const Request& request) {
  std::vector<Output> outputs;
  for (const std::string& path : request.outputs) {
    if (path == "-") {
      if (request.format.empty())
        throw UsageError("-o - needs --format; there are " + allEndings());
      outputs.push_back({path, formatOf(request.format, "--format")});
      continue;
    }
    const std::string ending = std::filesystem::path(path).extension().string();
    if (ending.size() < 2)
      throw UsageError(path + ": the file's ending chooses the format; there are " + allEndings());
    outputs.push_back({path, formatOf(ending.substr(1), path)});
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
  finishOutput();
}

void finishOutput() {
  std::cout.flush();
  if (!std::cout)
    throw CommandFailure("standard output took no more: the disk may be full or the reader gone");
}

void writeOutputs(Program& program, const std::vector<Output>& outputs, const Request& request) {
  const ExportOptions options = optionsOf(request);
  for (const Output& output : outputs) {
    writeTo(output.path, [&](const Sink& sink) {
      const std::string problem = output.format->write(program, options, sink);
      if (!problem.empty()) throw CommandFailure(problem);  // it ends the command
    });
    if (output.format->ending == "dxf" && output.path != "-") {
      openViewer(request.viewer.empty() ? program.viewer() : request.viewer, output.path);
    }
  }
}

}  // namespace dialwright
