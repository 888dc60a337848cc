// One running program: its panel, record, sheet, language and folders, with the operations that any
// face calls. Two programs in one process don't disturb each other.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/drivers.hpp"
#include "board/board.hpp"
#include "persist/dizionario.hpp"
#include "persist/parametri.hpp"
#include "persist/project.hpp"
#include "proof/prove.hpp"
#include "sheet/options.hpp"
#include "sheet/view.hpp"
#include "shell/clicks.hpp"
#include "shell/places.hpp"
#include "shell/run.hpp"

namespace dialwright {

struct ProgramConfig {
  std::filesystem::path workingFolder;  // defaults, dictionary, export folder
  std::filesystem::path dataFolder;     // the dictionaries of all languages, the map
  std::string
      language;  // "en", "it", "fr", "es" for this program alone; empty for the stored choice
};

// How a run ended.
enum class RunResult {
  Drawn,
  Refused,   // the dial can't work with its input and has said so
  NoDriver,  // the chosen item has no drawing
};

// What became of a press.
enum class Press {
  Done,
  Disabled,  // the button can't be pressed on this dial
  Unknown,   // there is no such button
};

// What an undo puts back: the panel, and what its clicks leave in the record.
struct Inputs {
  Panel panel;
  int ModoDati = 0;
  double UsaLongitudine = 0;
};

// A run on a panel, a record and a sheet of its own, so that it can be made in another thread while
// its program, which must outlive it, goes on.
struct SpareRun {
  Inputs inputs;  // what it was made from
  bool anew =
      false;  // its drawing is to stand in the place of what the sheet holds, not on top of it
  Panel panel;
  DialParams params;
  SheetPlot sheet;
  RunResult result = RunResult::NoDriver;
};

class Program {
 public:
  static constexpr std::string_view kTitle = "Dialwright";

  // Starts the program: the language, the export folder, the window's texts, program 1 as after a
  // click on it, the stored defaults, and a sheet ten times the page.
  explicit Program(ProgramConfig config);
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  Panel& panel() { return panel_; }
  const Panel& panel() const { return panel_; }
  DialParams& params() { return params_; }
  SheetPlot& sheet() { return sheet_; }
  const SheetPlot& sheet() const { return sheet_; }
  // What stands around the sheet; it follows the sheet by itself.
  SheetView& view() { return view_; }
  const ProgramConfig& config() const { return config_; }
  const std::filesystem::path& CartellaDXF() const { return cartellaDXF_; }

  // Where the program's questions and messages go; set by the face before the first run.
  Ports ports;

  // A text in the program's language.
  std::string T(std::string_view text) const;

  // A click on a menu item of the catalogue.
  void click(Item item);
  // A click on a check box or an option, which then has that state.
  void click(Field field, bool state);
  // A text typed into a field, or chosen in the list of countries.
  void type(Field field, std::string_view text);

  // The Run button.
  RunResult CmdRun_Click();

  // A run apart from the program: on top of what the sheet holds, or anew. One that is anew starts
  // from the record of a new program, so that it draws the same whatever was run before.
  SpareRun prepareRun(bool anew) const;
  // Makes it, in any thread; the ports are called in that thread.
  void make(SpareRun& run, Ports ports) const;
  // Takes over what it drew and derived, and what it put into the panel. A field that has been
  // changed meanwhile keeps its new state.
  void adopt(SpareRun&& run);

  Inputs inputs() const;
  // Puts back former inputs. What a start or a run has made of the window stays: the language menu
  // and cmdData.
  void restore(const Inputs& inputs);

  // The proof of the drawing as the panel's dial has it: what each stroke stands for, held against
  // the shadows. Only what was drawn while the sheet kept its meanings is in it. Nothing for a dial
  // that throws no shadow.
  std::optional<proof::Proof> prove(double within = proof::kWithin) const;

  // A press of a button: of the panel (cmdRun, cmdSave ...) or of the sheet's bar.
  Press press(std::string_view button);

  // The names of all buttons.
  std::vector<std::string_view> buttons() const;

  // A choice in the language menu, for the next starts. Gives the message for the user.
  std::string chooseLanguage(Item item);
  // The code of the stored language ("en", "it" ...), or an empty text for a dictionary of the
  // user's own.
  std::string storedLanguage() const;

  // Stores the panel's chief inputs for the next starts. Throws FileError.
  void SalvaDefault();

  // The map, once its button was pressed.
  const WorldTable& world() const { return world_; }

  Parametri& store() { return store_; }

  // Loads a project, which then waits for its run. Unless it is loaded, nothing is changed. The
  // project in use then bears the file's name, or the given title.
  LoadResult CaricaProgetto(const std::filesystem::path& path);
  LoadResult CaricaProgetto(const std::filesystem::path& path, std::string title);

  // The viewer of exported drawings: the first line of "viewer.txt" in the working folder; empty
  // without one.
  std::string viewer() const;

  // A utility board on this program's panel, in its language. The program must outlive it.
  Board openBoard();

  // Draws the specimen of the lettering instead of a dial.
  void DisegnaCampionario();

  // The name of the project in use, which the sheet's window bears; empty while none is open.
  const std::string& projectTitle() const { return projectTitle_; }
  // Asks whether the project in use may be closed; true without one.
  bool mayClose() const;

  // A new, empty sheet of the size that the program started with. False, with the old one in place,
  // when the user wants to keep the project in use.
  bool NuovoFoglio();

 private:
  void loadLanguage();
  void loadWorld(Run& run);
  void pressEnabled(Field button);
  Ports portsOfRun() const { return translated(ports); }
  Ports translated(Ports ports) const;

  ProgramConfig config_;
  std::filesystem::path cartellaDXF_;
  std::string projectTitle_;
  Dizionario dictionary_;
  Parametri store_;
  WorldTable world_;
  clsOptions options_;
  Panel panel_;
  DialParams params_;
  SheetPlot sheet_;
  SheetView view_{sheet_};
};

}  // namespace dialwright
