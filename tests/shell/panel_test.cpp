// The panel: fields and catalogue, what clicks set, what a run derives, and the run's limits.
#include <gtest/gtest.h>

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

void click(DialCase& dial, Item item) {
  clickItem(dial.panel, dial.params, item, [](std::string_view text) { return std::string(text); });
}

TEST(Names, AreFoundWithoutCase) {
  EXPECT_EQ(findField("TXTLAT"), Field::txtLAT);
  EXPECT_EQ(findDial("m_light"), Item::M_Light);
  EXPECT_FALSE(findDial("0"));
  EXPECT_FALSE(findDial("O_PIANI")) << "a menu is no dial";
  for (const std::string& odd : {std::string("zzz"), std::string(1000000, 'x')})
    EXPECT_EQ(nearestName(odd, {"txtLAT", "txtLON"}), "");
}

TEST(Panel, FiltersKeys) {
  const std::string typed = "\ba,-5 ", kept("\b\0.-5\0", 6);
  for (std::size_t i = 0; i < typed.size(); ++i) EXPECT_EQ(FiltroNumerico(typed[i]), kept[i]) << i;
  EXPECT_TRUE(isFiltered(Field::txtLAT));
  EXPECT_FALSE(isFiltered(Field::TxtHour));
}

TEST(Clicks, OfEveryDialLeaveTheSiteAndCheckItAlone) {
  for (const Item item : dialItems()) {
    DialCase dial(item, drawNothing);
    dial.set(Field::txtLAT, "12.5");
    click(dial, item);
    EXPECT_EQ(dial.panel.text(Field::txtLAT), "12.5") << rowOf(item).name;
    for (const Item other : dialItems()) EXPECT_EQ(dial.panel[other].checked, other == item);
  }
}

TEST(Clicks, OfM_LightChooseTheHoursThatTheWallSees) {
  for (const auto& [declination, first, last] :
       {std::tuple{"85", "13", "19"}, {"-85", "5", "11"}, {"80", "9", "15"}, {"-80", "9", "15"}}) {
    DialCase dial(Item::M_Light, drawNothing);
    dial.set(Field::txtDecl, declination);
    click(dial, Item::M_Light);
    EXPECT_EQ(dial.panel.text(Field::TxtInizio), first);
    EXPECT_EQ(dial.panel.text(Field::TxtFine), last);
  }
}

TEST(Clicks, ShowAFieldWithItsLabelAndSetTheReportsMode) {
  DialCase dial(Item::mnuBall, drawNothing);
  const Panel& panel = dial.panel;
  EXPECT_FALSE(panel[Field::TxtStilo].visible || panel[Field::p_Stilo].visible);
  EXPECT_FALSE(panel[Field::cmdPlot].enabled || panel.on(Field::OptConvex));
  click(dial, Item::mnuUni);
  EXPECT_TRUE(panel[Field::TxtStilo].visible && panel[Field::p_Stilo].visible);
  EXPECT_EQ(panel[Field::lblradius].tip, "west longitude");
  for (const auto& [item, mode] :
       {std::pair{Item::mnuConoAntico, 0}, {Item::mnuBall, 1}, {Item::mnuCCs, 0}}) {
    click(dial, item);
    EXPECT_EQ(dial.params.ModoDati, mode) << rowOf(item).name;
  }
}

TEST(Clicks, OnBoxesSetHoursInEitherDirection) {
  DialCase dial(Item::M_Light, drawNothing);
  const Panel& panel = dial.panel;
  dial.check(Field::ck_Italiche).check(Field::ck_babiloniche);
  EXPECT_EQ(panel.text(Field::TxtInizio) + panel.text(Field::TxtFine), " 0 12");
  dial.check(Field::ck_Italiche, false);
  EXPECT_EQ(panel.text(Field::TxtInizio) + panel.text(Field::TxtFine), " 13 23");
  dial.check(Field::ck_Etna).check(Field::optY);
  EXPECT_EQ(std::pair(dial.params.UsaLongitudine, dial.beeps), std::pair(1.0, 1));
}

TEST(Clicks, OnTheFrameDrawItAtOnce) {
  DialCase dial(Item::M_Light, drawNothing);
  dial.check(Field::ckFrame);
  EXPECT_FALSE(dial.panel.on(Field::ckFrame));
  const BoxRecord& box = dial.sheet.list().boxes.at(0);
  EXPECT_EQ(std::tuple(box.x1, box.y1, box.x2, box.y2), std::tuple(-0.5, -0.2, 0.5, 1));
}

TEST(Dispatch, DerivesTheSigns) {
  DialCase dial(Item::M_Light, drawNothing);
  const DialParams& p = dial.params;
  dial.set(Field::txtLON, "0").set(Field::txtDecl, "0").set(Field::txtLAT, "0").run();
  EXPECT_EQ(std::tuple(p.SegnoLon, p.SegnoDecl, p.SegnoEmisfero), std::tuple(-1, 1, 1));
  dial.set(Field::txtLAT, "-30").set(Field::txtReclinZ, "60").run();
  EXPECT_EQ(std::pair(p.ReclinGradi, p.InclinGradi), std::pair(-30.0, 60.0));
  dial.check(Field::OptZenital).run();
  EXPECT_EQ(std::pair(p.ReclinGradi, p.InclinGradi), std::pair(60.0, 150.0));
}

TEST(Run, EndsAtItsLimitsWithOneMessage) {
  for (const auto& [driver, entities, named] :
       {std::tuple{Driver{drawForever}, Run::kMaxEntities, "5000000"},
        {Driver{sweepBadly}, std::size_t{0}, "txt_Definition"}}) {
    DialCase dial(Item::M_Light, driver);
    dial.run();
    EXPECT_EQ(dial.entities(), entities);
    ASSERT_EQ(dial.messages.size(), 1u);
    EXPECT_NE(dial.messages.front().find(named), std::string::npos);
    click(dial, Item::mnuBall2);  // which has no driver
    EXPECT_EQ(dial.run().entities(), entities);
    EXPECT_EQ(dial.messages.size(), 1u);
  }
}

}  // namespace
}  // namespace dialwright
