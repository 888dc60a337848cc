// Project files: what comes back, and what a damaged one may do.
#include "persist/project.hpp"

#include <gtest/gtest.h>

#include <random>
#include <sstream>

#include "shell/clicks.hpp"
#include "support/folder.hpp"
#include "support/written.hpp"

namespace dialwright {
namespace {

using Outcome = LoadResult::Outcome;

std::string untranslated(std::string_view text) { return std::string(text); }

// The file of a plain body.
std::string fileOf(std::string_view body) {
  return "\"|KoK 2.0|" + Mescola(Mescola(Mescola(body))) + "\"\r\n";
}

std::string bodyOf(std::string_view file) {
  const std::string_view record = file.substr(10, file.size() - 13);
  return Ricomponi(Ricomponi(Ricomponi(record)));
}

// Everything that a file holds, for comparing.
std::string snapshot(const Panel& panel) {
  std::ostringstream all;
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    const auto& [name, kind] = std::tie(rowOf(fieldAt(i)).name, rowOf(fieldAt(i)).kind);
    const Control& control = panel[fieldAt(i)];
    if (kind == FieldKind::Button || kind == FieldKind::Combo) continue;
    all << name << control.state << control.visible << control.text;
    if (kind == FieldKind::Label) all << control.caption << '\n';
    if (kind != FieldKind::Label) all << control.enabled << '\n';
  }
  for (std::size_t i = 0; i < kItemCount; ++i) {
    const MenuItem& item = panel[itemAt(i)];
    all << rowOf(itemAt(i)).name << item.checked << item.visible << item.enabled << '\n';
  }
  return all.str();
}

TEST(Shuffle, IsUndone) {
  std::mt19937 random(1);
  for (std::size_t length = 0; length <= 200; ++length) {
    std::string text(length, '\0');
    for (char& c : text) c = static_cast<char>(random());
    EXPECT_EQ(Ricomponi(Mescola(text)), text);
  }
  EXPECT_EQ(Mescola("1234567"), "1357246");
  EXPECT_EQ(Ricomponi("1324"), "1234");
}

TEST(Element, LiesBetweenItsFirstMarks) {
  const std::string_view body =
      "<txtD1x visible=true>no</txtD1x><TXTd1 visible=true enabled=false>0.5</txtd1><_Shiftx>2</_Shiftx>"
      "</b><b visible=true>1</b><empty visible=true>";
  EXPECT_EQ(LeggiElemento(body, "txtD1"), "visible=true enabled=false>0.5");
  EXPECT_EQ(LeggiElemento(body, "_ShiftX"), ">2");
  for (const char* name : {"b", "empty", "none"}) EXPECT_EQ(LeggiElemento(body, name), "") << name;
  EXPECT_EQ(LeggiElemento("", "b"), "");
}

TEST(Project, HasTheWrittenForm) {
  Panel panel;
  panel.setState(Field::ckZodiaco, true);
  panel.setText(Field::txtLocation, "a<b>c");
  panel[Field::Distance1].caption = "  ";
  SheetPlot sheet;
  const std::string body = bodyOf(progettoDi(panel, sheet));
  EXPECT_TRUE(body.starts_with("<Label2 visible=true>List of inputs</Label2>\r\n<lblLatitudine "));
  for (const char* part : {"<txtLocation visible=true enabled=true>a<b>c</txtLocation>\r\n",
                           "<ckZodiaco visible=true enabled=true> 1</ckZodiaco>\r\n",
                           "<ckAz visible=true enabled=true> 0</ckAz>\r\n",
                           "<OptHorizontal visible=true enabled=true>-1</OptHorizontal>\r\n",
                           "<FrameInclination visible=true enabled=true></FrameInclination>\r\n",
                           "<mnuSep2 visible=true enabled=true> 0</mnuSep2>\r\n"}) {
    EXPECT_EQ(countOf(body, part), 1u) << part;
  }
  EXPECT_EQ(countOf(body, "<Distance1 ") + countOf(body, "<cmdRun "), 0u);
  EXPECT_TRUE(
      body.ends_with("</mnuEspanol>\r\n<_QuadranteH>0.28</_QuadranteH>"
                     "<_QuadranteL>0.199</_QuadranteL><_Shiftx>0</_Shiftx><_Shifty>0</_Shifty>"));
}

TEST(Project, BringsEveryDialBack) {
  const Folder folder;
  for (const Item dial : dialItems()) {
    Panel panel;
    DialParams params;
    SheetPlot sheet;
    clickItem(panel, params, dial, untranslated);
    panel.setText(Field::txtLAT, "-12.25");
    panel.setText(Field::txtLocation, "Forlì, \"|<&>");
    std::erase(panel[Field::txtLocation].text, '"');
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

    Panel fresh;
    SheetPlot other;
    clickItem(fresh, params, dial == Item::M_Light ? Item::mnuBif : Item::M_Light, untranslated);
    if (panel.text(Field::TxtInizio).empty())
      panel.setText(Field::TxtInizio, fresh.text(Field::TxtInizio));
    const LoadResult result = CaricaProgetto(folder / "dial.sun", fresh, other);
    ASSERT_EQ(result.outcome, Outcome::Loaded) << rowOf(dial).name;
    EXPECT_EQ(snapshot(fresh), snapshot(panel)) << rowOf(dial).name;
    EXPECT_EQ(fresh.chosen(), dial);
    EXPECT_EQ(other.QuadranteH(), 2.8);
    EXPECT_EQ(other.QuadranteL(), 1.99);
    EXPECT_EQ(other.ShiftX(), 0.995);
    EXPECT_EQ(other.ShiftY(), -0.25);
  }
}

TEST(Project, ReadsWindows1252AndMarksInTexts) {
  Panel panel;
  SheetPlot sheet;
  ASSERT_TRUE(
      leggiProgetto(fileOf("<txtLocation visible=true enabled=true>Forl\xEC</txtLocation>\r\n"
                           "<lblV1 visible=false>  </lblV1><txtV1 visible=true> </txtV1>"
                           "<txtV2 ENABLED=FALSE>1</x>2</txtV2>3</txtV2>"),
                    panel, sheet));
  EXPECT_EQ(panel.text(Field::txtLocation), "Forlì");
  EXPECT_EQ(panel[Field::lblV1].caption, "V1");
  EXPECT_FALSE(panel[Field::lblV1].visible);
  EXPECT_EQ(panel.text(Field::txtV1), "0.25");
  EXPECT_EQ(panel.text(Field::txtV2), "1</x>2");
  EXPECT_FALSE(panel[Field::txtV2].enabled);
  EXPECT_TRUE(panel[Field::txtV2].visible);
}

TEST(Project, TakesNoValueThatIsNone) {
  Panel panel;
  SheetPlot sheet;
  ASSERT_TRUE(leggiProgetto(
      fileOf(
          "<TxtHour visible=true>0</TxtHour><ckAz visible=true>7</ckAz>"
          "<ck_Equinoziale visible=true></ck_Equinoziale><chkOreAstronomiche </chkOreAstronomiche>"
          "<mnusep visible=true>-1</mnusep><mnuUni visible=true>-1</mnuUni>"
          "<M_Light visible=true>1</M_Light><cmdRun visible=false></cmdRun>"
          "<_QuadranteH>-3</_QuadranteH><_QuadranteL>1e400</_QuadranteL>"
          "<_Shiftx>nan</_Shiftx><_Shifty>1e9</_Shifty>"),
      panel, sheet));
  EXPECT_EQ(panel.text(Field::TxtHour), "1");
  EXPECT_FALSE(panel.on(Field::ckAz));
  EXPECT_FALSE(panel.on(Field::ck_Equinoziale));  // the number of an empty text is 0
  EXPECT_TRUE(panel.on(Field::chkOreAstronomiche));
  EXPECT_FALSE(panel[Item::mnusep].checked);
  EXPECT_TRUE(panel[Item::mnuUni].checked && panel[Item::M_Light].checked);
  EXPECT_TRUE(panel[Field::cmdRun].visible);
  const SheetPlot fresh;
  EXPECT_EQ(sheet.QuadranteH(), fresh.QuadranteH());
  EXPECT_EQ(sheet.QuadranteL(), fresh.QuadranteL());
  EXPECT_EQ(sheet.ShiftX(), 0);
  EXPECT_EQ(sheet.ShiftY(), 0);
  ASSERT_TRUE(
      leggiProgetto(fileOf("<txtD1 >1</txtD1><_QuadranteH>99</_QuadranteH>"), panel, sheet));
  EXPECT_EQ(sheet.QuadranteH(), SheetPlot::kLargest);
}

TEST(Project, ChangesNothingWhenItIsNoProject) {
  const Folder folder;
  Panel panel;
  SheetPlot sheet;
  const std::string before = snapshot(panel);
  const std::string good = progettoDi(panel, sheet);
  const std::string foreign[] = {"",
                                 "\"",
                                 "|KoK 2.0|",
                                 "\"|KoK 2.0|\"",
                                 good.substr(1),
                                 good.substr(0, good.size() - 3),
                                 "\"|KoK 2.1|" + good.substr(10),
                                 fileOf("<nobody visible=true>1</nobody>"),
                                 fileOf("<_QuadranteH>2</_QuadranteH>"),
                                 std::string(100'000, '<'),
                                 std::string(9, '\0')};
  for (const std::string& content : foreign) {
    folder.put("x.sun", content);
    const LoadResult result = CaricaProgetto(folder / "x.sun", panel, sheet);
    EXPECT_EQ(result.outcome, Outcome::NotRecognised) << content.substr(0, 40);
    EXPECT_EQ(result.message, "File non riconosciuto!");
  }
  const LoadResult missing = CaricaProgetto(folder / "none.sun", panel, sheet);
  EXPECT_EQ(missing.outcome, Outcome::Unreadable);
  EXPECT_NE(missing.message.find("none.sun"), std::string::npos);
  EXPECT_EQ(snapshot(panel), before);

  // A double quote in a text ends the record: what is left is no project.
  panel.setText(Field::txtLocation, "the \"old\" mill");
  EXPECT_FALSE(leggiProgetto(progettoDi(panel, sheet), panel, sheet));
}

TEST(Project, StaysLinearWithHugeTexts) {
  Panel panel;
  SheetPlot sheet;
  panel.setText(Field::txtLocation, std::string(8'000'000, '<'));
  panel.setText(Field::txtV1, std::string(1'000'000, '\xB0'));
  ASSERT_TRUE(leggiProgetto(progettoDi(panel, sheet), panel, sheet));
  EXPECT_EQ(panel.text(Field::txtLocation).size(), 8'000'000u);
  EXPECT_EQ(panel.text(Field::txtV1).size(), 2'000'000u);
}

// Whatever a damaged file sets must be something that a sound file could set.
void expectWellFormed(const Panel& panel, const SheetPlot& sheet) {
  EXPECT_NE(panel.number(Field::TxtHour), 0);
  EXPECT_FALSE(panel.on(Field::OptZenital) && panel.on(Field::OptHorizontal));
  EXPECT_FALSE(panel.on(Field::optX) && panel.on(Field::optY));
  EXPECT_FALSE(panel.on(Field::Optconcave) && panel.on(Field::OptConvex));
  for (const double side : {sheet.QuadranteH(), sheet.QuadranteL()}) {
    EXPECT_TRUE(side > 0 && side <= SheetPlot::kLargest) << side;
  }
  EXPECT_LE(std::abs(sheet.ShiftX()) + std::abs(sheet.ShiftY()), 2000);
}

TEST(Project, SurvivesDamage) {
  std::mt19937 random(20061);
  const auto below = [&random](std::size_t n) { return random() % n; };
  Panel saved;
  DialParams params;
  SheetPlot plot;
  clickItem(saved, params, Item::mnuVertSph, untranslated);
  const std::string good = progettoDi(saved, plot);
  const std::string plain = bodyOf(good);
  int loaded = 0;
  for (int round = 0; round < 2000; ++round) {
    // Damage to the file, and damage to the plain body, which reaches deeper.
    std::string bytes = round % 2 == 0 ? good : plain;
    for (std::size_t i = below(30); i > 0; --i) {
      bytes[below(bytes.size())] = static_cast<char>(random());
    }
    if (round % 4 == 1) bytes.erase(below(bytes.size()), below(2000));
    if (round % 4 == 2) bytes.resize(below(bytes.size()));
    if (round % 2 == 1) bytes = fileOf(bytes);
    Panel panel;
    SheetPlot sheet;
    const std::string before = snapshot(panel);
    if (leggiProgetto(std::move(bytes), panel, sheet)) {
      ++loaded;
      expectWellFormed(panel, sheet);
    } else {
      ASSERT_EQ(snapshot(panel), before);
      ASSERT_EQ(sheet.QuadranteL(), plot.QuadranteL());
    }
  }
  EXPECT_GT(loaded, 400);
  EXPECT_LT(loaded, 1600);
}

}  // namespace
}  // namespace dialwright
