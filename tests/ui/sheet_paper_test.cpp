// Exports are the command line's files, and the toolkit's printer gets the sheet's pages.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QMessageBox>
#include <QPrintPreviewDialog>
#include <QTimer>

#include "paper/page_writer.hpp"
#include "paper/reading.hpp"
#include "support/folder.hpp"
#include "ui/application.hpp"
#include "ui/sheet_canvas.hpp"
#include "ui/sheet_widget.hpp"
#include "ui/text.hpp"

namespace dialwright {
namespace {

// How many black pixels of a picture have none within two pixels in another.
int uncovered(const Picture& picture, const Picture& other) {
  constexpr int kBlackest = 60, kInked = 200, kNear = 2;
  const auto near = [&](int x, int y) {
    for (int dy = -kNear; dy <= kNear; ++dy) {
      for (int dx = -kNear; dx <= kNear; ++dx) {
        const bool on = x + dx >= 0 && y + dy >= 0 && x + dx < other.width && y + dy < other.height;
        if (on && other.at(x + dx, y + dy) < kInked) return true;
      }
    }
    return false;
  };
  int count = 0;
  for (int y = 0; y < picture.height; ++y) {
    for (int x = 0; x < picture.width; ++x) {
      count += picture.at(x, y) < kBlackest && !near(x, y) ? 1 : 0;
    }
  }
  return count;
}

class SheetPaperTest : public ::testing::Test {
 protected:
  SheetPaperTest() {
    program.CmdRun_Click();
    widget.refresh();
    widget.exports().ask = [this](const QString&, const QString& start, const QString& filters,
                                  QString& chosen) {
      proposed = start;
      offered = filters.split(";;");
      if (!wanted.isEmpty()) chosen = wanted;
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

  void press(const char* name) { widget.findChild<QAbstractButton*>(name)->click(); }
  void answerWith(std::string_view name) { answer = shown((folder / name).string()); }

  const Folder folder;
  Program program{{folder.path(), DIALWRIGHT_DATA_DIR, ""}};
  SheetWidget widget{program};
  QString answer, proposed, wanted, said;
  QStringList offered;
  QPageSize::PageSizeId paper = QPageSize::A4;
  std::filesystem::path printed = folder / "printed.pdf";
};

TEST_F(SheetPaperTest, EveryFormatIsThatOfTheCommandLine) {
  for (const ExportKind& kind : exportKinds(program)) {
    const std::string name = "dial." + kind.ending;
    wanted = shown(kind.title + " (*." + kind.ending + ")");
    answerWith("dial");  // the filter gives the ending
    ASSERT_TRUE(widget.exports().exportAs()) << kind.title;
    EXPECT_TRUE(offered.contains(wanted));
    std::string bytes;
    const Sink sink = [&bytes](std::string_view chunk) { bytes += chunk; };
    if (kind.pages) {
      EXPECT_EQ(writePages(program.sheet(), sink), "");
    } else {
      EXPECT_EQ(findExportFormat(kind.ending)->write(program, kind.options, sink), "");
    }
    EXPECT_GT(bytes.size(), 300u) << kind.title;
    EXPECT_TRUE(folder.get(name) == bytes) << kind.title;
    std::filesystem::remove(folder / name);
  }
}

TEST_F(SheetPaperTest, ATypedEndingGoesBeforeTheFilter) {
  answerWith("typed.SVG");
  ASSERT_TRUE(widget.exports().exportAs());
  EXPECT_NE(folder.get("typed.SVG").find("<svg"), std::string::npos);
  answer.clear();
  EXPECT_FALSE(widget.exports().exportAs()) << "cancelled";
}

TEST_F(SheetPaperTest, TheBarsOwnCommandsProposeTheirNames) {
  answerWith("a.dxf");
  press("cmdDxf");
  EXPECT_TRUE(proposed.startsWith(shown((program.config().workingFolder / "DXF2").string())));
  EXPECT_NE(folder.get("a.dxf").find("EOF"), std::string::npos);
  answerWith("b.bmp");
  press("cmdSave");
  EXPECT_TRUE(proposed.endsWith("Image.bmp"));
  EXPECT_EQ(folder.get("b.bmp").substr(0, 2), "BM");
}

TEST_F(SheetPaperTest, AFailureIsASentenceAndLeavesTheOldFile) {
  folder.put("kept.bmp", "old");
  program.sheet().resizeRaw(0, 0);
  answerWith("kept.bmp");
  QString sentence;
  QTimer::singleShot(0, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    sentence = box->text();
    box->accept();
  });
  press("cmdSave");
  EXPECT_EQ(sentence, "The sheet has no size.");
  EXPECT_EQ(folder.get("kept.bmp"), "old");
  const QString missing = widget.exports().write({"", "svg", {}}, folder / "no" / "such.svg");
  EXPECT_TRUE(missing.contains("such.svg")) << missing.toStdString();
}

TEST_F(SheetPaperTest, PrintsTheSelectedPagesAtTrueSize) {
  SheetPlot& sheet = program.sheet();
  sheet.Clear();
  // A line through the middle of the second page of the third row, 0.05 to 0.15 m from its left.
  const PageGrid grid(sheet);
  const SelectedPage page = grid.page(2 * grid.columns() + 2);
  const double x = page.x + sheet.xMin();
  const double y = page.y + sheet.yMin() + 0.1;
  sheet.xLine(x + 0.05, y, x + 0.15, y, palette(14));
  sheet.xLine(x + 0.10, y - 0.05, x + 0.10, y + 0.05, palette(14));
  program.view().xTrovaA4(page.x + 0.01, page.y + 0.01);
  program.view().xTrovaA4(0.01, 0.01);
  press("cmdStampa");
  QCoreApplication::processEvents();
  press("optSelected");
  press("cmdPOk");
  EXPECT_EQ(said, "");

  const PdfReader reader(folder.get("printed.pdf"));
  EXPECT_EQ(reader.info("Pages"), "2");
  EXPECT_EQ(reader.info("Page size").substr(0, 9), "595 x 842");
  constexpr int kResolution = 300;
  constexpr double kDots = kResolution / 0.0254;
  const Picture first = reader.rendered(1, kResolution);
  const auto dot = [](double metres) { return static_cast<int>(metres * kDots); };
  const double left = kMarginX, top = kMarginY;
  EXPECT_NEAR(first.crossingOfRow(dot(top + 0.07), dot(0.06), dot(0.15)), (left + 0.10) * kDots, 1);
  EXPECT_NEAR(first.crossingOfColumn(dot(left + 0.07), dot(0.06), dot(0.2)), (top + 0.1) * kDots,
              1);
  EXPECT_EQ(
      first.inkedPixels(dot(left + 0.151), dot(top + 0.09), dot(left + 0.18), dot(top + 0.11)), 0);
}

TEST_F(SheetPaperTest, PrintsTheMarkedPagesThatTheCommandLineWrites) {
  widget.previewPages();
  EXPECT_EQ(said, "");
  std::string bytes;
  ASSERT_EQ(writePages(program.sheet(), [&](std::string_view chunk) { bytes += chunk; }), "");
  const PdfReader ours(folder.get("printed.pdf"));
  const PdfReader theirs(bytes);
  ASSERT_EQ(ours.info("Pages"), theirs.info("Pages"));
  for (const int page : {1, 2}) {
    const Picture a = ours.rendered(page, 100);
    const Picture b = theirs.rendered(page, 100);
    EXPECT_GT(uncovered(b, {}), 1000) << "there is ink on page " << page;
    EXPECT_EQ(uncovered(a, b), 0) << "page " << page;
    EXPECT_EQ(uncovered(b, a), 0) << "page " << page;
  }
  program.sheet().Clear();
  widget.previewPages();
  EXPECT_EQ(said, "No page of this sheet carries ink.");
}

TEST_F(SheetPaperTest, SmallerPaperCutsThePageAtTrueSizeAndIsTold) {
  widget.previewPages();
  EXPECT_EQ(said, "");
  constexpr int kResolution = 100;
  const Picture whole = PdfReader(folder.get("printed.pdf")).rendered(1, kResolution);
  for (const auto size : {QPageSize::A5, QPageSize::Letter}) {
    paper = size;
    said.clear();
    widget.previewPages();
    EXPECT_TRUE(said.startsWith("The paper is smaller than an upright A4")) << said.toStdString();
    const Picture cut = PdfReader(folder.get("printed.pdf")).rendered(1, kResolution);
    EXPECT_LT(cut.height, whole.height);
    int ink = 0, different = 0;
    for (int y = 0; y < cut.height; ++y) {
      for (int x = 0; x < std::min(cut.width, whole.width); ++x) {
        ink += cut.at(x, y) < 128 ? 1 : 0;
        different += (cut.at(x, y) < 128) != (whole.at(x, y) < 128) ? 1 : 0;
      }
    }
    EXPECT_GT(ink, 500);
    EXPECT_LT(different, ink / 20) << "the same places";
  }
  paper = QPageSize::A3;
  widget.previewPages();
  said.clear();
  widget.previewPages();
  EXPECT_EQ(said, "");
}

TEST_F(SheetPaperTest, ThePreviewIsOfThePrinterThatWasSetUp) {
  SheetWidget other(program);
  QString told;
  QObject::connect(&other, &SheetWidget::message, [&](const QString& text) { told = text; });
  if (other.printer().outputFormat() == QPrinter::PdfFormat) {
    other.setUpPrinter();
    EXPECT_TRUE(told.startsWith("There is no printer to set up")) << told.toStdString();
  }
  other.printer().setPageSize(QPageSize(QPageSize::A5));
  const QPrinter* previewed = nullptr;
  QTimer::singleShot(200, &other, [&] {
    auto* dialog = qobject_cast<QPrintPreviewDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    previewed = dialog->printer();
    dialog->reject();
  });
  other.previewPages();
  EXPECT_EQ(previewed, &other.printer());
  EXPECT_TRUE(told.startsWith("The paper is smaller")) << told.toStdString();
}

TEST_F(SheetPaperTest, APrinterThatCannotPrintIsASentence) {
  printed = folder / "no" / "such" / "folder.pdf";
  press("cmdStampa");
  EXPECT_TRUE(said.startsWith("The printer takes no pages")) << said.toStdString();
  EXPECT_FALSE(program.sheet().OutputToPRN());
}

}  // namespace
}  // namespace dialwright
