// Panels by chance: a dial with texts and clicks that a user might give it, and some that nobody
// would. The same number always makes the same panel.
#pragma once

#include <cmath>
#include <cstdlib>
#include <iterator>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "app/program.hpp"
#include "numerics/numbers.hpp"

namespace dialwright {

struct RandomPanel {
  Item dial;
  std::vector<std::pair<Field, std::string>> assignments;  // of boxes and options "1" or "0"

  // On a program, as a user does it; but the frame's click draws it, and the run would once more.
  void applyTo(Program& program) const {
    program.click(dial);
    for (const auto& [field, value] : assignments) {
      const bool text = rowOf(field).kind == FieldKind::Text;
      if (text) {
        program.type(field, value);
      } else if (field == Field::ckFrame) {
        program.panel().setState(field, value == "1");
      } else if (program.panel().on(field) != (value == "1")) {
        program.click(field, value == "1");
      }
    }
  }

  // The command that does the same.
  std::string told() const {
    std::string command = "dialwright run " + std::string(rowOf(dial).name);
    for (const auto& [field, value] : assignments)
      command += " '" + std::string(rowOf(field).name) + "=" + value + "'";
    return command;
  }
};

// Three panels of four hold what could be meant; the fourth has up to three odd texts as well.
class RandomPanels {
 public:
  explicit RandomPanels(unsigned seed) : random_(seed) {}

  RandomPanel of(Item dial) {
    RandomPanel panel{dial, {}};
    for (std::size_t i = 0; i < kFieldCount; ++i) {
      const FieldRow& row = rowOf(fieldAt(i));
      if (row.kind == FieldKind::Text && below(3) == 0) {
        panel.assignments.emplace_back(fieldAt(i), plausible(row));
      } else if (row.kind == FieldKind::Check && below(3) == 0) {
        panel.assignments.emplace_back(fieldAt(i), below(2) == 0 ? "0" : "1");
      } else if (row.kind == FieldKind::Option && row.group != OptionGroup::Point &&
                 below(4) == 0) {
        panel.assignments.emplace_back(fieldAt(i), "1");
      }
    }
    for (unsigned odd = below(4) == 0 ? 1 + below(3) : 0; odd > 0; --odd) {
      const Field field = fieldAt(below(kFieldCount));
      if (rowOf(field).kind == FieldKind::Text) panel.assignments.emplace_back(field, oddText());
    }
    return panel;
  }

 private:
  unsigned below(std::size_t count) { return static_cast<unsigned>(random_() % count); }

  // Another angle, or so many times what the field starts with.
  std::string plausible(const FieldRow& row) {
    const double start = numberOf(row.text);
    const double part = below(10'000) / 10'000.0;
    if (std::abs(start) > 10 && below(2) == 0) return textOf(std::round(1800 * part - 900) / 10);
    const double value = (start == 0 ? 1 : start) * (0.25 + 2 * part);
    return textOf((below(8) == 0 ? -1 : 1) * std::round(value * 1e4) / 1e4);
  }

  std::string oddText() {
    constexpr const char* kTexts[] = {"",    "abc",  "0",     "-0",     "-1",     "90",     "-90",
                                      "180", "1e-9", "1e-4",  "1e300",  "1e9",    "24.5",   "0,25",
                                      "1 2", "&H1F", "1e999", "-66.56", "23.445", "45.7438"};
    return kTexts[below(std::size(kTexts))];
  }

  std::mt19937 random_;  // whose numbers the language lays down
};

}  // namespace dialwright
