#include "support/FamilyTable.h"
#include "support/OrdaTest.h"

#include <audio/AudioParamsCfgPage.h>
#include <families/Families.h>
#include <run/SwitchImages.h>
#include <shell/FamilyPages.h>
#include <video/VideoParamsCfgPage.h>
#include <video/VideoParamsCfgTask.h>
#include <video/VideoParamsPanel.h>

#include <orda_base/Theme.h>

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSlider>
#include <QSpinBox>

#include <memory>

using namespace orda_batchCfg;

namespace {

/// Of each combo box: its name, what is chosen at first, each text with the value that is sent.
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

/// Clicks the box unless it is ticked as wanted already.
void tick(QCheckBox *box, bool wanted)
{
    if (box->isChecked() != wanted)
        box->click();
}

} // namespace

/// What every page offers, how it follows its check boxes, and that its editors show what is sent.
class PagesTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void initTestCase() { orda_base::Theme::apply(*qApp); } // the pages' sizes are those of its font

    void choicesSendTheirValues_data() { addPages(); }

    void choicesSendTheirValues()
    {
        const std::unique_ptr<QWidget> page = makePage();
        QCOMPARE(choices(*page).join('\n'), expectations().value("choices").toVariant().toStringList().join('\n'));
        QVERIFY(page->findChild<QPushButton *>("okBt")->property("common_bt_style1").toBool());
        QVERIFY(page->findChild<QPushButton *>("reportBt")->property("common_bt_style2").toBool());
    }

    void followsEverySelection_data() { addPages(); }

    void followsEverySelection()
    {
        const std::unique_ptr<QWidget> page = makePage();
        page->resize(700, 800); // beside the other columns of a form that is 1500 pixels wide
        page->show();
        QCoreApplication::processEvents();
        const auto *area = page->findChild<QScrollArea *>("valuesArea");
        QVERIFY(area->widget()->width() <= area->viewport()->width()); // nothing needs to be scrolled sideways

        auto *all = page->findChild<QCheckBox *>("allParams");
        const QJsonObject panels = expectations().value("boxes and panels").toObject();
        const QString follower = expectations().value("panel with any box").toString();
        const QStringList boxes = panels.keys();
        QVERIFY2(!boxes.isEmpty(), "families.json has no boxes");
        for (const QString &name : boxes)
            QVERIFY2(page->findChild<QCheckBox *>(name), qPrintable(name));
        const auto box = [&](int i) { return page->findChild<QCheckBox *>(boxes.at(i)); };
        const int everything = (1 << boxes.size()) - 1;
        const auto followed = [&](int selection) {
            const Qt::CheckState some = selection == 0 ? Qt::Unchecked : Qt::PartiallyChecked;
            const auto isShown = [&page](const QString &panel) {
                const auto *widget = page->findChild<QWidget *>(panel);
                return widget && widget->isVisibleTo(page.get());
            };
            bool isRight = all->checkState() == (selection == everything ? Qt::Checked : some)
                        && page->findChild<QPushButton *>("okBt")->isEnabled() == (selection != 0)
                        && (follower.isEmpty() || isShown(follower) == (selection != 0));
            for (int i = 0; i < boxes.size(); ++i) {
                const bool isSelected = (selection & (1 << i)) != 0;
                isRight = isRight && box(i)->isChecked() == isSelected;
                const QStringList theirs = panels.value(boxes.at(i)).toVariant().toStringList();
                for (const QString &panel : theirs)
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
        QCOMPARE(main.findChild<QLabel *>("title")->text(), "HD Stream");
        QCOMPARE(sub.findChild<QLabel *>("title")->text(), "SD Stream");
        // The table of keys knows each side of each resolution.
        const auto *resolutions = main.findChild<QComboBox *>("resolution");
        for (int i = 0; i < resolutions->count(); ++i)
            for (const char *side : {"width", "height"}) {
                const QVector<CfgChoice> &known = VideoParamsCfgTask::family().key(side).choices;
                const QJsonValue length = resolutions->itemText(i).section('*', *side == 'h', *side == 'h').toInt();
                QCOMPARE(std::count_if(known.begin(), known.end(), [&](auto &c) { return c.value == length; }), 1);
            }

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

    void volumesShowWhatIsSent_data()
    {
        columns<int>({"sent"}); // what is typed over "50"; < deletes
        const std::pair<const char *, int> cases[]{{"<<", 0},      {"<<<7", 7},           {"<<8<", 0},
                                                   {"<<150", 100}, {"<<100<<<1000", 100}, {"<<007", 7},
                                                   {"<<-5", 5},    {"<<3x.,4", 34}};
        for (const auto &[typed, sent] : cases)
            row(typed, sent);
    }

    void volumesShowWhatIsSent()
    {
        QFETCH(int, sent);
        AudioParamsCfgPage page;
        page.show();
        for (const char *const volume : {"audioInVolume", "alarmOutVolume"}) {
            const QString name(volume);
            auto *edit = page.findChild<QLineEdit *>(name + "Param");
            auto *slider = page.findChild<QSlider *>(name + "Slider");
            QCOMPARE(edit->text(), "50");
            const QByteArray keys(QTest::currentDataTag());
            for (const char key : keys) {
                key == '<' ? QTest::keyClick(edit, Qt::Key_Backspace) : QTest::keyClick(edit, key);
                QCOMPARE(edit->text(), QString::number(slider->value())); // at every moment: Configure may come at any
            }
            QCOMPARE(slider->value(), sent);
            slider->setValue(30);
            QCOMPARE(edit->text(), "30");
        }
    }

    void videoQualityTakesTheNearestBound_data()
    {
        columns<int>({"sent"});
        for (const char *tooSmall : {"5", "0", ""})
            row(tooSmall, 10);
        for (const char *tooLarge : {"10240", "10241", "99999", "99999999999999999999"})
            row(tooLarge, 10240);
        row("2x0-48", 2048);
    }

    void videoQualityTakesTheNearestBound()
    {
        QFETCH(int, sent);
        for (const bool isLeft : {true, false}) { // else Configure comes while the number is being typed
            VideoParamsPanel panel(VideoParamsPanel::MainStream);
            panel.show();
            QApplication::setActiveWindow(&panel);
            auto *spin = panel.findChild<QSpinBox *>("videoQuality");
            spin->setFocus();
            spin->selectAll();
            QTest::keyClick(spin, Qt::Key_Delete);
            QTest::keyClicks(spin, QTest::currentDataTag());
            if (isLeft) {
                QTest::keyClick(spin, Qt::Key_Tab);
                QCOMPARE(spin->text(), QStringLiteral("%1 kbps").arg(sent));
            }
            QCOMPARE(panel.getParams().value("bitRate").toInt(), sent);
            QCOMPARE(spin->text(), QStringLiteral("%1 kbps").arg(sent)); // shown as it is sent
        }
    }

    void switchesNeedNoImagesOfTheClient()
    {
        AudioParamsCfgPage page;
        auto *button = page.findChild<QPushButton *>(QStringLiteral("audioSwitch"));
        const auto states = [button] {
            button->setChecked(false);
            const QImage off = button->grab().toImage();
            button->setChecked(true);
            return qMakePair(off, button->grab().toImage());
        };
        const auto withImages = states(); // of orda_base, which the module's own equal
        const QString nowhere = QStringLiteral(":/nowhere/");
        button->setStyleSheet(button->styleSheet().replace(QStringLiteral(":/images/images/"), nowhere));
        QVERIFY(states() != withImages);
        completeSwitchImages(&page, nowhere);
        QVERIFY(states() == withImages);
    }

private:
    static void addPages()
    {
        columns<int>({"family"});
        for (int i = 0; i < Families::all().size(); ++i)
            row(qPrintable(Families::all().at(i).family.name), i);
    }

    /// The page of the row's family.
    static std::unique_ptr<QWidget> makePage()
    {
        QFETCH(int, family);
        return std::unique_ptr<QWidget>(createFamilyPage(Families::all().at(family)));
    }

    /// What families.json says of it.
    static QJsonObject expectations() { return expectedOf(QTest::currentDataTag()); }
};

ORDA_TEST_MAIN(PagesTest)
#include "pages_test.moc"
