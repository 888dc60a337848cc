// The table of drivers.
#include "app/drivers.hpp"

#include <algorithm>
#include <array>

#include "dials/flat/universale.hpp"
#include "dials/bifilar/ball.hpp"
#include "dials/bifilar/ball_verticale.hpp"
#include "dials/bifilar/fontana.hpp"
#include "dials/conical/scafe.hpp"
#include "dials/cylindrical/cappello.hpp"
#include "dials/cylindrical/sferico.hpp"
#include "dials/flat/verticale_luce.hpp"
#include "diagrams/stereographic.hpp"

namespace dialwright {

namespace {

constexpr std::array kDrivers = {
    DriverRow{Item::M_Light, DisegnaVerticaleLuce},
    DriverRow{Item::mnuCCs, QuadranteCilindricoSferico},
    DriverRow{Item::mnuChapeau, QuadranteCappello},
    DriverRow{Item::mnuUni, DisegnaUniversale},
    DriverRow{Item::mnuDia, DiagrammaStereografico},
    DriverRow{Item::mnuConoAntico, DisegnaScafe},
    DriverRow{Item::mnuFontana_H3, QuadranteFontana},
    DriverRow{Item::mnuBall, QuadranteBall},
    DriverRow{Item::mnuBall_v, QuadranteBallVerticale},
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
