#include "display_guard.h"

#include <QByteArray>
#include <QString>
#include <QtGlobal>
#include <cstdio>
#include <cstdlib>

namespace mainwin {
namespace {

QtMessageHandler gPreviousHandler = nullptr;

constexpr const char* kNoDisplayText =
    "netrix: the window cannot open: no display could be reached (%s). Start it on a desktop or under xvfb-run; "
    "netrix --figures, --series and --render need no display (netrix --help tells more).\n";

// The platform plugin's own warnings only repeat that it could not start.
void ReportMissingDisplay(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (type == QtFatalMsg) {
    const QByteArray display = qgetenv("DISPLAY");
    const QByteArray where = display.isEmpty() ? QByteArray("DISPLAY is not set") : "DISPLAY is " + display;
    std::fprintf(stderr, kNoDisplayText, where.constData());
    std::_Exit(1);
  }
  if (context.category && QLatin1String(context.category).startsWith(QLatin1String("qt.qpa"))) return;
  if (gPreviousHandler) gPreviousHandler(type, context, message);
}

}  // namespace

DisplayGuard::DisplayGuard() { gPreviousHandler = qInstallMessageHandler(ReportMissingDisplay); }

DisplayGuard::~DisplayGuard() { qInstallMessageHandler(gPreviousHandler); }

}  // namespace mainwin
