#include "support/Contrast.h"
#include "support/FamilyTable.h"
#include "support/FormFixture.h"
#include "support/OrdaTest.h"

#include <orda_base/Theme.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QRegularExpression>

using orda_base::Theme;

/// The theme, light and dark, on all pages: whether its texts can be read.
class ThemeTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void followsThePalette()
    {
        const auto isDark = [] { return QApplication::palette().color(QPalette::Window).lightness() < 128; };
        QApplication::setPalette(QPalette(Qt::black));
        const auto areColoursValid = [] { // Qt skips a rule without a word when they are not
            auto found = QRegularExpression("[: ](#[^;{ ]*);").globalMatch(qApp->styleSheet());
            bool areValid = found.hasNext();
            while (found.hasNext())
                areValid = QColor::isValidColor(found.next().captured(1)) && areValid;
            return areValid;
        };
        Theme::apply(*qApp);
        QVERIFY(isDark() && areColoursValid());
        QApplication::setPalette(QPalette(Qt::lightGray));
        Theme::apply(*qApp);
        QVERIFY(!isDark() && areColoursValid());
    }

    void dropDownsOpenWhole()
    {
        Theme::apply(*qApp, Theme::Light);
        const FormFixture f(0, silent);
        f.form->move(0, 0);
        const auto combos = f.form->findChildren<QComboBox *>();
        int looked = 0;
        for (QComboBox *combo : combos) {
            if (!combo->isVisible())
                continue;
            ++looked;
            combo->showPopup();
            QApplication::processEvents();
            const auto *view = combo->view();
            const auto rowRect = [&](int row) { return view->visualRect(view->model()->index(row, 0)); };
            QVERIFY2(view->viewport()->rect().contains(rowRect(0) | rowRect(combo->count() - 1)),
                     qPrintable(combo->objectName()));
            const auto around = view->parentWidget()->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
            for (const QWidget *widget : around) // a scroll arrow covers a row
                QVERIFY2(widget == view || !widget->isVisible(), qPrintable(combo->objectName()));
            combo->hidePopup();
        }
        QVERIFY(looked > 5);
    }

    void textsCanBeRead_data()
    {
        columns<int, bool>({"scheme", "enabled"});
        row("light", int(Theme::Light), true);
        row("light, disabled", int(Theme::Light), false);
        row("dark", int(Theme::Dark), true);
        row("dark, disabled", int(Theme::Dark), false);
    }

    void textsCanBeRead()
    {
        QFETCH(int, scheme);
        QFETCH(bool, enabled);
        Theme::apply(*qApp, Theme::Scheme(scheme));
        const FormFixture f(3, silent);
        f.form->resize(1500, 850);
        f.table()->selectRow(1);
        const QList<FamilyRow> families = offeredFamilies();
        for (const FamilyRow &family : families) {
            f.form->setEnabled(true);
            f.form->findChild<QAbstractButton *>(family.navigationKey)->click();
            f.form->setEnabled(enabled);
            QApplication::processEvents();
            const QImage picture = pictureOf(f.form);
            int looked = 0;
            const auto fault = [&](const QWidget *widget, const QRect &rect) {
                ++looked;
                const double found = contrastIn(picture, {widget->mapTo(f.form, rect.topLeft()), rect.size()});
                return found >= readableContrast ? QString() : QString("%1: %2").arg(widget->objectName()).arg(found);
            };
            const auto widgets = f.form->findChildren<QWidget *>();
            for (const QWidget *widget : widgets)
                if (const QRect rect = textRect(widget); !rect.isEmpty() && widget->isVisible())
                    QCOMPARE(fault(widget, rect), QString());
            for (int row = 0; row < 3; ++row)
                QCOMPARE(fault(f.table()->viewport(), f.table()->visualItemRect(f.table()->item(row, 1))), QString());
            QVERIFY(looked > 20);
        }
    }
};

ORDA_TEST_MAIN(ThemeTest)

#include "theme_test.moc"
