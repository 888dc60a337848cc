// The desktop's entry point.
#include <QApplication>
#include <QCommandLineParser>
#include <QLibraryInfo>
#include <QTimer>
#include <QTranslator>

#include "app/data_folder.hpp"
#include "app/folders.hpp"
#include "ui/icon.hpp"
#include "ui/main_window.hpp"
#include "ui/screenshots.hpp"
#include "ui/splash.hpp"

namespace {

using dialwright::Program;
using dialwright::ProgramConfig;

struct Arguments {
  ProgramConfig config;
  std::filesystem::path file;
  QString screenshots;  // the folder for them
};

Arguments argumentsOf(const QApplication& application) {
  QCommandLineParser parser;
  parser.addHelpOption();
  parser.addVersionOption();
  parser.addOption({"folder", "Working folder for defaults, dictionary and exports.", "DIR"});
  parser.addOption({"lang", "Language of this run: en, it, fr or es.", "LANG"});
  QCommandLineOption screenshots("screenshots", "Write pictures of the windows and end.", "DIR");
  screenshots.setFlags(QCommandLineOption::HiddenFromHelp);
  parser.addOption(screenshots);
  parser.addPositionalArgument("FILE", "A project, .sun.", "[FILE]");
  parser.process(application);
  Arguments arguments;
  arguments.config.workingFolder = parser.isSet("folder")
                                       ? std::filesystem::path(parser.value("folder").toStdString())
                                       : dialwright::configurationFolder();
  arguments.config.dataFolder = dialwright::dataFolder();
  arguments.config.language = parser.value("lang").toStdString();
  arguments.screenshots = parser.value(screenshots);
  if (!parser.positionalArguments().isEmpty())
    arguments.file = parser.positionalArguments().front().toStdString();
  return arguments;
}

// The toolkit's own words (in the dialogs for files and printers), where they are installed.
void speak(QApplication& application, QTranslator& words, const Program& program) {
  const std::string& asked = program.config().language;
  const QString code = QString::fromStdString(asked.empty() ? program.storedLanguage() : asked);
  if (words.load("qtbase_" + code, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    application.installTranslator(&words);
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName("dialwright");
  QApplication::setApplicationDisplayName("Dialwright");
  QApplication::setApplicationVersion(DIALWRIGHT_VERSION);
  QGuiApplication::setDesktopFileName("dialwright");
  const Arguments arguments = argumentsOf(application);
  Program program(arguments.config);
  QTranslator words;
  speak(application, words, program);
  QApplication::setWindowIcon(dialwright::applicationIcon());
  dialwright::Appearance appearance;
  dialwright::MainWindow window(program);
  window.offer(appearance);
  window.show();
  if (!arguments.screenshots.isEmpty())
    return takeScreenshots(window, program, appearance, arguments.screenshots) ? 0 : 1;
  dialwright::Splash::show(program);
  QTimer::singleShot(0, &window, [&] { window.begin(arguments.file); });
  return QApplication::exec();
}
