#include "support/Contrast.h"
#include "support/Controls.h"
#include "support/OrdaTest.h"

#include "client/app/ClientWindow.h"
#include "client/session/ClientSession.h"
#include "client/settings/ClientSettings.h"
#include "programs/Translations.h"

#include <QtWidgets>
#include <orda_base/Theme.h>
#include <orda_data/DevsMgrData.h>
#include <vms_client_sdk/onvif/OnvifDiscovery.h>

using namespace orda_client;
using orda_base::Theme;

namespace {

constexpr QSize fieldLaptop(1264, 660); // 1280 x 720 less a frame

/// Whether all of a widget's text is seen, where it has no other way to be read.
bool isCutOff(const QWidget *widget)
{
    const auto *label = qobject_cast<const QLabel *>(widget);
    const auto *button = qobject_cast<const QAbstractButton *>(widget);
    if ((!label || label->text().isEmpty()) && (!button || button->text().isEmpty()))
        return false;
    if (!widget->toolTip().isEmpty() && label)
        return false; // shortened, and whole in its tool tip
    if (label && label->wordWrap())
        return label->height() < label->heightForWidth(label->width());
    const QSize needed = widget->minimumSizeHint();
    return widget->width() < needed.width() || widget->height() < needed.height();
}

QStringList clashingMnemonics(const QWidget *window)
{
    QMap<QString, int> times;
    const auto widgets = window->findChildren<QWidget *>();
    for (const QWidget *widget : widgets)
        if (widget->window() == window && widget->isVisible())
            ++times[QKeySequence::mnemonic(widget->property("text").toString()).toString()];
    times.remove({});
    QStringList clashes;
    for (auto key = times.cbegin(); key != times.cend(); ++key)
        if (key.value() > 1)
            clashes.append(key.key());
    return clashes;
}

/// Everything that is wrong with a window, a line each.
QStringList faultsOf(QWidget *window)
{
    QStringList faults;
    const QSize needed = window->minimumSizeHint();
    if (needed.width() > fieldLaptop.width() || needed.height() > fieldLaptop.height())
        faults.append(QStringLiteral("needs %1 x %2").arg(needed.width()).arg(needed.height()));
    window->resize(fieldLaptop.boundedTo(QSize(900, 620)).expandedTo(needed));
    QTest::qWait(20);
    QList<QWidget *> unreached = shownControls(window);
    for (QWidget *control : qAsConst(unreached))
        if (spokenName(control).trimmed().isEmpty() && !control->parent()->inherits("QLineEdit"))
            faults.append("has no name: " + control->objectName() + ' ' + control->metaObject()->className());
    const QStringList clashes = clashingMnemonics(window);
    for (const QString &key : clashes)
        faults.append("twice: " + key);
    const QImage picture = pictureOf(window);
    const auto widgets = window->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (!widget->isVisible() || widget->window() != window)
            continue;
        if (isCutOff(widget))
            faults.append("cut off: " + widget->property("text").toString());
        const QRect rect = textRect(widget);
        if (!rect.isEmpty() && widget->isEnabled() && (QRegion(rect) - widget->visibleRegion()).isEmpty()
            && contrastIn(picture, {widget->mapTo(window, rect.topLeft()), rect.size()}) < readableContrast)
            faults.append("hard to read: " + widget->property("text").toString());
    }
    QApplication::setActiveWindow(window);
    for (int i = unreached.size(); i >= 0; --i) { // Tab goes around
        unreached.removeOne(window->focusWidget());
        QTest::keyClick(window->focusWidget() ? window->focusWidget() : window, Qt::Key_Tab);
    }
    for (const QWidget *control : qAsConst(unreached))
        if (!control->inherits("QToolButton") && !qobject_cast<const QRadioButton *>(control))
            faults.append("Tab does not reach: " + control->objectName() + ' ' + control->metaObject()->className());
    return faults;
}

} // namespace

/// All windows and dialogs of the client, in all languages, light and dark: names, keys, room, readable texts.
class WindowsTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void everyWindowIsWhole_data()
    {
        columns<QString, int>({"language", "scheme"});
        for (const char *language : {"en", "de", "zh_CN"}) {
            row(qPrintable(QStringLiteral("%1, light").arg(language)), QString(language), int(Theme::Light));
            row(qPrintable(QStringLiteral("%1, dark").arg(language)), QString(language), int(Theme::Dark));
        }
    }

    void everyWindowIsWhole()
    {
        QFETCH(QString, language);
        QFETCH(int, scheme);
        orda_programs::Translations translations;
        QVERIFY(translations.install(language));
        Theme::apply(*qApp, Theme::Scheme(scheme));
        ClientSettings settings({});
        ClientSession session(orda_journal::HistoryOptions{});
        ClientWindow window(&session, &settings);
        window.guardPresses();
        window.show();
        QCOMPARE(faultsOf(&window).join('\n'), QString()); // its first steps

        QCOMPARE(session.startDemo(20, {}), QString());
        auto *all = window.findChild<QCheckBox *>("selAll");
        QTRY_VERIFY(orda_data::DevsMgrData::instance().devCount(true) >= 17);
        all->click();
        const QList<QPair<const char *, const char *>> windows{
            {"showDevices", "devicesWindow"}, {"showPreview", "previewWindow"}, {"showCompare", "compareWindow"},
            {"showRuns", "runsWindow"},       {"showManual", "manualWindow"},   {"showSettings", "settingsDialog"},
            {"showAbout", "aboutDialog"},     {"findCameras", "findWindow"},    {"exportDevices", "exportDialog"}};
        for (const auto &[action, name] : windows) {
            window.findChild<QAction *>(action)->trigger();
            auto *opened = window.findChild<QWidget *>(name);
            QVERIFY2(opened && opened->isVisible(), name);
            if (auto *search = opened->findChild<vms_sdk::OnvifDiscovery *>())
                emit search->found({"urn:1", "Gate", "X1", "hall", {QUrl("https://10.0.0.1/")}, "10.0.0.2"});
            QTest::qWait(opened->objectName() == "findWindow" ? 300 : 100); // what it reads
            QCOMPARE(faultsOf(opened).join('\n'), QString());
            opened->close();
        }
    }

    void cleanup()
    {
        auto &store = orda_data::DevsMgrData::instance();
        QStringList ids;
        const QList<vms_sdk::DevInfo> devices = store.getAllDevs(false);
        for (const vms_sdk::DevInfo &dev : devices)
            ids.append(dev.id);
        store.deleteDevs(ids);
        OrdaTest::cleanup();
    }
};

ORDA_TEST_MAIN(WindowsTest)
#include "windows_test.moc"
