// A program with the command line as its face.
#pragma once

#include <memory>

#include "app/program.hpp"
#include "cli/request.hpp"

namespace dialwright {

// Starts a program in the request's folder and language, with its ports.
std::unique_ptr<Program> startProgram(const Request& request);

// Does to the sheet what --size, --shift, --scale and --invert say. Throws UsageError.
void applySheetOptions(SheetPlot& sheet, const Request& request);

// What is said after a run: how many strokes no shadow follows, or nothing.
enum class Remark { None, OnShadows };

// Runs the chosen dial. Throws CommandFailure when it refuses or has no drawing yet.
void runDial(Program& program, const Request& request, Remark remark = Remark::OnShadows);

}  // namespace dialwright
