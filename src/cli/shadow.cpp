// Moments of a day or of a year, the shadow of each, and the pictures of them.
#include "cli/shadow.hpp"

#include <array>
#include <cmath>
#include <cstdio>
#include <iostream>

#include "app/moment.hpp"
#include "cli/commands.hpp"
#include "cli/errors.hpp"
#include "cli/outputs.hpp"
#include "cli/session.hpp"
#include "cli/words.hpp"
#include "proof/scenes.hpp"
#include "sheet/svg.hpp"
#include "shell/names.hpp"

namespace dialwright {

namespace {

constexpr std::size_t kMostMoments = 2000;
constexpr double kSecondsEach = 0.4;  // that a moment is shown in an animation

// Whole numbers between separators, as many as there are places; all of the text, or nothing.
template <std::size_t N>
std::optional<std::array<int, N>> numbersOf(const std::string& text, char separator) {
  std::array<int, N> numbers{};
  std::size_t at = 0;
  for (std::size_t i = 0; i < N; ++i) {
    std::size_t digits = 0;
    for (; digits < 4 && at < text.size() && text[at] >= '0' && text[at] <= '9'; ++at, ++digits)
      numbers[i] = 10 * numbers[i] + (text[at] - '0');
    if (digits == 0) return std::nullopt;
    if (i + 1 == N) break;
    if (at >= text.size() || text[at] != separator) return std::nullopt;
    ++at;
  }
  return at == text.size() ? std::optional(numbers) : std::nullopt;
}

int daysOf(int month, int year) {
  if (month == 2) return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0 ? 29 : 28;
  return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

proof::Instant dateOf(const std::string& text, std::string_view option) {
  const auto numbers = numbersOf<3>(text, '-');
  if (!numbers || (*numbers)[0] < 1 || (*numbers)[1] < 1 || (*numbers)[1] > 12 ||
      (*numbers)[2] < 1 || (*numbers)[2] > daysOf((*numbers)[1], (*numbers)[0])) {
    throw UsageError(std::string(option) + " takes a day of the calendar, as in 2026-06-21, not '" +
                     text + "'");
  }
  return {(*numbers)[0], (*numbers)[1], (*numbers)[2], 0};
}

double timeOf(const std::string& text, std::string_view option) {
  const auto numbers = numbersOf<2>(text, ':');
  if (!numbers || (*numbers)[0] > 24 || (*numbers)[1] > 59) {
    throw UsageError(std::string(option) + " takes a time of the clock, as in 10:30, not '" + text +
                     "'");
  }
  return (*numbers)[0] + (*numbers)[1] / 60.0;
}

void nextDay(proof::Instant& instant) {
  if (++instant.day <= daysOf(instant.month, instant.year)) return;
  instant.day = 1;
  if (++instant.month <= 12) return;
  instant.month = 1;
  ++instant.year;
}

// The moments that a request names: one; a day from time to time by minutes; or a time of day from
// date to date by days.
std::vector<proof::Instant> momentsOf(const Request& request) {
  const bool row = !request.from.empty() || !request.to.empty();
  if (!row) {
    proof::Instant moment = dateOf(request.date, "--date");
    moment.hours = timeOf(request.time, "--time");
    return {moment};
  }
  if (!(request.step > 0)) throw UsageError("--step takes a number above 0");
  std::vector<proof::Instant> moments;
  const auto room = [&] {
    if (moments.size() < kMostMoments) return;
    throw UsageError("more than 2000 moments: take a longer --step");
  };
  if (request.from.find('-') != std::string::npos) {
    const proof::Instant last = dateOf(request.to, "--to");
    const auto order = [](const proof::Instant& i) { return std::array{i.year, i.month, i.day}; };
    proof::Instant moment = dateOf(request.from, "--from");
    moment.hours = timeOf(request.time, "--time");
    while (order(moment) <= order(last)) {
      room();
      moments.push_back(moment);
      for (int i = 0; i < std::fmax(1, std::round(request.step)); ++i) nextDay(moment);
    }
    return moments;
  }
  proof::Instant moment = dateOf(request.date, "--date");
  const double last = timeOf(request.to, "--to"), first = timeOf(request.from, "--from");
  for (int i = 0; first + i * request.step / 60 <= last + 1e-9; ++i) {
    room();
    moment.hours = first + i * request.step / 60;
    moments.push_back(moment);
  }
  return moments;
}

std::string nameOf(const proof::Instant& moment) {
  std::array<char, 24> text{};
  std::snprintf(text.data(), text.size(), "%04d-%02d-%02d ", moment.year % 10000, moment.month,
                moment.day);
  return text.data() + clockText(moment.hours);
}

// A line about a moment: the clock, what the dial reads, where the sun stands.
void tell(const Program& program, const proof::Instant& moment, const Sun& sun, bool shadow) {
  const SkyPlace place = placeInSky(program.panel(), sun);
  std::array<char, 96> text{};
  std::snprintf(text.data(), text.size(), "  the dial reads %s  sun %.2f° high, azimuth %.2f°",
                clockText(hourTold(program.panel(), sun)).c_str(), place.height, place.azimuth);
  std::cout << nameOf(moment) << text.data();
  if (!shadow) std::cout << (place.height > 0 ? "  no shadow on the dial" : "  the sun is down");
  std::cout << '\n';
}

// "wall.png" of the moment 2026-06-21 10:30 becomes "wall-20260621-1030.png".
std::string numbered(const std::string& path, const proof::Instant& moment) {
  std::string mark;
  for (const char c : nameOf(moment)) {
    if (c == ' ') mark += '-';
    if (c >= '0' && c <= '9') mark += c;
  }
  const std::filesystem::path file(path);
  return (file.parent_path() / (file.stem().string() + '-' + mark + file.extension().string()))
      .string();
}

bool isSvg(const Output& output) {
  return output.path != "-" &&
         equalIgnoringCase(std::filesystem::path(output.path).extension().string(), ".svg");
}

}  // namespace

void commandShadow(const Request& request) {
  const std::vector<proof::Instant> moments = momentsOf(request);
  const std::vector<Output> outputs = outputsOf(request);
  const auto program = drawnDial(request);
  if (!proof::shadowSceneOf(program->panel())) {
    throw CommandFailure("the dial " + request.item + " throws no shadow");
  }
  SheetPlot& sheet = program->sheet();
  const DisplayList dial = sheet.list();
  std::vector<std::string> names;
  for (const proof::Instant& moment : moments) {
    const Sun sun = sunAt(program->panel(), moment);
    const auto shadow = shadowOf(program->panel(), sun);
    tell(*program, moment, sun, !shadow.empty());
    sheet.list() = dial;
    drawShadow(sheet, shadow, "shadow");
    for (Output output : outputs) {
      if (moments.size() > 1 && isSvg(output)) continue;
      if (moments.size() > 1 && output.path != "-") output.path = numbered(output.path, moment);
      writeOutputs(*program, {output}, request);
    }
  }
  if (moments.size() == 1) return;
  sheet.list() = dial;
  SvgOptions options{.dark = request.dark, .takeTurns = {}, .secondsEach = kSecondsEach};
  for (const proof::Instant& moment : moments) {
    options.takeTurns.push_back(nameOf(moment));
    drawShadow(sheet, shadowOf(program->panel(), sunAt(program->panel(), moment)),
               options.takeTurns.back());
  }
  for (const Output& output : outputs) {
    if (isSvg(output))
      writeTo(output.path, [&](const Sink& sink) { writeSvg(sheet, sink, options); });
  }
}

}  // namespace dialwright
