// The project file: a snapshot of the panel and of the sheet's extents, under the ending ".sun".
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "sheet/sheet_plot.hpp"
#include "shell/panel.hpp"

namespace dialwright {

// The odd-numbered bytes of a text in order, then the even-numbered ones; and the inverse of that.
std::string Mescola(std::string_view text);
std::string Ricomponi(std::string_view text);

// The content of an element of a project's plain body, from behind the opening mark's name to the
// closing mark; empty when a mark is missing or the first closing one comes first. A control's name
// is given as it is, a sheet element's with its "_" in front. Case does not matter.
std::string_view LeggiElemento(std::string_view body, std::string_view name);

// The bytes of a project file.
std::string progettoDi(const Panel& panel, const SheetPlot& sheet);

// Sets the panel and the sheet to what the bytes of a project file say; no click is fired. A
// control without an element keeps its state, a text field or a label with a blank value its text,
// and so does whatever has a value that it can't take. False, with nothing changed, when the bytes
// are not a whole project.
bool leggiProgetto(std::string bytes, Panel& panel, SheetPlot& sheet);

// Writes a project. Throws FileError with the old file as it was.
void SalvaProgetto(const std::filesystem::path& path, const Panel& panel, const SheetPlot& sheet);

struct LoadResult {
  enum class Outcome { Loaded, NotRecognised, Unreadable };
  Outcome outcome;
  std::string message;  // what to show the user; empty when loaded
};

// Restores a project; what was loaded waits to be run. Unless it was loaded, nothing is changed.
LoadResult CaricaProgetto(const std::filesystem::path& path, Panel& panel, SheetPlot& sheet);

}  // namespace dialwright
