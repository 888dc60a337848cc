// Tests of what all cornice dials share: the order of their families, what they refuse and endure.
#include <gtest/gtest.h>

#include "dials/cornice/cornice_cilindrica.hpp"
#include "dials/cornice/cornice_conica.hpp"
#include "dials/cornice/cornice_piana.hpp"
#include "support/dial_case.hpp"
#include "support/odd_input.hpp"

namespace dialwright {
namespace {

constexpr std::pair<Item, Driver> kDials[] = {{Item::mnuCorncil, DisegnaCorniceCilindrica},
                                              {Item::mnuCorncon, DisegnaCorniceConica},
                                              {Item::mnuCorn_flat, DisegnaCornicePianaEst},
                                              {Item::mnuCorn_flat2, DisegnaCornicePianaInt}};

// The lines in their order, as runs of one layer and colour with their number.
std::string runs(const DisplayList& list) {
  std::string all;
  const auto& lines = list.lines;
  for (std::size_t i = 0, next = 0; i < lines.size(); i = next) {
    while (next < lines.size() && lines[next].layer == lines[i].layer &&
           lines[next].colour == lines[i].colour)
      ++next;
    int ink = 0;
    while (palette(ink) != lines[i].colour) ++ink;
    all += list.name(lines[i].layer) + " " + std::to_string(ink) + " x" + std::to_string(next - i) +
           "|";
  }
  return all;
}

TEST(CorniceDials, DrawTheirFamiliesInOrder) {
  const char* expected[] = {
      "diurna 4 x10499|diurne 4 x10499|ore 10 x2948|ore2 10 x29541|ore 11 x6283|"
      "0 7 x1|0 15 x2|0 7 x1|0 15 x2|",
      "ore1 12 x39845|ore2 10 x39845|diurna 4 x2058|diurna2 4 x2058|ombra2 11 x6283|"
      "ombra 13 x6281|xombra 13 x6283|0 4 x1|basealta 14 x1523|basebassa 14 x15238|0 14 x4|",
      "daylight1 4 x3675|daylight2 4 x1498|afternoon 12 x14997|morning 4 x23758|"
      "0 5 x2|0 14 x1|",
      "daylight1 4 x8420|daylight2 4 x4152|afternoon 10 x24497|morning 10 x29151|"
      "0 5 x2|0 14 x1|"};
  for (std::size_t i = 0; i < std::size(kDials); ++i) {
    DialCase dial(kDials[i].first, kDials[i].second);
    dial.panel.setState(Field::ckFunction, true);
    if (i == 0) dial.set(Field::txt_R2, "0.4");
    dial.run();
    EXPECT_EQ(runs(dial.sheet.list()), expected[i]);
  }
}

TEST(CorniceDials, RefuseTheSouthAndEndureAnyInput) {
  for (const auto& [item, driver] : kDials) {
    expectRefusesSouth(item, driver);
    expectBounded(item, driver, {Field::ckFunction, Field::ckArabi},
                  {Field::txtLAT, Field::TxtRadius, Field::txt_R2, Field::txtD1, Field::TxtStilo,
                   Field::txtLineofdeclination, Field::txtAO, Field::txtDecl, Field::txt_Definition,
                   Field::txtArabi});
  }
}

}  // namespace
}  // namespace dialwright
