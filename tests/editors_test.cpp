#include "support/OrdaTest.h"

#include <audio/AudioParamsCfgPage.h>
#include <platform/Platform9100ParamsCfgPage.h>
#include <platform/PlatformParamsCfgPage.h>
#include <run/SwitchImages.h>
#include <video/VideoParamsPanel.h>

#include <QLineEdit>
#include <QPushButton>
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
        columns<QString, QString, int>({"name", "typed", "sent"}); // over "50"; < deletes
        const std::pair<const char *, int> cases[]{{"<<", 0},      {"<<<7", 7},           {"<<8<", 0},
                                                   {"<<150", 100}, {"<<100<<<1000", 100}, {"<<007", 7},
                                                   {"<<-5", 5},    {"<<3x.,4", 34}};
        for (const char *name : {"audioInVolume", "alarmOutVolume"})
            for (const auto &[typed, sent] : cases)
                row(qPrintable(QString(name) + ", " + typed), name, typed, sent);
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

    void addressLinesFollowTheWindow()
    {
        PlatformParamsCfgPage page;
        Platform9100ParamsCfgPage page9100;
        const QList<QLineEdit *> lines =
            page.findChildren<QLineEdit *>("serviceAddressParam")
            + page9100.findChildren<QLineEdit *>(QRegularExpression("^(online|bussiness)Url$"));
        QCOMPARE(lines.size(), 3);
        for (QLineEdit *line : lines) {
            QWidget *window = line->window();
            window->show();
            window->resize(500, 600);
            QCoreApplication::processEvents();
            const int narrow = line->width();
            window->resize(900, 600);
            QCoreApplication::processEvents();
            QCOMPARE(line->width(), narrow + 400);
        }
    }
};

ORDA_TEST_MAIN(EditorsTest)

#include "editors_test.moc"
