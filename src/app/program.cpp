// The running program.
#include "app/program.hpp"

#include <fstream>
#include <memory>
#include <system_error>

#include "lettering/specimen.hpp"
#include "persist/encoding.hpp"
#include "persist/safe_file.hpp"
#include "proof/scenes.hpp"
#include "shell/report.hpp"

namespace dialwright {

namespace {

constexpr double kFirstSheet = 10;  // times the page
// Where the origin lies from the top, as a part of the sheet's height: the start-up's figure and
// the window's own.
constexpr double kStartShift = 3.333333;
constexpr double kWindowShift = 3.3333333;

// The judge of a dial whose fields make no scene: there is no shadow at all.
class NoShadow : public ShadowJudge {
 public:
  bool isShadow(Punto, CurveFamily, const Sun&) override { return false; }
  bool isTrack(Punto, Punto, const Meaning&) override { return false; }
};

// Has the strokes of a run or of a press judged while it lasts, when the panel asks for true
// shadows only.
class TrueShadows {
 public:
  TrueShadows(const Panel& panel, SheetPlot& sheet) : sheet_(sheet) {
    if (!panel.on(Field::ckTrue)) return;
    if (auto scene = proof::sceneOf(panel)) {
      judge_ = std::make_unique<proof::SceneJudge>(std::move(*scene));
    } else if (proof::hasScenes(panel.chosen())) {
      judge_ = std::make_unique<NoShadow>();
    }
    sheet_.judge(judge_.get());
  }
  ~TrueShadows() { sheet_.judge(nullptr); }
  TrueShadows(const TrueShadows&) = delete;
  TrueShadows& operator=(const TrueShadows&) = delete;

 private:
  SheetPlot& sheet_;
  std::unique_ptr<ShadowJudge> judge_;
};

RunResult runOf(Panel& panel, DialParams& params, SheetPlot& sheet, const Ports& ports) {
  const TrueShadows judged(panel, sheet);
  Run run(panel, params, sheet, ports);
  if (!CmdRun_Click(run, drivers())) return RunResult::NoDriver;
  return run.refused() ? RunResult::Refused : RunResult::Drawn;
}

}  // namespace

Program::Program(ProgramConfig config)
    : config_(std::move(config)), store_(storeIn(config_.workingFolder)) {
  view_.ports.message = [this](std::string_view text) {
    if (ports.message) ports.message(text);
  };
  cartellaDXF_ = config_.workingFolder / "DialwrightDXF";
  std::error_code ignored;
  std::filesystem::create_directories(cartellaDXF_, ignored);
  loadLanguage();
  click(Item::M_Light);
  CaricaDefault(panel_, store_);
  sheet_.Marchio = kTitle;
  sheet_.BackColor = options_.SheetBackColor();
  params_.SheetW = sheet_.QuadranteH() * kFirstSheet;
  params_.SheetH = sheet_.QuadranteL() * kFirstSheet;
  sheet_.QuadranteH(params_.SheetW);
  sheet_.QuadranteL(params_.SheetH);
  sheet_.ShiftX(sheet_.QuadranteL() / 2);
  sheet_.ShiftY(sheet_.QuadranteH() / kStartShift);
}

// A language asked for by name comes straight from the data; without one, the user's choice lies in
// the working folder.
void Program::loadLanguage() {
  const Lingua* asked = findLingua(config_.language);
  const std::string key(asked == nullptr ? kLanguageKey : asked->key);
  if (key.empty()) return;
  TraduciFinestra(panel_, kMainWindow, key,
                  asked == nullptr ? config_.workingFolder : config_.dataFolder, dictionary_);
}

std::string Program::T(std::string_view text) const { return dictionary_.T(text); }

std::string Program::chooseLanguage(Item item) {
  return scegliLingua(panel_, item, config_.workingFolder, config_.dataFolder);
}

std::string Program::storedLanguage() const {
  const std::string stored = dictionaryText(config_.workingFolder, kLanguageKey);
  if (stored.empty()) return "en";
  for (const Lingua& lingua : lingue()) {
    if (!lingua.key.empty() && dictionaryText(config_.dataFolder, lingua.key) == stored)
      return std::string(lingua.code);
  }
  return {};
}

std::vector<std::string_view> Program::buttons() const {
  std::vector<std::string_view> names;
  for (const FieldRow& row : fieldTable()) {
    if (row.kind == FieldKind::Button || row.group == OptionGroup::Point) names.push_back(row.name);
  }
  for (const SheetCommandRow& row : kSheetCommands) {
    if (!findField(row.name)) names.push_back(row.name);
  }
  return names;
}

// The panel's cmdSave goes before the sheet's.
Press Program::press(std::string_view button) {
  const auto field = findField(button);
  if (!field || !(rowOf(*field).kind == FieldKind::Button || field == Field::Option_P)) {
    const auto command = findSheetCommand(button);
    if (!command) return Press::Unknown;
    view_.press(*command);
    return Press::Done;
  }
  if (!panel_[*field].enabled || !panel_[*field].visible) return Press::Disabled;
  pressEnabled(*field);
  return Press::Done;
}

void Program::pressEnabled(Field button) {
  if (button == Field::cmdRun) {
    CmdRun_Click();
    return;
  }
  const Ports all = portsOfRun();
  Run run(panel_, params_, sheet_, all);
  switch (button) {
    case Field::cmdSave: SalvaDefault(); break;
    case Field::cmdData: cmdData_Click(run); break;
    case Field::cmdStati: loadWorld(run); break;
    case Field::cmdPlot: {
      if (world_.rows.empty()) loadWorld(run);
      const TrueShadows judged(panel_, sheet_);
      DisegnaMondo(run, world_);
      break;
    }
    case Field::Option_P: click(Field::Option_P, true); break;
    default: break;
  }
}

// The user's own map in the working folder goes before the one that comes with the program; without
// any the list of countries holds the whole world alone.
void Program::loadWorld(Run& run) {
  world_ = {};
  for (const std::filesystem::path& folder : {config_.workingFolder, config_.dataFolder}) {
    try {
      world_ = readWorld(decodeText(readFile(folder / "mondo.csv")), panel_.number(Field::txtLON));
      break;
    } catch (const FileError&) {
      continue;
    }
  }
  CaricaMondo(run);
}

void Program::type(Field field, std::string_view text) {
  if (field == Field::cmbStati) {
    chooseCountry(panel_, text);
  } else {
    panel_.setText(field, text);
  }
}

void Program::SalvaDefault() { dialwright::SalvaDefault(panel_, store_); }

LoadResult Program::CaricaProgetto(const std::filesystem::path& path) {
  return CaricaProgetto(path, path.filename().string());
}

LoadResult Program::CaricaProgetto(const std::filesystem::path& path, std::string title) {
  LoadResult result = dialwright::CaricaProgetto(path, panel_, sheet_);
  if (result.outcome == LoadResult::Outcome::Loaded) projectTitle_ = std::move(title);
  return result;
}

void Program::click(Item item) {
  clickItem(panel_, params_, item, [this](std::string_view text) { return T(text); });
}

Ports Program::translated(Ports all) const {
  all.translate = [this](std::string_view text) { return T(text); };
  return all;
}

void Program::click(Field field, bool state) {
  const Ports all = portsOfRun();
  Run run(panel_, params_, sheet_, all);
  clickField(run, field, state);
  if (field != Field::Option_P || !state) return;
  const TrueShadows judged(panel_, sheet_);
  if (panel_.on(Field::ckFunction)) {
    MappaCitta(run);
  } else {
    PuntoOpzionale(run);
  }
  panel_.setState(Field::Option_P, false);  // it works as a push button
}

RunResult Program::CmdRun_Click() { return runOf(panel_, params_, sheet_, portsOfRun()); }

SpareRun Program::prepareRun(bool anew) const {
  SpareRun run{inputs(), anew, panel_, params_, sheet_.spare()};
  if (!anew) return run;
  run.params = {};
  run.params.ModoDati = params_.ModoDati;
  run.params.UsaLongitudine = params_.UsaLongitudine;
  run.params.SheetW = params_.SheetW;
  run.params.SheetH = params_.SheetH;
  run.sheet.moveCursor(0, 0);
  return run;
}

void Program::make(SpareRun& spare, Ports ofRun) const {
  spare.result = runOf(spare.panel, spare.params, spare.sheet, translated(std::move(ofRun)));
}

void Program::adopt(SpareRun&& run) {
  panel_.takeChanges(run.inputs.panel, run.panel);
  // Clicks of the meantime count for the next run.
  run.params.ModoDati = params_.ModoDati;
  run.params.UsaLongitudine = params_.UsaLongitudine;
  params_ = run.params;
  sheet_.adopt(std::move(run.sheet), run.anew);
  if (run.anew) view_.redrawOwn();
}

Inputs Program::inputs() const { return {panel_, params_.ModoDati, params_.UsaLongitudine}; }

void Program::restore(const Inputs& former) {
  const bool data = panel_[Field::cmdData].visible;
  const bool language = panel_[Item::mnuLang].enabled;
  panel_ = former.panel;
  panel_[Field::cmdData].visible = data;
  panel_[Item::mnuLang].enabled = language;
  params_.ModoDati = former.ModoDati;
  params_.UsaLongitudine = former.UsaLongitudine;
}

std::optional<proof::Proof> Program::prove(double within) const {
  const std::optional<proof::Scene> scene = proof::sceneOf(panel_);
  if (!scene) return std::nullopt;
  return proof::prove(sheet_.list(), *scene, within);
}

std::string Program::viewer() const {
  std::ifstream file(config_.workingFolder / "viewer.txt");
  std::string line;
  std::getline(file, line);
  return line;
}

Board Program::openBoard() {
  return Board(panel_, [this](std::string_view text) { return T(text); });
}

void Program::DisegnaCampionario() {
  const Ports all = portsOfRun();
  Run run(panel_, params_, sheet_, all);
  dialwright::DisegnaCampionario(run);
}

bool Program::mayClose() const {
  if (projectTitle_.empty() || !ports.ask) return true;
  return ports.ask(T("Attention! do you wish to close the file ") + projectTitle_ + "?");
}

bool Program::NuovoFoglio() {
  if (!mayClose()) return false;
  projectTitle_.clear();
  sheet_.QuadranteH(params_.SheetW);
  sheet_.QuadranteL(params_.SheetH);
  sheet_.ShiftX(sheet_.QuadranteL() / 2);
  sheet_.ShiftY(sheet_.QuadranteH() / kWindowShift);
  sheet_.renew();
  sheet_.BackColor = options_.SheetBackColor();
  sheet_.Messaggio("");
  return true;
}

}  // namespace dialwright
