// The board's operations.
#include "board/board.hpp"

#include "board/conversions.hpp"
#include "numerics/numbers.hpp"

namespace dialwright {

// An angle in its two notations, and where it stands on the main panel.
struct Board::Notation {
  Field panel;
  BoardField decimal, sign, degrees, minutes, seconds;
};

constexpr std::array<Board::Notation, 2> Board::kNotations = {
    {{Field::txtLAT, BoardField::txtLAT, BoardField::cmdSignLAT, BoardField::txtLatG,
      BoardField::txtLatP, BoardField::txtLATS},
     {Field::txtLON, BoardField::txtLON, BoardField::cmdSignLON, BoardField::txtLonG,
      BoardField::txtLonP, BoardField::txtLonS}}};

namespace {

constexpr std::string_view kPlus = "+", kMinus = "-";

std::string twoDigits(const std::string& text) { return text.size() < 2 ? "0" + text : text; }

}  // namespace

Board::Board(Panel& panel, Translator T) : panel_(panel), T_(std::move(T)) {
  for (std::size_t i = 0; i < kBoardFieldCount; ++i) {
    const BoardRow& row = rowOf(boardFieldAt(i));
    Control& control = controls_[i];
    if (row.kind == FieldKind::Text) {
      control.text = row.text;
    } else {
      control.caption = T_(row.text);
    }
    control.tip = T_(row.tip);
    control.state = row.state;
  }
  at(BoardField::TxtFuso).text = panel_.text(Field::TxtFuso);
  for (const Notation& notation : kNotations) {
    at(notation.decimal).text = panel_.text(notation.panel);
    decimalToSex(notation);
  }
  click(BoardField::optModoDec, true);
}

double Board::number(BoardField field) const {
  const double value = numberOf(text(field));
  return sound(value) ? value : 0;
}

double Board::panelNumber(Field field) const {
  const double value = panel_.number(field);
  return sound(value) ? value : 0;
}

void Board::setMoment(std::chrono::sys_seconds moment) {
  const auto day = std::chrono::floor<std::chrono::days>(moment);
  const std::chrono::year_month_day date(day);
  const std::chrono::hh_mm_ss time(moment - day);
  at(BoardField::txtDay).text = textOf(static_cast<unsigned>(date.day()));
  at(BoardField::txtMonth).text = textOf(static_cast<unsigned>(date.month()));
  at(BoardField::txtYear).text = textOf(static_cast<int>(date.year()));
  at(BoardField::txtHH).text = textOf(static_cast<double>(time.hours().count()));
  at(BoardField::txtMM).text = textOf(static_cast<double>(time.minutes().count()));
  at(BoardField::txtSS).text = textOf(static_cast<double>(time.seconds().count()));
}

void Board::type(BoardField field, std::string_view text) { at(field).text = text; }

void Board::leave(BoardField field) {
  for (const Notation& notation : kNotations) {
    if (field == notation.decimal) decimalToSex(notation);
    if (field == notation.degrees || field == notation.minutes || field == notation.seconds)
      sexToDecimal(notation);
  }
}

// The sign stands on its button, so that the degrees bear none.
void Board::decimalToSex(const Notation& notation) {
  double degrees = 0, minutes = 0, seconds = 0;
  const double value = number(notation.decimal);
  GradiDecToSex(value, degrees, minutes, seconds);
  if (panel_.on(Field::ckTrue)) {
    const HourParts parts = roundedParts(std::abs(value));
    degrees = parts.hours;
    minutes = parts.minutes;
    seconds = parts.seconds;
  }
  at(notation.degrees).text = textOf(std::abs(degrees));
  at(notation.minutes).text = textOf(minutes);
  at(notation.seconds).text = textFixed(seconds, 4);
  at(notation.sign).caption = value < 0 ? kMinus : kPlus;
}

void Board::sexToDecimal(const Notation& notation) {
  const char sign = (*this)[notation.sign].caption.front();
  const double value = GradiSexToDec(sign, number(notation.degrees), number(notation.minutes),
                                     number(notation.seconds));
  if (sound(value)) at(notation.decimal).text = textOf(value);
}

void Board::toggleSign(const Notation& notation) {
  std::string& caption = at(notation.sign).caption;
  caption = caption == kPlus ? kMinus : kPlus;
  std::string& decimal = at(notation.decimal).text;
  if (decimal.starts_with(kPlus) || decimal.starts_with(kMinus)) decimal.erase(0, 1);
  if (caption == kMinus) decimal.insert(0, kMinus);
}

void Board::click(BoardField field, bool state) {
  at(field).state = state;
  if (field != BoardField::optModoDec && field != BoardField::OptModoSess) return;
  const bool decimal = (field == BoardField::optModoDec) == state;
  at(BoardField::optModoDec).state = decimal;
  at(BoardField::OptModoSess).state = !decimal;
  for (const Notation& notation : kNotations) {
    at(notation.decimal).enabled = decimal;
    for (const BoardField part :
         {notation.sign, notation.degrees, notation.minutes, notation.seconds})
      at(part).enabled = !decimal;
  }
}

void Board::press(BoardField button) {
  switch (button) {
    case BoardField::cmdCalcola:
      lineEnd_ = "\r\n";
      Declinazione();
      break;
    case BoardField::cmdTrans:
      for (const Notation& notation : kNotations)
        panel_.setText(notation.panel, text(notation.decimal));
      break;
    default:
      for (const Notation& notation : kNotations) {
        if (button == notation.sign) toggleSign(notation);
      }
      break;
  }
}

BoardInput Board::readInput() const {
  return {.Lat = number(BoardField::txtLAT),
          .Lon = number(BoardField::txtLON),
          .day = number(BoardField::txtDay),
          .month = number(BoardField::txtMonth),
          .year = number(BoardField::txtYear),
          .hours = number(BoardField::txtHH),
          .minutes = number(BoardField::txtMM),
          .seconds = number(BoardField::txtSS),
          .az = number(BoardField::txtAngle),
          .zone = number(BoardField::TxtFuso),
          .dst = on(BoardField::ckDst),
          .declination = panelNumber(Field::txtDecl),
          .onlyTrue = panel_.on(Field::ckTrue)};
}

void Board::write(Field field, std::string_view text) {
  panel_.setText(field, text);
  written_.push_back(field);
}

void Board::Declinazione() {
  written_.clear();
  input_ = readInput();
  figures_ = boardFigures(input_, sun_);
  const std::string declination = textOf(figures_.declination);
  write(Field::txtLineofdeclination, declination);
  write(Field::txtDelta, declination);
  // The panel's field means degrees and has been handed hours.
  write(Field::txtAO, textOf(input_.onlyTrue ? figures_.hourAngle : figures_.dialTime - 12));
  at(BoardField::txtResult).text = resultsText(input_, figures_, sun_, T_, lineEnd_);
  Transito();
}

void Board::Transito() {
  if (figures_.UT != 0) {
    const HourParts parts =
        input_.onlyTrue ? roundedParts(sun_.rightAscension) : sun_.rightAscensionParts;
    write(Field::txtSid_h, textOf(parts.hours));
    write(Field::txtSid_m, textOf(parts.minutes));
    write(Field::txtSid_s, textOf(parts.seconds));
    return;
  }
  const double star = panelNumber(Field::txtSid_h) + panelNumber(Field::txtSid_m) / 60 +
                      panelNumber(Field::txtSid_s) / 3600;
  const double hours = transitHours(sun_.julianDay, star * 15, input_.Lon, input_.onlyTrue);
  const HourParts transit = input_.onlyTrue ? roundedParts(hours) : OreDaAngolo(hours * 15);
  write(Field::TxtDate, twoDigits(textOf(input_.day)) + " " + twoDigits(textOf(input_.month)) +
                            " " + textOf(input_.year) + T_(" Transit UT ") + textOf(transit.hours) +
                            ":" + textOf(transit.minutes));
}

std::string Board::instructions() const {
  const auto& T = T_;
  return T("Lay a level board with a straight edge against the wall and draw the perpendicular to "
           "that edge on it.") +
         "\n" +
         T("Hold a plumb line over the board, mark two points of its shadow and note the date and "
           "the time in UT.") +
         "\n" +
         T("az is the angle in degrees between the perpendicular and the shadow. Face the wall: az "
           "is positive when the shadow falls to the right of the perpendicular, negative to the "
           "left. In the Southern hemisphere it is the other way round.") +
         "\n" + T("az = 0 supplies the azimuth of the sun") + "\n";
}

}  // namespace dialwright
