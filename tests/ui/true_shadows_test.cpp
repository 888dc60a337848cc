// What the window says and leaves out of strokes that no shadow follows.
#include <QCheckBox>
#include <QStatusBar>
#include <QTest>

#include "ui/application.hpp"
#include "ui/desk.hpp"

namespace dialwright {
namespace {

class TrueShadowsTest : public ::testing::Test {
 protected:
  QString status() const { return desk.window.statusBar()->currentMessage(); }
  bool remarks(const QString& text) {
    return QTest::qWaitFor([&] { return status().endsWith(text); }, 20000);
  }
  // The sentence that a plain program's proof asks for.
  static QString sentenceOf(Program& plain) {
    plain.sheet().list().keepMeanings(true);
    plain.CmdRun_Click();
    const proof::LayerProof sum = plain.prove()->total();
    EXPECT_LT(sum.genuine, sum.strokes);
    return QString(
               "%1 of %2 strokes are no shadows; with \"True shadows only\" a run leaves them out.")
        .arg(sum.strokes - sum.genuine)
        .arg(sum.strokes);
  }

  Desk desk;
  Folder folder;
  Program plain{ProgramConfig{folder.path(), DIALWRIGHT_DATA_DIR, "en"}};
};

TEST_F(TrueShadowsTest, EveryDialHasTheBox) {
  desk.window.inputs().live()->setChecked(false);
  for (const Item dial : dialItems()) {
    desk.choose(dial);
    const auto* box = desk.widget<QCheckBox>(Field::ckTrue);
    EXPECT_TRUE(box->isVisible() && box->isEnabled()) << rowOf(dial).name;
    EXPECT_EQ(box->text(), "True shadows only");
  }
}

TEST_F(TrueShadowsTest, TellsWhatIsNoShadowAfterALiveRunAndAnAskedOne) {
  plain.click(Item::mnuCircp);
  const QString sentence = sentenceOf(plain);
  desk.choose(Item::mnuCircp);
  desk.settle();
  EXPECT_TRUE(remarks(sentence)) << status().toStdString();
  EXPECT_TRUE(status().startsWith("Modify the definition")) << "the run's own word stays";
  desk.window.statusBar()->clearMessage();
  desk.press(Field::cmdRun);
  EXPECT_TRUE(remarks(sentence)) << status().toStdString();
}

TEST_F(TrueShadowsTest, TheBoxDropsThemAsOnTheCommandLine) {
  plain.click(Item::mnuCircp);
  plain.panel().setState(Field::ckTrue, true);
  plain.CmdRun_Click();
  desk.choose(Item::mnuCircp);
  desk.settle();
  const std::string whole = entitiesOf(desk.program);
  ASSERT_TRUE(remarks("a run leaves them out."));
  desk.widget<QCheckBox>(Field::ckTrue)->click();
  desk.settle();
  EXPECT_EQ(entitiesOf(desk.program), entitiesOf(plain)) << "live";
  EXPECT_NE(entitiesOf(desk.program), whole);
  EXPECT_FALSE(QTest::qWaitFor([this] { return status().contains("no shadows"); }, 500));
  desk.press(Field::cmdRun);
  EXPECT_EQ(entitiesOf(desk.program), entitiesOf(plain)) << "run";
}

}  // namespace
}  // namespace dialwright
