// Sorts the display list by layer: counts, then places.
#include "sheet/layer_order.hpp"

#include <array>
#include <numeric>

namespace dialwright {

namespace {

// Whether a record leaves ink: a line without length and a polyline's marks leave none.
template <class Record>
bool leavesInk(const Record&) {
  return true;
}
bool leavesInk(const LineRecord& line) { return line.x1 != line.x2 || line.y1 != line.y2; }
bool leavesInk(const VertexRecord& vertex) { return vertex.mark == PolylineMark::Vertex; }

}  // namespace

RecordsByLayer::RecordsByLayer(const DisplayList& list) {
  // Where each layer's records end; first their number, then where the next one goes.
  constexpr std::size_t kUnseen = ~std::size_t{0};
  std::vector<std::size_t> ranks(list.layerNames().size(), kUnseen);
  list.visit([&](const auto& record) {
    if (!leavesInk(record)) return;
    std::size_t& rank = ranks[record.layer.index];
    if (rank == kUnseen) {
      rank = layers.size();
      layers.push_back(record.layer);
      ends_.push_back(0);
    }
    ++ends_[rank];
  });
  places_.resize(std::accumulate(ends_.begin(), ends_.end(), std::size_t{0}));
  std::exclusive_scan(ends_.begin(), ends_.end(), ends_.begin(), std::size_t{0});

  std::array<std::uint32_t, 128> next{};
  auto kind = list.order().begin();
  list.visit([&](const auto& record) {
    const std::uint32_t index = next[static_cast<std::size_t>(*kind)]++;
    if (leavesInk(record)) places_[ends_[ranks[record.layer.index]]++] = {*kind, index};
    ++kind;
  });
}

}  // namespace dialwright
