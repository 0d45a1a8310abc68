#include "support/OrdaTest.h"

#include <audio/AudioParamsCfgPage.h>
#include <platform/Platform9100ParamsCfgPage.h>
#include <platform/PlatformParamsCfgPage.h>
#include <video/VideoParamsPanel.h>

#include <QLineEdit>
#include <QSlider>
#include <QSpinBox>

#include <memory>

using namespace orda_batchCfg;

/// What can be typed into the pages' editors, and that they show what is sent.
class EditorsTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void volumesShowWhatIsSent_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("typed"); // over "50"; < deletes
        QTest::addColumn<int>("sent");
        for (const char *name : {"audioInVolume", "alarmOutVolume"}) {
            const auto row = [name](const char *typed, int sent) {
                QTest::addRow("%s, %s", name, typed) << QString::fromLatin1(name) << QString::fromLatin1(typed) << sent;
            };
            row("<<", 0);
            row("<<<7", 7);
            row("<<8<", 0);
            row("<<150", 100);
            row("<<100<<<1000", 100);
            row("<<007", 7);
            row("<<-5", 5);
            row("<<3x.,4", 34);
        }
    }

    void volumesShowWhatIsSent()
    {
        QFETCH(QString, name);
        QFETCH(QString, typed);
        QFETCH(int, sent);
        AudioParamsCfgPage page;
        page.show();
        auto *edit = page.findChild<QLineEdit *>(name + "Param");
        auto *slider = page.findChild<QSlider *>(name + "Slider");
        QCOMPARE(edit->text(), "50");
        for (const QChar key : qAsConst(typed)) {
            if (key == '<')
                QTest::keyClick(edit, Qt::Key_Backspace);
            else
                QTest::keyClick(edit, key.toLatin1());
            QCOMPARE(edit->text(), QString::number(slider->value())); // at every moment: Configure may come at any
        }
        QCOMPARE(slider->value(), sent);
        slider->setValue(30);
        QCOMPARE(edit->text(), "30");
    }

    void videoQualityTakesTheNearestBound_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("sent");
        for (const auto &[typed, sent] :
             std::initializer_list<std::pair<const char *, int>>{{"5", 10},
                                                                 {"0", 10},
                                                                 {"", 10},
                                                                 {"10240", 10240},
                                                                 {"10241", 10240},
                                                                 {"99999", 10240},
                                                                 {"99999999999999999999", 10240},
                                                                 {"2x0-48", 2048}})
            QTest::addRow("\"%s\"", typed) << QString::fromLatin1(typed) << sent;
    }

    void videoQualityTakesTheNearestBound()
    {
        QFETCH(QString, typed);
        QFETCH(int, sent);
        for (const bool isLeft : {true, false}) { // else Configure comes while the number is being typed
            VideoParamsPanel panel(VideoParamsPanel::MainStream);
            panel.show();
            QApplication::setActiveWindow(&panel);
            auto *spin = panel.findChild<QSpinBox *>("videoQuality");
            spin->setFocus();
            spin->selectAll();
            QTest::keyClick(spin, Qt::Key_Delete);
            QTest::keyClicks(spin, typed);
            if (isLeft) {
                QTest::keyClick(spin, Qt::Key_Tab);
                QCOMPARE(spin->text(), QStringLiteral("%1 kbps").arg(sent));
            }
            QCOMPARE(panel.getParams().value("bitRate").toInt(), sent);
            QCOMPARE(spin->text(), QStringLiteral("%1 kbps").arg(sent)); // shown as it is sent
        }
    }

    void addressLinesFollowTheWindow()
    {
        const std::unique_ptr<QWidget> pages[]{std::make_unique<PlatformParamsCfgPage>(),
                                               std::make_unique<Platform9100ParamsCfgPage>()};
        for (const auto &page : pages) {
            page->show();
            for (const char *name : {"serviceAddressParam", "onlineUrl", "bussinessUrl"}) {
                const auto *line = page->findChild<QLineEdit *>(name);
                if (!line)
                    continue;
                page->resize(500, 600);
                QCoreApplication::processEvents();
                const int narrow = line->width();
                page->resize(900, 600);
                QCoreApplication::processEvents();
                QCOMPARE(line->width(), narrow + 400);
            }
        }
    }
};

ORDA_TEST_MAIN(EditorsTest)

#include "editors_test.moc"
