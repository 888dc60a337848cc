// Projects in the window: nothing is lost unasked, whatever file or folder it is given.
#include "ui/projects.hpp"

#include <QDropEvent>
#include <QMimeData>
#include <QTest>
#include <QUrl>
#include <filesystem>

#include "persist/project.hpp"
#include "ui/application.hpp"
#include "ui/desk.hpp"

namespace dialwright {
namespace {

namespace fs = std::filesystem;

class ProjectsTest : public ::testing::Test {
 protected:
  void save(const char* file) {
    desk.name = desk.in(file);
    desk.choose(Item::MnuSalva);
  }
  void open(const char* file) {
    desk.name = desk.in(file);
    desk.choose(Item::mnuLoad);
    desk.settle();
  }
  void drop(const QString& path) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(path)});
    QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&desk.window, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent event(QPointF(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&desk.window, &event);
    desk.settle();
  }

  Desk desk;
};

TEST_F(ProjectsTest, SavesAndOpens) {
  desk.choose(Item::mnuUni);
  desk.type(Field::txtDecl, "21.5");
  EXPECT_TRUE(desk.window.isWindowModified());
  save("wall.sun");
  EXPECT_FALSE(desk.window.isWindowModified());
  desk.settle();
  const std::string drawn = entitiesOf(desk.program);
  desk.choose(Item::mnuBall);
  desk.changes = Changes::Discard;
  open("wall.sun");
  EXPECT_EQ(desk.edit(Field::txtDecl)->text(), "21.5");
  EXPECT_EQ(entitiesOf(desk.program), drawn);
  EXPECT_TRUE(desk.window.windowTitle().startsWith("wall.sun"));
  EXPECT_EQ(desk.window.projects().recentMenu()->actions().size(), 1);
}

TEST_F(ProjectsTest, AsksBeforeItLosesAnything) {
  save("wall.sun");
  open("wall.sun");
  EXPECT_EQ(desk.asked.size(), 0);
  desk.yes = false;
  open("wall.sun");  // unchanged: the program's own question
  EXPECT_EQ(desk.asked, QStringList("Attention! do you wish to close the file wall.sun?"));
  desk.type(Field::txtLAT, "12");
  desk.asked.clear();
  desk.changes = Changes::Keep;
  for (const Item item : {Item::mnuLoad, Item::mnu_Nuovo, Item::mnuExit}) desk.choose(item);
  EXPECT_EQ(desk.asked.size(), 3);
  EXPECT_EQ(desk.program.projectTitle(), "wall.sun");
  EXPECT_TRUE(desk.window.isVisible());
  desk.changes = Changes::Save;
  desk.choose(Item::mnuExit);
  EXPECT_FALSE(desk.window.isVisible());
  Program next({desk.folder.path(), DIALWRIGHT_DATA_DIR, "en"});
  next.CaricaProgetto(desk.folder / "wall.sun");
  EXPECT_EQ(next.panel().text(Field::txtLAT), "12");
}

TEST_F(ProjectsTest, SavesUnderANewNameAsACopy) {
  save("one.sun");
  EXPECT_EQ(desk.program.projectTitle(), "");  // saved is not opened
  open("one.sun");
  desk.type(Field::txtLAT, "12");
  save("two.sun");
  EXPECT_EQ(desk.program.projectTitle(), "one.sun");
  EXPECT_TRUE(desk.window.isWindowModified());
}

TEST_F(ProjectsTest, GivesANewSheet) {
  desk.choose(Item::mnuUni);
  save("wall.sun");
  open("wall.sun");
  EXPECT_GT(desk.program.sheet().list().size(), 0u);
  desk.choose(Item::mnu_Nuovo);
  EXPECT_EQ(desk.program.sheet().list().size(), 0u);
  EXPECT_EQ(desk.program.projectTitle(), "");
}

TEST_F(ProjectsTest, TakesADroppedProjectOnly) {
  save("wall.sun");
  desk.folder.put("letter.txt", "Dear sir,");
  desk.type(Field::txtLAT, "12");
  desk.changes = Changes::Discard;
  drop(desk.in("letter.txt"));
  EXPECT_EQ(desk.said, QStringList("File non riconosciuto!"));
  EXPECT_EQ(desk.edit(Field::txtLAT)->text(), "12");
  EXPECT_TRUE(desk.window.isWindowModified());
  drop(desk.in("."));
  EXPECT_EQ(desk.said.size(), 2);
  drop(desk.in("wall.sun"));
  EXPECT_EQ(desk.edit(Field::txtLAT)->text(), "45.7438");
}

// A full disk is a device that takes nothing; a user who may write everywhere has no other.
TEST_F(ProjectsTest, TellsWhatCannotBeWritten) {
  desk.type(Field::txtLAT, "12");
  for (const char* path : {"/dev/full", "/nowhere/wall.sun"}) {
    desk.said.clear();
    desk.name = path;
    desk.choose(Item::MnuSalva);
    ASSERT_EQ(desk.said.size(), 1) << path;
    EXPECT_TRUE(desk.said.front().contains(path));
    EXPECT_TRUE(desk.window.isWindowModified());
  }
  desk.changes = Changes::Save;
  desk.choose(Item::mnuExit);  // the wish to save fails: the window stays
  EXPECT_TRUE(desk.window.isVisible());
}

// --- The copy

TEST_F(ProjectsTest, RecoversWhatACrashLeft) {
  save("wall.sun");
  open("wall.sun");
  desk.type(Field::txtLAT, "12");
  desk.window.projects().autosave().write();
  const fs::path copy = desk.folder / ".wall.sun.autosave";
  ASSERT_TRUE(fs::exists(copy));
  const std::string bytes = desk.folder.get(".wall.sun.autosave");
  const auto left = [&] {
    return desk.window.projects().autosave().leftCopies({desk.folder / "wall.sun"}).size();
  };
  EXPECT_EQ(left(), 0u);  // its program lives
  desk.changes = Changes::Discard;
  desk.window.close();
  EXPECT_FALSE(fs::exists(copy));  // a clean end

  desk.folder.put(".wall.sun.autosave", bytes);
  Desk next;
  next.yes = true;
  next.window.begin(desk.folder / "wall.sun");
  EXPECT_EQ(next.asked.size(), 1);
  EXPECT_EQ(next.edit(Field::txtLAT)->text(), "12");
  EXPECT_TRUE(next.window.isWindowModified());
  EXPECT_EQ(next.program.projectTitle(), "wall.sun");
}

TEST_F(ProjectsTest, RecoversInputsWithoutAFile) {
  desk.type(Field::txtLAT, "12");
  desk.window.projects().autosave().write();
  const std::string bytes = desk.folder.get(".untitled-1.sun.autosave");
  ASSERT_FALSE(bytes.empty());
  const Folder folder;
  folder.put(".untitled-1.sun.autosave", bytes);
  Program program({folder.path(), DIALWRIGHT_DATA_DIR, "en"});
  MainWindow window(program);
  window.dialogs().yes = [](const QString&) { return true; };
  window.begin({});
  EXPECT_EQ(program.panel().text(Field::txtLAT), "12");
  EXPECT_EQ(program.projectTitle(), "");
  EXPECT_TRUE(window.isWindowModified());
}

}  // namespace
}  // namespace dialwright
