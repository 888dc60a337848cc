// The table of drivers.
#include "app/drivers.hpp"

#include <algorithm>
#include <array>

#include "diagrams/stereographic.hpp"
#include "dials/bifilar/ball.hpp"
#include "dials/bifilar/ball_verticale.hpp"
#include "dials/bifilar/catenaria.hpp"
#include "dials/bifilar/equiangolare.hpp"
#include "dials/bifilar/fontana.hpp"
#include "dials/conical/scafe.hpp"
#include "dials/cornice/cornice_cilindrica.hpp"
#include "dials/cornice/cornice_conica.hpp"
#include "dials/cornice/cornice_piana.hpp"
#include "dials/cylindrical/cappello.hpp"
#include "dials/cylindrical/parabolico.hpp"
#include "dials/cylindrical/parametrico.hpp"
#include "dials/cylindrical/proiettivo.hpp"
#include "dials/cylindrical/sferico.hpp"
#include "dials/cylindrical/tridimensionale.hpp"
#include "dials/flat/frinter.hpp"
#include "dials/flat/inclinati.hpp"
#include "dials/flat/nuovo_proiettivo.hpp"
#include "dials/flat/proiettivo.hpp"
#include "dials/flat/universale.hpp"
#include "dials/flat/verticale_luce.hpp"
#include "dials/flat/verticale_sferica.hpp"

namespace dialwright {

namespace {

constexpr std::array kDrivers = {
    DriverRow{Item::M_Light, DisegnaVerticaleLuce},
    DriverRow{Item::M_CILINDRICI, QuadranteCilindrico3D},
    DriverRow{Item::M_Proiettivo, DisegnaProiettivo},
    DriverRow{Item::M_Parabolico, QuadranteParabolico},
    DriverRow{Item::M_Param, QuadranteCilindricoParam},
    DriverRow{Item::M_nProiettivo, DisegnaNuovoProiettivo},
    DriverRow{Item::M_Frinter, DisegnaFrinter},
    DriverRow{Item::mnuCircp, QuadranteProiettivo},
    DriverRow{Item::mnuCCs, QuadranteCilindricoSferico},
    DriverRow{Item::mnuChapeau, QuadranteCappello},
    DriverRow{Item::mnuVertSph, DisegnaVerticale},
    DriverRow{Item::mnuUni, DisegnaUniversale},
    DriverRow{Item::mnuDia, DiagrammaStereografico},
    DriverRow{Item::mnuConoAntico, DisegnaScafe},
    DriverRow{Item::mnuFontana_H3, QuadranteFontana},
    DriverRow{Item::mnuBifvert, QuadranteEquiangolare},
    DriverRow{Item::mnucatenaria, QuadranteCatenaria},
    DriverRow{Item::mnuBall, QuadranteBall},
    DriverRow{Item::mnuBall_v, QuadranteBallVerticale},
    DriverRow{Item::mnuCorncil, DisegnaCorniceCilindrica},
    DriverRow{Item::mnuCorncon, DisegnaCorniceConica},
    DriverRow{Item::mnuCorn_flat, DisegnaCornicePianaEst},
    DriverRow{Item::mnuCorn_flat2, DisegnaCornicePianaInt},
    DriverRow{Item::M_Inclinati, DisegnaInclinati},
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
