// Project files: any bytes as a file, and as the plain body of one. What loads saves again to a file
// that loads to the same panel.
#include "fuzz/support.hpp"
#include "persist/project.hpp"

namespace {

using namespace dialwright;

bool isBlank(std::string_view text) { return text.find_first_not_of(' ') == text.npos; }

void load(const std::string& bytes) {
  Panel panel;
  SheetPlot sheet;
  if (!leggiProgetto(bytes, panel, sheet)) return;
  const std::string saved = progettoDi(panel, sheet);
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    // The file's form can't hold a quote, nor its own marks.
    const Control& control = panel[fieldAt(i)];
    if ((control.text + control.caption).find_first_of("\"<") != std::string::npos) return;
  }
  Panel again;
  fuzz::demand(leggiProgetto(saved, again, sheet), "what is saved loads");
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    const Field field = fieldAt(i);
    fuzz::demand(again[field].state == panel[field].state, "a saved state comes back");
    fuzz::demand(again[field].text == panel[field].text || isBlank(panel[field].text),
                 "a saved text comes back");
    fuzz::demand(again[field].visible == panel[field].visible, "what was hidden stays hidden");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(fuzz::textOf(data, size));
  load(text);
  load("\"|KoK 2.0|" + Mescola(Mescola(Mescola(text))) + "\"\r\n");
  return 0;
}
