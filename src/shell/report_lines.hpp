// How the report writes: lines of a label, a figure and its unit, and the forms of the figures.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "shell/report_figures.hpp"

namespace dialwright {

inline constexpr std::string_view kDegree = "°";
inline constexpr std::string_view kPlusMinus = "±";
inline constexpr std::string_view kColumnGap = "    ";

// A line of the report; the label is translated.
struct ReportRow {
  std::string_view label;
  std::string figure{};
  std::string_view unit{};
};

// The run that the report is written for, with its figures.
struct Report {
  Run& run;
  DialParams& p;
  ReportFigures f;

  void say(std::initializer_list<ReportRow> rows) const;
  void say(std::string_view text) const { run.sheet.Dati(text); }
  void blank() const { say(""); }
  void ink(Rgb colour) const { run.sheet.ForeColor = colour; }
};

// Cut to five decimals, as most figures are; empty for a fault.
std::string cut(double value);
std::string cutDegrees(const Angles& angles, double radians);
std::string roundedText(double value, int decimals);
std::string roundedDegrees(const Angles& angles, double radians, int decimals);

// "7h 21' " and "7h 21' 25 ''" of a time in hours; the sign stands before the hours.
std::string hoursMinutes(double hours);
std::string hoursMinutesSeconds(double hours);

// The blocks after the general one, each in its file.
void flatBlock(const Report& report);
void cylinderBlock(const Report& report);
void sunsPathBlock(const Report& report);
void TabelleCoordinate(const Report& report);

}  // namespace dialwright
