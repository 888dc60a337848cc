// What a drawing has, by its layers and inks, in the order in which they first come.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "sheet/sheet_plot.hpp"

namespace dialwright {

// The layer 0 counts by the kinds of its entities: lines, dots, circles, box.
class Ledger {
 public:
  explicit Ledger(const DisplayList& list) : texts_(list.texts.size()) {
    list.visit([&](const auto& record) {
      using Record = std::decay_t<decltype(record)>;
      const std::string& layer = list.name(record.layer);
      std::string ink = inkOf(record.colour);
      if constexpr (std::is_same_v<Record, LineRecord>)
        note(layer == "0" ? "lines" : layer, ink + std::string(record.width - 1u, '+'));
      else if constexpr (std::is_same_v<Record, PointRecord>)
        note(layer == "0" ? "dots" : layer, ink);
      else if constexpr (std::is_same_v<Record, CircleRecord>)
        note(layer == "0" ? "circles" : layer, ink);
      else
        note(layer == "0" ? "box" : layer, ink);
    });
  }

  // As "name ink*count ink*count|name ink*count", an ink with a + for each step of width.
  std::string told() const {
    std::string all;
    const std::string* last = nullptr;
    for (const Entry& entry : entries_) {
      if (!last || *last != entry.name) all += (last ? "|" : "") + entry.name;
      all += " " + entry.ink + "*" + std::to_string(entry.count);
      last = &entry.name;
    }
    return all;
  }
  // Of a name, or of one of its inks: "ore", "ore 15"; or "texts".
  std::size_t count(std::string_view what) const {
    std::size_t sum = what == "texts" ? texts_ : 0;
    for (const Entry& entry : entries_) {
      if (what == entry.name || what == entry.name + " " + entry.ink) sum += entry.count;
    }
    return sum;
  }

 private:
  struct Entry {
    std::string name, ink;
    std::size_t count;
  };

  // The palette's number, or red.green.blue.
  static std::string inkOf(Rgb colour) {
    const auto number = std::find(kPalette.begin(), kPalette.end(), colour);
    if (number != kPalette.end()) return std::to_string(number - kPalette.begin());
    return std::to_string(colour % 256) + "." + std::to_string(colour / 256 % 256) + "." +
           std::to_string(colour / 65536);
  }
  void note(const std::string& name, const std::string& ink) {
    for (Entry& entry : entries_) {
      if (entry.name == name && entry.ink == ink) {
        ++entry.count;
        return;
      }
    }
    entries_.push_back({name, ink, 1});
  }

  std::vector<Entry> entries_;
  std::size_t texts_;
};

}  // namespace dialwright
