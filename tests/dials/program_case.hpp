// The dials by their numbers, and a run of one with the settings that a test writes down.
#pragma once

#include <initializer_list>
#include <stdexcept>
#include <string>
#include <string_view>

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
#include "support/dial_case.hpp"

namespace dialwright {

struct ProgramRow {
  int number;
  Item item;
  Driver driver;
};

inline constexpr ProgramRow kPrograms[] = {{1, Item::M_Light, DisegnaVerticaleLuce},
                                           {2, Item::M_Inclinati, DisegnaInclinati},
                                           {3, Item::M_Proiettivo, DisegnaProiettivo},
                                           {4, Item::M_nProiettivo, DisegnaNuovoProiettivo},
                                           {5, Item::M_Frinter, DisegnaFrinter},
                                           {6, Item::mnuVertSph, DisegnaVerticale},
                                           {7, Item::mnuUni, DisegnaUniversale},
                                           {8, Item::M_Param, QuadranteCilindricoParam},
                                           {9, Item::M_CILINDRICI, QuadranteCilindrico3D},
                                           {10, Item::M_Parabolico, QuadranteParabolico},
                                           {11, Item::mnuCircp, QuadranteProiettivo},
                                           {12, Item::mnuCCs, QuadranteCilindricoSferico},
                                           {13, Item::mnuChapeau, QuadranteCappello},
                                           {16, Item::mnuFontana_H3, QuadranteFontana},
                                           {17, Item::mnuBifvert, QuadranteEquiangolare},
                                           {18, Item::mnucatenaria, QuadranteCatenaria},
                                           {22, Item::mnuBall, QuadranteBall},
                                           {26, Item::mnuBall_v, QuadranteBallVerticale},
                                           {35, Item::mnuCorncil, DisegnaCorniceCilindrica},
                                           {36, Item::mnuCorncon, DisegnaCorniceConica},
                                           {38, Item::mnuCorn_flat, DisegnaCornicePianaEst},
                                           {39, Item::mnuCorn_flat2, DisegnaCornicePianaInt},
                                           {40, Item::mnuConoAntico, DisegnaScafe}};

inline const ProgramRow& program(int number) {
  for (const ProgramRow& row : kPrograms) {
    if (row.number == number) return row;
  }
  throw std::invalid_argument("no program " + std::to_string(number));
}

// It starts without any box checked.
class ProgramCase : public DialCase {
 public:
  explicit ProgramCase(int number, std::string_view settings = {})
      : DialCase(program(number).item, program(number).driver) {
    clearBoxes();
    with(settings);
  }
  // Words between blanks: name=text of a field, or the name of a box or option that is on, with a
  // minus before it off. They are set as a project's file sets them, without any click.
  ProgramCase& with(std::string_view settings) {
    while (!settings.empty()) {
      const std::string_view word = settings.substr(0, settings.find(' '));
      settings.remove_prefix(std::min(settings.size(), word.size() + 1));
      if (!word.empty()) apply(word);
    }
    return *this;
  }
  ProgramCase& checkAllSeen() {
    for (std::size_t i = 0; i < kFieldCount; ++i) {
      const Field field = fieldAt(i);
      if (rowOf(field).kind == FieldKind::Check && panel[field].visible)
        panel.setState(field, true);
    }
    return *this;
  }

 private:
  void apply(std::string_view word) {
    const bool off = word.starts_with('-');
    if (off) word.remove_prefix(1);
    const std::size_t equals = word.find('=');
    const std::optional<Field> field = findField(word.substr(0, equals));
    if (!field) throw std::invalid_argument("no field " + std::string(word));
    if (equals == std::string_view::npos)
      panel.setState(*field, !off);
    else
      panel.setText(*field, word.substr(equals + 1));
  }
};

}  // namespace dialwright
