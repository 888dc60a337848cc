// Reading the report back: figures by their labels and tables by their headings.
#pragma once

#include <cmath>
#include <limits>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "numerics/numbers.hpp"
#include "sheet/sheet_plot.hpp"

namespace dialwright {

class ReportText {
 public:
  static constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

  explicit ReportText(const SheetPlot& sheet) {
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
    int found = 0;
    for (const std::string& line : lines) found += line.starts_with(label);
    return found;
  }
  double number(std::string_view label, int nth = 0) const {
    const std::string figure = after(label, nth);
    return figure.empty() ? kNone : numberOf(figure);
  }
  // Hours of "7h 21' 25 ''" or "7h 21' ".
  double hours(std::string_view label, int nth = 0) const {
    std::istringstream in(after(label, nth));
    double h = kNone, m = 0, s = 0;
    char unit = ' ';
    in >> h >> unit >> m >> unit >> s;
    return std::copysign(std::abs(h) + m / 60 + s / 3600, h);
  }
  // The rows below the nth line of that heading, as long as they have that many columns; a column
  // that is no number is a NaN.
  std::vector<std::vector<double>> table(std::string_view heading, std::size_t columns,
                                         int nth = 0) const {
    std::vector<std::vector<double>> rows;
    for (std::size_t i = 0; i < lines.size(); ++i) {
      if (lines[i] != heading || nth-- != 0) continue;
      while (++i < lines.size()) {
        const std::vector<double> row = figures(lines[i]);
        if (row.size() != columns) break;
        rows.push_back(row);
      }
      break;
    }
    return rows;
  }

  std::vector<std::string> lines;

 private:
  // The figures of a table's row; none of a line with other words.
  static std::vector<double> figures(const std::string& line) {
    std::vector<double> row;
    std::istringstream in(line);
    for (std::string word; in >> word;) {
      const bool none = word == "-" || word == "inf";
      if (!none && word.find_first_not_of("-.0123456789") != std::string::npos) return {};
      row.push_back(none ? kNone : numberOf(word));
    }
    return row;
  }
};

}  // namespace dialwright
