// The gallery finds dials, hears the keyboard, and its pictures show what the program draws.
#include "ui/gallery.hpp"

#include <QLineEdit>
#include <QListView>
#include <QSignalSpy>
#include <QTest>
#include <fstream>

#include "app/drivers.hpp"
#include "support/folder.hpp"
#include "ui/application.hpp"
#include "ui/dial_picture.hpp"

namespace dialwright {
namespace {

class GalleryTest : public ::testing::Test {
 protected:
  QWidget& searchField() { return *gallery.findChild<QLineEdit*>(); }
  QWidget& cards() { return *gallery.findChild<QListView*>(); }

  const Folder folder;
  const QString cache = QString::fromStdString(folder.path().string()) + "/pictures";
  Program program{{folder.path(), DIALWRIGHT_DATA_DIR, "it"}};
  Gallery gallery{program, {cache, "1", DIALWRIGHT_DATA_DIR}};
};

TEST_F(GalleryTest, FindsByNumberWordsMenusAndWithoutAccents) {
  EXPECT_EQ(gallery.shownCards(), static_cast<int>(dialItems().size()));
  gallery.search("7");
  EXPECT_EQ(gallery.shownCards(), 1);  // not 17
  EXPECT_EQ(gallery.current(), Item::mnuUni);
  gallery.search("CATENARIA vert");
  EXPECT_EQ(gallery.current(), Item::mnucatenaria);
  gallery.search("catenàry");  // the English caption as well
  EXPECT_EQ(gallery.current(), Item::mnucatenaria);
  gallery.search("cilindrici");
  EXPECT_GE(gallery.shownCards(), 6);
  gallery.search("no such dial");
  EXPECT_EQ(gallery.shownCards(), 0);
  EXPECT_EQ(gallery.current(), Item::None);
}

TEST_F(GalleryTest, IsDrivenByTheKeyboardAlone) {
  QSignalSpy choices(&gallery, &Gallery::chosen);
  gallery.show();
  QTest::keyClicks(&searchField(), "scaf");
  QTest::keyClick(&searchField(), Qt::Key_Escape);
  EXPECT_EQ(gallery.shownCards(), static_cast<int>(dialItems().size()));
  gallery.setCurrent(Item::M_Light);
  QTest::keyClick(&cards(), Qt::Key_Right);
  EXPECT_EQ(gallery.current(), Item::M_Inclinati);
  QTest::keyClick(&cards(), Qt::Key_Return);
  QTest::keyClick(&cards(), '5');  // goes on in the search field
  QTest::keyClick(&searchField(), Qt::Key_Return);
  ASSERT_EQ(choices.size(), 2);
  EXPECT_EQ(choices[0][0].value<Item>(), Item::M_Inclinati);
  EXPECT_EQ(choices[1][0].value<Item>(), Item::M_Frinter);
}

TEST_F(GalleryTest, ADialWithoutDrawingIsShownButNotChosen) {
  QSignalSpy choices(&gallery, &Gallery::chosen);
  gallery.search("mnuObscura");
  EXPECT_EQ(gallery.shownCards(), 1);
  QTest::keyClick(&searchField(), Qt::Key_Return);
  EXPECT_TRUE(choices.empty());
}

// The share of pixels that differ from the corner's.
double inkIn(const QImage& image) {
  int ink = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) ink += image.pixel(x, y) != image.pixel(0, 0) ? 1 : 0;
  }
  return static_cast<double>(ink) / (image.width() * image.height());
}

TEST(DialPicture, OfEachDialFillsItsCard) {
  for (const Item dial : dialItems()) {
    const QImage image = pictureOf(dial, {.size = {216, 162}, .dataFolder = DIALWRIGHT_DATA_DIR});
    ASSERT_EQ(image.isNull(), !draws(dial)) << rowOf(dial).name;
    if (!draws(dial)) continue;
    EXPECT_EQ(image.size(), QSize(216, 162));
    EXPECT_GT(inkIn(image), 0.02) << rowOf(dial).name;
    EXPECT_LT(inkIn(image), 0.6) << rowOf(dial).name;
  }
}

TEST(DialPicture, IsOnBlackInTheDarkAndBreaksOffWhenAsked) {
  DialPictureOptions options{.size = {80, 60}, .dark = true, .dataFolder = DIALWRIGHT_DATA_DIR};
  EXPECT_EQ(pictureOf(Item::mnuUni, options).pixelColor(0, 0), QColor(Qt::black));
  options.cancelled = [] { return true; };
  EXPECT_TRUE(pictureOf(Item::mnuUni, options).isNull());
}

TEST(DialPictures, AreKeptForTheirVersionAndDrawnAgainWhenSpoilt) {
  const Folder folder;
  const QString cache = QString::fromStdString(folder.path().string());
  const std::filesystem::path kept = folder.path() / "2" / "M_Light-40x30-light.png";
  std::filesystem::create_directories(folder.path() / "1");
  std::filesystem::create_directories(folder.path() / "2");
  std::ofstream(kept) << "no picture";

  const auto firstOf = [&cache] {
    DialPictures pictures({cache, "2", DIALWRIGHT_DATA_DIR});
    QSignalSpy ready(&pictures, &DialPictures::ready);
    pictures.want({40, 30}, false);
    return ready.wait(20000) ? ready[0][1].value<QImage>() : QImage();
  };
  EXPECT_EQ(firstOf().size(), QSize(40, 30));
  EXPECT_FALSE(std::filesystem::exists(folder.path() / "1"));  // of another version

  QImage other(40, 30, QImage::Format_RGB32);
  other.fill(Qt::green);
  ASSERT_TRUE(other.save(QString::fromStdString(kept.string())));
  EXPECT_EQ(firstOf().pixelColor(5, 5), QColor(Qt::green));
}

}  // namespace
}  // namespace dialwright
