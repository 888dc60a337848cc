// The table of sections.
#include "ui/input_layout.hpp"

#include <array>

namespace dialwright {

namespace {

using enum Field;

std::vector<InputSection> makeSections() {
  return {
      {Label2,
       {{{lblLatitudine, txtLAT}},
        {{lblLongitudine, txtLON}},
        {{LblFuso, TxtFuso}},
        {{lblDeclinazione, txtDecl}},
        {{lblInclinazione, FrameInclination, OptZenital, OptHorizontal, txtReclinZ}},
        {{p_Stilo, TxtStilo}},
        {{LblHour, TxtHour}},
        {{lbl_Definizione, txt_Definition}},
        {{Label1, optX, optY}},
        {{Orainizilale, TxtInizio, Orafinale, TxtFine}}}},
      {None,
       {{{CkConic, chkOreAstronomiche, Ck_DayLightCurves, ck_Lemniscate, ck_Orizzonte, ck_Sustilare,
          ck_Equinoziale, ck_Triangolo, ck_Italiche, ck_babiloniche, ckTemp, ck_Etna, ckTrue},
         true}}},
      {lbl_Altri,
       {{{ckRomani, txtNumbersize}},
        {{ckArabi, txtArabi}},
        {{ckZodiaco, txtZodiacsize}},
        {{ckAz, ckAlt, ckAsr, CkQibla}, true},
        {{txtLocation}},
        {{lblQlat, txtQlat, lblQlon, txtQlon}},
        {{ckFrame, x1txt, y1txt}},
        {{None, x2txt, y2txt}},
        {{lblLineofdeclination, txtLineofdeclination, ckFunction}},
        {{lblDelta, txtDelta, lblAO, txtAO, Option_P}}}},
      {L_cyl,
       {{{Optconcave, OptConvex}, true},
        {{lblradius, TxtRadius, Lab_r2, txt_R2}},
        {{Ck_Section}, true},
        {{Distance1, txtD1}},
        {{lblV1, txtV1, lblV2, txtV2}},
        {{lblSemi, txtSemi}},
        {{lblHeightx, txtHeightx, lblHeightz, txtHeightz}},
        {{CheckL, ckSiderali}, true},
        {{ckStar, txtSid_h, txtSid_m, txtSid_s}},
        {{TxtDate}},
        {{LabelCombo, cmbStati}},
        {{cmdStati, cmdPlot}},
        {{lblFiltro, Filtertxt, ckAssi}}}}};
}

constexpr std::array kButtons = {cmdRun, cmdData, cmdSave};

}  // namespace

std::span<const InputSection> inputSections() {
  static const std::vector<InputSection> kSections = makeSections();
  return kSections;
}

std::span<const Field> inputButtons() { return kButtons; }

}  // namespace dialwright
