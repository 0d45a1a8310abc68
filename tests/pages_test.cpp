#include "support/FormFixture.h"
#include "support/OrdaTest.h"

#include <audio/AudioParamsCfgPage.h>
#include <image/ImageParamsCfgPage.h>
#include <network/NetworkParamsCfgPage.h>
#include <onvif/OnvifParamsCfgPage.h>
#include <osd/OSDParamsCfgPage.h>
#include <platform/Platform9100ParamsCfgPage.h>
#include <platform/PlatformParamsCfgPage.h>
#include <video/VideoParamsCfgPage.h>
#include <video/VideoParamsPanel.h>

#include <orda_base/ComboBox.h>
#include <orda_base/PortEditWt.h>
#include <orda_base/Theme.h>

#include <QApplication>
#include <QGridLayout>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QStackedWidget>

#include <functional>

using namespace orda_batchCfg;

namespace {

/// A parameter of a page: its check box and what is shown while that is ticked.
struct Box
{
    const char *name, *text;
    QList<const char *> panels;
};

struct PageCase
{
    const char *className; ///< its own object name too, behind the namespace
    const char *stackName; ///< object name in the form's stack; none: the form does not have the page
    std::function<QWidget *()> make;
    QList<Box> boxes;
    QList<const char *> followers; ///< panels that are shown while any parameter is ticked
    QStringList editors; ///< "name: what it is", see describe()
    QVariant style; ///< value of the buttons' dynamic properties
};

template <typename Page>
QWidget *make()
{
    return new Page(nullptr);
}

/// What an operator can do with an editor, in one line: kind, choices with the values that are sent, what is set.
QString describe(const QWidget *widget)
{
    if (const auto *combo = qobject_cast<const QComboBox *>(widget)) {
        QStringList items;
        for (int i = 0; i < combo->count(); ++i) {
            const QVariant data = combo->itemData(i);
            const QString number = data.type() == QVariant::Int ? QStringLiteral("#") : QString();
            items.append(combo->itemText(i)
                         + (data.isValid() ? QLatin1Char('=') + number + data.toString() : QString()));
        }
        return QStringLiteral("combo %1: %2").arg(combo->currentIndex()).arg(items.join(QStringLiteral(", ")));
    }
    if (const auto *spin = qobject_cast<const QSpinBox *>(widget))
        return QStringLiteral("spin %1 from %2 to %3 step %4%5")
            .arg(spin->text())
            .arg(spin->minimum())
            .arg(spin->maximum())
            .arg(spin->singleStep())
            .arg(spin->buttonSymbols() == QAbstractSpinBox::NoButtons ? QString() : QStringLiteral(" with buttons"));
    if (const auto *slider = qobject_cast<const QSlider *>(widget))
        return QStringLiteral("slider from %1 to %2").arg(slider->minimum()).arg(slider->maximum());
    if (qobject_cast<const orda_base::PortEditWt *>(widget))
        return QStringLiteral("port %1").arg(qobject_cast<const QLineEdit *>(widget)->text());
    if (const auto *line = qobject_cast<const QLineEdit *>(widget)) {
        const QString limit = line->maxLength() < 32767 ? QStringLiteral(" of %1").arg(line->maxLength()) : QString();
        return QStringLiteral("line \"%1\"%2").arg(line->text(), limit);
    }
    if (const auto *button = qobject_cast<const QPushButton *>(widget); button && button->isCheckable())
        return QStringLiteral("switch %1%2")
            .arg(button->text(), button->isChecked() ? QStringLiteral("on") : QStringLiteral("off"));
    return QStringLiteral("nothing that is edited");
}

const QString positions = QStringLiteral("combo 0: Top Left=left_top, Bottom Left=left_bottom, Top Right=right_top, "
                                         "Bottom Right=right_bottom, Hide=hide");

QList<PageCase> pageCases()
{
    const QString off = QStringLiteral(": switch off");
    return {
        {"AudioParamsCfgPage",
         "audioParametersPage",
         make<AudioParamsCfgPage>,
         {{"audioEnable", "Audio Enable", {"audioEnablePanel"}},
          {"encodingFormat", "Encoding Format", {"encodingFormatPanel"}},
          {"audioInVolume", "Audio In Volume", {"audioInVolumePanel"}},
          {"alarmOutVolume", "Alarm Out Volume", {"alarmOutVolumePanel"}},
          {"samplingRate", "Sampling Rate/Bit Wide", {"samplingRatePanel", "bitWidePanel"}}},
         {},
         {QStringLiteral("audioSwitch") + off, QStringLiteral("encodingFormatParam: combo 0: G711U=g711u, G711A=g711a"),
          QStringLiteral("audioInVolumeSlider: slider from 0 to 100"),
          QStringLiteral("alarmOutVolumeSlider: slider from 0 to 100"),
          QStringLiteral("samplingRateParam: combo 0: 8000=#8000"), QStringLiteral("BitWideParam: combo 0: 16bit=#16")},
         1},
        {"VideoParamsCfgPage",
         "videoParametersPage",
         make<VideoParamsCfgPage>,
         {{"smartEncoding", "Smart Encoding", {"smartEncodingPanel"}},
          {"encodingFormat", "Encoding Format", {"encodingFormatWt"}},
          {"resolution", "Resolution", {"resolutionWt"}},
          {"frameRate", "Frame Rate", {"frameRateWt"}},
          {"bitRate", "Bit Rate", {"bitRateModeWt", "bitRateStrategyWt", "videoQualityWt"}}},
         {},
         {QStringLiteral("smartEncodingCtrl: combo 0: Open=open, Close=close, Auto=autoopen")},
         1},
        {"ImageParamsCfgPage",
         "imageParametersPage",
         make<ImageParamsCfgPage>,
         {{"imageFlip", "Image Flip", {"imageFlipPanel"}},
          {"expertMode", "Expert Mode", {"expertModePanel"}},
          {"lightMode", "Light Mode", {"lightModePanel"}}},
         {},
         {QStringLiteral("imageFlipParam: combo 0: Off=off, Horizontal=horizontal, Vertical=vertical, Rotate 180=both"),
          QStringLiteral("expertModeParam: combo 0: Auto=auto, Indoor=indoor, Outdoor=outdoor, Backlight=backlight"),
          QStringLiteral("lightModeParam: combo 0: Infrared=ir, White Light=white, Smart Dual Light=smart, Off=off")},
         1},
        {"PlatformParamsCfgPage",
         "platformParametersPage",
         make<PlatformParamsCfgPage>,
         {{"serviceEnable", "Service Enable", {"serviceEnablePanel"}},
          {"serviceAddress", "Service Address", {"serviceAddressPanel"}}},
         {"serviceTypePanel"},
         {QStringLiteral("serviceSwitch") + off,
          QStringLiteral("serviceType: combo 0: Public Cloud=public, Private Cloud=private"),
          QStringLiteral("serviceAddressParam: line \"https://device.cloud.example.com:8443\"")},
         true},
        {"Platform9100ParamsCfgPage",
         "platform9100ParametersPage",
         make<Platform9100ParamsCfgPage>,
         {{"serviceEnable", "9100 Service Enable", {"serviceEnablePanel"}},
          {"serviceAddress", "9100 Service Address", {"onlineServicePanel", "bussinessServicePanel"}}},
         {},
         {QStringLiteral("serviceSwitch") + off, QStringLiteral("onlineUrl: line \"\""),
          QStringLiteral("onlinePort: port 15030"), QStringLiteral("bussinessUrl: line \"\""),
          QStringLiteral("bussinessPort: port 8081")},
         true},
        {"NetworkParamsCfgPage",
         "networkParamsCfgPage",
         make<NetworkParamsCfgPage>,
         {{"compatibleEnable", "Compatible with 1.0 NVR devices", {"compatibleEnablePanel"}},
          {"lockIpEnable", "Lock IP", {"lockIpEnablePanel"}},
          {"smartOnlineEnable", "Smart Online", {"smartOnlineEnablePanel"}}},
         {},
         {QStringLiteral("compatibleSwitch") + off, QStringLiteral("lockIpSwitch") + off,
          QStringLiteral("smartOnlineSwitch") + off},
         true},
        {"OSDParamsCfgPage",
         "osdParamsCfgPage",
         make<OSDParamsCfgPage>,
         {{"osdVisible", "OSD Visible", {"osdVisiblePanel"}},
          {"timeFormat", "Time Format", {"timeFormatPanel"}},
          {"timePosition", "Time Position", {"timePositionPanel"}},
          {"name", "Name", {"namePanel"}},
          {"namePosition", "Name Position", {"namePositionPanel"}},
          {"largeFont", "Large Font", {"largeFontPanel"}}},
         {},
         {QStringLiteral("visibleSwitch") + off,
          QStringLiteral("timeFormatParam: combo 0: YYYY-MM-DD, MM/DD/YYYY, DD/MM/YYYY"),
          QStringLiteral("timePositionParam: ") + positions, QStringLiteral("nameParam: line \"HD IPC\" of 32"),
          QStringLiteral("namePositionParam: ") + positions, QStringLiteral("largeFontSwitch") + off},
         1},
        {"OnvifParamsCfgPage",
         nullptr,
         make<OnvifParamsCfgPage>,
         {{"compatibleEnable", "Compatible with 1.0 NVR devices", {"compatibleEnablePanel"}}},
         {},
         {QStringLiteral("compatibleEnableSwitch") + off},
         true},
    };
}

QStringList silent(const ScriptedTransport::Request &)
{
    return {};
}

/// Clicks the box unless it is ticked as wanted already.
void tick(QCheckBox *box, bool wanted)
{
    if (box->isChecked() != wanted)
        box->click();
}

} // namespace

/// What every page shows and how it follows its check boxes.
class PagesTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QApplication::setQuitOnLastWindowClosed(false);
        orda_base::Theme::apply(*qApp); // the pages' sizes are those of its font
    }

    void looksAsItsTableSays_data() { addPages(); }
    void looksAsItsTableSays();
    void followsEverySelection_data() { addPages(); }
    void followsEverySelection();
    void scrollsInANarrowWindow_data() { addPages(); }
    void scrollsInANarrowWindow();
    void videoPanelsDifferByStream();
    void videoStreamsAreASecondSelection();
    void smartEncodingStaysInLine();

private:
    static void addPages()
    {
        QTest::addColumn<int>("number");
        const QList<PageCase> cases = pageCases();
        for (int i = 0; i < cases.size(); ++i)
            QTest::newRow(cases.at(i).className) << i;
    }
};

void PagesTest::looksAsItsTableSays()
{
    QFETCH(int, number);
    const PageCase expected = pageCases().at(number);
    const std::unique_ptr<QWidget> page(expected.make());
    QCOMPARE(page->objectName(), QStringLiteral("orda_batchCfg__%1").arg(QLatin1String(expected.className)));
    QCOMPARE(page->windowTitle(), QLatin1String(expected.className));
    QCOMPARE(page->metaObject()->className(), QByteArray("orda_batchCfg::") + expected.className);
    if (expected.stackName) {
        const FormFixture f(0, silent);
        QCOMPARE(f.page(expected.stackName)->metaObject()->className(), page->metaObject()->className());
    }

    for (const Box &box : expected.boxes) {
        const auto *check = page->findChild<QCheckBox *>(QLatin1String(box.name));
        QVERIFY2(check && check->isChecked() && check->text() == QLatin1String(box.text), box.name);
    }
    const auto *all = page->findChild<QCheckBox *>(QStringLiteral("allParams"));
    QVERIFY(all->isTristate() && all->checkState() == Qt::Checked && all->text() == QLatin1String("All"));
    QStringList captions;
    const auto labels = page->findChildren<QLabel *>();
    for (const QLabel *label : labels)
        captions.append(label->text());
    QVERIFY(captions.contains(QLatin1String("Please select the parameters to be configured")));
    QVERIFY(captions.contains(QLatin1String("The selected parameters to be configured")));
    for (const QString &editor : expected.editors) {
        const QString name = editor.section(QLatin1Char(':'), 0, 0);
        const auto *widget = page->findChild<QWidget *>(name);
        QVERIFY2(widget, qPrintable(name));
        QCOMPARE(name + QStringLiteral(": ") + describe(widget), editor);
    }

    const auto *okBt = page->findChild<QPushButton *>(QStringLiteral("okBt"));
    const auto *reportBt = page->findChild<QPushButton *>(QStringLiteral("reportBt"));
    QCOMPARE(okBt->text(), QStringLiteral("Configure"));
    QCOMPARE(reportBt->text(), QStringLiteral("Report"));
    QVERIFY(okBt->isEnabled() && reportBt->isHidden());
    QCOMPARE(okBt->property("common_bt_style1"), expected.style);
    QCOMPARE(reportBt->property("common_bt_style2"), expected.style);
}

void PagesTest::followsEverySelection()
{
    QFETCH(int, number);
    const PageCase expected = pageCases().at(number);
    const std::unique_ptr<QWidget> page(expected.make());
    page->show();
    auto *all = page->findChild<QCheckBox *>(QStringLiteral("allParams"));
    const auto *okBt = page->findChild<QPushButton *>(QStringLiteral("okBt"));
    const auto isShown = [&page](const char *panel) {
        return page->findChild<QWidget *>(QLatin1String(panel))->isVisibleTo(page.get());
    };
    const auto box = [&](int i) { return page->findChild<QCheckBox *>(QLatin1String(expected.boxes.at(i).name)); };
    const int everything = (1 << expected.boxes.size()) - 1;
    const auto followed = [&](int selection) {
        const Qt::CheckState state = selection == 0          ? Qt::Unchecked
                                   : selection == everything ? Qt::Checked
                                                             : Qt::PartiallyChecked;
        bool isRight = all->checkState() == state && okBt->isEnabled() == (selection != 0);
        for (int i = 0; i < expected.boxes.size(); ++i)
            for (const char *panel : expected.boxes.at(i).panels)
                isRight = isRight && isShown(panel) == ((selection & (1 << i)) != 0);
        for (const char *panel : expected.followers)
            isRight = isRight && isShown(panel) == (selection != 0);
        return isRight;
    };

    for (int selection = everything; selection >= 0; --selection) {
        for (int i = 0; i < expected.boxes.size(); ++i)
            tick(box(i), (selection & (1 << i)) != 0);
        QVERIFY2(followed(selection), qPrintable(QString::number(selection)));
    }
    // The "All" box goes to all ticked, from none and from some.
    all->click();
    QVERIFY(followed(everything));
    box(0)->click();
    if (everything != 1) {
        all->click();
        QVERIFY(followed(everything));
    }
    tick(all, false);
    QVERIFY(followed(0));
}

/// Nothing is cut off: what does not fit is reached by scrolling.
void PagesTest::scrollsInANarrowWindow()
{
    QFETCH(int, number);
    const std::unique_ptr<QWidget> page(pageCases().at(number).make());
    for (const QSize &size : {QSize(700, 800), QSize(page->minimumSizeHint().width(), 320)}) {
        page->resize(size);
        page->show();
        QCoreApplication::processEvents();
        const auto *area = page->findChild<QScrollArea *>(QStringLiteral("valuesArea"));
        // Beside the other columns of a form that is 1500 pixels wide nothing needs to be scrolled sideways.
        QVERIFY2(size.width() < 700 || area->widget()->width() <= area->viewport()->width(),
                 qPrintable(QString::number(area->widget()->width())));
        const auto editors = area->widget()->findChildren<QWidget *>();
        for (const QWidget *editor : editors) {
            if (!editor->isVisible())
                continue;
            QVERIFY2(editor->width() >= qMin(editor->minimumSizeHint().width(), editor->maximumWidth()),
                     qPrintable(editor->objectName()));
            const QPoint end = editor->mapTo(area->widget(), editor->rect().bottomRight());
            QVERIFY2(area->widget()->rect().contains(end), qPrintable(editor->objectName()));
        }
    }
}

void PagesTest::videoPanelsDifferByStream()
{
    VideoParamsPanel main(VideoParamsPanel::MainStream);
    VideoParamsPanel sub(VideoParamsPanel::SubStream);
    const auto editor = [](const QWidget &panel, const char *name) {
        return describe(panel.findChild<QWidget *>(QLatin1String(name)));
    };
    const QString small = QStringLiteral("1280*960, 1280*720, 960*540, 768*432, 720*576, 720*480, 704*576, 640*480, "
                                         "352*288, 368*208");
    QCOMPARE(editor(main, "resolution"), QStringLiteral("combo 2: 2560*1440, 2304*1296, 1920*1080, ") + small);
    QCOMPARE(editor(sub, "resolution"), QStringLiteral("combo 6: ") + small);
    QCOMPARE(editor(main, "encodingFormat"), QStringLiteral("combo 0: H264=h264, H265=h265"));
    QCOMPARE(editor(main, "frameRate"), QStringLiteral("combo 7: 10, 15, 20, 21, 22, 23, 24, 25, 30"));
    QCOMPARE(editor(main, "bitRateMode"), QStringLiteral("combo 0: Variable Bitrate=vbr, Fixed Bitrate=cbr"));
    QCOMPARE(editor(main, "bitRateStrategy"),
             QStringLiteral("combo 2: Best Image Quality=#100, Image Quality Priority=#80, Balance Mode=#60, Storage "
                            "Priority=#40, Optimal Storage=#20"));
    QCOMPARE(editor(main, "videoQuality"), QStringLiteral("spin 1024 kbps from 10 to 10240 step 1"));
    QCOMPARE(main.findChild<QLabel *>(QStringLiteral("title"))->text(), QStringLiteral("HD Stream"));
    QCOMPARE(sub.findChild<QLabel *>(QStringLiteral("title"))->text(), QStringLiteral("SD Stream"));

    // Packed from the top left, in the order of the fields, whether the panel is on the screen or not.
    const auto *grid = main.findChild<QGridLayout *>(QStringLiteral("gridLayout"));
    const auto packed = [grid] {
        QStringList cells;
        for (int place = 0; place < 6; ++place)
            if (QLayoutItem *item = grid->itemAtPosition(place / 2, place % 2))
                cells.append(item->widget()->objectName());
        return cells.join(QLatin1Char(' '));
    };
    main.setParamsMask(VideoParamsPanel::BitRate);
    QCOMPARE(packed(), QStringLiteral("bitRateModeWt bitRateStrategyWt videoQualityWt"));
    main.setParamsMask(VideoParamsPanel::Resolution | VideoParamsPanel::BitRate);
    QCOMPARE(packed(), QStringLiteral("resolutionWt bitRateModeWt bitRateStrategyWt videoQualityWt"));
    QCOMPARE(
        main.getParams(),
        QJsonDocument::fromJson(R"({"width": 1920, "height": 1080, "rcMode": "vbr", "quality": 60, "bitRate": 1024})")
            .object());
    main.setParamsMask(0);
    QVERIFY(main.isHidden() && main.getParams().isEmpty());
}

void PagesTest::videoStreamsAreASecondSelection()
{
    VideoParamsCfgPage page;
    page.show();
    const auto box = [&page](const char *name) { return page.findChild<QCheckBox *>(QLatin1String(name)); };
    const auto *okBt = page.findChild<QPushButton *>(QStringLiteral("okBt"));
    const auto panels = page.findChildren<VideoParamsPanel *>();
    const auto *smartEncoding = page.findChild<QWidget *>(QStringLiteral("smartEncodingPanel"));
    const auto shown = [&] {
        return QList<bool>{panels.at(0)->isVisible(), panels.at(1)->isVisible(), smartEncoding->isVisible()};
    };
    const auto *stack = page.findChild<QVBoxLayout *>(QStringLiteral("paramsPanelsLayout"));
    QCOMPARE(stack->indexOf(panels.at(0)), 1);
    QCOMPARE(stack->indexOf(panels.at(1)), 2);
    QCOMPARE(shown(), (QList<bool>{true, true, true}));

    box("HDStream")->click();
    QCOMPARE(box("allStreams")->checkState(), Qt::PartiallyChecked);
    QCOMPARE(shown(), (QList<bool>{false, true, false}));
    box("SDStream")->click();
    QCOMPARE(box("allStreams")->checkState(), Qt::Unchecked);
    QVERIFY(!okBt->isEnabled());
    box("allStreams")->click();
    QCOMPARE(box("allStreams")->checkState(), Qt::Checked);
    QVERIFY(okBt->isEnabled());
    for (const char *name : {"encodingFormat", "resolution", "frameRate", "bitRate"})
        box(name)->click();
    QCOMPARE(shown(), (QList<bool>{false, false, true}));
    QVERIFY(okBt->isEnabled());
}

void PagesTest::smartEncodingStaysInLine()
{
    VideoParamsCfgPage page;
    page.resize(900, 800);
    page.show();
    auto *panel = page.findChild<VideoParamsPanel *>();
    const QSignalSpy reports(panel, &VideoParamsPanel::signalAlignmentGlobalPosX);
    const auto *smart = page.findChild<QWidget *>(QStringLiteral("smartEncodingCtrl"));
    const auto x = [&page](const char *name) {
        const auto *widget = page.findChild<VideoParamsPanel *>()->findChild<QWidget *>(QLatin1String(name));
        return widget->mapToGlobal(QPoint()).x();
    };
    QTRY_COMPARE(reports.count(), 1);
    page.hide();
    page.show();
    QTest::qWait(30);
    QCOMPARE(reports.count(), 1); // only the first show reports

    const auto isInLine = [&](const char *first) { return smart->mapToGlobal(QPoint()).x() == x(first); };
    QVERIFY(isInLine("encodingFormat"));
    const auto box = [&page](const char *name) { return page.findChild<QCheckBox *>(QLatin1String(name)); };
    for (int i = 0; i < 25; ++i) // faster than the reports come
        box("encodingFormat")->click();
    QTRY_VERIFY(isInLine("resolution"));
    box("resolution")->click();
    box("frameRate")->click();
    QTRY_VERIFY(isInLine("bitRateMode"));
    QVERIFY(page.findChild<QLayout *>(QStringLiteral("smartEncodingPanelLayout"))->spacing() >= 0);
    QTRY_VERIFY(reports.count() >= 27);
    box("bitRate")->click(); // nothing at (0,0) is left to report
    const int before = reports.count();
    QTest::qWait(30);
    QCOMPARE(reports.count(), before);
}

ORDA_TEST_MAIN(PagesTest)
#include "pages_test.moc"
