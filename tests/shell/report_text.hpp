// The report of a dial on a flat wall, read back: figures by their labels and tables by their
// headings.
#pragma once

#include <cstdio>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "shell/report.hpp"
#include "shell/wall_case.hpp"

namespace dialwright {

// Fills the record as a dial's frame does, and draws nothing.
inline void recordOnly(Run& run) {
  DialParams& p = run.params;
  assign(p.LatGradi, run.number(Field::txtLAT));
  assign(p.LatRad, p.radians(p.LatGradi));
  assign(p.LonGradi, run.number(Field::txtLON));
  assign(p.CorrLon, p.radians(15 + p.LonGradi));
  assign(p.CorrFuso, p.radians(p.LonGradi - 15 * run.number(Field::TxtFuso)));
  assign(p.Raggio, run.number(Field::TxtRadius));
}

class ReportText : public WallCase {
 public:
  using Boxes = std::vector<Field>;
  using Texts = std::vector<std::pair<Field, std::string_view>>;
  using Figures = std::vector<double>;

  // The reclination counts on the dials that have a field for it.
  ReportText(Item item, const Site& wall, const Boxes& boxes = {}, const Texts& typed = {})
      : WallCase(item, recordOnly, wall) {
    // A southern dial counts its walls from the North; a level plane faces nowhere.
    if (wall.latitude < 0) plane = sky::Plane::facing(180 - wall.declination, wall.reclination);
    if (wall.reclination == 90) plane = sky::Plane::facing(0, 90);
    for (const Field box : boxes) check(box);
    for (const auto& [field, text] : typed) set(field, text);
    run().press(cmdData_Click);
    for (const TextRecord& text : sheet.list().texts) lines.push_back(text.text);
  }

  // What follows the label in the nth line that starts with it; an empty text for none.
  std::string after(std::string_view label, int nth = 0) const {
    for (const std::string& line : lines) {
      if (line.starts_with(label) && nth-- == 0) return line.substr(label.size());
    }
    return {};
  }
  int count(std::string_view label) const {
    return static_cast<int>(std::ranges::count_if(
        lines, [label](const std::string& line) { return line.starts_with(label); }));
  }
  double number(std::string_view label, int nth = 0) const {
    const std::string figure = after(label, nth);
    return figure.empty() ? kFault : numberOf(figure);
  }
  // Hours of "7h 21' 25 ''" or "7h 21' ".
  double hours(std::string_view label, int nth = 0) const {
    double h = kFault, m = 0, s = 0;
    std::sscanf(after(label, nth).c_str(), "%lfh %lf' %lf", &h, &m, &s);
    return h + m / 60 + s / 3600;
  }
  // The rows below the nth line of that heading.
  std::vector<Figures> table(std::string_view heading, int nth = 0) const {
    std::size_t at = 0;
    while (at < lines.size() && (lines[at] != heading || nth-- != 0)) ++at;
    std::vector<Figures> rows;
    while (++at < lines.size() && !figures(lines[at]).empty()) rows.push_back(figures(lines[at]));
    return rows;
  }

  // The figures of a table's row, NaN for one that is none; nothing of a line with other words.
  static Figures figures(const std::string& line) {
    Figures row;
    std::istringstream in(line);
    for (std::string word; in >> word;) {
      const bool none = word == "-" || word == "inf";
      if (!none && word.find_first_not_of("-.0123456789E") != std::string::npos) return {};
      row.push_back(none ? kFault : numberOf(word));
    }
    return row;
  }

  std::vector<std::string> lines;
};

}  // namespace dialwright
