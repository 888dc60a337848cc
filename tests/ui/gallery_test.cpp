// The gallery finds dials, hears the keyboard, and its pictures show what the program draws.
#include "ui/gallery.hpp"

#include <QLineEdit>
#include <QListView>

#include "app/drivers.hpp"
#include "ui/application.hpp"
#include "ui/dial_picture.hpp"

namespace dialwright {
namespace {

class GalleryTest : public ::testing::Test, protected Workplace {
 protected:
  QWidget& searchField() { return *gallery.findChild<QLineEdit*>(); }
  QWidget& cards() { return *gallery.findChild<QListView*>(); }

  Program italian = start("it");
  Gallery gallery{italian, {shown((folder / "pictures").string()), "1", DIALWRIGHT_DATA_DIR}};
  QSignalSpy choices{&gallery, &Gallery::chosen};
};

TEST_F(GalleryTest, FindsByNumberWordsMenusAndWithoutAccents) {
  const std::pair<const char*, Item> searches[] = {{"7", Item::mnuUni},  // not 17
                                                   {"CATENARIA vert", Item::mnucatenaria},
                                                   {"catenàry", Item::mnucatenaria},  // in English
                                                   {"no such dial", Item::None}};
  for (const auto& [words, found] : searches) {
    gallery.search(words);
    EXPECT_EQ(gallery.shownCards(), found == Item::None ? 0 : 1) << words;
    EXPECT_EQ(gallery.current(), found) << words;
  }
  gallery.search("cilindrici");  // a menu
  EXPECT_GE(gallery.shownCards(), 6);
}

TEST_F(GalleryTest, IsDrivenByTheKeyboardAlone) {
  gallery.show();
  QTest::keyClicks(&searchField(), "scaf");
  QTest::keyClick(&searchField(), Qt::Key_Escape);
  EXPECT_EQ(gallery.shownCards(), static_cast<int>(dialItems().size()));
  gallery.setCurrent(Item::M_Light);
  QTest::keyClick(&cards(), Qt::Key_Right);
  QTest::keyClick(&cards(), Qt::Key_Return);
  QTest::keyClick(&cards(), '5');  // goes on in the search field
  QTest::keyClick(&searchField(), Qt::Key_Return);
  gallery.search("mnuObscura");  // a dial without a drawing is shown, but not chosen
  EXPECT_EQ(gallery.shownCards(), 1);
  QTest::keyClick(&searchField(), Qt::Key_Return);
  ASSERT_EQ(choices.size(), 2);
  EXPECT_EQ(choices[0][0].value<Item>(), Item::M_Inclinati);
  EXPECT_EQ(choices[1][0].value<Item>(), Item::M_Frinter);
}

TEST(DialPicture, OfEachDialFillsItsCardAndBreaksOffWhenAsked) {
  DialPictureOptions options{.size = {216, 162}, .dark = true, .dataFolder = DIALWRIGHT_DATA_DIR};
  for (const Item dial : dialItems()) {
    SCOPED_TRACE(rowOf(dial).name);
    const QImage image = pictureOf(dial, options);
    ASSERT_EQ(image.isNull(), !draws(dial));
    if (!draws(dial)) continue;
    double ink = 0, size = image.width() * image.height();
    for (int at = 0; at < size; ++at) {
      ink += image.pixelColor(at % 216, at / 216) != QColor(Qt::black) ? 1 : 0;
    }
    EXPECT_TRUE(0.02 < ink / size && ink / size < 0.6) << ink;
  }
  options.cancelled = [] { return true; };
  EXPECT_TRUE(pictureOf(Item::mnuUni, options).isNull());
}

TEST(DialPictures, AreKeptForTheirVersionAndDrawnAgainWhenSpoilt) {
  const Folder folder;
  const std::string kept = "2/M_Light-40x30-light.png";
  for (const char* version : {"1", "2"}) std::filesystem::create_directories(folder / version);
  folder.put(kept, "no picture");
  const auto firstOf = [&folder] {
    DialPictures pictures({shown(folder.path().string()), "2", DIALWRIGHT_DATA_DIR});
    QSignalSpy ready(&pictures, &DialPictures::ready);
    pictures.want({40, 30}, false);
    return ready.wait(60000) ? ready[0][1].value<QImage>() : QImage();
  };
  EXPECT_EQ(firstOf().size(), QSize(40, 30));
  EXPECT_FALSE(std::filesystem::exists(folder / "1"));  // of another version

  QImage other(40, 30, QImage::Format_RGB32);
  other.fill(Qt::green);
  ASSERT_TRUE(other.save(shown((folder / kept).string())));
  EXPECT_EQ(firstOf().pixelColor(5, 5), QColor(Qt::green));
}

}  // namespace
}  // namespace dialwright
