// The commands.
#include "cli/commands.hpp"

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <memory>
#include <span>

#include "cli/errors.hpp"
#include "cli/listing.hpp"
#include "cli/outputs.hpp"
#include "cli/session.hpp"
#include "cli/words.hpp"
#include "numerics/numbers.hpp"
#include "paper/page_writer.hpp"
#include "shell/names.hpp"

namespace dialwright {

void commandList(const Request& request) {
  std::cout << listOfDials(*startProgram(request), request.json);
}

void commandFields(const Request& request) {
  std::optional<Item> dial;
  if (!request.item.empty()) dial = dialOf(request.item);
  std::cout << listOfFields(*startProgram(request), dial, request.json);
}

namespace {

void assignAll(Program& program, std::span<const std::string> assignments) {
  for (const std::string& assignment : assignments) assignField(program, assignment);
}

// A program with the request's sheet and dial, its fields filled in.
std::unique_ptr<Program> startDial(Item dial, std::span<const std::string> assignments,
                                   const Request& request) {
  auto program = startProgram(request);
  applySheetOptions(program->sheet(), request);
  program->click(dial);
  assignAll(*program, assignments);
  if (request.trueShadows) program->panel().setState(Field::ckTrue, true);
  return program;
}

// The run and the presses of a program whose panel is ready.
void runAndPress(Program& program, const Request& request) {
  runDial(program, request);
  for (const std::string& button : request.presses) pressButton(program, button);
}

void openProject(Program& program, const std::string& path) {
  const LoadResult loaded = program.CaricaProgetto(path);
  if (loaded.outcome != LoadResult::Outcome::Loaded)
    throw CommandFailure(path + ": " + loaded.message);
}

}  // namespace

std::unique_ptr<Program> drawnDial(const Request& request) {
  auto program = startDial(dialOf(request.item), request.words, request);
  runAndPress(*program, request);
  return program;
}

void commandRun(const Request& request) {
  dialOf(request.item);  // a wrong word is told before anything else
  const std::vector<Output> outputs = outputsOf(request);
  const auto program = drawnDial(request);
  writeOutputs(*program, outputs, request);
}

void commandOpen(const Request& request) {
  const std::vector<Output> outputs = outputsOf(request);
  const auto program = startProgram(request);
  openProject(*program, request.item);
  applySheetOptions(program->sheet(), request);
  assignAll(*program, request.words);
  if (request.trueShadows) program->panel().setState(Field::ckTrue, true);
  runAndPress(*program, request);
  writeOutputs(*program, outputs, request);
}

void commandProve(const Request& request) {
  const Item dial = dialOf(request.item);
  const std::vector<Output> outputs = outputsOf(request);
  if (!(request.within > 0)) throw UsageError("--within takes a number above 0");
  const auto program = startDial(dial, request.words, request);
  program->sheet().list().keepMeanings(true);
  runDial(*program, request, Remark::None);
  const std::optional<proof::Proof> proof = program->prove(request.within / 1000);
  if (!proof) {
    throw CommandFailure("the dial " + std::string(rowOf(dial).name) +
                         " throws no shadow that could be held against its strokes");
  }
  // A drawing on standard output has it for itself.
  const bool drawn = std::ranges::any_of(outputs, [](const Output& o) { return o.path == "-"; });
  (drawn ? std::cerr : std::cout) << proofTable(*proof, request.json);
  if (request.mark) proof::mark(program->sheet().list(), *proof);
  for (const std::string& button : request.presses) pressButton(*program, button);
  writeOutputs(*program, outputs, request);
  if (const std::size_t strays = proof->total().strays; strays > 0) {
    throw CommandFailure(std::to_string(strays) + " strokes lie more than " +
                         textOf(request.within) + " mm off their shadow");
  }
}

void commandPages(const Request& request) {
  dialOf(request.item);
  requirePdf(request.outputs);
  const auto program = drawnDial(request);
  PagesOptions options;
  options.numbers = request.pages;
  if (request.colour) options.inks = Inks::Paper;
  for (const std::string& path : request.outputs) {
    writeTo(path, [&](const Sink& sink) {
      const std::string problem = writePages(program->sheet(), sink, options);
      if (!problem.empty()) throw CommandFailure(problem);
    });
  }
}

void commandSave(const Request& request) {
  const Item dial = dialOf(request.item);
  const std::string& path = request.words.back();
  if (!equalIgnoringCase(std::filesystem::path(path).extension().string(), ".sun")) {
    throw UsageError(
        "save takes the project's file at the end, as in 'save M_Light txtLAT=41.9 roma.sun'");
  }
  const auto program =
      startDial(dial, std::span(request.words).first(request.words.size() - 1), request);
  SalvaProgetto(path, program->panel(), program->sheet());
}

void commandDefaults(const Request& request) {
  const auto program = startProgram(request);
  if (!request.words.empty()) {
    program->click(dialOf(request.words.front()));
    assignAll(*program, std::span(request.words).subspan(1));
    program->SalvaDefault();
  }
  if (program->store().pairs().empty())
    std::cerr << "dialwright: none are stored, the built-in ones hold\n";
  for (const auto& [key, value] : program->store().pairs())
    std::cout << key << '=' << value << '\n';
}

void commandLettering(const Request& request) {
  const std::vector<Output> outputs = outputsOf(request);
  const auto program = startProgram(request);
  applySheetOptions(program->sheet(), request);
  assignAll(*program, request.words);
  program->DisegnaCampionario();
  writeOutputs(*program, outputs, request);
}

void commandLanguage(const Request& request) {
  const auto program = startProgram(request);
  if (request.item.empty()) {
    const std::string code = program->storedLanguage();
    std::cout << (code.empty() ? "a dictionary of your own" : code) << '\n';
    return;
  }
  const Lingua* chosen = findLingua(request.item);
  if (chosen == nullptr)
    throw UsageError("no language '" + request.item + "'; there are en, it, fr and es");
  std::error_code ignored;
  std::filesystem::create_directories(program->config().workingFolder, ignored);
  program->chooseLanguage(chosen->item);
  if (program->storedLanguage() != chosen->code) {
    throw CommandFailure("the language can't be stored in " +
                         program->config().workingFolder.string() +
                         ": check that the folder can be written to");
  }
  if (!request.quiet) std::cerr << "dialwright: the next starts speak '" << chosen->code << "'\n";
}

}  // namespace dialwright
