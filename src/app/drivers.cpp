// The table of drivers.
#include "app/drivers.hpp"

#include <algorithm>
#include <array>

#include "dials/flat/verticale_luce.hpp"

namespace dialwright {

namespace {

constexpr std::array kDrivers = {
    DriverRow{Item::M_Light, DisegnaVerticaleLuce},
};

constexpr std::array kSilent = {Item::mnuBall2, Item::mnuBall3, Item::mnuObscura, Item::mnuSezCil};

}  // namespace

std::span<const DriverRow> drivers() { return kDrivers; }

bool draws(Item dial) {
  return std::any_of(kDrivers.begin(), kDrivers.end(),
                     [dial](const DriverRow& row) { return row.item == dial; });
}

bool isSilent(Item dial) {
  return std::find(kSilent.begin(), kSilent.end(), dial) != kSilent.end();
}

}  // namespace dialwright
