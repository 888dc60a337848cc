// The grammar of the command line.
#include "cli/command_line.hpp"

#include <CLI/CLI.hpp>
#include <iostream>
#include <map>
#include <set>

#include "cli/commands.hpp"
#include "cli/errors.hpp"
#include "cli/manual.hpp"
#include "cli/outputs.hpp"
#include "cli/request.hpp"
#include "cli/shadow.hpp"
#include "cli/words.hpp"

namespace dialwright {

namespace {

constexpr int kFailed = 1;
constexpr int kUsage = 2;

void addPlace(CLI::App& command, Request& request) {
  command
      .add_option("--folder", request.folder, "working folder for defaults, dictionary and exports")
      ->type_name("DIR");
  command.add_option("--lang", request.language, "language of this run: en, it, fr or es")
      ->type_name("LANG")
      ->check(CLI::IsMember({"en", "it", "fr", "es"}));
}

void addCommon(CLI::App& command, Request& request) {
  addPlace(command, request);
  command.add_option("--size", request.size, "sheet in metres, width x height")->type_name("LxH");
  command
      .add_option("--shift", request.shift,
                  "the drawing's origin from the sheet's top left corner, metres")
      ->type_name("X,Y");
  command.add_option("--scale", request.scale, "scale 1:n of the sheet's view")
      ->type_name("N")
      ->check(CLI::IsMember({1, 2, 3, 4, 5, 10, 20, 100}));
  command.add_option("--invert", request.invert, "mirror an axis: x, y or xy")
      ->type_name("AXIS")
      ->check(CLI::IsMember({"x", "y", "xy"}));
  command.add_flag("--true", request.trueShadows, "leave out what no shadow follows");
  command.add_flag("--quiet,-q", request.quiet, "no messages");
  command.add_flag("--verbose,-v", request.verbose, "the caption of the sheet as well");
}

// An option that may come several times, with one value each: what stands behind it is its own.
CLI::Option* repeated(CLI::Option* option, const char* type) {
  return option->type_name(type)->expected(1)->allow_extra_args(false)->multi_option_policy(
      CLI::MultiOptionPolicy::TakeAll);
}

// A dial by its name.
CLI::Option* addItem(CLI::App& command, Request& request) {
  return command.add_option("ITEM", request.item, "menu item or program number");
}

void addAssignments(CLI::App& command, Request& request) {
  command.add_option("NAME=VALUE", request.words, "fields, boxes and options, from left to right");
}

// A dial that is to be drawn.
void addDial(CLI::App& command, Request& request) {
  addItem(command, request)->required();
  addAssignments(command, request);
}

void addPresses(CLI::App& command, Request& request) {
  repeated(command.add_option("--press", request.presses, "press a button after the run, in order"),
           "BUTTON");
}

void addOutputs(CLI::App& command, Request& request) {
  repeated(
      command.add_option(
          "-o,--output", request.outputs,
          "write a file, format by its ending (.dxf .svg .pdf .png .bmp .csv .txt .sun); - with --format writes to standard output"),
      "FILE");
  command.add_option("--format", request.format, "format of standard output")->type_name("FORMAT");
  command.add_flag("--dark", request.dark,
                   "the sheet's own colours on its dark ground instead of inks for white paper");
  command
      .add_option(
          "--viewer", request.viewer,
          "start this program with each new DXF file; else the one that viewer.txt in the working folder names")
      ->type_name("PROGRAM");
}

using Command = void (*)(const Request&);

// The manual is made from the whole grammar, which stands only when all commands are in it.
void commandManual(const Request& request) {
  std::cout << (request.bash ? bashCompletion(*request.grammar) : manualPage(*request.grammar));
}

// The sub-commands with what they run, in the order of the help.
class Grammar {
 public:
  Grammar(CLI::App& app, Request& request) : app_(app), request_(request) {
    request_.grammar = &app;
    lists();
    drawings();
    utilityBoard();
    pagesOfPaper();
    shadows();
    projects();
    others();
  }

  const std::map<std::string, Command>& commands() const { return commands_; }

 private:
  CLI::App& add(const char* name, const char* help, Command command);
  void lists();
  void drawings();
  void utilityBoard();
  void pagesOfPaper();
  void shadows();
  void projects();
  void others();

  CLI::App& app_;
  Request& request_;
  std::map<std::string, Command> commands_;
};

CLI::App& Grammar::add(const char* name, const char* help, Command command) {
  CLI::App& sub = *app_.add_subcommand(name, help);
  addCommon(sub, request_);
  commands_[name] = command;
  return sub;
}

void Grammar::lists() {
  CLI::App& list = add("list", "the catalogue of dials in menu order", commandList);
  list.add_flag("--json", request_.json, "as JSON");

  CLI::App& fields = add("fields", "the fields that a dial shows, or all of them", commandFields);
  addItem(fields, request_);
  fields.add_flag("--json", request_.json, "as JSON");
}

void Grammar::drawings() {
  CLI::App& run = add("run", "draw a dial and write files", commandRun);
  addDial(run, request_);
  addPresses(run, request_);
  addOutputs(run, request_);

  CLI::App& open = add("open", "draw a project and write files", commandOpen);
  open.add_option("FILE", request_.item, "a project, .sun")->required();
  addAssignments(open, request_);
  addPresses(open, request_);
  addOutputs(open, request_);
}

void Grammar::utilityBoard() {
  CLI::App& board =
      add("board", "the utility board: sun, equation of time, sunrise, a wall's declination",
          commandBoard);
  board.add_option("NAME=VALUE", request_.words,
                   "the board's fields, from left to right; without a date it is today at 0 h UT");
  board.add_flag("--now", request_.now, "the present date and UT, which assignments may change");
  board.add_flag("--json", request_.json, "the figures by name, as JSON");
}

void Grammar::pagesOfPaper() {
  CLI::App& pages = add("pages", "print a dial on A4 pages at 1:1", commandPages);
  addDial(pages, request_);
  addPresses(pages, request_);
  repeated(pages.add_option("-o,--output", request_.outputs, "the PDF; - for standard output"),
           "FILE")
      ->required();
  CLI::Option* chosen = repeated(
      pages.add_option("--page", request_.pages, "a page by its number, in the order wanted"), "N");
  pages.add_flag("--all", request_.allPages, "all pages that carry ink; so without --page")
      ->excludes(chosen);
  pages.add_flag("--colour", request_.colour, "inks for white paper instead of black");
}

void Grammar::shadows() {
  CLI::App& prove =
      add("prove", "hold a dial's strokes against the shadows; status 1 when some lie astray",
          commandProve);
  addDial(prove, request_);
  prove.add_option("--within", request_.within, "millimetres that a stroke may lie off its shadow")
      ->type_name("MM")
      ->capture_default_str();
  prove.add_flag("--mark", request_.mark, "ghosts in grey and strays in red in the files");
  prove.add_flag("--json", request_.json, "as JSON");
  addPresses(prove, request_);
  addOutputs(prove, request_);

  CLI::App& shadow =
      add("shadow", "the shadow on a dial at a moment, or at a row of moments", commandShadow);
  addDial(shadow, request_);
  shadow.add_option("--date", request_.date, "the day, as in 2026-06-21")->type_name("D");
  shadow.add_option("--time", request_.time, "the time of the zone's clock, as in 10:30")
      ->type_name("T");
  shadow.add_option("--from", request_.from, "the first time of a day, or the first day of a year")
      ->type_name("D|T");
  shadow.add_option("--to", request_.to, "the last one")->type_name("D|T");
  shadow.add_option("--step", request_.step, "minutes from time to time, or days from day to day")
      ->type_name("N");
  addPresses(shadow, request_);
  addOutputs(shadow, request_);
}

void Grammar::projects() {
  CLI::App& save = add("save", "write a project", commandSave);
  addItem(save, request_)->required();
  save.add_option("NAME=VALUE ... FILE", request_.words,
                  "assignments and, at the end, the project's file")
      ->required();

  CLI::App& desktop = *app_.add_subcommand("desktop", "the desktop program");
  addPlace(desktop, request_);
  desktop.add_option("FILE", request_.item, "a project to open, .sun");
  commands_["desktop"] = commandDesktop;
}

void Grammar::others() {
  CLI::App& defaults =
      add("defaults", "show or store what each start begins with", commandDefaults);
  defaults.add_option("--save", request_.words, "store a dial's panel: ITEM NAME=VALUE ...")
      ->type_name("ITEM");

  CLI::App& language =
      add("language", "show or set the language of the next starts", commandLanguage);
  language.add_option("LANG", request_.item, "en, it, fr or es");

  CLI::App& lettering =
      add("lettering", "a specimen sheet of digits, numerals and signs", commandLettering);
  lettering.add_option("NAME=VALUE", request_.words,
                       "the sizes: txtArabi, txtNumbersize, txtZodiacsize");
  addOutputs(lettering, request_);

  CLI::App& manual =
      add("manual", "this program's man page, or its completion for bash", commandManual);
  manual.add_flag("--bash", request_.bash, "the completion script");
}

std::vector<std::string> wordsOf(const CLI::App& app) {
  std::vector<std::string> words;
  for (const CLI::App* sub : app.get_subcommands([](const CLI::App*) { return true; }))
    words.push_back(sub->get_name());
  return words;
}

std::string suggest(const CLI::App& app, const std::string& word) {
  std::vector<std::string> known;
  const bool option = word.starts_with('-');
  if (option) {
    std::set<std::string> names;
    for (const CLI::App* sub : app.get_subcommands([](const CLI::App*) { return true; })) {
      for (const CLI::Option* each : sub->get_options()) {
        for (const std::string& name : each->get_lnames()) names.insert("--" + name);
      }
    }
    known.assign(names.begin(), names.end());
  } else {
    known = wordsOf(app);
  }
  const std::vector<std::string_view> views(known.begin(), known.end());
  return unknownWord(option ? "option" : "command", word, views);
}

int usageError(std::string_view sentence) {
  std::cerr << "dialwright: " << sentence << "\n'dialwright --help' shows the commands\n";
  return kUsage;
}

int parseFailure(const CLI::App& app, const CLI::ParseError& error, int argc, char** argv) {
  if (error.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success)) return app.exit(error);
  const std::vector<std::string> words = wordsOf(app);
  const std::string first = argc > 1 ? argv[1] : "";
  if (!first.empty() && first[0] != '-' &&
      std::find(words.begin(), words.end(), first) == words.end()) {
    return usageError(suggest(app, first));
  }
  // A word too many stands at the end of the parser's sentence.
  const std::string sentence = error.what();
  const std::size_t extra = sentence.find(": -");
  const bool tooMany = error.get_exit_code() == static_cast<int>(CLI::ExitCodes::ExtrasError);
  if (tooMany && extra != std::string::npos) {
    return usageError(
        suggest(app, sentence.substr(extra + 2, sentence.find(' ', extra + 2) - extra - 2)));
  }
  return usageError(error.what());
}

}  // namespace

int runCommandLine(int argc, char** argv) {
  Request request;
  CLI::App app("Dialwright: sundials at true scale", "dialwright");
  app.set_version_flag("--version", "Dialwright " DIALWRIGHT_VERSION);
  app.require_subcommand(1);
  const Grammar grammar(app, request);
  try {
    try {
      app.parse(argc, argv);
      grammar.commands().at(app.get_subcommands().front()->get_name())(request);
    } catch (const CLI::ParseError& error) {
      // Help and version come this way, too, and have been said.
      if (const int status = parseFailure(app, error, argc, argv); status != 0) return status;
    }
    finishOutput();
    return 0;
  } catch (const UsageError& error) {
    return usageError(error.what());
  } catch (const CommandFailure& error) {
    if (error.what()[0] != '\0') std::cerr << "dialwright: " << error.what() << '\n';
  } catch (const std::exception& error) {
    std::cerr << "dialwright: " << error.what() << '\n';
  }
  return kFailed;
}

}  // namespace dialwright
