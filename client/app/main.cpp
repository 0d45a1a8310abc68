#include "client/app/ClientOptions.h"
#include "client/app/ClientWindow.h"
#include "client/drive/RunDriver.h"
#include "client/session/ClientSession.h"
#include "client/settings/ClientSettings.h"
#include "journal/HistoryOptions.h"
#include "programs/CommandLine.h"
#include "programs/Complaint.h"
#include "programs/ExitCode.h"
#include "programs/Translations.h"

#include <orda_base/Theme.h>
#include <orda_worker/DictDef.h>
#include <orda_worker/SystemAssistant.h>
#include <vms_client_sdk/OpenFiles.h>

#include <QApplication>
#include <QIcon>
#include <QTimer>

#include <chrono>
#include <memory>

using namespace orda_client;
using namespace orda_programs;

namespace {

/// Without any display the window is drawn in memory only, which is enough for --run, --help and mistakes.
/// @return whether that is so
bool chooseScreen()
{
    bool isBlind = true;
    for (const char *variable : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"})
        isBlind = isBlind && qEnvironmentVariableIsEmpty(variable);
    if (isBlind)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // The offscreen platform reports 100 dots per inch, which would scale the window by 1.04.
    if (qgetenv("QT_QPA_PLATFORM") == "offscreen" && !qEnvironmentVariableIsSet("QT_FONT_DPI"))
        qputenv("QT_FONT_DPI", "96");
    return isBlind;
}

/// The language of the settings, or the system's where it is not there any more.
QString knownLanguage(const QString &language)
{
    return Translations::languages().contains(language) ? language : QString();
}

orda_base::Theme::Scheme schemeOf(const QString &theme)
{
    using orda_base::Theme;
    if (theme.isEmpty())
        return Theme::FollowPalette;
    return theme == QLatin1String("dark") ? Theme::Dark : Theme::Light;
}

} // namespace

int main(int argc, char *argv[])
{
    // GLib's dispatcher checks every socket on every wake-up, which takes seconds with thousands of devices.
    qputenv("QT_NO_GLIB", "1");
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    // Without this a scale of 1.5 would be rounded to 2.
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    const bool isBlind = chooseScreen();
    QApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("orda_client"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ORDA_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("orda_client")); // its menu entry, for the task bar
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("orda_client")));
    vms_sdk::raiseOpenFileLimit();

    const QStringList arguments = QCoreApplication::arguments();
    // A driven client begins as on its first day, and leaves nothing behind.
    const bool isDriven = !optionValue(arguments, QStringLiteral("run")).isEmpty();
    ClientSettings settings(isDriven ? QString() : ClientSettings::usualPath());
    const QString language = optionValue(arguments, QStringLiteral("language"));
    Translations translations; // first: mistakes of the command line are told in this language too
    if (!translations.install(language.isEmpty() ? knownLanguage(settings.language()) : language)) {
        return fail(QCoreApplication::translate("main", "--language takes one of %1, not \"%2\"")
                        .arg(Translations::languages().join(QStringLiteral(", ")), language),
                    ExitUsage);
    }
    const ClientOptions options = parseOptions(arguments);
    if (!options.error.isEmpty())
        return fail(QCoreApplication::translate("main", "%1 (see orda_client --help)").arg(options.error), ExitUsage);
    if (isBlind && options.drive.family.isEmpty()) {
        return fail(QCoreApplication::translate("main", "there is no display to show the window on; --run needs none"),
                    ExitUsage);
    }
    orda_base::Theme::apply(app, schemeOf(options.theme.isEmpty() ? settings.theme() : options.theme));

    QString warning;
    ClientSession session(orda_journal::HistoryOptions::configured(&warning));
    if (!warning.isEmpty())
        complain(warning);
    QObject::connect(&session, &ClientSession::signalWarning, &app, complain);
    ClientWindow window(&session, &settings);
    if (!isDriven)
        window.guardPresses();
    window.show();

    QString error;
    if (options.demoDevices > 0)
        error = session.startDemo(options.demoDevices, options.faultsFile, options.demoCameras);
    else if (!options.inventoryFile.isEmpty())
        error = session.openInventory(options.inventoryFile);
    if (!error.isEmpty() && isDriven)
        return fail(error, ExitInput);
    if (!error.isEmpty()) // the window offers other ways to devices
        orda_worker::SystemAssistant::instance().messageAlert(orda_worker::DictDef::instance().alertTitle(), error);

    std::unique_ptr<RunDriver> driver; // only without a person at the window: it ends the program at an alert
    if (!options.drive.family.isEmpty()) {
        driver = std::make_unique<RunDriver>(options.drive, &window);
        QTimer::singleShot(std::chrono::milliseconds(0), driver.get(), &RunDriver::start);
    }
    return QApplication::exec();
}
