// The announced oddities of the dials that a count of entities shows: what a box or a field adds,
// takes away or repeats, on a panel without any other box.
#include <gtest/gtest.h>

#include "dials/ledger.hpp"
#include "support/dial_case.hpp"

namespace dialwright {
namespace {

struct Row {
  int program;
  const char* settings;
  const char* what;
  std::size_t count;
};

const Row kRows[] = {
    // Any of the other hours take the place of the hour lines.
    {1, "chkOreAstronomiche ckTemp", "circles 7", 0},
    {1, "chkOreAstronomiche ck_Italiche", "circles 7", 0},
    {1, "chkOreAstronomiche ck_babiloniche", "circles 7", 0},
    // The analemma is drawn once for each hour from 6 to 18.
    {1, "ck_Lemniscate", "dots", 13 * 1461 + 1},
    // On the equator the equinoctial is an upright line.
    {1, "txtLAT=0 txtDecl=25 ck_Equinoziale", "lines 9", 1},
    {1, "txtLAT=0 txtDecl=25 ck_Equinoziale", "eq", 0},
    // A polar plane has every half hour, whatever the divisions.
    {2, "optX txtDecl=0 txtReclinZ=45.7438 TxtHour=4 chkOreAstronomiche", "lines 15", 25},
    // A year and 80 degrees, less a day.
    {4, "x1txt=-9 x2txt=9 y1txt=9 y2txt=-9 ck_Lemniscate", "dots 14", 446},
    // On the equator there are no hours from the horizon; a wall that faces a pole has no curves,
    // and one that holds the axis has level hours between the solstices.
    {5, "txtLAT=0 txtDecl=30 ck_Italiche", "lines 14", 0},
    {5, "txtLAT=0 txtDecl=0 Ck_DayLightCurves", "dots 13", 0},
    {5, "txtLAT=0 txtDecl=30 Ck_DayLightCurves", "dots 13", 16076},
    {5, "txtLAT=0 txtDecl=-90 chkOreAstronomiche", "lines 14", 21},
    // The days to summer, and from it.
    {6, "ck_Lemniscate Ck_Section Optconcave", "Lemniscate", 182},
    {6, "ck_Lemniscate Ck_Section OptConvex", "Lemniscate", 181},
    // Numerals come with the hour lines only; the function box leaves the triangle out.
    {6, "ckRomani ckArabi", "lines", 0},
    {6, "chkOreAstronomiche ckArabi", "lines 15", 112},
    {6, "ck_Triangolo ckFunction", "assostilo", 0},
    // Labels, besides those of the two foci, are of one kind of hours and none with Roman numerals.
    {6, "ckTemp ckRomani", "texts", 2},
    {6, "ck_Italiche ck_babiloniche ckRomani", "texts", 2},
    {6, "ck_Italiche", "texts", 2 + 9},
    {6, "ckTemp", "texts", 2 + 7},
    // The southern recipe brings the zodiac's signs.
    {7, "ck_Lemniscate ckZodiaco", "lines", 0},
    {7, "ck_Lemniscate ckZodiaco ckFunction", "lines", 391},
    // Numerals stand on the free line of declination, and both kinds are the Roman one twice.
    {7, "ckArabi", "lines 7", 32},
    {7, "ckRomani", "lines", 52},
    {7, "ckArabi ckRomani", "lines", 2 * 52},
    {7, "ckRomani Ck_DayLightCurves", "23.445", 0},
    {7, "txtReclinZ=0 ck_Orizzonte", "lines 2", 0},
    // The longest segment is the same for all styles.
    {7, "TxtStilo=12 x1txt=-99 x2txt=99 y1txt=99 y2txt=-99 chkOreAstronomiche", "oreastro", 0},
    {12, "txtLineofdeclination=5.5", "5.5", 1231},
    {12, "txtLineofdeclination=5.5 ckArabi", "5.5", 0},
    // Hours, halves and quarters: the divisions are one, two or four.
    {13, "chkOreAstronomiche TxtHour=1", "mezze", 0},
    {13, "chkOreAstronomiche TxtHour=2", "mezze 6+", 16 * 937},
    {13, "chkOreAstronomiche TxtHour=3", "mezze", 0},
    {13, "chkOreAstronomiche TxtHour=4", "mezze 3", 31 * 937},
    // Analemmas of the hours, of noon or of half a year.
    {13, "ck_Lemniscate", "analemma", 365},
    {13, "ck_Lemniscate Ck_Section TxtHour=2", "analemma", (29 + 15) * 365},
    {13, "ck_Lemniscate CheckL Optconcave", "analemma", 182},
    {13, "ck_Lemniscate CheckL OptConvex", "analemma", 181},
    // With the horizon off only the winter solstice is drawn, by the function box also the
    // summer's.
    {13, "Ck_DayLightCurves", "-23.445°", 4500},
    {13, "Ck_DayLightCurves", "23.445°", 0},
    {13, "Ck_DayLightCurves ck_Orizzonte ckFunction", "23.445°", 4657},
    {13, "Ck_DayLightCurves ck_Orizzonte ckFunction", "20.1552°", 0},
    {13, "ckArabi", "lines 7", 32},
    {13, "ckRomani", "lines", 134},
    {13, "ckArabi ckRomani", "lines", 2 * 134},
    {13, "ckArabi txtLineofdeclination=20", "20", 0},
    // Roman numerals by their box, Arabic ones by none, and neither by both.
    {16, "ckArabi", "lines 12", 195},
    {16, "ckRomani", "lines", 118},
    {16, "ckArabi ckRomani", "lines", 0},
    // So steep that no chord is short enough.
    {17, "txtDecl=1 ck_Orizzonte", "Sus", 0},
    {17, "txtDecl=1 ck_Orizzonte ckTrue", "Sus", 1998},
    {26, "txtLineofdeclination=5", "5", 0},
    {35, "Ck_DayLightCurves txtLineofdeclination=-23.445", "diurna", 0},
    {35, "Ck_DayLightCurves txtLineofdeclination=-23.444", "diurna", 6357},
    {36, "", "ombra", 0},
    // A wall seen edge on has no curve; numerals and dots stay on the origin.
    {39, "txtDecl=90 txt_R2=0 Ck_DayLightCurves ckFunction ckArabi", "daylight1", 0},
    {39, "txtDecl=90 txt_R2=0 Ck_DayLightCurves ckFunction ckArabi", "dots 11", 629},
    {39, "txtDecl=90 txt_R2=0 Ck_DayLightCurves ckFunction ckArabi", "dots 4", 8},
    // Numerals need the temporary hours.
    {40, "ckArabi", "lines 7", 0},
    {40, "ckArabi ckTemp", "lines 7", 32}};

TEST(Oddities, AreKept) {
  for (const Row& row : kRows) {
    DialCase dial(row.program, row.settings);
    dial.run();
    EXPECT_EQ(Ledger(dial.sheet.list()).count(row.what), row.count)
        << row.what << " of program " << row.program << ' ' << row.settings;
  }
}

}  // namespace
}  // namespace dialwright
