#include "client/common/ElidedLabel.h"

#include <vms_client_sdk/ForeignText.h>

#include <QEvent>
#include <QTextDocument>

namespace orda_client {

namespace {

constexpr int leastCharacters = 12;

} // namespace

ElidedLabel::ElidedLabel(const QString &objectName, QWidget *parent)
    : QLabel(parent)
{
    setObjectName(objectName);
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void ElidedLabel::setWholeText(const QString &text)
{
    const QString shown = vms_sdk::displayText(text);
    if (shown == m_whole)
        return;
    m_whole = shown;
    elide();
}

void ElidedLabel::elide()
{
    const QString fitting = fontMetrics().elidedText(m_whole, Qt::ElideRight, contentsRect().width());
    setText(fitting);
    setToolTip(fitting == m_whole ? QString() : Qt::convertFromPlainText(m_whole, Qt::WhiteSpaceNormal));
}

QSize ElidedLabel::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(m_whole) + 1, fontMetrics().height()};
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {leastCharacters * fontMetrics().averageCharWidth(), fontMetrics().height()};
}

void ElidedLabel::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    elide();
}

void ElidedLabel::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        elide();
}

} // namespace orda_client
