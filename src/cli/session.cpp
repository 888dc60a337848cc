// Starting a program and running its dial.
#include "cli/session.hpp"

#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <iostream>

#include "app/data_folder.hpp"
#include "app/folders.hpp"
#include "cli/errors.hpp"
#include "numerics/numbers.hpp"

namespace dialwright {

namespace {

using Clock = std::chrono::steady_clock;

struct NumberPair {
  double first;
  double second;
};

// "1.5x2" or "0.4,-0.2". Throws UsageError.
NumberPair pairOf(const std::string& text, char separator, std::string_view option,
                  std::string_view example) {
  const std::size_t at = text.find(separator);
  const bool plain =
      text.find_first_not_of(std::string("0123456789.-+eE") + separator) == std::string::npos;
  if (at == std::string::npos || at == 0 || at + 1 == text.size() || !plain) {
    throw UsageError(std::string(option) + " takes two numbers in metres, as in " +
                     std::string(example) + ", not '" + text + "'");
  }
  return {numberOf(text.substr(0, at)), numberOf(text.substr(at + 1))};
}

// A line that tells how far a long run has come, on a terminal only.
class ProgressLine {
 public:
  ~ProgressLine() {
    if (shown_) std::cerr << "\r\033[K" << std::flush;
  }

  void operator()(double samples) {
    const auto now = Clock::now();
    if (now - last_ < std::chrono::milliseconds(300)) return;
    last_ = now;
    shown_ = true;
    std::cerr << "\rdrawing ... " << static_cast<long long>(samples) << " samples" << std::flush;
  }

 private:
  Clock::time_point last_ = Clock::now();
  bool shown_ = false;
};

}  // namespace

void applySheetOptions(SheetPlot& sheet, const Request& request) {
  if (!request.size.empty()) {
    const NumberPair size = pairOf(request.size, 'x', "--size", "2x1.5");
    if (!(size.first > 0 && size.second > 0))
      throw UsageError("--size takes two numbers above 0, as in 2x1.5");
    sheet.QuadranteL(size.first);
    sheet.QuadranteH(size.second);
    sheet.ShiftX(sheet.QuadranteL() / 2);
    sheet.ShiftY(sheet.QuadranteH() / 3.3333333);
  }
  if (!request.shift.empty()) {
    const NumberPair shift = pairOf(request.shift, ',', "--shift", "1,0.5");
    if (!sound(shift.first + shift.second))
      throw UsageError("--shift takes two numbers in metres, as in 1,0.5");
    sheet.ShiftX(shift.first);
    sheet.ShiftY(shift.second);
  }
  if (request.scale != 0) sheet.Scala(request.scale);  // not below what the sheet's size allows
  if (request.invert.find('x') != std::string::npos) sheet.invertX();
  if (request.invert.find('y') != std::string::npos) sheet.invertY();
}

std::unique_ptr<Program> startProgram(const Request& request) {
  ProgramConfig config;
  config.workingFolder =
      request.folder.empty() ? configurationFolder() : std::filesystem::path(request.folder);
  config.dataFolder = dataFolder();
  config.language = request.language;
  auto program = std::make_unique<Program>(std::move(config));
  // What the sheet's buttons ask for in a window is said beforehand on a command line.
  program->view().ports.exportDxf = [] {
    throw CommandFailure("the button cmdDxf asks for a file; here '-o FILE.dxf' writes it");
  };
  program->view().ports.print = [](const auto&) {
    throw CommandFailure("there is no printer here; 'dialwright pages' makes pages to print");
  };
  if (!request.quiet) {
    program->ports.message = [](std::string_view text) {
      std::cerr << "dialwright: " << text << '\n';
    };
  }
  return program;
}

namespace {

// One sentence about what no shadow follows, when there is any.
void remarkOnShadows(const Program& program) {
  const std::optional<proof::Proof> proof = program.prove();
  if (!proof) return;
  const proof::LayerProof sum = proof->total();
  if (sum.genuine == sum.strokes) return;
  std::cerr << "dialwright: " << sum.strokes - sum.genuine << " of " << sum.strokes
            << " strokes are no shadows; --true leaves them out\n";
}

}  // namespace

void runDial(Program& program, const Request& request, Remark remark) {
  const Item dial = program.panel().chosen();
  if (!draws(dial) && !isSilent(dial)) {
    throw CommandFailure(
        "the dial " + std::string(rowOf(dial).name) +
        " is in the catalogue, but this version can't draw it yet; 'dialwright list' shows which can");
  }
  RunResult result = RunResult::NoDriver;
  const bool remarks =
      remark == Remark::OnShadows && !request.quiet && !program.panel().on(Field::ckTrue);
  if (remarks) program.sheet().list().keepMeanings(true);
  {
    ProgressLine progress;
    if (!request.quiet && isatty(STDERR_FILENO) != 0) {
      program.ports.progress = [&progress](double samples) { progress(samples); };
    }
    result = program.CmdRun_Click();
    program.ports.progress = {};
  }
  // A dial may refuse by its caption alone: then it takes the place of a message.
  const bool told = request.verbose || (result == RunResult::Refused && !request.quiet);
  if (told && !program.sheet().caption().empty()) std::cerr << program.sheet().caption() << '\n';
  if (result == RunResult::Refused) throw CommandFailure("");
  if (remarks) remarkOnShadows(program);
}

}  // namespace dialwright
