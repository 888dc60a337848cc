// Whole panels of every dial: whatever stands in the fields, a run ends soon, keeps to its limits and
// leaves nothing on the sheet that is no number; every writer writes it.
#include <cmath>
#include <ctime>

#include "fuzz/support.hpp"
#include "sheet/dxf.hpp"
#include "sheet/entity_list.hpp"
#include "sheet/svg.hpp"

namespace {

using namespace dialwright;

constexpr const char* kTexts[] = {"",     "0",     "-0",   "1",     "-1",    "0.2",   "45",    "-45",
                                  "90",   "-90",   "180",  "23.45", "66.56", "89.99", "1e-9",  "1e9",
                                  "1e308", "1e999", "-5.5", "7,5",  "abc",   "0.05",  "1e-320", "12"};

// Reads decisions from the bytes; zeros once they are used up.
class Bytes {
 public:
  Bytes(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}
  std::size_t below(std::size_t n) { return at_ < size_ ? data_[at_++] % n : 0; }
  bool empty() const { return at_ >= size_; }

 private:
  const std::uint8_t* data_;
  std::size_t size_, at_ = 0;
};

template <class... Numbers>
void finite(Numbers... numbers) {
  fuzz::demand((std::isfinite(numbers) && ...), "what is drawn has places");
}

void look(const DisplayList& list) {
  for (const PointRecord& r : list.points) finite(r.x, r.y);
  for (const LineRecord& r : list.lines) finite(r.x1, r.y1, r.x2, r.y2);
  for (const BoxRecord& r : list.boxes) finite(r.x1, r.y1, r.x2, r.y2);
  for (const CircleRecord& r : list.circles) finite(r.x, r.y, r.radius, r.startAngle, r.endAngle);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Bytes bytes(data, size);
  Program program(fuzz::config());
  program.click(dialItems()[bytes.below(dialItems().size())]);
  while (!bytes.empty()) {
    const Field field = fieldAt(bytes.below(kFieldCount));
    switch (rowOf(field).kind) {
      case FieldKind::Text: program.type(field, kTexts[bytes.below(std::size(kTexts))]); break;
      case FieldKind::Check:
      case FieldKind::Option: program.panel().setState(field, bytes.below(2) == 1); break;
      default: break;
    }
  }
  const std::clock_t begin = std::clock();  // of the processor: the machine may be busy
  program.CmdRun_Click();
  program.press("cmdData");
  const double seconds = static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
  fuzz::demand(seconds < 20, "a run ends soon, also under the sanitizers");
  look(program.sheet().list());
  std::size_t written = 0;
  const Sink sink = [&](std::string_view chunk) { written += chunk.size(); };
  if (program.sheet().list().size() > 200'000) return 0;
  DXF_Generate(program.sheet(), program.params().PiGreco, sink);
  writeSvg(program.sheet(), sink);
  writeEntityList(program.sheet().list(), sink);
  fuzz::demand(written > 0, "something is written");
  return 0;
}
