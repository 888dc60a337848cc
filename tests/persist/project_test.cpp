// Project files: what comes back, and what odd elements and files do.
#include "persist/project.hpp"

#include <gtest/gtest.h>

#include "shell/clicks.hpp"
#include "support/folder.hpp"
#include "support/written.hpp"

namespace dialwright {
namespace {

using Outcome = LoadResult::Outcome;

void click(Panel& panel, Item dial) {
  DialParams params;
  clickItem(panel, params, dial, [](std::string_view text) { return std::string(text); });
}

// The file of a plain body.
std::string fileOf(std::string_view body) {
  return "\"|KoK 2.0|" + Mescola(Mescola(Mescola(body))) + "\"\r\n";
}

std::string bodyOf(std::string_view file) {
  const std::string_view record = file.substr(10, file.size() - 13);
  return Ricomponi(Ricomponi(Ricomponi(record)));
}

TEST(Project, HasTheWrittenForm) {
  EXPECT_EQ(Mescola("1234567"), "1357246");
  Panel panel;
  panel.setState(Field::ckZodiaco, true);
  panel.setText(Field::txtLocation, "a<b>c");
  panel[Field::Distance1].caption = "  ";
  const std::string body = bodyOf(progettoDi(panel, SheetPlot()));
  EXPECT_TRUE(body.starts_with("<Label2 visible=true>List of inputs</Label2>\r\n<lblLatitudine "));
  for (const char* part : {"<txtLocation visible=true enabled=true>a<b>c</txtLocation>\r\n",
                           "<ckZodiaco visible=true enabled=true> 1</ckZodiaco>\r\n",
                           "<OptHorizontal visible=true enabled=true>-1</OptHorizontal>\r\n",
                           "<mnuSep2 visible=true enabled=true> 0</mnuSep2>\r\n"}) {
    EXPECT_EQ(countOf(body, part), 1u) << part;
  }
  EXPECT_EQ(countOf(body, "<Distance1 ") + countOf(body, "<cmdRun "), 0u);
  EXPECT_TRUE(
      body.ends_with("</mnuEspanol>\r\n<_QuadranteH>0.28</_QuadranteH>"
                     "<_QuadranteL>0.199</_QuadranteL><_Shiftx>0</_Shiftx><_Shifty>0</_Shifty>"));
}

// Into a panel where another dial was chosen.
TEST(Project, BringsEveryDialBack) {
  const Folder folder;
  for (const Item dial : dialItems()) {
    Panel panel, fresh;
    SheetPlot sheet, other;
    click(panel, dial);
    panel.setText(Field::txtLocation, "Forlì, |<&>");
    panel.setText(Field::txtHeightx, std::string("tab\tfeed\r\nzero\0.", 16));
    panel.setState(Field::ck_Italiche, true);
    panel.setState(Field::OptZenital, true);
    panel[Field::txtDelta].visible = false;
    panel[Item::mnuTools].enabled = false;
    sheet.QuadranteH(2.8);
    sheet.QuadranteL(1.99);
    sheet.ShiftX(0.995);
    sheet.ShiftY(-0.25);
    SalvaProgetto(folder / "dial.sun", panel, sheet);
    click(fresh, dial == Item::M_Light ? Item::mnuBif : Item::M_Light);
    if (panel.text(Field::TxtInizio).empty())  // an empty text sets nothing
      panel.setText(Field::TxtInizio, fresh.text(Field::TxtInizio));
    ASSERT_EQ(CaricaProgetto(folder / "dial.sun", fresh, other).outcome, Outcome::Loaded);
    EXPECT_EQ(bodyOf(progettoDi(fresh, other)), bodyOf(progettoDi(panel, sheet)));
    EXPECT_EQ(fresh.chosen(), dial);
  }
}

// What an element makes of the panel and the sheet, as they are written afterwards.
TEST(Project, TakesWhatCanBeAValue) {
  const std::pair<const char*, const char*> kCases[] = {
      {"<txtLocation visible=true>Forl\xEC</txtLocation>",
       "<txtLocation visible=true enabled=true>Forlì</txtLocation>"},
      {"<txtV2 ENABLED=FALSE>1</x>2</txtV2>3</txtV2>",
       "<txtV2 visible=true enabled=false>1</x>2</txtV2>\r\n"},
      {"<lblV1 visible=false>  </lblV1>", "<lblV1 visible=false>V1</lblV1>"},
      {"<txtV1x visible=true>no</txtV1x><TXTv1 visible=true>1</txtv1><txtV1>2</txtV1>",
       "<txtV1 visible=true enabled=true>1</txtV1>"},
      {"</txtV1><txtV1 visible=true>1", "<txtV1 visible=true enabled=true>0.25</txtV1>"},
      {"<txtV1 visible=true> </txtV1>", "<txtV1 visible=true enabled=true>0.25</txtV1>"},
      {"<TxtHour visible=true>0</TxtHour>", "<TxtHour visible=true enabled=true>1</TxtHour>"},
      {"<ckAz visible=true>7</ckAz>", "<ckAz visible=true enabled=true> 0</ckAz>"},
      // The number of an empty text is 0.
      {"<ck_Equinoziale visible=true></ck_Equinoziale>",
       "<ck_Equinoziale visible=true enabled=true> 0</ck_Equinoziale>"},
      {"<mnusep visible=true>-1</mnusep>", "<mnusep visible=true enabled=true> 0</mnusep>"},
      {"<M_Light visible=true>1</M_Light>", "<M_Light visible=true enabled=true>-1</M_Light>"},
      {"<OptZenital visible=true>-1</OptZenital><OptHorizontal visible=true>-1</OptHorizontal>",
       "<OptZenital visible=true enabled=true> 0</OptZenital>"},
      {"<_QuadranteH>-3</_QuadranteH>", "<_QuadranteH>0.28</_QuadranteH>"},
      {"<_QuadranteH>99</_QuadranteH>", "<_QuadranteH>15</_QuadranteH>"},
      {"<_Shiftx>nan</_Shiftx>", "<_Shiftx>0</_Shiftx>"},
      {"<_Shifty>1e9</_Shifty>", "<_Shifty>0</_Shifty>"}};
  for (const auto& [element, after] : kCases) {
    Panel panel;
    SheetPlot sheet;
    const std::string body =
        std::string("<txtD1 >1</txtD1><cmdRun visible=false></cmdRun>") + element;
    ASSERT_TRUE(leggiProgetto(fileOf(body), panel, sheet));
    EXPECT_EQ(countOf(bodyOf(progettoDi(panel, sheet)), after), 1u) << after;
    EXPECT_TRUE(panel[Field::cmdRun].visible);
  }
}

TEST(Project, ChangesNothingWhenItIsNoProject) {
  const Folder folder;
  Panel panel;
  SheetPlot sheet;
  const std::string good = progettoDi(panel, sheet);
  for (const std::string& content :
       {std::string(), std::string("\""), std::string("\"|KoK 2.0|\""), good.substr(1),
        good.substr(0, good.size() - 3), "\"|KoK 2.1|" + good.substr(10),
        fileOf("<nobody visible=true>1</nobody>"), fileOf("<_QuadranteH>2</_QuadranteH>"),
        std::string(100'000, '<'), std::string(9, '\0')}) {
    folder.put("x.sun", content);
    EXPECT_EQ(CaricaProgetto(folder / "x.sun", panel, sheet).outcome, Outcome::NotRecognised);
  }
  EXPECT_EQ(CaricaProgetto(folder / "none.sun", panel, sheet).outcome, Outcome::Unreadable);
  EXPECT_EQ(progettoDi(panel, sheet), good);

  // A double quote in a text ends the record: what is left is no project.
  panel.setText(Field::txtLocation, "the \"old\" mill");
  EXPECT_FALSE(leggiProgetto(progettoDi(panel, sheet), panel, sheet));
}

TEST(Project, StaysLinearWithAHugeText) {
  Panel panel;
  SheetPlot sheet;
  panel.setText(Field::txtLocation, std::string(8'000'000, '<'));
  ASSERT_TRUE(leggiProgetto(progettoDi(panel, sheet), panel, sheet));
  EXPECT_EQ(panel.text(Field::txtLocation).size(), 8'000'000u);
}

}  // namespace
}  // namespace dialwright
