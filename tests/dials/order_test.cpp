// What every dial draws and tells with all its boxes checked: the order of its families, their
// layers, inks and lengths, and its texts.
#include <gtest/gtest.h>

#include "dials/ledger.hpp"
#include "support/dial_case.hpp"

namespace dialwright {
namespace {

const std::string kQibla =
    "Loc.||Loc.|Latitude 21.42527|Longitude -39.81638|Qibla from South = -58.02501° azimuth|"
    "Qibla from North = 121.97499° azimuth|";
// Of the light graph.
const std::string kLetters =
    "  N|  C| N|P| R|M   |  G|  |  C center of the dial|  G origin of coordinates, foot|  N "
    "gnomonic point|  CM noon line|  P intersection of the substyle hour with the "
    "equinoctial line|  CNR : Latitude (angle)|  GCN : elevation (angle) of the style|  RNG "
    ": declination (angle) of the dial|  MCP : substyle angle|  MNP : substyle hour angle|  |";
// Of a cylinder's section.
const std::string kSection =
    "|O general origin of coordinates = G ||T R I A N G L E |Style: hypotenuse 0.30131|"
    "Perpendicular style0.2|radius 0.4|small radius  0.02|N is a point of the generator on "
    "the noon line (cyan)|C centre of the section: origin of coordinates |N Coordinates on "
    "the section 0.15093 -0.37043|M(white) is the generator aligned with the center of the "
    "cylinder|Arc between the foot G e M |Arc GM = r*d -0.10172|Arc between the generators N "
    "and M 0.15477|G coincides with O |x1 -0.5|x2 0.5|y1 0.2|y2 -1||North|d| C | G |";

// All boxes are checked but those that turn a drawing into another one; two kinds of numerals at
// once would leave some dials without any.
constexpr const char* kApart = "-ckFunction -ckRomani -ckArabi -ckTrue";

struct Row {
  int program;
  const char* settings;
  const char* caption;
  const char* order;
  std::string told;
};
const Row kRows[] = {
    {1, "", "Vertical dial, light graph by 2D analytic geometry",
     "Quadro 3*1|dots 14*669|lines 9*1 2*3|dots 15*1|lines 10*3 12*3|ita 255.128.255*1544|"
     "bab 13*1819|dots 13*207 11*207 12*19196|lines 6*3699|eq 49.172.238*399|circles 12*4 "
     "13*1|lines 3*59 14*2 13*212 49.172.238*1 255.128.255*1119",
     "|ecc. 1.0567|" + kLetters},
    {1, "-ckTemp -ck_Italiche -ck_babiloniche",
     "Vertical dial, light graph by 2D analytic geometry",
     "Quadro 3*1|dots 14*669|lines 9*1 2*3|dots 15*1|lines 10*3 12*4|circles 7*12|lines 7*25|"
     "circles 12*5|dots 13*207 11*207 12*19196|eq 49.172.238*399|circles 13*1|lines 3*59 "
     "14*2 13*1 49.172.238*1",
     "|ecc. 1.0567|-45|9|-30|10|-15|11|0|12|15|1|30|2|45|3|" + kLetters},
    {2, "optX", "Reclining dial by 3D analytic geometry, variable X",
     "Quadro 3*1|dots 7*3061 12*411 9*2132 2*199 4*185|lines 13*1 9*1 14*1 8*1|dots 13*386 "
     "11*386 10*11007 14*366",
     kQibla},
    {2, "optY", "Declining, reclining dial by 3D analytic geometry, variable y",
     "Quadro 3*1|dots 7*805 12*474 9*120 2*199 4*51|lines 13*1 9*1 14*1 8*1|dots 13*102 "
     "11*4466 10*9550",
     kQibla},
    {3, "", "Flat sundial by projective method : former version",
     "Quadro 3*1|dots 12*972|lines 9*2 13*2 14*2 8*1|dots 9*3048 7*8359 13*970 11*970 14*9734", ""},
    {4, "", "Flat sundial by projective method : latter version",
     "Quadro 3*1|dots 9*2428 7*10493 12*1396|lines 13*2 9*3 14*2|dots 13*834 11*824 14*11761", ""},
    {5, "", "Vertical dial by 2D analytic geometry",
     "Quadro 3*1|lines 7*23 12*1 9*19|dots 12*33345 13*33166 11*33166|lines 14*16|dots 6*365 "
     "3*186|lines 2*1 13*1|dots 15*1",
     ""},
    {6, "", "Vertical dial by spherical trigonometry",
     "Quadro 3*1|circles 12*2|oreastro 7*15009 12*937|23.445° 12*872|-23.445° 12*2497|23.445 "
     "255.127.39*824|lines 12*3659 13*3541 6*3699|equinox 9*1442|lines 2*2|Lemniscate 7*2728|"
     "sustilare 12*1165|dots 12*3|ortostilo 13*1|12h 8*1|sottostilo 12*1|assostilo 15*1|dots "
     "0.193.97*541 10*9028|almucantarat 7*8355|azimut 6*8113|dots 1*669|lines 9*1|dots 15*1|"
     "lines 10*1",
     " 12 | 11 | 13 | 14 | 15 | 16 | 17 | 18 | 19 | 2 | 3 | 4 | 5 | 6 | 7 | 8 | 9 | 10 |" + kQibla +
         "|ecc. 1.0567|F1|F2|"},
    {6, "-ckZodiaco -ckTemp -ck_Italiche -ck_Triangolo", "Vertical dial by spherical trigonometry",
     "Quadro 3*1|circles 12*2|oreastro 7*15009 12*937|23.445° 12*872|20.15° 13*969|11.47° "
     "11*1229|-23.445° 12*2497|-20.15° 13*1264|-11.47° 11*1388|23.445 255.127.39*824|lines "
     "13*3541|equinox 9*1442|lines 2*2|Lemniscate 7*2728|sustilare 12*1165|dots 12*3|"
     "ortostilo 13*1|dots 0.193.97*541 10*9028|almucantarat 7*8355|azimut 6*8113|dots 1*669|"
     "lines 9*1|dots 15*1|lines 10*1 12*1",
     " 2 | 3 | 4 | 5 | 6 | 7 | 8 | 9 | 10 |" + kQibla + "|ecc. 1.0567|F1|F2|"},
    {7, "", "",
     "Quadro 3*1|oreastro 7*13599 12*937|-23.445° 12*1248|23.445° 12*872|-20.15° 13*1264|"
     "20.15° 13*969|11.47° 11*1229|-11.47° 11*1388|23.445 255.127.39*1649|0° 12*1442|Ita "
     "12*1786|Bab 12*1764|Temp 12*650|analemma 15*446|lines 15*59|circles 12*1|ortostilo "
     "10*1|sottostilo 12*1|assostilo 15*1|maxpendenza 8*1|lines 2*1|dots 10*9028 "
     "0.193.97*541|azimut 6*8113|almucantarat 7*8355",
     kQibla},
    {8, "", "Cylindrical sundial of circular cross-section as a set of points : parametric method",
     "Quadro 3*1|lines 15*2|dots 9*1242 7*7977|lines 9*2|dots 12*923 13*989 11*5920 14*4749|"
     "lines 2*1 11*2 13*2|radius 8*1|circles 7*1|lines 6*1|circles 8*1|PS 11*1",
     "N|" + kSection},
    {9, "", "Cylindrical sundial of circular cross-section : 3D method",
     "Quadro 3*1|lines 15*2|dots 7*1534 12*188 9*345 13*160 11*160 2*1614|lines 4*1 2*1 9*1 "
     "11*2 13*2|circles 13*1|dots 8*820 3*778|radius 8*1|circles 7*1|lines 6*1|circles 8*1|"
     "PS 11*1",
     "N|" + kSection},
    {10, "", "Cylindrical sundial of parabolic cross-section.",
     "Quadro 3*1|lines 2*1|dots 7*3060 12*305 9*356|lines 1*1 4*1|dots 8*160|lines 13*1 11*1|"
     "circles 7*1 15*1",
     ""},
    {11, "", "Cylindrical sundial of circular cross-section : projective method",
     "Quadro 3*1|lines 15*2|dots 9*104 7*720 12*78 13*941 11*73|lines 4*1 2*1 9*1 11*2 13*2|"
     "circles 13*1|dots 4*366|radius 8*1|circles 7*1|lines 6*1|circles 8*1|PS 11*1",
     "N|" + kSection},
    {12, "-ckArabi",
     "Cylindrical sundial of circular cross-section : Spherical trigonometric method",
     "lines 15*2 7*7458 12*5149|-23.445° 12*1844|-20.15° 13*1792|-11.47° 11*1591|23.445° "
     "12*812|20.15° 13*896|11.47° 11*1099|Analemmaconvex 15*446|lines 9*1346|23.445 "
     "255.127.39*818|lines 2*1 11*2 13*4196 4*936|circles 15*1|dots 12*2|lines 6*4424|radius "
     "8*1|circles 7*1 8*1|PS 11*1",
     "O|x|y|N|  G|" + kSection},
    {13, "-ck_Lemniscate TxtHour=4", "Filtering Hat Sundial",
     "circles 14*1 9*1|Ore 12+++*11187|mezze 6+*11244 3*22371|-23.445° 12+++*2543|23.445° "
     "12+++*4657|-20.1552° 13+++*2715|20.1552° 13+++*4485|-11.4746° 11+++*3119|11.4746° "
     "11+++*4081|eq 9+++*3599|bab1 13+++*10719|ita1 12+++*10719|temp1 11+++*10307|23.445 "
     "10+++*4449|Quadro 3*1",
     "|Sundial Data |latitude  = 45.7438|longitude  = -7.6438|radius  = 0.14 m|radius of the "
     "hat  = 0.4 m|style = 0.26 m|right = 0.4398 m|left = -0.4398 m|vertex ordinate = -0.634 "
     "m|"},
    {16, "txt_R2=0.25", "Bifilar horizontal spherical dial by spherical trigonometry",
     "lines 13*4 14*27|circles 1*2|lines 1*2 10*156|circles 13*2 15*3|Quadro 3*1|ore 15*9566 "
     "9*937|eq 9*4258|-23.445° 12*3076|23.445° 12*5068|-20.1552° 13*3304|20.1552° 13*4926|"
     "-11.4746° 11*3790|11.4746° 11*4630|23.445 14*5068|ita 255.128.128*10472|bab 13*10472|"
     "temp 11*10307|dots 7*16266|lines 7*33|dots 4*4428|lines 8*1 15*228 4*1|circles 2*1|"
     "lines 12*195 3*155 11*94|dots 12*366",
     "||height of the sun 47.5386 °|latitude 45.7438 °|delta 23.45 °|hour angle 45 °|radius "
     "0.3|lower radius 0.25|height  0.2|virtual style 0.5278|Longitude -7.6438°|"},
    {17, "", "",
     "Quadro 3*1|equi 11*1665|oreemezze 15*14847 12*937|-23.445° 12*8214|-20.1552° 13*7955|"
     "-11.4746° 11*7166|eq 9*7250|11.4746° 11*5262|20.1552° 13*4473|23.445° 12*4144|circles "
     "12*1|dots 14*6361|Hor 8*1665|Sus 15*489|lines 15*3 14*1 13*1 11*1 12*1 10*2|Ita2 "
     "12*3189",
     "x_0, y_0  -0.02946  -0.12017||x0, y0  0.03511  0.14325|esse  -19.94604 °|erre  0.28852|"
     "erre1  0.20665|erre0  0.14749|delta_r  0.12373|x_0, y_0  -0.02946  -0.12017|a  0.2|b  "
     "0.13509|"},
    {18, "TxtInizio=1 TxtFine=23 TxtHour=2",
     "Bifilar, declining, vertical catenary dial by vectors",
     "midi 12*937|Quadro 3*1|lines 12*15635|mezze 11*15429|sus 15*937|CatWE 8*499|circles "
     "12*1|solstice° 12*4923|solstice 12*4923|+-20° 13*4923|-+20° 13*4923|-+11° 11*4923|"
     "+-11° 11*4923|eq 9*4925|diurna 10*4925|Ita 255.128.128*716|Ita1 255.128.128*14596|bab "
     "13*2400|bab2 13*12763|horizon 7*368|temp 13*15234|analemma 13*365|lines 15*142 13*2 "
     "11*91 9*1|arrow 12*1|lines 10*80 3*56 14*25 7*32",
     " |L half lenght of the chain 0.57542|f factor of scale 0.53706|K   0.5|a   0.93099|d2 "
     "vertical distance from the plane  0.2|d1 distance of the hanging points from the plane "
     "  0.1|hanging points x, y -0.5  0 : 0.5  0|vertex  0  -0.25||Qibla: azimuth -58.02501°|"},
    {22, "", "Bifilar horizontal spherical dial by spherical trigonometry",
     "Quadro 3*1|ore 15*13895 9*937|circles 15*2 8*1|eq 9*5932|-23.445° 12*3720|23.445° "
     "12*8166|-20.1552° 13*4078|20.1552° 13*7804|-11.4746° 11*4922|11.4746° 11*6948|ita "
     "255.128.128*14705|bab 13*14817|temp 11*14841|circles 2*2|dots 7*4848|lines 7*33|dots "
     "4*1650|lines 8*1 1*1 15*156 4*1 10*120 12*139 3*97 11*93 14*25|analemma 7*365",
     "|d1 IS NOT EQUAL TO ZERO|||height of the sun 67.7012 °|latitude 45.7438 °|delta 23.445 "
     "°|hour angle 0 °|eccentricity of the shadow 0.3794|virtual style 0.2635|radius 0.1|"
     "Longitude -7.6438°|"},
    {26, "TxtFine=23 ckFunction", "Bifilar vertical semi - sphere dial by vectors",
     "Quadro 3*1|ore 15*14465 9*937|circles 15*2|eq 9*601|-23.445° 8*1224|23.445° 8*404|"
     "-20.1552° 13*620|20.1552° 13*436|-11.4746° 11*640|11.4746° 11*511|Ita 14*14621|bab "
     "13*14224|Temp 8*15060|analemma 13*365|equi 11*1665|circles 14*1|dots 10*27864|lines "
     "14*26|dots 4*576|circles 2*3|lines 12*73 15*109 4*1 10*64 3*32 11*90 7*32",
     "|height of the sun 8.254 °|lenght of the horizontal axe from the dial 0.2021|latitude "
     "45.7438 °|declination -14.57 °|delta 23.45 °|hour angle 32.5 °|radius 0.2 °|substyle "
     "hour 10.6703|eccentricity of the shadow 0.9896|angle -33.5275 °|"},
    {35, "ckFunction txt_R2=0.4", "",
     "Quadro 3*1|diurna 4*10499|diurne 4*10499|ore 10*2948|ore2 10*29541|ore 11*6283|circles "
     "7*3 14*1|lines 7*2 15*4",
     "|CYLINDRICAL DAM DIAL |latitude 45.7438 °|maximum radius 0.5|radius of border 0.4|"
     "Cylinder developed on a flat surface |height of the cylinder 0.2|distance between the "
     "two bases 0.2|total amplitude 360 °|circumference 3.1416|useful arc 180 °|lenght of "
     "the useful arc 1.2566|Optional line of declination (red line)23.445 °|Optional shade "
     "of the border (cyan line): delta 23.445 °  H 32.5 °|"},
    {36, "ckFunction", "Dam or cornice dial by vectors",
     "Quadro 3*1|ore1 12*39845|ore2 10*39845|diurna 4*2058|diurna2 4*2058|ombra2 11*6283|"
     "ombra 13*6281|xombra 13*6283|circles 7*6 14*3|lines 4*1|basealta 14*1523|basebassa "
     "14*15238|lines 14*4",
     "|CONICAL DAM DIAL |latitude 45.7438 °|maximum radius 0.5|upper radius 0.45|lower "
     "radius  0.3|theoretical height of the cone 2|height of the truncated cone 0.8|lenght "
     "of the truncated element 0.8246|distance between the two bases 0.8|semiangle at vertex "
     "14.0362 °|inclination of the element 75.9638 °|lenght of the element 2.0616|Conical "
     "surface developed on a plane |Total amplitude 87.3128 °|useful arc 43.6564 °|long "
     "radius 2.0616|Optional line of declination (red line)23.445 °|Optional shade of the "
     "border (cyan line): delta 23.445 °  H 32.5 °|"},
    {38, "ckFunction", "Vertical plane, Horizontal disc",
     "Quadro 3*1|daylight1 4*3675|daylight2 4*1498|afternoon 12*14997|morning 4*23758|dots "
     "11*163|lines 5*2|circles 15*1|lines 14*1|circles 7*2",
     "|FLAT VERTICAL DAM DIAL |latitude 45.7438 °|r2 0|radius of border 0.2|circumference "
     "1.2566|useful arc 180 °|lenght of the useful arc 0.6283|Optional line of declination "
     "(red line)23.445 °|Optional shade of the border (cyan line): delta 23.445 °  H 32.5 °|"},
    {39, "ckFunction", "Vertical plane, Horizontal disc",
     "Quadro 3*1|daylight1 4*8420|daylight2 4*4152|afternoon 10*24497|morning 10*29151|dots "
     "11*587|lines 5*2|circles 15*1|lines 14*1|circles 7*2",
     "|FLAT VERTICAL DAM DIAL |latitude 45.7438 °|r2 0|radius of border 0.2|declination "
     "-14.57|projection 0.41329|hour angle of the tangent point 79.4544|hour of the tangent "
     "point 17.297|circumference 1.25664|useful arc 180 °|lenght of the useful arc 0.62832|"
     "Optional line of declination (red line)23.445 °|Optional shade of the border (cyan "
     "line): delta 23.445 °  H 32.5 °|"},
    {40, "", "SCAPHEN: greek and roman sundial. Please follow the instructions",
     "Quadro 3*1|ora 12+*22495|ita 2+*10779|bab 3+*10779|Temp 6*11700|Horizon2 11+*6769|"
     "Horizon 11+*6769|circles 12*3 15*3|Section 7+*5|Cone 8*4|Style 15+++*1|Winter 9+*2|"
     "Equinox 10+*2|Summer 12+++*2|lines 10*4188|Front 12*1|STILO 15+++*1|tip 15*1|lines 12*2",
     "A|B|C|D|E|F|G|H|I|J|K|L|M|N|O|P|Q|R|S|T|U|deltacd 0.1196|AQ 0.3|AB 0.1|BC 0.0715|BE "
     "0.3607|DE 0.05|CD 0.2392|EF 0.1|FK 0.1888|KA 0.4496|generator 0.6472|ecc 0.80583|style "
     "0.2|semi-amplitude 30|lat. 45.7438|ro 0.5972|x0 1.8|focus 1   1.8|focus 2   1.45847|"
     "circle center   1.62923|xsin 1.4556|a 0.21191|b 0.12548|c 0.17077|RG 0.3856|OU 0.3101|"
     "OJ 0.5172|"},
};

TEST(Order, OfFamiliesLayersInksAndTexts) {
  for (const Row& row : kRows) {
    SCOPED_TRACE(testing::Message() << "program " << row.program << ' ' << row.settings);
    DialCase dial(row.program);
    dial.setBoxes(true).with(kApart).with(row.settings).run();
    EXPECT_EQ(dial.sheet.caption(), row.caption);
    EXPECT_EQ(Ledger(dial.sheet.list()).told(), row.order);
    EXPECT_EQ(dial.told(), row.told);
    EXPECT_FALSE(dial.refused || dial.busy);
  }
}

}  // namespace
}  // namespace dialwright
