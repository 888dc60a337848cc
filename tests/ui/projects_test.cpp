// Projects in the window: nothing is lost unasked, whatever file or folder it is given.
#include "ui/projects.hpp"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include "ui/desk.hpp"

namespace dialwright {
namespace {

class ProjectsTest : public DeskTest {
 protected:
  QString in(const char* file) { return shown((desk.folder / file).string()); }
  void save(const char* file) {
    desk.name = in(file);
    desk.choose(Item::MnuSalva);
  }
  void open(const char* file) {
    desk.name = in(file);
    desk.choose(Item::mnuLoad);
    desk.settle();
  }
  void drop(const char* file) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(in(file))});
    QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&desk.window, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent event(QPointF(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&desk.window, &event);
    desk.settle();
  }
};

TEST_F(ProjectsTest, SavesAndOpensAndGivesANewSheet) {
  desk.choose(Item::mnuUni);
  desk.type(Field::txtDecl, "21.5");
  EXPECT_TRUE(desk.window.isWindowModified());
  save("wall.sun");
  EXPECT_FALSE(desk.window.isWindowModified());
  EXPECT_EQ(desk.program.projectTitle(), "");  // saved is not opened
  desk.settle();
  const std::string drawn = entitiesOf(desk.program);
  desk.choose(Item::mnuBall);
  desk.changes = Changes::Discard;
  open("wall.sun");
  EXPECT_EQ(desk.edit(Field::txtDecl)->text(), "21.5");
  EXPECT_TRUE(entitiesOf(desk.program) == drawn);
  EXPECT_TRUE(desk.window.windowTitle().startsWith("wall.sun"));
  EXPECT_EQ(desk.window.projects().recentMenu()->actions().size(), 1);
  desk.type(Field::txtLAT, "12");
  save("copy.sun");  // a new name is a copy
  EXPECT_EQ(desk.program.projectTitle(), "wall.sun");
  EXPECT_TRUE(desk.window.isWindowModified());
  desk.choose(Item::mnu_Nuovo);
  EXPECT_EQ(desk.drawn(), 0u);
  EXPECT_EQ(desk.program.projectTitle(), "");
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
  for (const Item item : {Item::mnuLoad, Item::mnu_Nuovo, Item::mnuExit}) desk.choose(item);
  EXPECT_EQ(desk.asked.size(), 3);
  EXPECT_EQ(desk.program.projectTitle(), "wall.sun");
  EXPECT_TRUE(desk.window.isVisible());
  desk.changes = Changes::Save;
  desk.choose(Item::mnuExit);
  EXPECT_FALSE(desk.window.isVisible());
  Program next = desk.start();
  next.CaricaProgetto(desk.folder / "wall.sun");
  EXPECT_EQ(next.panel().text(Field::txtLAT), "12");
}

TEST_F(ProjectsTest, TakesADroppedProjectOnly) {
  save("wall.sun");
  desk.folder.put("letter.txt", "Dear sir,");
  desk.type(Field::txtLAT, "12");
  desk.changes = Changes::Discard;
  drop("letter.txt");
  EXPECT_EQ(desk.said, QStringList("File non riconosciuto!"));
  EXPECT_EQ(desk.edit(Field::txtLAT)->text(), "12");
  EXPECT_TRUE(desk.window.isWindowModified());
  drop("wall.sun");
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

// Of inputs that have a file, and of such that have none.
TEST_F(ProjectsTest, RecoversWhatACrashLeft) {
  for (const std::string project : {"wall.sun", ""}) {
    const std::string copy = project.empty() ? ".untitled-1.sun.autosave" : ".wall.sun.autosave";
    Desk crashed, next;
    if (!project.empty()) {
      crashed.name = shown((crashed.folder / project).string());
      for (const Item item : {Item::MnuSalva, Item::mnuLoad}) crashed.choose(item);
      std::filesystem::copy_file(crashed.folder / project, next.folder / project);
    }
    crashed.type(Field::txtLAT, "12");
    Autosave& autosave = crashed.window.projects().autosave();
    autosave.write();
    const std::string bytes = crashed.folder.get(copy);
    ASSERT_FALSE(bytes.empty());
    EXPECT_TRUE(autosave.leftCopies({crashed.folder / project}).empty()) << "its program lives";
    crashed.changes = Changes::Discard;
    crashed.window.close();
    EXPECT_FALSE(std::filesystem::exists(crashed.folder / copy)) << "a clean end";

    next.folder.put(copy, bytes);
    next.window.begin(project.empty() ? "" : next.folder / project);
    EXPECT_EQ(next.asked.size(), 1);
    EXPECT_EQ(next.edit(Field::txtLAT)->text(), "12");
    EXPECT_TRUE(next.window.isWindowModified());
    EXPECT_EQ(next.program.projectTitle(), project);
  }
}

}  // namespace
}  // namespace dialwright
