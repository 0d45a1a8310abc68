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

#include <orda_base/Theme.h>

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>

#include <functional>

using namespace orda_batchCfg;

namespace {

/// A parameter of a page: its check box and what is shown while that is ticked.
struct Box
{
    QString name;
    QStringList panels;
};

struct PageCase
{
    const char *className; ///< its own object name too, behind the namespace
    std::function<QWidget *()> make;
    const char *parameters; ///< names of boxes, with panels that are called otherwise
    QStringList
        choices; ///< of each combo box: its name, what is chosen at first, each text with the value that is sent
    QString follower; ///< a panel that is shown while any parameter is ticked

    QList<Box> boxes() const
    {
        QList<Box> all;
        const QStringList words = QString(parameters).split(' ');
        for (const QString &word : words) {
            const QString panels = word.section('=', 1);
            all.append({word.section('=', 0, 0), panels.isEmpty() ? QStringList(word + "Panel") : panels.split(',')});
        }
        return all;
    }
};

template <typename Page>
QWidget *make()
{
    return new Page(nullptr);
}

QStringList choices(const QWidget &widget)
{
    QStringList all;
    const auto combos = widget.findChildren<QComboBox *>();
    for (const QComboBox *combo : combos) {
        QStringList items;
        for (int i = 0; i < combo->count(); ++i) {
            const QVariant data = combo->itemData(i);
            const QString number = data.type() == QVariant::Int ? "#" : QString();
            items.append(combo->itemText(i) + (data.isValid() ? '=' + number + data.toString() : QString()));
        }
        all.append(QString("%1 %2: %3").arg(combo->objectName()).arg(combo->currentIndex()).arg(items.join(", ")));
    }
    all.sort();
    return all;
}

QList<PageCase> pageCases()
{
    const QString positions = "Param 0: Top Left=left_top, Bottom Left=left_bottom, Top Right=right_top, "
                              "Bottom Right=right_bottom, Hide=hide";
    return {
        {"AudioParamsCfgPage",
         make<AudioParamsCfgPage>,
         "audioEnable encodingFormat audioInVolume alarmOutVolume samplingRate=samplingRatePanel,bitWidePanel",
         {"BitWideParam 0: 16bit=#16", "encodingFormatParam 0: G711U=g711u, G711A=g711a",
          "samplingRateParam 0: 8000=#8000"},
         {}},
        {"VideoParamsCfgPage",
         make<VideoParamsCfgPage>,
         "smartEncoding encodingFormat=encodingFormatWt resolution=resolutionWt frameRate=frameRateWt "
         "bitRate=bitRateModeWt,bitRateStrategyWt,videoQualityWt",
         {"smartEncodingCtrl 0: Open=open, Close=close, Auto=autoopen"},
         {}},
        {"ImageParamsCfgPage",
         make<ImageParamsCfgPage>,
         "imageFlip expertMode lightMode",
         {"expertModeParam 0: Auto=auto, Indoor=indoor, Outdoor=outdoor, Backlight=backlight",
          "imageFlipParam 0: Off=off, Horizontal=horizontal, Vertical=vertical, Rotate 180=both",
          "lightModeParam 0: Infrared=ir, White Light=white, Smart Dual Light=smart, Off=off"},
         {}},
        {"PlatformParamsCfgPage",
         make<PlatformParamsCfgPage>,
         "serviceEnable serviceAddress",
         {"serviceType 0: Public Cloud=public, Private Cloud=private"},
         "serviceTypePanel"},
        {"Platform9100ParamsCfgPage",
         make<Platform9100ParamsCfgPage>,
         "serviceEnable serviceAddress=onlineServicePanel,bussinessServicePanel",
         {},
         {}},
        {"NetworkParamsCfgPage", make<NetworkParamsCfgPage>, "compatibleEnable lockIpEnable smartOnlineEnable", {}, {}},
        {"OSDParamsCfgPage",
         make<OSDParamsCfgPage>,
         "osdVisible timeFormat timePosition name namePosition largeFont",
         {"namePosition" + positions, "timeFormatParam 0: YYYY-MM-DD, MM/DD/YYYY, DD/MM/YYYY",
          "timePosition" + positions},
         {}},
        {"OnvifParamsCfgPage", make<OnvifParamsCfgPage>, "compatibleEnable", {}, {}},
    };
}

/// Clicks the box unless it is ticked as wanted already.
void tick(QCheckBox *box, bool wanted)
{
    if (box->isChecked() != wanted)
        box->click();
}

} // namespace

Q_DECLARE_METATYPE(PageCase)

/// What every page offers and how it follows its check boxes.
class PagesTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void initTestCase() { orda_base::Theme::apply(*qApp); } // the pages' sizes are those of its font

    void choicesSendTheirValues_data() { addPages(); }

    void choicesSendTheirValues()
    {
        QFETCH(PageCase, expected);
        const std::unique_ptr<QWidget> page(expected.make());
        QCOMPARE(page->objectName(), QString("orda_batchCfg__") + expected.className);
        QStringList found = choices(*page);
        const auto streams = page->findChildren<VideoParamsPanel *>(); // see videoPanelsDifferByStream
        for (const VideoParamsPanel *stream : streams) {
            const QStringList theirs = choices(*stream);
            for (const QString &choice : theirs)
                found.removeOne(choice);
        }
        QCOMPARE(found, expected.choices);
        QVERIFY(page->findChild<QPushButton *>("okBt")->property("common_bt_style1").toBool());
        QVERIFY(page->findChild<QPushButton *>("reportBt")->property("common_bt_style2").toBool());
    }

    void followsEverySelection_data() { addPages(); }

    void followsEverySelection()
    {
        QFETCH(PageCase, expected);
        const std::unique_ptr<QWidget> page(expected.make());
        page->resize(700, 800); // beside the other columns of a form that is 1500 pixels wide
        page->show();
        QCoreApplication::processEvents();
        const auto *area = page->findChild<QScrollArea *>("valuesArea");
        QVERIFY(area->widget()->width() <= area->viewport()->width()); // nothing needs to be scrolled sideways

        auto *all = page->findChild<QCheckBox *>("allParams");
        const QList<Box> boxes = expected.boxes();
        const auto box = [&](int i) { return page->findChild<QCheckBox *>(boxes.at(i).name); };
        const int everything = (1 << boxes.size()) - 1;
        const auto followed = [&](int selection) {
            const Qt::CheckState some = selection == 0 ? Qt::Unchecked : Qt::PartiallyChecked;
            const auto isShown = [&page](const QString &panel) {
                return page->findChild<QWidget *>(panel)->isVisibleTo(page.get());
            };
            bool isRight = all->checkState() == (selection == everything ? Qt::Checked : some)
                        && page->findChild<QPushButton *>("okBt")->isEnabled() == (selection != 0)
                        && (expected.follower.isEmpty() || isShown(expected.follower) == (selection != 0));
            for (int i = 0; i < boxes.size(); ++i) {
                const bool isSelected = (selection & (1 << i)) != 0;
                isRight = isRight && box(i)->isChecked() == isSelected;
                for (const QString &panel : boxes.at(i).panels)
                    isRight = isRight && isShown(panel) == isSelected;
            }
            return isRight;
        };

        QVERIFY(followed(everything));
        for (int selection = everything; selection >= 0; --selection) {
            for (int i = 0; i < boxes.size(); ++i)
                tick(box(i), (selection & (1 << i)) != 0);
            QVERIFY2(followed(selection), qPrintable(QString::number(selection)));
        }
        // The "All" box goes to all ticked, from none and from some.
        all->click();
        QVERIFY(followed(everything));
        box(0)->click();
        box(0)->click(); // the last one that was missing
        QVERIFY(followed(everything));
        if (everything != 1) {
            box(0)->click();
            all->click();
            QVERIFY(followed(everything));
        }
        tick(all, false);
        QVERIFY(followed(0));
    }

    void videoPanelsDifferByStream()
    {
        VideoParamsPanel main(VideoParamsPanel::MainStream);
        VideoParamsPanel sub(VideoParamsPanel::SubStream);
        const QString small = "1280*960, 1280*720, 960*540, 768*432, 720*576, 720*480, 704*576, 640*480, "
                              "352*288, 368*208";
        QStringList expected{
            "bitRateMode 0: Variable Bitrate=vbr, Fixed Bitrate=cbr",
            "bitRateStrategy 2: Best Image Quality=#100, Image Quality Priority=#80, Balance Mode=#60, "
            "Storage Priority=#40, Optimal Storage=#20",
            "encodingFormat 0: H264=h264, H265=h265", "frameRate 7: 10, 15, 20, 21, 22, 23, 24, 25, 30",
            "resolution 2: 2560*1440, 2304*1296, 1920*1080, " + small};
        QCOMPARE(choices(main), expected);
        expected.last() = "resolution 6: " + small;
        QCOMPARE(choices(sub), expected);
        QCOMPARE(main.findChild<QLabel *>("title")->text(), "HD Stream");
        QCOMPARE(sub.findChild<QLabel *>("title")->text(), "SD Stream");

        // Packed from the top left, in the order of the fields, whether the panel is on the screen or not.
        const auto *grid = main.findChild<QGridLayout *>("gridLayout");
        const auto packed = [grid] {
            QStringList cells;
            for (int place = 0; place < 6; ++place)
                if (QLayoutItem *item = grid->itemAtPosition(place / 2, place % 2))
                    cells.append(item->widget()->objectName());
            return cells.join(' ');
        };
        main.setParamsMask(VideoParamsPanel::BitRate);
        QCOMPARE(packed(), "bitRateModeWt bitRateStrategyWt videoQualityWt");
        main.setParamsMask(VideoParamsPanel::Resolution | VideoParamsPanel::BitRate);
        QCOMPARE(packed(), "resolutionWt bitRateModeWt bitRateStrategyWt videoQualityWt");
        QCOMPARE(
            main.getParams(),
            QJsonObject({{"width", 1920}, {"height", 1080}, {"rcMode", "vbr"}, {"quality", 60}, {"bitRate", 1024}}));
        main.setParamsMask(0);
        QVERIFY(main.isHidden() && main.getParams().isEmpty());
    }

    void videoStreamsAreASecondSelection()
    {
        VideoParamsCfgPage page;
        page.show();
        const auto box = [&page](const char *name) { return page.findChild<QCheckBox *>(name); };
        const auto *okBt = page.findChild<QPushButton *>("okBt");
        const auto panels = page.findChildren<VideoParamsPanel *>();
        const auto *smartEncoding = page.findChild<QWidget *>("smartEncodingPanel");
        const auto shown = [&] {
            return QList<bool>{panels.at(0)->isVisible(), panels.at(1)->isVisible(), smartEncoding->isVisible()};
        };
        const auto *stack = page.findChild<QVBoxLayout *>("paramsPanelsLayout");
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

    void smartEncodingStaysInLine()
    {
        VideoParamsCfgPage page;
        page.resize(900, 800);
        page.show();
        auto *panel = page.findChild<VideoParamsPanel *>();
        const QSignalSpy reports(panel, &VideoParamsPanel::signalAlignmentGlobalPosX);
        const auto *smart = page.findChild<QWidget *>("smartEncodingCtrl");
        QTRY_COMPARE(reports.count(), 1);
        page.hide();
        page.show();
        QTest::qWait(30);
        QCOMPARE(reports.count(), 1); // only the first show reports

        const auto isInLine = [&](const char *first) {
            return smart->mapToGlobal(QPoint()).x() == panel->findChild<QWidget *>(first)->mapToGlobal(QPoint()).x();
        };
        QVERIFY(isInLine("encodingFormat"));
        const auto box = [&page](const char *name) { return page.findChild<QCheckBox *>(name); };
        auto *layout = page.findChild<QLayout *>("smartEncodingPanelLayout");
        layout->setSpacing(40); // out of line, as with captions of another width
        QTRY_VERIFY(!isInLine("encodingFormat"));
        for (int i = 0; i < 25; ++i) // faster than the reports come
            box("encodingFormat")->click();
        QTRY_VERIFY(isInLine("resolution"));
        box("resolution")->click();
        box("frameRate")->click();
        QTRY_VERIFY(isInLine("bitRateMode"));
        QVERIFY(layout->spacing() >= 0);
        QTRY_VERIFY(reports.count() >= 27);
        box("bitRate")->click(); // nothing at (0,0) is left to report
        const int before = reports.count();
        QTest::qWait(30);
        QCOMPARE(reports.count(), before);
    }

private:
    static void addPages()
    {
        columns<PageCase>({"expected"});
        const QList<PageCase> cases = pageCases();
        for (const PageCase &each : cases)
            row(each.className, each);
    }
};

ORDA_TEST_MAIN(PagesTest)
#include "pages_test.moc"
