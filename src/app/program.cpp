// The running program.
#include "app/program.hpp"

#include <system_error>

namespace dialwright {

namespace {

constexpr double kFirstSheet = 10;  // times the page
// Where the origin lies from the top, as a part of the sheet's height: the start-up's figure and
// the window's own.
constexpr double kStartShift = 3.333333;
constexpr double kWindowShift = 3.3333333;

}  // namespace

Program::Program(ProgramConfig config)
    : config_(std::move(config)), store_(storeIn(config_.workingFolder)) {
  cartellaDXF_ = config_.workingFolder / "DialwrightDXF";
  std::error_code ignored;
  std::filesystem::create_directories(cartellaDXF_, ignored);
  loadLanguage();
  click(Item::M_Light);
  CaricaDefault(panel_, store_);
  sheet_.Marchio = kTitle;
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

void Program::SalvaDefault() { dialwright::SalvaDefault(panel_, store_); }

LoadResult Program::CaricaProgetto(const std::filesystem::path& path) {
  return dialwright::CaricaProgetto(path, panel_, sheet_);
}

void Program::click(Item item) {
  clickItem(panel_, params_, item, [this](std::string_view text) { return T(text); });
}

Ports Program::portsOfRun() const {
  Ports all = ports;
  all.translate = [this](std::string_view text) { return T(text); };
  return all;
}

void Program::click(Field field, bool state) {
  const Ports all = portsOfRun();
  Run run(panel_, params_, sheet_, all);
  clickField(run, field, state);
}

RunResult Program::CmdRun_Click() {
  const Ports all = portsOfRun();
  Run run(panel_, params_, sheet_, all);
  if (!dialwright::CmdRun_Click(run, drivers())) return RunResult::NoDriver;
  return run.refused() ? RunResult::Refused : RunResult::Drawn;
}

void Program::NuovoFoglio() {
  sheet_.Clear();
  sheet_.QuadranteH(params_.SheetW);
  sheet_.QuadranteL(params_.SheetH);
  sheet_.ShiftX(sheet_.QuadranteL() / 2);
  sheet_.ShiftY(sheet_.QuadranteH() / kWindowShift);
  sheet_.Messaggio("");
}

}  // namespace dialwright
