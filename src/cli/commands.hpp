// The commands behind the command line's words.
#pragma once

#include <memory>

#include "app/program.hpp"
#include "cli/request.hpp"

namespace dialwright {

// Each throws UsageError or CommandFailure.
void commandList(const Request& request);
void commandFields(const Request& request);
void commandRun(const Request& request);
void commandOpen(const Request& request);
void commandProve(const Request& request);
void commandPages(const Request& request);
void commandSave(const Request& request);
void commandBoard(const Request& request);
void commandDefaults(const Request& request);
void commandLettering(const Request& request);
void commandLanguage(const Request& request);
// Becomes the desktop program; comes back only by throwing.
void commandDesktop(const Request& request);

// A program in which the request's dial was drawn, its assignments made and its buttons pressed.
std::unique_ptr<Program> drawnDial(const Request& request);

}  // namespace dialwright
