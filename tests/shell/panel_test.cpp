// The panel: fields and catalogue, what clicks set, what a run derives, and the run's limits.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "shell/names.hpp"
#include "support/dial_case.hpp"

namespace dialwright {
namespace {

void drawNothing(Run&) {}

void drawForever(Run& run) {
  for (const double i : run.sweep(0, 1e6, 1)) {
    for (const double j : run.sweep(0, 1000, 1)) run.sheet.xLine(i, j, j, i, kWhite);
  }
}

void sweepBadly(Run& run) {
  EXPECT_EQ(run.sweep(0, 1, -0.1, {.step = Field::txt_Definition}).samples(), 0);
  EXPECT_EQ(run.sweep(0, 1e9, 1, {Field::TxtHour, Field::TxtFine}).samples(), 0);
  EXPECT_EQ(run.sweep(1, 0, 1).samples(), 0) << "crossed bounds are nothing to complain about";
}

std::string same(std::string_view text) { return std::string(text); }

TEST(Fields, AreFoundByNameWithoutCase) {
  EXPECT_EQ(findField("TXTLAT"), Field::txtLAT);
  EXPECT_EQ(findField("ck_etna"), Field::ck_Etna);
  EXPECT_FALSE(findField("txtLatt"));
  std::set<std::string_view> names;
  for (const FieldRow& row : fieldTable()) names.insert(row.name);
  EXPECT_EQ(names.size(), kFieldCount);
  EXPECT_EQ(nearestName("txtLatt", {"txtLAT", "txtLON"}), "txtLAT");
  EXPECT_EQ(nearestName("zzz", {"txtLAT", "txtLON"}), "");
  EXPECT_EQ(nearestName(std::string(1000000, 'x'), {"txtLAT"}), "");
}

TEST(Fields, FilterKeys) {
  const std::string typed = "\ba,-5 ", kept("\b\0.-5\0", 6);
  for (std::size_t i = 0; i < typed.size(); ++i) EXPECT_EQ(FiltroNumerico(typed[i]), kept[i]) << i;
  int filtered = 0;
  for (std::size_t i = 0; i < kFieldCount; ++i) filtered += isFiltered(fieldAt(i)) ? 1 : 0;
  EXPECT_EQ(filtered, 26);
  EXPECT_FALSE(isFiltered(Field::TxtHour));
}

TEST(Catalogue, HasTheDialsInMenuOrder) {
  EXPECT_EQ(dialItems().size(), 28u);
  EXPECT_EQ(dialItems().front(), Item::M_Light);
  EXPECT_EQ(dialItems().back(), Item::mnuConoAntico);
  EXPECT_EQ(findDial("7"), Item::mnuUni);
  EXPECT_EQ(findDial("m_light"), Item::M_Light);
  EXPECT_FALSE(findDial("0"));
  EXPECT_FALSE(findDial("O_PIANI")) << "a menu is no dial";
}

TEST(Panel, StartsWithItsDefaults) {
  const Panel panel;
  EXPECT_EQ(panel.text(Field::txtLAT), "45.7438");
  EXPECT_EQ(panel.text(Field::TxtInizio), "");
  EXPECT_FALSE(panel[Field::cmdData].visible);
  std::set<std::string_view> selected;
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    if (panel.on(fieldAt(i))) selected.insert(rowOf(fieldAt(i)).name);
  }
  EXPECT_EQ(selected,
            (std::set<std::string_view>{"chkOreAstronomiche", "Ck_DayLightCurves", "ck_Equinoziale",
                                        "OptHorizontal", "OptConvex", "optX"}));
}

TEST(Panel, KeepsTheHourFractionAboveZeroAndOptionsApart) {
  Panel panel;
  for (const char* text : {"", "0", "abc", "0.0", " "}) {
    panel.setText(Field::TxtHour, text);
    EXPECT_EQ(panel.text(Field::TxtHour), "1");
  }
  panel.setText(Field::TxtHour, "4");
  EXPECT_EQ(panel.text(Field::TxtHour), "4");
  panel.setState(Field::OptZenital, true);
  EXPECT_FALSE(panel.on(Field::OptHorizontal));
  EXPECT_TRUE(panel.on(Field::OptConvex)) << "another group";
}

TEST(Clicks, OfEveryDialLeaveTheSiteAndCheckItAlone) {
  for (const Item dial : dialItems()) {
    DialCase dialCase(dial, drawNothing);
    Panel& panel = dialCase.panel;
    panel.setText(Field::txtLAT, "12.5");
    clickItem(panel, dialCase.params, dial, same);
    EXPECT_EQ(panel.text(Field::txtLAT), "12.5") << rowOf(dial).name;
    EXPECT_EQ(panel.chosen(), dial);
    EXPECT_EQ(std::count_if(dialItems().begin(), dialItems().end(),
                            [&](Item i) { return panel[i].checked; }),
              1);
    EXPECT_TRUE(panel[Field::txtLAT].visible);
    EXPECT_TRUE(panel[Field::y2txt].visible);
  }
}

TEST(Clicks, OfM_LightChooseTheHoursThatTheWallSees) {
  for (const auto& [declination, first, last] : {std::tuple{"85", "13", "19"},
                                                 {"-85", "5", "11"},
                                                 {"80", "9", "15"},
                                                 {"-14.57", "9", "15"}}) {
    DialCase dialCase(Item::M_Light, drawNothing);
    dialCase.set(Field::txtDecl, declination);
    clickItem(dialCase.panel, dialCase.params, Item::M_Light, same);
    EXPECT_EQ(dialCase.panel.text(Field::TxtInizio), first);
    EXPECT_EQ(dialCase.panel.text(Field::TxtFine), last);
  }
}

TEST(Clicks, ShowHideAndLabelWhatADialNeeds) {
  DialCase ball(Item::mnuBall, drawNothing);
  EXPECT_EQ(ball.panel.text(Field::txtDecl), "0");
  EXPECT_EQ(ball.panel.text(Field::txtReclinZ), "0");
  EXPECT_FALSE(ball.panel[Field::TxtStilo].visible);
  EXPECT_FALSE(ball.panel[Field::p_Stilo].visible) << "a label goes with its field";
  EXPECT_TRUE(ball.panel[Field::txtD1].visible);
  EXPECT_FALSE(ball.panel[Field::cmdPlot].enabled);

  DialCase universal(Item::mnuUni, drawNothing);
  EXPECT_TRUE(universal.panel[Field::OptZenital].visible);
  EXPECT_TRUE(universal.panel[Field::cmdStati].enabled);
  EXPECT_EQ(universal.panel[Field::lblradius].caption, "West");
  EXPECT_EQ(universal.panel[Field::lblradius].tip, "west longitude");

  DialCase cylinder(Item::mnuCCs, drawNothing);
  EXPECT_TRUE(cylinder.panel.on(Field::OptConvex) && cylinder.panel[Field::OptConvex].visible);
  EXPECT_EQ(cylinder.panel[Field::Optconcave].caption, "Concave");

  // The dial with a variable to choose leaves what it does not name as it stood.
  clickItem(cylinder.panel, cylinder.params, Item::M_Inclinati, same);
  for (const Field shown : {Field::TxtRadius, Field::optY, Field::Label1})
    EXPECT_TRUE(cylinder.panel[shown].visible);
  EXPECT_FALSE(cylinder.panel[Field::OptConvex].visible);
}

TEST(Clicks, OfMenusSetTheReportsMode) {
  DialCase dialCase(Item::M_Light, drawNothing);
  EXPECT_EQ(dialCase.params.ModoDati, 1) << "the flat dials lie under a menu that sets it";
  clickItem(dialCase.panel, dialCase.params, Item::mnuCCs, same);
  EXPECT_EQ(dialCase.params.ModoDati, 0);
  dialCase.panel.setState(Field::OptConvex, true);
  clickItem(dialCase.panel, dialCase.params, Item::mnuBall, same);
  EXPECT_EQ(dialCase.params.ModoDati, 1);
  EXPECT_FALSE(dialCase.panel.on(Field::OptConvex));
  clickItem(dialCase.panel, dialCase.params, Item::mnuConoAntico, same);
  EXPECT_EQ(dialCase.params.ModoDati, 0);
}

TEST(Clicks, OnBoxesSetHoursInEitherDirection) {
  DialCase dialCase(Item::M_Light, drawNothing);
  dialCase.check(Field::ck_Italiche);
  EXPECT_EQ(dialCase.panel.text(Field::TxtInizio), " 13");
  EXPECT_EQ(dialCase.panel.text(Field::TxtFine), " 23");
  dialCase.set(Field::TxtFine, "20").check(Field::ck_Italiche, false);
  EXPECT_EQ(dialCase.panel.text(Field::TxtFine), " 23");
  dialCase.check(Field::ck_babiloniche);
  EXPECT_EQ(dialCase.panel.text(Field::TxtFine), " 12");
  dialCase.check(Field::ck_Etna);
  EXPECT_EQ(dialCase.params.UsaLongitudine, 1);
  dialCase.check(Field::optY);
  EXPECT_EQ(dialCase.beeps, 1);
}

TEST(Clicks, OnTheFrameDrawItAtOnce) {
  DialCase dialCase(Item::M_Light, drawNothing);
  dialCase.check(Field::ckFrame);
  EXPECT_FALSE(dialCase.panel.on(Field::ckFrame));
  ASSERT_EQ(dialCase.sheet.list().boxes.size(), 1u);
  const BoxRecord& box = dialCase.sheet.list().boxes.front();
  EXPECT_EQ(std::tuple(box.x1, box.y1, box.x2, box.y2), std::tuple(-0.5, -0.2, 0.5, 1));
  EXPECT_EQ(std::pair(box.colour, box.filled), std::pair(palette(3), false));
  EXPECT_EQ(dialCase.sheet.list().name(box.layer), "Quadro");
}

TEST(Dispatch, DerivesTheSigns) {
  DialCase dial(Item::M_Light, drawNothing);
  const DialParams& p = dial.params;
  dial.set(Field::txtLON, "0").set(Field::txtDecl, "0").set(Field::txtLAT, "0").run();
  EXPECT_EQ(std::tuple(p.SegnoLon, p.SegnoDecl, p.SegnoEmisfero), std::tuple(-1, 1, 1));
  EXPECT_EQ(std::pair(p.ReclinGradi, p.InclinGradi), std::pair(0.0, 90.0)) << "an upright wall";
  EXPECT_TRUE(dial.panel[Field::cmdData].visible);
  dial.set(Field::txtLAT, "-30").set(Field::txtReclinZ, "60").set(Field::txtLON, "-7").run();
  EXPECT_EQ(std::pair(p.SegnoLon, p.SegnoEmisfero), std::pair(1.0, -1.0));
  EXPECT_EQ(std::pair(p.ReclinGradi, p.InclinGradi), std::pair(-30.0, 60.0));
  dial.check(Field::OptZenital).run();
  EXPECT_EQ(std::pair(p.ReclinGradi, p.InclinGradi), std::pair(60.0, 150.0));
}

TEST(Dispatch, DrawsNothingForAnItemWithoutADriver) {
  DialCase dialCase(Item::M_Light, drawForever);
  clickItem(dialCase.panel, dialCase.params, Item::mnuBall2, same);
  dialCase.run();
  EXPECT_EQ(dialCase.entities(), 0u);
  EXPECT_TRUE(dialCase.messages.empty());
  EXPECT_TRUE(dialCase.panel[Field::cmdData].visible);
}

TEST(RunLimits, EndARunWithOneMessage) {
  for (const auto& [driver, entities, named] :
       {std::tuple{Driver{drawForever}, Run::kMaxEntities, "5000000"},
        {Driver{sweepBadly}, std::size_t{0}, "txt_Definition"}}) {
    DialCase dial(Item::M_Light, driver);
    dial.run();
    EXPECT_EQ(dial.entities(), entities);
    ASSERT_EQ(dial.messages.size(), 1u);
    EXPECT_NE(dial.messages.front().find(named), std::string::npos);
  }
}

}  // namespace
}  // namespace dialwright
