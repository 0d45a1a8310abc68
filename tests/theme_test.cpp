#include "support/FamilyTable.h"
#include "support/FormFixture.h"
#include "support/OrdaTest.h"

#include <orda_base/NavigationButton.h>
#include <orda_base/Theme.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QRegularExpression>
#include <QStyleOptionButton>

#include <cmath>

using orda_base::Theme;

namespace {

constexpr double wanted = 4.5; // WCAG 2.1, 1.4.3, for text of ordinary size
constexpr int scale = 3; // so that the strokes of a letter are wider than their smooth edges
constexpr int border = 3;

double luminance(QRgb colour)
{
    const auto linear = [](int value) {
        const double part = value / 255.0;
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) + 0.0722 * linear(qBlue(colour));
}

double contrast(QRgb one, QRgb other)
{
    const double first = luminance(one) + 0.05;
    const double second = luminance(other) + 0.05;
    return std::max(first / second, second / first);
}

QImage pictureOf(QWidget *window)
{
    QImage image(window->size() * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    window->render(&image);
    return image;
}

/// Of what is drawn in a part of a picture: the colour that most of it has, against the one that differs most.
double contrastIn(const QImage &picture, const QRect &rect)
{
    const QImage image = picture.copy(rect.x() * scale, rect.y() * scale, rect.width() * scale, rect.height() * scale);
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y)];
    const QRgb ground = counts.key(*std::max_element(counts.cbegin(), counts.cend()));
    double best = 1;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it)
        best = std::max(best, contrast(it.key(), ground));
    return best;
}

/// Where a widget's text stands, without frame, mark and icon; empty when it shows none.
QRect textRect(const QWidget *widget)
{
    if (const auto *box = qobject_cast<const QCheckBox *>(widget)) {
        QStyleOptionButton option;
        option.initFrom(box);
        return box->style()->subElementRect(QStyle::SE_CheckBoxContents, &option, box);
    }
    const auto *button = qobject_cast<const QAbstractButton *>(widget);
    const auto *label = qobject_cast<const QLabel *>(widget);
    const auto *combo = qobject_cast<const QComboBox *>(widget);
    const auto *edit = qobject_cast<const QLineEdit *>(widget);
    if (qobject_cast<const orda_base::NavigationButton *>(button))
        return widget->rect().adjusted(48, border, -36, -border);
    const bool hasText = button ? !button->text().isEmpty()
                       : label  ? !label->text().isEmpty()
                       : combo  ? combo->count() > 0
                                : edit && !(edit->text() + edit->placeholderText()).isEmpty();
    return hasText ? widget->rect().adjusted(border, border, combo || edit ? -30 : -border, -border) : QRect();
}

} // namespace

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
                return found >= wanted ? QString() : QString("%1: %2").arg(widget->objectName()).arg(found);
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
