// The record of a run: what the drivers derive, the curve routines read and overwrite, and the
// report prints afterwards.
#pragma once

#include <array>

#include "numerics/angles.hpp"

namespace dialwright {

// Coefficients of a declination's conic in the substyle's frame: v^2 + A1*v + A0 + A2*u^2 = 0.
struct ConicSet {
  double A0 = 0;
  double A1 = 0;
  double A2 = 0;
};

enum class Declination : std::size_t { Solstice, Twentieth, Eleventh, Latitude };

// One object for each running program; it lasts from run to run. Angles come in pairs, in degrees
// as typed and in radians; lengths are metres on the sheet.
struct DialParams : Angles {
  double LatGradi = 0;
  double LatRad = 0;
  double Colatitudine = 0;
  double LonGradi = 0;  // West positive
  double LonAbs = 0;
  double SegnoLon = -1;  // +1 for an eastern longitude, so that SegnoLon * LonAbs is minus LonGradi
  double CorrLon = 0;    // radians, from the meridian 15 degrees East
  double CorrFuso = 0;   // radians, from the zone's meridian
  double UsaLongitudine = 0;
  double DeclGradi = 0;
  double DeclRad = 0;
  double SegnoDecl = 1;
  double ReclinGradi = 0;  // from the vertical
  double ReclinRad = 0;
  double InclinGradi = 0;  // from the horizontal
  double SegnoEmisfero = 1;
  double Stilo = 0;
  double StiloBase = 0;
  double Raggio = 0;
  double DeclSole = 0;  // degrees or radians, as the routine says
  double ElevStilo = 0;
  double Sustilare = 0;
  double SustilareReport = 0;  // the report's copy, in the quadrant of the dial's centre
  double OrarioSustilare = 0;
  double DistPiedeCentro = 0;
  double IpotenusaStilo = 0;
  double PassoOre = 0;
  double PassoCurva = 0;
  int ModoDati = 0;
  double SheetW = 0;
  double SheetH = 0;

  // The conics of the three declination pairs and of the latitude, by Declination.
  std::array<ConicSet, 4> conics{};
  ConicSet& conic(Declination which) { return conics[static_cast<std::size_t>(which)]; }
  const ConicSet& conic(Declination which) const { return conics[static_cast<std::size_t>(which)]; }
  double Eccentricita = 0;  // of the latitude's conic

  // Flat dials.
  double LonOrario = 0;        // radians
  double LimiteOrizzonte = 0;  // the horizon's ordinate in the plane
  bool PianoOrizzontale = false;
  double PuntoRiferimentoX = 0;
  double PuntoRiferimentoY = 0;
  double KSolstizio = 0;
  double K20 = 0;
  double K11 = 0;
  bool TriangoloDisegnato = false;

  // Cylindrical dials.
  double SegnoCilindro = 0;  // as the frame set it: +1 convex, -1 concave
  double SegnoCurva = 0;     // as the last curve routine set it
  int CodiceCilindro = 0;    // 1 concave, 2 convex
  double AzLimiteEst = 0;
  double AzLimiteOvest = 0;
  double ArcoLimite = 0;
  double DistStiloMezzodi = 0;
  double ArcoMezzodi = 0;
  double ArcoGeneratriceN = 0;
  double AngoloStilo = 0;
};

}  // namespace dialwright
