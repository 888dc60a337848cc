// What holds for every dial and any panel: a run ends, its numbers are numbers, two mirrors are
// none, a project draws what its panel draws, and programs don't meet.
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <algorithm>
#include <ctime>
#include <functional>
#include <memory>
#include <sstream>
#include <thread>

#include "app/drivers.hpp"
#include "paper/picture.hpp"
#include "properties/random_panel.hpp"
#include "sheet/dxf.hpp"
#include "sheet/entity_list.hpp"
#include "sheet/svg.hpp"
#include "support/folder.hpp"
#include "support/written.hpp"

namespace dialwright {
namespace {

#if defined(__OPTIMIZE__) && !defined(__SANITIZE_ADDRESS__)
constexpr bool kMeasured = true;
constexpr int kPanelsOfDial = 12;
#else
constexpr bool kMeasured = false;
constexpr int kPanelsOfDial = 2;
#endif
constexpr double kSecondsOfRun = 2;
constexpr long kMegabytesOfRun = 1500;
constexpr std::size_t kFewEntities = 30'000;  // what is worth drawing several times over

double secondsOfThread() {
  timespec now{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

std::string entityList(const Program& program) {
  return written([&](const Sink& sink) { writeEntityList(program.sheet().list(), sink); });
}

// All that an inversion could leave behind.
std::string everythingOf(Program& program) {
  const SheetView& view = program.view();
  std::string all = entityList(program);
  all += written([&](const Sink& sink) {
    writeSvg(program.sheet(), sink);
    EXPECT_EQ(writePng(program.sheet(), sink, {.scale = 20, .inks = Inks::Own}), "");
    DXF_Generate(program.sheet(), program.params().PiGreco, sink);
  });
  for (const SheetFieldRow& row : kSheetFields) all += view.text(row.field) + "|";
  for (const auto& look : {view.lookOfInvX(), view.lookOfInvY()})
    all += std::to_string(look.value_or(kNoFill)) + "|";
  return all + view.lblDimVal() + view.lblXYval() + view.scaleText();
}

// Whether the text tells it as a word of its own.
bool tells(std::string_view text, std::string_view word) {
  const auto letter = [&](std::size_t at) {
    return at < text.size() && std::isalpha(static_cast<unsigned char>(text[at])) != 0;
  };
  for (std::size_t at = text.find(word); at != std::string_view::npos;
       at = text.find(word, at + 1)) {
    if ((at == 0 || !letter(at - 1)) && !letter(at + word.size())) return true;
  }
  return false;
}

// In any file; the entity list holds every number of the records.
void expectNumbersOnly(Program& program) {
  const auto clean = [](std::string_view chunk) {
    EXPECT_FALSE(tells(chunk, "nan") || tells(chunk, "inf"));
  };
  writeEntityList(program.sheet().list(), clean);
  writeSvg(program.sheet(), clean);
  DXF_Generate(program.sheet(), program.params().PiGreco, clean);
}

// The same cells of two entity lists, numbers to 1e-12 of themselves or of a metre.
void expectSameDrawing(const std::string& a, const std::string& b) {
  if (a == b) return;
  std::istringstream some(a), others(b);
  for (std::string cell, other; std::getline(some, cell, ',');) {
    ASSERT_TRUE(std::getline(others, other, ','));
    if (cell == other) continue;
    const double number = numberOf(other);
    ASSERT_NEAR(numberOf(cell), number, 1e-12 * std::max(1.0, std::abs(number)));
  }
  EXPECT_TRUE(others.peek() == EOF);
}

class Properties : public ::testing::Test {
 protected:
  std::unique_ptr<Program> start() const {
    return std::make_unique<Program>(ProgramConfig{folder_.path(), DIALWRIGHT_DATA_DIR, "en"});
  }
  std::unique_ptr<Program> prepared(const RandomPanel& panel) const {
    auto program = start();
    panel.applyTo(*program);
    return program;
  }
  std::string drawn(const RandomPanel& panel) const {
    const auto program = prepared(panel);
    program->CmdRun_Click();
    return entityList(*program);
  }

  // Panels of every dial that draws, the dials taking turns.
  void forPanels(unsigned seed, int rounds, const std::function<void(const RandomPanel&)>& visit) {
    RandomPanels panels(seed);
    for (int round = 0; round < rounds; ++round) {
      for (const Item dial : dialItems()) {
        if (!draws(dial)) continue;
        const RandomPanel panel = panels.of(dial);
        SCOPED_TRACE(panel.told());
        visit(panel);
      }
    }
  }

  const Folder folder_;
};

TEST_F(Properties, EveryRunEndsAndTellsNumbersOnly) {
  int inked = 0;
  forPanels(1, kPanelsOfDial, [&](const RandomPanel& panel) {
    const auto program = prepared(panel);
    const double begin = secondsOfThread();
    program->CmdRun_Click();
    const double taken = secondsOfThread() - begin;
    EXPECT_TRUE(!kMeasured || taken < kSecondsOfRun) << taken << " s";
    const DisplayList& list = program->sheet().list();
    EXPECT_LE(list.size(), Run::kMaxEntities);
    inked += list.size() > 0;
    expectNumbersOnly(*program);
    program->press("cmdData");  // the data's own word for what lies at infinity is "inf"
    for (const TextRecord& text : list.texts) EXPECT_FALSE(tells(text.text, "nan")) << text.text;
  });
  EXPECT_GT(inked, 24 * kPanelsOfDial / 2) << "most panels are refused";
  rusage used{};
  getrusage(RUSAGE_SELF, &used);
  EXPECT_TRUE(!kMeasured || used.ru_maxrss >> 10 < kMegabytesOfRun) << used.ru_maxrss << " kB";
}

TEST_F(Properties, TwoInversionsAreNone) {
  forPanels(2, kPanelsOfDial / 4 + 1, [&](const RandomPanel& panel) {
    const auto program = prepared(panel);
    program->CmdRun_Click();
    program->press("cmdData");
    if (program->sheet().list().size() > kFewEntities) return;
    program->press("cmdAssi");
    program->sheet().Refresh();  // an inversion redraws, which moves texts, but once
    const std::string before = everythingOf(*program);
    for (const char* axis : {"cmdInvX", "cmdInvY"}) {
      program->press(axis);
      EXPECT_EQ(program->sheet().SignX() * program->sheet().SignY(), -1);
      program->press(axis);
      EXPECT_TRUE(everythingOf(*program) == before) << axis;
    }
  });
}

// A project keeps fifteen digits; what draws otherwise would have lost more than that.
TEST_F(Properties, AProjectDrawsWhatItsPanelDraws) {
  int compared = 0;
  forPanels(3, kPanelsOfDial / 2 + 1, [&](const RandomPanel& panel) {
    const auto program = prepared(panel);
    // Extents that fifteen digits hold: a point on the sheet's very edge stays on its side.
    program->sheet().ShiftX(1);
    program->sheet().ShiftY(0.875);
    SalvaProgetto(folder_ / "it.sun", program->panel(), program->sheet());
    const auto opened = start();
    ASSERT_EQ(opened->CaricaProgetto(folder_ / "it.sun").outcome, LoadResult::Outcome::Loaded);
    // A blank text of a project leaves the panel's own in its place.
    const auto blank = [](const auto& assigned) { return assigned.second.empty(); };
    if (std::ranges::any_of(panel.assignments, blank)) return;
    for (std::size_t i = 0; i < kFieldCount; ++i) {
      const Field field = fieldAt(i);
      EXPECT_EQ(opened->panel().text(field), program->panel().text(field)) << rowOf(field).name;
      EXPECT_EQ(opened->panel().on(field), program->panel().on(field)) << rowOf(field).name;
    }
    ++compared;
    EXPECT_EQ(opened->CmdRun_Click(), program->CmdRun_Click());
    expectSameDrawing(entityList(*opened), entityList(*program));
  });
  EXPECT_GT(compared, 24);
}

// One program runs while another one stands still in the middle of its run, or runs in a thread.
TEST_F(Properties, ProgramsDoNotMeet) {
  std::optional<RandomPanel> other;
  std::string drawnByOther;
  int nested = 0;
  forPanels(4, kPanelsOfDial / 4 + 1, [&](const RandomPanel& panel) {
    const std::string alone = drawn(panel);
    if (other) {
      const auto program = prepared(panel);
      int asked = 0;
      program->ports.cancelled = [&] {
        if (asked++ == 3) {
          EXPECT_TRUE(drawn(*other) == drawnByOther);
          ++nested;
        }
        return false;
      };
      program->CmdRun_Click();
      EXPECT_TRUE(entityList(*program) == alone);
      std::string beside;
      std::thread thread([&] { beside = drawn(*other); });
      EXPECT_TRUE(drawn(panel) == alone);
      thread.join();
      EXPECT_TRUE(beside == drawnByOther);
    }
    other = panel;
    drawnByOther = alone;
  });
  EXPECT_GT(nested, 10);
}

}  // namespace
}  // namespace dialwright
