// The files that a command writes: format by ending, written beside and renamed.
#pragma once

#include <string>
#include <vector>

#include "app/exporting.hpp"
#include "cli/request.hpp"
#include "persist/safe_file.hpp"

namespace dialwright {

struct Output {
  std::string path;  // "-" for standard output
  const ExportFormat* format;
};

// The outputs of a request, before anything is run. Throws UsageError for an ending without a
// format.
std::vector<Output> outputsOf(const Request& request);

// Throws UsageError for a file of pages that is no PDF.
void requirePdf(const std::vector<std::string>& paths);

// Fills a file, replaced once it is whole, or standard output for "-". Throws CommandFailure and
// FileError.
void writeTo(const std::string& path, const Writer& writer);

// Sends off what was written to standard output. Throws CommandFailure unless all of it arrived.
void finishOutput();

// Writes them in order. Throws CommandFailure with a sentence that names the path and the cause.
void writeOutputs(Program& program, const std::vector<Output>& outputs, const Request& request);

}  // namespace dialwright
