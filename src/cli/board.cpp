// The utility board on a command line: its fields by name, its results as text or as figures.
#include "board/board.hpp"

#include <chrono>
#include <iostream>
#include <nlohmann/json.hpp>

#include "cli/commands.hpp"
#include "cli/errors.hpp"
#include "cli/session.hpp"
#include "cli/words.hpp"
#include "numerics/numbers.hpp"
#include "persist/encoding.hpp"

namespace dialwright {

namespace {

using Json = nlohmann::ordered_json;

BoardField boardFieldOf(std::string_view word) {
  if (const auto field = findBoardField(word); field && isInput(*field)) return *field;
  std::vector<std::string_view> names;
  for (std::size_t i = 0; i < kBoardFieldCount; ++i) {
    if (isInput(boardFieldAt(i))) names.push_back(rowOf(boardFieldAt(i)).name);
  }
  throw UsageError(unknownWord("field of the board", word, names));
}

void setSign(Board& board, BoardField button, std::string_view sign) {
  if (sign != "+" && sign != "-") {
    throw UsageError("'" + std::string(rowOf(button).name) + "' is a sign: it takes + or -, not '" +
                     std::string(sign) + "'");
  }
  if (board[button].caption != sign) board.press(button);
}

// Types a text and leaves its field; clicks the box, an option or a sign when that changes it.
void assignBoardField(Board& board, std::string_view assignment) {
  const auto [name, value] = assignmentOf(assignment);
  const BoardField field = boardFieldOf(name);
  if (rowOf(field).kind == FieldKind::Text) {
    board.type(field, decodeText(std::string(value)));
    board.leave(field);
  } else if (rowOf(field).kind == FieldKind::Button) {
    setSign(board, field, value);
  } else {
    const bool state = stateOf(rowOf(field).name, value);
    if (board.on(field) != state) board.click(field, state);
  }
}

// Today at 0 h UT, or this moment.
std::chrono::sys_seconds presentOf(const Request& request) {
  const auto now = std::chrono::system_clock::now();
  if (request.now) return std::chrono::floor<std::chrono::seconds>(now);
  return std::chrono::floor<std::chrono::days>(now);
}

Json fieldsOf(const Board& board) {
  Json fields = Json::object();
  for (std::size_t i = 0; i < kBoardFieldCount; ++i) {
    const BoardField field = boardFieldAt(i);
    if (!isInput(field)) continue;
    const std::string name(rowOf(field).name);
    switch (rowOf(field).kind) {
      case FieldKind::Text: fields[name] = board.text(field); break;
      case FieldKind::Button: fields[name] = board[field].caption; break;
      default: fields[name] = board.on(field); break;
    }
  }
  return fields;
}

// Times as the results text has them: on the clock that the box and the zone make.
Json figuresOf(const Board& board) {
  const BoardFigures& f = board.figures();
  const SunOfMoment& sun = board.sun();
  const auto onClock = [&f](double time) { return f.sunSets() ? Json(time + f.clock) : Json(); };
  Json figures = {{"azimuth", f.azimuth},
                  {"height", f.height},
                  {"declination", f.declination},
                  {"rightAscension", sun.rightAscension},
                  {"equationOfTime", f.equation},
                  {"julianDay", sun.julianDay},
                  {"timeOfDial", f.dialTime},
                  {"hourAngle", f.hourAngle},
                  {"standardMeridian", board.input().zone * 15},
                  {"noon", f.noon + f.clock},
                  {"dailyArc", f.arc},
                  {"sunrise", onClock(f.sunrise())},
                  {"sunset", onClock(f.sunset())},
                  {"declinationOfDial", f.wall},
                  {"sense", f.wallSense()},
                  {"declinationOfMirror", f.mirror}};
  if (board.input().onlyTrue) figures["normalOfMirror"] = f.mirrorNormal;
  return figures;
}

Json writtenBy(const Board& board, const Panel& panel) {
  Json written = Json::object();
  for (const Field field : board.written())
    written[std::string(rowOf(field).name)] = panel.text(field);
  return written;
}

}  // namespace

void commandBoard(const Request& request) {
  const auto program = startProgram(request);
  if (request.trueShadows) program->panel().setState(Field::ckTrue, true);
  Board board = program->openBoard();
  board.setMoment(presentOf(request));
  for (const std::string& assignment : request.words) assignBoardField(board, assignment);
  board.Declinazione();
  if (!request.json) {
    std::cout << board.text(BoardField::txtResult);
    return;
  }
  const Json all = {{"figures", figuresOf(board)},
                    {"panel", writtenBy(board, program->panel())},
                    {"fields", fieldsOf(board)}};
  std::cout << all.dump(2) << '\n';
}

}  // namespace dialwright
