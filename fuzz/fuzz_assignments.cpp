// The words of a command line, one a line: assignments and presses, and the board's.
#include "cli/errors.hpp"
#include "cli/words.hpp"
#include "fuzz/support.hpp"
#include "persist/safe_file.hpp"

namespace {

using namespace dialwright;

template <class Deed>
void endure(Deed deed) {
  try {
    deed();
  } catch (const UsageError&) {
  } catch (const CommandFailure&) {
  } catch (const FileError&) {
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view text = fuzz::textOf(data, size).substr(0, 4096);
  Program program(fuzz::config());
  for (bool first = true; !text.empty(); first = false) {
    const std::string_view word = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(text.size(), word.size() + 1));
    if (first) {
      endure([&] { program.click(dialOf(word)); });
    } else if (word.find('=') == std::string_view::npos) {
      if (word != "cmdRun") endure([&] { pressButton(program, word); });
    } else {
      endure([&] { assignField(program, word); });
    }
  }
  return 0;
}
