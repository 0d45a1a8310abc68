#include "support/Contrast.h"

#include <orda_base/NavigationButton.h>

#include <QCheckBox>
#include <QComboBox>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QStyleOptionButton>

#include <algorithm>
#include <cmath>

namespace {

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

} // namespace

QImage pictureOf(QWidget *window)
{
    QImage image(window->size() * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    window->render(&image);
    return image;
}

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
