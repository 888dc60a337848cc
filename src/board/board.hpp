// The utility board beside a dial: a solar calculator that reads and writes the main panel. A
// window shows its controls and calls its operations; it needs none.
#pragma once

#include <array>
#include <chrono>
#include <string>
#include <string_view>
#include <vector>

#include "board/board_fields.hpp"
#include "board/declinazione.hpp"
#include "shell/clicks.hpp"
#include "shell/panel.hpp"

namespace dialwright {

class Board {
 public:
  // Opens the board on a panel, which must outlive it: the site and the zone are taken from there,
  // captions and tips come in the translator's language.
  Board(Panel& panel, Translator T);

  // A control's text, caption, tip, state and whether it can be used.
  const Control& operator[](BoardField field) const {
    return controls_[static_cast<std::size_t>(field)];
  }
  const std::string& text(BoardField field) const { return (*this)[field].text; }
  bool on(BoardField field) const { return (*this)[field].state; }

  // Puts a moment of UT into the date and the time.
  void setMoment(std::chrono::sys_seconds moment);

  // A text typed into a field, which waits for the user to leave it.
  void type(BoardField field, std::string_view text);
  // The user leaves a field: a notation of the latitude or the longitude follows the other.
  void leave(BoardField field);
  // A click on the box or on an option, which then has that state. The notation's option says which
  // fields can be used.
  void click(BoardField field, bool state);
  // A press of a button. What opens or closes a window is that window's business.
  void press(BoardField button);

  // Works the results out and writes them into txtResult; writes into the main panel the sun's
  // declination, hour angle and right ascension, or at 0 h UT when the star of that right ascension
  // is on the meridian.
  void Declinazione();

  // What the last calculation gave.
  const BoardInput& input() const { return input_; }
  const BoardFigures& figures() const { return figures_; }
  const SunOfMoment& sun() const { return sun_; }
  // The fields of the main panel that it wrote.
  const std::vector<Field>& written() const { return written_; }

  // What frmInfoDec shows: how az is measured, one paragraph a line.
  std::string instructions() const;

 private:
  struct Notation;
  static const std::array<Notation, 2> kNotations;

  Control& at(BoardField field) { return controls_[static_cast<std::size_t>(field)]; }
  // The number of a text; 0 when there is none or when it is too large.
  double number(BoardField field) const;
  double panelNumber(Field field) const;
  void decimalToSex(const Notation& notation);
  void sexToDecimal(const Notation& notation);
  void toggleSign(const Notation& notation);
  BoardInput readInput() const;
  void write(Field field, std::string_view text);
  void Transito();

  Panel& panel_;
  Translator T_;
  std::array<Control, kBoardFieldCount> controls_;
  std::string lineEnd_ = "\n";
  BoardInput input_;
  BoardFigures figures_;
  SunOfMoment sun_;
  std::vector<Field> written_;
};

}  // namespace dialwright
