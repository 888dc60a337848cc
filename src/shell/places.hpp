// Places on a flat dial: a place's image is the shadow of the style's tip while the sun stands at
// its zenith. The coastlines of a file, the built-in cities and one free point.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "shell/run.hpp"

namespace dialwright {

// The text of the country list that stands for all of them.
inline constexpr std::string_view kWholeWorld = " World";

// The coastlines, as suns over them.
struct WorldTable {
  struct Row {
    double AngoloOrario;   // degrees
    double Declinazione;   // degrees, as stored: minus the latitude
    std::uint32_t Paese;   // place in `countries`
    std::uint32_t Tratto;  // number of the run of joined points
  };

  std::vector<Row> rows;
  std::vector<std::string> countries;  // in the order of appearance in the file
};

// The table of a file of lines "name and run number;latitude;longitude" (degrees, North and East
// positive). Hour angles are counted from the longitude of the panel (West positive). Lines without
// two ";" are no rows.
WorldTable readWorld(std::string_view text, double longitude);

// A choice in the country list: the filter's label takes the place of the distance's.
void chooseCountry(Panel& panel, std::string_view country);

// The click on cmdStati, once the file has been read: captions, the country list's first entry, and
// the controls that it shows and enables.
void CaricaMondo(Run& run);

// Draws the whole world or the chosen country inside the window.
void DisegnaMondo(Run& run, const WorldTable& world);

// The cities whose hour angle lies between the limits of the panel, each a dot with its name.
void MappaCitta(Run& run);

// The shadow for the hour angle and the declination of the panel, as a star.
void PuntoOpzionale(Run& run);

// A five-pointed star about (x, y) in dial coordinates, with its outer vertices on the radius R.
void StellaCinquePunte(SheetPlot& sheet, double x, double y, double R, Rgb colour);

}  // namespace dialwright
