// The display list's records that leave ink, layer by layer.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "sheet/display_list.hpp"

namespace dialwright {

// A record's place in the display list.
struct RecordPlace {
  EntityKind kind;
  std::uint32_t index;
};

// The records sorted by layer, the layers in the order in which they first appear. A line without
// length and a polyline's marks leave no ink.
class RecordsByLayer {
 public:
  explicit RecordsByLayer(const DisplayList& list);

  std::vector<LayerId> layers;

  // Calls visitor(place) for the records of the nth layer, in drawing order.
  template <class Visitor>
  void visit(std::size_t n, Visitor&& visitor) const {
    for (std::size_t i = n == 0 ? 0 : ends_[n - 1]; i < ends_[n]; ++i) visitor(places_[i]);
  }

 private:
  std::vector<RecordPlace> places_;
  std::vector<std::size_t> ends_;
};

}  // namespace dialwright
