#include "client/devices/TickTheseDialog.h"

#include "client/common/OpeningSize.h"
#include "client/common/Widgets.h"
#include "client/devices/DeviceStates.h"
#include "client/devices/TickNote.h"
#include "client/form/FormTicks.h"

#include <orda_base/ReturnPressesButton.h>
#include <orda_data/DevsMgrData.h>
#include <vms_client_sdk/ForeignText.h>

#include <QCheckBox>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSet>
#include <QTextCodec>
#include <QVBoxLayout>

#include <chrono>
#include <utility>

namespace orda_client {

namespace {

using namespace std::chrono_literals;

constexpr QSize dialogSize(760, 620);
constexpr int margin = 16;
constexpr int maxFileBytes = 4 << 20; // a line of 400 characters for each of 10,000 devices
constexpr int mostNamed = 5; // devices that one text fits, in the report
constexpr int utf8Mib = 106;
// A long list that is being typed or pasted is looked up when there is a pause, and so is one while devices come and
// go.
constexpr auto lookUpDelay = 250ms;

QString titled(const QString &title, const QStringList &lines)
{
    return lines.isEmpty() ? QString()
                           : title + QLatin1Char('\n') + QStringLiteral("    ") + lines.join(QStringLiteral("\n    "))
                                 + QLatin1Char('\n');
}

QString nameOf(const QString &devId)
{
    return DeviceState::deviceName(orda_data::DevsMgrData::instance().getDevInfoById(devId));
}

QString decoded(const QByteArray &content, bool *isText)
{
    QTextCodec::ConverterState state;
    const QTextCodec *codec = QTextCodec::codecForUtfText(content, QTextCodec::codecForMib(utf8Mib));
    QString text = codec->toUnicode(content.constData(), content.size(), &state);
    *isText = state.invalidChars == 0 && !text.contains(QChar::Null);
    return text;
}

} // namespace

TickTheseDialog::TickTheseDialog(QWidget *form, const DeviceStates *states, QWidget *parent)
    : QDialog(parent)
    , m_form(form)
    , m_lookUp(
          lookUpDelay, [this] { lookUp(); }, this)
{
    setObjectName(QStringLiteral("tickThese"));
    setWindowTitle(tr("Tick these devices"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addWidget(buildInput(), 1);
    layout->addWidget(buildReport(), 1);
    layout->addWidget(buildButtons());
    new orda_base::ReturnPressesButton(this); // as in the windows
    resize(openingSize(this, dialogSize));
    connect(m_list, &QPlainTextEdit::textChanged, &m_lookUp, &orda_base::DelayedCall::request);
    connect(m_firstColumnOnly, &QCheckBox::toggled, this, &TickTheseDialog::lookUp);
    connect(states, &DeviceStates::signalChanged, &m_lookUp, &orda_base::DelayedCall::request);
    lookUp();
}

QWidget *TickTheseDialog::buildInput()
{
    m_list = new QPlainTextEdit;
    m_list->setObjectName(QStringLiteral("list"));
    m_list->setTabChangesFocus(true);
    auto *caption = new QLabel(
        tr("&Serial numbers, names or addresses, one on a line or with commas, semicolons or tabs between them:"));
    caption->setWordWrap(true);
    caption->setBuddy(m_list);
    auto *load = styledButton(tr("&Load a file…"), "loadList");
    load->setAutoDefault(false);
    connect(load, &QPushButton::clicked, this, &TickTheseDialog::askForFile);
    m_firstColumnOnly = new QCheckBox(tr("It is a t&able: only the first column names devices"));
    m_firstColumnOnly->setObjectName(QStringLiteral("firstColumnOnly"));

    auto *input = new QWidget;
    auto *below = new QHBoxLayout;
    below->addWidget(load);
    below->addWidget(m_firstColumnOnly);
    below->addStretch();
    auto *layout = new QVBoxLayout(input);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(caption);
    layout->addWidget(m_list, 1);
    layout->addLayout(below);
    return input;
}

QWidget *TickTheseDialog::buildReport()
{
    m_summary = new QLabel;
    m_summary->setObjectName(QStringLiteral("lookUpSummary"));
    m_summary->setTextFormat(Qt::PlainText);
    m_summary->setWordWrap(true);
    m_report = new QPlainTextEdit;
    m_report->setObjectName(QStringLiteral("lookUpReport"));
    m_report->setAccessibleName(tr("What of the list is not ticked"));
    m_report->setReadOnly(true);
    m_report->setTabChangesFocus(true);
    auto *report = new QWidget;
    auto *layout = new QVBoxLayout(report);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_summary);
    layout->addWidget(m_report, 1);
    return report;
}

QWidget *TickTheseDialog::buildButtons()
{
    m_tick = styledButton({}, "tickFound", "common_bt_style1");
    m_tick->setAutoDefault(false);
    connect(m_tick, &QPushButton::clicked, this, [this] {
        const QStringList shown = m_devIds;
        lookUp();
        if (m_devIds != shown)
            return; // the list was changed just now: the button says what it would tick instead
        accept();
        emit signalTick(shown);
    });
    auto *cancel = styledButton(tr("&Cancel"), "cancelTicking");
    cancel->setAutoDefault(false);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto *buttons = new QWidget;
    auto *layout = new QHBoxLayout(buttons);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_tick);
    layout->addStretch();
    layout->addWidget(cancel);
    return buttons;
}

void TickTheseDialog::askForFile()
{
    auto *dialog = new QFileDialog(this, tr("Load a list of devices"), {}, tr("Lists (*.csv *.txt);;All files (*)"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    connect(dialog, &QFileDialog::fileSelected, this, &TickTheseDialog::load);
    dialog->open();
}

void TickTheseDialog::load(const QString &path)
{
    const QString name = vms_sdk::displayText(path);
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        m_summary->setText(tr("The file %1 cannot be read.").arg(name));
        return;
    }
    const QByteArray content = file.read(maxFileBytes + 1);
    bool isText = false;
    const QString text = decoded(content, &isText);
    if (content.size() > maxFileBytes || !isText) {
        m_summary->setText(content.size() > maxFileBytes
                               ? tr("The file %1 is too large for a list of devices.").arg(name)
                               : tr("The file %1 is no text in UTF-8. Save it as CSV or text in UTF-8.").arg(name));
        return;
    }
    // A table is what has several cells in a line. The user sees what was made of it, and may say otherwise.
    m_firstColumnOnly->setChecked(path.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive));
    m_list->setPlainText(text);
    lookUp();
}

void TickTheseDialog::lookUp()
{
    const DeviceLookup lookup(orda_data::DevsMgrData::instance().getAllDevs(false));
    const DeviceLookup::Found found = lookup.find(m_list->toPlainText(), m_firstColumnOnly->isChecked());
    const QStringList listed = m_form ? FormTicks::listedIn(m_form) : QStringList();
    const QSet<QString> inList(listed.begin(), listed.end());
    m_devIds.clear();
    QStringList notListed;
    for (const QString &devId : found.devIds)
        (inList.contains(devId) ? m_devIds : notListed).append(devId);
    m_tick->setText(tr("&Tick %Ln device(s)", nullptr, m_devIds.size()));
    m_tick->setEnabled(!m_devIds.isEmpty());
    report(found, notListed);
}

void TickTheseDialog::report(const DeviceLookup::Found &found, const QStringList &notListed)
{
    if (!found.error.isEmpty()) {
        m_summary->setText(vms_sdk::displayText(found.error));
        m_reported.clear();
        m_report->clear();
        return;
    }
    QStringList reasons;
    for (const QString &devId : notListed)
        reasons.append(TickNote::whyNotListed(devId));
    QStringList ambiguous;
    for (const DeviceLookup::Ambiguous &text : found.ambiguous) {
        QStringList names;
        const QStringList first = text.devIds.mid(0, mostNamed);
        for (const QString &devId : first)
            names.append(nameOf(devId));
        if (text.devIds.size() > mostNamed)
            names.append(QStringLiteral("…"));
        ambiguous.append(
            tr("%1: %2", "a text, the devices that it fits").arg(text.text, names.join(QStringLiteral(", "))));
    }
    const QString problems = titled(tr("Fits no device:"), found.unknown)
                           + titled(tr("Fits several devices, of which none is ticked:"), ambiguous)
                           + titled(tr("Not in the form's list now:"), reasons)
                           + titled(tr("Given more than once:"), found.repeated);
    m_summary->setText(m_devIds.isEmpty() && problems.isEmpty()
                           ? tr("Paste a list, or load one. Nothing is ticked before you have seen what was found.")
                       : problems.isEmpty() ? tr("All devices of the list were found.")
                                            : tr("This of the list is not ticked, or was given more than once:"));
    const QString shown = vms_sdk::displayText(problems, QStringLiteral("\n"));
    if (std::exchange(m_reported, shown) != shown) // it does not scroll back while devices come and go
        m_report->setPlainText(shown);
}

} // namespace orda_client
