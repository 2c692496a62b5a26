#include <QApplication>
#include <QTemporaryDir>

#include "mainwin/form_set.h"

int RunSettingsFileTests(int argc, char** argv);
int RunHistoryListTests(int argc, char** argv);
int RunMainWindowTests(int argc, char** argv);
int RunFrequencyPageTests(int argc, char** argv);
int RunSeriesPageTests(int argc, char** argv);
int RunOutputPagesTests(int argc, char** argv);

int main(int argc, char** argv) {
  // netrix.ini and the per-user settings go to a folder of the test's own, set before Qt reads it.
  QTemporaryDir configuration;
  if (!configuration.isValid()) qFatal("no temporary folder");
  qputenv("XDG_CONFIG_HOME", configuration.path().toUtf8());
  QApplication application(argc, argv);
  mainwin::InitialiseApplication();
  int failures = 0;
  for (auto* run : {RunSettingsFileTests, RunHistoryListTests, RunMainWindowTests, RunFrequencyPageTests,
                    RunSeriesPageTests, RunOutputPagesTests}) {
    failures += run(argc, argv);
  }
  return failures == 0 ? 0 : 1;
}
