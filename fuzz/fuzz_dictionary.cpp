// Dictionary files, and a window translated with one.
#include "fuzz/support.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace dialwright;
  fuzz::folder().put("DBQ2006.txt", fuzz::textOf(data, size));
  Dizionario dictionary;
  Panel panel;
  TraduciFinestra(panel, kMainWindow, kLanguageKey, fuzz::folder().path(), dictionary);
  fuzz::demand(!dictionary.T("Latitude ").empty(), "no text is translated to nothing");
  fuzz::demand(dictionary.T("no such text") == "no such text" || dictionary.has("no such text"),
               "a text without translation stays");
  return 0;
}
