// A dial of a test: its own panel, record and sheet, a driver, and what the run said and drew.
#pragma once

#include <algorithm>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "app/drivers.hpp"
#include "shell/clicks.hpp"
#include "shell/dispatch.hpp"

namespace dialwright {

class DialCase {
 public:
  // The dial as the table of drivers has it, with these settings and no other box.
  explicit DialCase(Item item, std::string_view settings = {})
      : DialCase(item, std::ranges::find(drivers(), item, &DriverRow::item)->draw) {
    setBoxes(false);
    with(settings);
  }
  explicit DialCase(int program, std::string_view settings = {})
      : DialCase(findDial(std::to_string(program)).value(), settings) {}
  // With another driver in its place, and the boxes of a panel as it opens.
  DialCase(Item item, Driver driver) : row_{item, driver} {
    ports_.message = [this](std::string_view text) { messages.emplace_back(text); };
    ports_.beep = [this] { ++beeps; };
    ports_.hourglass = [this](bool on) { busy = on; };
    sheet.QuadranteH(kPageH * 10);
    sheet.QuadranteL(kPageW * 10);
    sheet.ShiftX(sheet.QuadranteL() / 2);
    sheet.ShiftY(sheet.QuadranteH() / 3.333333);
    const auto same = [](std::string_view text) { return std::string(text); };
    clickItem(panel, params, Item::M_Light, same);
    clickItem(panel, params, item, same);
  }

  DialCase& set(Field field, std::string_view text) {
    panel.setText(field, text);
    return *this;
  }
  // As a user clicks, when that changes the state.
  DialCase& check(Field field, bool state = true) {
    if (panel.on(field) != state) {
      Run run(panel, params, sheet, ports_);
      clickField(run, field, state);
    }
    return *this;
  }
  DialCase& setBoxes(bool state) {
    for (std::size_t i = 0; i < kFieldCount; ++i) {
      if (rowOf(fieldAt(i)).kind == FieldKind::Check) panel.setState(fieldAt(i), state);
    }
    return *this;
  }
  // Words between blanks: name=text of a field, or the name of a box or option that is on, with a
  // minus before it off. They are set as a project's file sets them, without any click.
  DialCase& with(std::string_view settings) {
    std::istringstream words{std::string(settings)};
    for (std::string word; words >> word;) {
      const std::size_t off = word.starts_with('-'), end = std::min(word.find('='), word.size());
      const Field field = findField(word.substr(off, end - off)).value();
      if (end < word.size()) {
        set(field, word.substr(end + 1));
      } else {
        panel.setState(field, !off);
      }
    }
    return *this;
  }
  DialCase& run() {
    Run run(panel, params, sheet, ports_);
    CmdRun_Click(run, {&row_, 1});
    refused = run.refused();
    return *this;
  }

  // A button's press after the run.
  DialCase& press(void (*button)(Run&)) {
    Run run(panel, params, sheet, ports_);
    button(run);
    return *this;
  }

  std::vector<LineRecord> linesOf(std::string_view layer) {
    return selected(sheet.list().lines,
                    [&](const LineRecord& r) { return r.layer == sheet.layer(layer); });
  }
  std::vector<LineRecord> linesIn(Rgb colour) {
    return selected(sheet.list().lines, [&](const LineRecord& r) { return r.colour == colour; });
  }
  std::vector<PointRecord> pointsIn(Rgb colour) {
    return selected(sheet.list().points, [&](const PointRecord& r) { return r.colour == colour; });
  }
  std::size_t entities() const { return sheet.list().size(); }
  // All texts in their order, with a bar after each.
  std::string told() const {
    std::string all;
    for (const TextRecord& text : sheet.list().texts) all += text.text + "|";
    return all;
  }

  Panel panel;
  DialParams params;
  SheetPlot sheet;
  std::vector<std::string> messages;
  int beeps = 0;
  bool busy = false;
  bool refused = false;

 private:
  template <class Record, class Test>
  static std::vector<Record> selected(const std::vector<Record>& records, Test test) {
    std::vector<Record> chosen;
    for (const Record& record : records) {
      if (test(record)) chosen.push_back(record);
    }
    return chosen;
  }

  DriverRow row_;
  Ports ports_;
};

}  // namespace dialwright
