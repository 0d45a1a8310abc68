#include "client/press/PressQuestion.h"

#include "client/common/Widgets.h"
#include "client/form/FormTicks.h"
#include "client/form/ParameterTexts.h"
#include "client/press/PressTexts.h"

#include <families/Families.h>

#include <orda_base/ReturnPressesButton.h>
#include <vms_client_sdk/ForeignText.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

namespace orda_client {

namespace {

constexpr int margin = 24;
constexpr int leastWidth = 480;
constexpr int mostLines = 12;
constexpr int edge = 24; // of the list's frame and margins, above and below

} // namespace

PressQuestion::PressQuestion(const QWidget *form, const Asked &asked, QWidget *parent)
    : QDialog(parent)
    , m_layout(new QVBoxLayout(this))
{
    setObjectName(QStringLiteral("pressQuestion"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Configure devices"));
    setMinimumWidth(leastWidth);
    m_layout->setContentsMargins(margin, margin, margin, margin);
    m_layout->setSpacing(margin / 2);
    m_layout->setSizeConstraint(QLayout::SetFixedSize); // which leaves room for lines that are wrapped

    auto *count = new QLabel(tr("Configure %Ln device(s)?", nullptr, asked.run.devIds.size()), this);
    count->setObjectName(QStringLiteral("questionCount"));
    count->setProperty("dialog_caption", true);
    m_layout->addWidget(count);
    if (asked.isChanged)
        addText(tr("What would be written is no longer what you were asked about."), "questionChanged");
    const QString hidden = PressTexts::hidden(FormTicks::of(form).hidden);
    const QString kinds = PressTexts::kinds(asked.run.devIds);
    addText(hidden.isEmpty() ? kinds : tr("%1 (%2)", "devices, remark").arg(kinds, hidden), "questionDevices");
    if (!asked.complaints.isEmpty()) // before the values, which all may be ticked because all are at first
        addText(tr("Looks wrong:") + QLatin1Char('\n') + asked.complaints.join(QLatin1Char('\n')),
                "questionComplaints");
    addValues(form, asked.run);
    addButtons();

    QStringList texts;
    const auto labels = findChildren<QLabel *>();
    for (const QLabel *label : labels)
        if (!label->buddy()) // whose control has it as its name
            texts.append(label->text());
    setAccessibleDescription(texts.join(QLatin1Char('\n')));
}

void PressQuestion::addText(const QString &text, const char *objectName)
{
    auto *label = new QLabel(vms_sdk::displayText(text, QStringLiteral("\n")), this);
    label->setObjectName(QLatin1String(objectName));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    m_layout->addWidget(label);
}

void PressQuestion::addValues(const QWidget *form, const PressedRun &run)
{
    const orda_batchCfg::CfgFamily *family = orda_batchCfg::Families::find(run.family);
    QStringList values = ParameterTexts(form, *family).list(run.values);
    for (QString &value : values)
        value = vms_sdk::displayText(value);
    if (values.isEmpty())
        values.append(tr("No parameter: devices would be written what they hold."));
    auto *list = new QPlainTextEdit(values.join(QLatin1Char('\n')), this);
    list->setObjectName(QStringLiteral("questionValues"));
    list->setReadOnly(true);
    list->setTabChangesFocus(true);
    list->ensurePolished(); // with the font that it will have
    const int lines = std::min(values.size(), mostLines);
    list->setFixedHeight(lines * list->fontMetrics().lineSpacing() + edge);
    auto *caption = new QLabel(tr("&Values that would be written:"), this);
    caption->setBuddy(list);
    m_layout->addWidget(caption);
    m_layout->addWidget(list);
}

QPushButton *PressQuestion::makeButton(const QString &text, const char *objectName, const char *style)
{
    auto *button = styledButton(text, objectName, style); // Return must not configure
    button->setParent(this); // so that it can have the focus already
    new orda_base::ReturnPressesButton(button); // a key that is still held from the press before is no answer
    return button;
}

void PressQuestion::addButtons()
{
    QPushButton *preview = makeButton(tr("&Preview…"), "questionPreview", "common_bt_style2");
    QPushButton *configure = makeButton(tr("C&onfigure"), "questionConfigure", "common_bt_style1");
    QPushButton *cancel = makeButton(tr("&Cancel"), "questionCancel", "common_bt_style2");
    connect(preview, &QPushButton::clicked, this, [this] {
        reject();
        emit signalPreview();
    });
    connect(configure, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    cancel->setFocus();
    // The second click of a double click on the page's Configure may land here.
    configure->setEnabled(false);
    QTimer::singleShot(QApplication::doubleClickInterval(), configure, [configure] { configure->setEnabled(true); });

    auto *row = new QHBoxLayout;
    row->addWidget(preview);
    row->addStretch();
    row->addWidget(configure);
    row->addWidget(cancel);
    m_layout->addSpacing(margin / 2);
    m_layout->addLayout(row);
}

} // namespace orda_client
