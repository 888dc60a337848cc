// Exports are the command line's files, and the toolkit's printer gets the sheet's pages.
#include <QMessageBox>
#include <QPrintPreviewDialog>

#include "paper/page_writer.hpp"
#include "paper/reading.hpp"
#include "ui/application.hpp"
#include "ui/sheet_widget.hpp"

namespace dialwright {
namespace {

class SheetPaperTest : public ::testing::Test, protected Workplace {
 protected:
  SheetPaperTest() {
    program.CmdRun_Click();
    widget.refresh();
    widget.exports().ask = [this](const QString&, const QString& start, const QString& filters,
                                  QString& chosen) {
      proposed = start;
      if (filters.split(";;").contains(wanted)) chosen = wanted;
      return answer;
    };
    widget.showPreview = [this](const QString&, const PrintDocument& document) {
      QPrinter printer(QPrinter::HighResolution);
      prepare(printer);
      printer.setPageSize(QPageSize(paper));
      printer.setOutputFormat(QPrinter::PdfFormat);
      printer.setOutputFileName(shown(printed.string()));
      return document(printer);
    };
    QObject::connect(&widget, &SheetWidget::message, [this](const QString& t) { said = t; });
  }

  void press(const char* name) { named<QAbstractButton>(name, widget).click(); }
  void answerWith(std::string_view name) { answer = shown((folder / name).string()); }

  SheetWidget widget{program};
  QString answer, proposed, wanted, said;
  QPageSize::PageSizeId paper = QPageSize::A4;
  std::filesystem::path printed = folder / "printed.pdf";
};

TEST_F(SheetPaperTest, EveryFormatIsThatOfTheCommandLine) {
  for (const ExportKind& kind : exportKinds(program)) {
    wanted = shown(kind.title + " (*." + kind.ending + ")");
    answerWith("dial");  // the filter gives the ending
    ASSERT_TRUE(widget.exports().exportAs()) << kind.title;
    std::string bytes;
    const Sink sink = [&bytes](std::string_view chunk) { bytes += chunk; };
    EXPECT_EQ(kind.pages ? writePages(program.sheet(), sink)
                         : findExportFormat(kind.ending)->write(program, kind.options, sink),
              "");
    EXPECT_GT(bytes.size(), 300u) << kind.title;
    EXPECT_TRUE(folder.get("dial." + kind.ending) == bytes) << kind.title;
    std::filesystem::remove(folder / ("dial." + kind.ending));
  }
  answerWith("typed.SVG");  // a typed ending goes before the filter
  ASSERT_TRUE(widget.exports().exportAs());
  EXPECT_NE(folder.get("typed.SVG").find("<svg"), std::string::npos);
  answer.clear();
  EXPECT_FALSE(widget.exports().exportAs()) << "cancelled";
}

TEST_F(SheetPaperTest, TheBarsOwnCommandsProposeTheirNames) {
  answerWith("a.dxf");
  press("cmdDxf");
  EXPECT_TRUE(proposed.contains("/DXF2")) << proposed.toStdString();
  EXPECT_TRUE(folder.get("a.dxf").ends_with("EOF\r\n"));
  answerWith("b.bmp");
  press("cmdSave");
  EXPECT_TRUE(proposed.contains("/Image.bmp")) << proposed.toStdString();
  EXPECT_TRUE(folder.get("b.bmp").starts_with("BM"));
}

TEST_F(SheetPaperTest, AFailureIsASentence) {
  QString sentence;
  whenShown<QMessageBox>([&](QMessageBox& box) {
    sentence = box.text();
    box.accept();
  });
  answerWith("no/such.bmp");
  press("cmdSave");
  EXPECT_TRUE(sentence.contains("such.bmp")) << sentence.toStdString();
  printed = folder / "no" / "such.pdf";
  press("cmdStampa");
  EXPECT_TRUE(said.startsWith("The printer takes no pages")) << said.toStdString();
  EXPECT_FALSE(program.sheet().OutputToPRN());
}

// Also on other paper: at the same places, and a word when it cuts the page.
TEST_F(SheetPaperTest, PrintsTheSelectedPagesAtTrueSize) {
  SheetPlot& sheet = program.sheet();
  sheet.Clear();
  // A cross on the second page of the third row, 0.1 m from its left and from its top.
  const PageGrid grid(sheet);
  const SelectedPage page = grid.page(2 * grid.columns() + 2);
  const double x = page.x + sheet.xMin() + 0.1;
  const double y = page.y + sheet.yMin() + 0.1;
  sheet.xLine(x - 0.05, y, x + 0.05, y, palette(14));
  sheet.xLine(x, y - 0.05, x, y + 0.05, palette(14));
  program.view().xTrovaA4(page.x + 0.01, page.y + 0.01);
  program.view().xTrovaA4(0.01, 0.01);
  const char* cut = "The paper is smaller than an upright A4";
  for (const auto& [size, word] : {std::pair{QPageSize::A4, ""}, std::pair{QPageSize::A3, ""},
                                   std::pair{QPageSize::Letter, cut}}) {
    SCOPED_TRACE(QPageSize::name(size).toStdString());
    paper = size;
    said.clear();
    press("cmdStampa");
    QCoreApplication::processEvents();
    press("optSelected");
    press("cmdPOk");
    EXPECT_EQ(said.left(39), word);
    const PdfReader reader(folder.get("printed.pdf"));
    EXPECT_EQ(reader.info("Pages"), "2");
    const Picture first = reader.rendered(1, 254);  // ten dots a millimetre
    const auto dot = [](double metres) { return static_cast<int>(metres * 10000); };
    const int x1 = dot(kMarginX + 0.1), y1 = dot(kMarginY + 0.1), arm = dot(0.05), beside = 100;
    EXPECT_NEAR(first.crossingOfRow(y1 - beside, x1 - arm, x1 + arm), x1, 1);
    EXPECT_NEAR(first.crossingOfColumn(x1 - beside, y1 - arm, y1 + arm), y1, 1);
    EXPECT_EQ(first.inkedPixels(x1 + arm + 10, y1 - 10, x1 + arm + 100, y1 + 10), 0);
  }
}

TEST_F(SheetPaperTest, PrintsTheMarkedPagesThatTheCommandLineWrites) {
  const PdfReader theirs(
      written([this](const Sink& sink) { EXPECT_EQ(writePages(program.sheet(), sink), ""); }));
  widget.previewPages();
  const PdfReader ours(folder.get("printed.pdf"));
  EXPECT_EQ(ours.info("Pages"), theirs.info("Pages"));
  program.sheet().Clear();
  widget.previewPages();
  EXPECT_EQ(said, "No page of this sheet carries ink.");
}

TEST_F(SheetPaperTest, ThePreviewIsOfThePrinterThatWasSetUp) {
  SheetWidget other(program);
  QObject::connect(&other, &SheetWidget::message, [this](const QString& text) { said = text; });
  other.printer().setPageSize(QPageSize(QPageSize::A5));
  const QPrinter* previewed = nullptr;
  whenShown<QPrintPreviewDialog>([&](QPrintPreviewDialog& dialog) {
    previewed = dialog.printer();
    dialog.reject();
  });
  other.previewPages();
  EXPECT_EQ(previewed, &other.printer());
  EXPECT_TRUE(said.startsWith("The paper is smaller")) << said.toStdString();
}

}  // namespace
}  // namespace dialwright
