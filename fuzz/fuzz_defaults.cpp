// Files of default parameters: what is read can be stored, and reads the same again.
#include "fuzz/support.hpp"
#include "persist/safe_file.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace dialwright;
  const auto file = storeIn(fuzz::folder().path());
  fuzz::folder().put(file.filename().c_str(), fuzz::textOf(data, size));
  Parametri store(file);
  Panel panel;
  CaricaDefault(panel, store);
  try {
    SalvaDefault(panel, store);
  } catch (const FileError&) {
    return 0;  // the store is full
  }
  for (const auto& [key, value] : store.pairs()) {
    // The file's form can't hold a quote.
    if ((key + value).find('"') != std::string::npos) return 0;
  }
  Parametri again(file);
  fuzz::demand(again.Leggi("LAT") == panel.text(Field::txtLAT), "a stored default reads the same");
  return 0;
}
