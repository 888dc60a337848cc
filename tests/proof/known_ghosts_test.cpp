// What of the literal drawings is known to be no shadow, and what only the drawing of true shadows
// has: a row a behaviour.
#include <gtest/gtest.h>

#include "support/proven_dial.hpp"

namespace dialwright {
namespace {

using enum CurveFamily;

struct Known {
  Item dial;
  std::string_view settings;
  CurveFamily family;                   // None for all that is drawn, arcs included
  std::size_t genuine, ghosts, strays;  // literally
  std::size_t mended;                   // genuine with true shadows only, at least
};
struct Group {
  std::string_view settings;  // of all its rows
  std::vector<Known> rows;
};

const Group kGroups[] = {
    {"txtDecl=-14.57 txt_Definition=5 TxtInizio=0 TxtFine=24",
     {
         // Twins of a sun behind the wall.
         {Item::mnuUni, "Ck_DayLightCurves", Declinations, 8226, 393, 0, 8226},
         {Item::mnuVertSph, "Ck_DayLightCurves", Declinations, 8650, 393, 0, 8650},
         {Item::mnuUni, "ck_Equinoziale", Equinoctial, 1242, 200, 0, 1242},
         // Whole lines, from over the horizon on.
         {Item::M_Light, "ck_Equinoziale", Equinoctial, 352, 47, 0, 352},
         {Item::M_Frinter, "chkOreAstronomiche", Hours, 0, 25, 0, 25},
         // The afternoon prayer beyond the zenith.
         {Item::mnuUni, "ckAsr txtLAT=5 txtDecl=100", Asr, 570, 0, 368, 938},
         // A direction that is taken for its opposite, and for that of an upright wall.
         {Item::mnuUni, "CkQibla txtLAT=12 txtDecl=20 txtReclinZ=50", Qibla, 2120, 6566, 0, 2120},
         {Item::M_Inclinati, "CkQibla txtReclinZ=60", Qibla, 0, 0, 9028, 9028},
         {Item::mnuUni, "CkQibla txtLAT=0 txtLON=80 txtReclinZ=0", Qibla, 2, 4690, 4688, 4555},
         // Noon: a level row where it is upright, none at all, or none of a sun North of the
         // zenith.
         {Item::M_Inclinati, "chkOreAstronomiche optY", Hours, 334, 533, 45, 536},
         {Item::M_Inclinati, "chkOreAstronomiche", Hours, 1370, 2092, 0, 1471},
         {Item::M_Proiettivo, "chkOreAstronomiche txtReclinZ=60", Hours, 13696, 4520, 800, 18342},
         {Item::M_Proiettivo, "chkOreAstronomiche", Hours, 3631, 5213, 0, 6205},
         {Item::mnuVertSph, "chkOreAstronomiche txtLAT=10 txtDecl=180", Hours, 708, 66, 0, 750},
         // Hours from the horizon that are missing.
         {Item::M_Inclinati, "ck_Italiche CkConic txtReclinZ=60", Italic, 1228, 559, 665, 1531},
         {Item::M_Frinter, "ck_Italiche CkConic", Italic, 0, 10, 5, 14},
         {Item::M_Light, "ck_Italiche CkConic", Italic, 4777, 451, 158, 4957},
         // Tangents of the equator's latitude; a wall that holds the axis; a level plane.
         {Item::M_Light, "chkOreAstronomiche txtLAT=0 txtDecl=-90", Hours, 0, 0, 13, 11},
         {Item::M_Light, "ck_Lemniscate txtLAT=0 txtDecl=-60", Analemma, 9269, 0, 0, 713},
         {Item::mnuVertSph, "ckAz txtLAT=0 txtDecl=30", Azimuths, 0, 0, 0, 1843},
         {Item::mnuUni, "ckAz txtLAT=45 txtDecl=0 txtReclinZ=0", Azimuths, 0, 0, 0, 5293},
         {Item::mnuUni, "ckAlt txtLAT=45 txtDecl=0 txtReclinZ=0", Altitudes, 0, 0, 0, 5900},
     }},
    {"txtDecl=-14.57 TxtRadius=.4 TxtHour=1",
     {
         {Item::M_CILINDRICI, "OptConvex chkOreAstronomiche TxtHour=2", Hours, 247, 1391, 0, 247},
         // Noon has no ordinate: its dots stay on the level where those of the hour before ended.
         {Item::M_CILINDRICI, "OptConvex chkOreAstronomiche", Hours, 120, 752, 59, 120},
         // The first dot of a line, at the section's edge, stays where the last one stood.
         {Item::M_CILINDRICI, "Optconcave chkOreAstronomiche txtDecl=-90", Hours, 338, 504, 159,
          344},
         // The abscissa alone folds what lies beyond the cylinder's axis.
         {Item::mnuCircp, "Optconcave chkOreAstronomiche TxtStilo=.6", Hours, 1172, 4415, 1133,
          2431},
         // The free line starts in the foot.
         {Item::mnuCCs, "OptConvex", Declinations, 817, 0, 1, 817},
         // Without hour lines a new program has no side yet: all falls on the foot.
         {Item::mnuCCs, "Optconcave ck_Lemniscate", Analemma, 0, 0, 446, 446},
         // A segment has less than 5 mm.
         {Item::mnuCCs, "OptConvex ck_Lemniscate TxtStilo=.3", Analemma, 359, 0, 0, 446},
         {Item::M_CILINDRICI, "OptConvex ck_Lemniscate", Analemma, 1614, 0, 0, 1614},
         {Item::mnuCircp, "OptConvex ck_Lemniscate", Analemma, 366, 0, 0, 366},
         {Item::M_Parabolico, "OptConvex txtLineofdeclination=10", Declinations, 162, 120, 2, 162},
     }},
    {"TxtHour=1",
     {
         // The hat's old hours are joined from line to line, its days need the horizon's box.
         {Item::mnuChapeau, "ck_Italiche", Italic, 10713, 0, 6, 10713},
         {Item::mnuChapeau, "ck_babiloniche", Babylonian, 10713, 0, 6, 10713},
         {Item::mnuChapeau, "Ck_DayLightCurves ckArabi", Equinoctial, 0, 0, 0, 3600},
         {Item::mnuChapeau, "Ck_DayLightCurves ckArabi", Declinations, 2542, 1958, 0, 21594},
         // Its noon is always South, a day that passes North runs across the strip, and its zone is
         // that of 15 degrees East.
         {Item::mnuChapeau, "chkOreAstronomiche ck_Orizzonte txtLAT=12", Hours, 11014, 231, 0,
          11191},
         {Item::mnuChapeau, "Ck_DayLightCurves ck_Orizzonte txtLAT=-35", Declinations, 24479, 7, 1,
          24479},
         {Item::mnuChapeau, "ck_Lemniscate ck_Orizzonte TxtFuso=0", Analemma, 0, 0, 365, 365},
         {Item::mnuChapeau, "ck_Lemniscate ck_Orizzonte", Analemma, 365, 0, 0, 365},
     }},
    {"TxtInizio=1 TxtFine=24 TxtHour=1 x1txt=-2 x2txt=2 y1txt=2 y2txt=-2",
     {
         // Noon takes a northern sun for a southern one, but where the samples miss it.
         {Item::mnuFontana_H3, "chkOreAstronomiche txtLAT=12", Hours, 10078, 0, 229, 10306},
         {Item::mnuFontana_H3, "ckTemp txtLAT=12", Temporary, 10078, 0, 229, 10306},
         {Item::mnuFontana_H3, "Ck_DayLightCurves txtLAT=12", Declinations, 58768, 0, 0, 58768},
         {Item::mnuBall, "chkOreAstronomiche txtLAT=12", Hours, 10078, 0, 229, 10306},
         // Its azimuth is that of the sample before.
         {Item::mnuFontana_H3, "ck_Equinoziale txtLAT=0", Equinoctial, 0, 0, 8327, 8326},
         // Where the equator's sun is behind.
         {Item::mnuBall_v, "Ck_DayLightCurves txtDecl=150", Declinations, 684, 0, 0, 946},
         // The equinoctial is that of a wall that faces South; all hours are in one point.
         {Item::mnuBifvert, "ck_Equinoziale txtDecl=150", Equinoctial, 1615, 11381, 1692, 2748},
         {Item::mnuBifvert, "chkOreAstronomiche txtLAT=0 txtDecl=0", Hours, 0, 17341, 6084, 8982},
         // A sag of 32.5 m, which txtAO holds first.
         {Item::mnucatenaria, "CkQibla txtDecl=-40", Qibla, 0, 0, 0, 902},
     }},
    {"TxtInizio=1 TxtFine=24 TxtHour=1 txtDecl=-14.57",
     {
         // Hours of the night.
         {Item::mnuBall_v, "chkOreAstronomiche TxtFine=12 TxtHour=2", Hours, 14215, 1835, 0, 14215},
         {Item::mnuBall_v, "ck_Italiche TxtFine=12 TxtHour=2", Italic, 0, 13617, 0, 0},
         // No back of the wall.
         {Item::mnuBifvert, "chkOreAstronomiche", Hours, 14566, 1218, 0, 14566},
         {Item::mnuBifvert, "Ck_DayLightCurves", Declinations, 37128, 6447, 0, 37128},
         {Item::mnuBifvert, "ck_Equinoziale", Equinoctial, 7880, 1035, 0, 7880},
         // A level substyle where it is upright.
         {Item::mnuBifvert, "ck_Orizzonte txtDecl=0", Hours, 0, 0, 1665, 1665},
         // No night.
         {Item::mnucatenaria, "chkOreAstronomiche", Hours, 8210, 8164, 0, 8210},
         {Item::mnucatenaria, "ck_Italiche", Italic, 7349, 8330, 0, 7349},
         // A quarter turn's analemma is reversed.
         {Item::mnucatenaria,
          "ck_Lemniscate txtDecl=90 TxtFuso=4 x1txt=-9 x2txt=9 y1txt=9 y2txt=-9", Analemma, 0, 63,
          302, 302},
     }},
    {"",
     {
         // Where the sun is in the North the border's point is the one away from it.
         {Item::mnuCorncil, "txtLAT=10 txt_R2=.4", Hours, 25172, 7556, 0, 32738},
         {Item::mnuCorncil, "txtLAT=30 txt_R2=.4", Hours, 33485, 0, 0, 33485},
         // The southern half of the shadow is laid out twice, once beyond the development's ends.
         {Item::mnuCorncon, "ckFunction txtLineofdeclination=23.445", Marks, 14249, 4598, 0, 12566},
         // The ray is followed both ways: a sun that is down behind the wall has its lines, too.
         {Item::mnuCorn_flat, "txtDecl=-14.57 txt_Definition=50 x1txt=-5 x2txt=5 y2txt=-5", Hours,
          5685, 424, 0, 5685},
         {Item::mnuCorn_flat2, "txtDecl=-14.57 txt_Definition=50 x1txt=-5 x2txt=5 y2txt=-5", Hours,
          5143, 189, 0, 5143},
     }},
    {"TxtHour=1",
     {
         // Mirrored, these are turned by half a turn; the days' arcs stand mirrored always.
         {Item::mnuConoAntico, "ck_Italiche", Italic, 10772, 7, 0, 11316},
         {Item::mnuConoAntico, "ck_Italiche ckFunction", Italic, 0, 5160, 5619, 11316},
         {Item::mnuConoAntico, "ck_babiloniche ckFunction", Babylonian, 0, 5160, 5619, 11316},
         {Item::mnuConoAntico, "Ck_DayLightCurves ck_Equinoziale", None, 0, 3, 0, 3},
         {Item::mnuConoAntico, "Ck_DayLightCurves ck_Equinoziale ckFunction", None, 3, 0, 0, 3},
         // No winter beyond the polar circle, and no summer of a cone that is too wide for it.
         {Item::mnuConoAntico, "Ck_DayLightCurves ck_Equinoziale txtLAT=67", None, 0, 3, 0, 2},
         {Item::mnuConoAntico, "Ck_DayLightCurves ck_Equinoziale txtSemi=80", None, 0, 3, 0, 2},
         // A sun that doesn't rise counts as one of six hours; midnight is one line on both edges.
         {Item::mnuConoAntico, "ckTemp txtLAT=75", Temporary, 3971, 1093, 1008, 4977},
         {Item::mnuConoAntico, "chkOreAstronomiche txtLAT=75", Hours, 11390, 25, 0, 11390},
         // A wide cone shows where a ray comes from when it runs out of it.
         {Item::mnuConoAntico, "chkOreAstronomiche txtLAT=10 txtSemi=66", Hours, 10021, 2, 0,
          10021},
         {Item::mnuConoAntico, "chkOreAstronomiche txtLAT=10 txtSemi=80", Hours, 6368, 2095, 0,
          6368},
     }}};

proof::LayerProof tallyOf(const ProvenDial& dial, CurveFamily family) {
  return family == None ? dial.proof.total() : dial.tallies()[family];
}

TEST(KnownGhosts, AreDrawnLiterallyAndMended) {
  for (const Group& group : kGroups) {
    for (const Known& known : group.rows) {
      SCOPED_TRACE(testing::Message() << rowOf(known.dial).name << ' ' << known.settings);
      ProvenDial dial(known.dial, group.settings), mended(known.dial, group.settings);
      const proof::LayerProof literal = tallyOf(dial.with(known.settings).prove(), known.family);
      EXPECT_EQ(literal.genuine, known.genuine);
      EXPECT_EQ(literal.ghosts, known.ghosts);
      EXPECT_EQ(literal.strays, known.strays);
      EXPECT_GE(tallyOf(mended.with(known.settings).prove(true), known.family).genuine,
                known.mended);
    }
  }
}

// Steps of the literal drawing that leave its lines off, in mm: a chain of twelve, and one line
// more than its dial has.
TEST(KnownGhosts, MillimetresOff) {
  const auto off = [](Item dial, std::string_view settings, bool trueOnly) {
    return ProvenDial(dial, settings).prove(trueOnly).proof.total().millimetres;
  };
  EXPECT_NEAR(off(Item::mnucatenaria, "ck_babiloniche", false), 0.011, 0.001);
  EXPECT_LT(off(Item::mnucatenaria, "ck_babiloniche", true), 1e-5);
  EXPECT_NEAR(off(Item::mnuCCs, "TxtRadius=.4 txtDecl=-14.57 OptConvex", false), 749.378, 0.001);
  EXPECT_LT(off(Item::mnuFontana_H3, kFamilies, false), 1e-5);
}

}  // namespace
}  // namespace dialwright
