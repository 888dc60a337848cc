// Name look-up.
#include "shell/names.hpp"

#include <algorithm>
#include <numeric>

namespace dialwright {

namespace {

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

// Edit distance (Levenshtein), without regard to case.
std::size_t distance(std::string_view a, std::string_view b) {
  std::vector<std::size_t> row(b.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 0; i < a.size(); ++i) {
    std::size_t diagonal = row[0];
    row[0] = i + 1;
    for (std::size_t j = 0; j < b.size(); ++j) {
      const std::size_t change = diagonal + (lower(a[i]) == lower(b[j]) ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({change, row[j] + 1, diagonal + 1});
    }
  }
  return row.back();
}

}  // namespace

bool equalIgnoringCase(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return lower(x) == lower(y); });
}

std::string nearestName(std::string_view wrong, const std::vector<std::string_view>& names) {
  constexpr std::size_t kLongest = 60;
  constexpr std::size_t kNear = 3;  // changes that are too many even for a short name
  if (wrong.size() > kLongest) return {};
  std::string_view best;
  std::size_t least = std::max(kNear, wrong.size() / 2 + 1);
  for (const std::string_view name : names) {
    const std::size_t changes = distance(wrong, name);
    if (changes < least) {
      least = changes;
      best = name;
    }
  }
  return std::string(best);
}

}  // namespace dialwright
