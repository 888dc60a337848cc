// The commands.
#include "cli/commands.hpp"

#include <iostream>

#include "cli/listing.hpp"
#include "cli/outputs.hpp"
#include "cli/session.hpp"
#include "cli/words.hpp"

namespace dialwright {

void commandList(const Request& request) {
  std::cout << listOfDials(*startProgram(request), request.json);
}

void commandFields(const Request& request) {
  std::optional<Item> dial;
  if (!request.item.empty()) dial = dialOf(request.item);
  std::cout << listOfFields(*startProgram(request), dial, request.json);
}

void commandRun(const Request& request) {
  const Item dial = dialOf(request.item);
  const std::vector<Output> outputs = outputsOf(request);
  const auto program = startProgram(request);
  program->click(dial);
  for (const std::string& assignment : request.words) assignField(*program, assignment);
  runDial(*program, request);
  writeOutputs(*program, outputs, request);
}

}  // namespace dialwright
