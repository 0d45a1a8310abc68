#include "client/app/SettingsDialog.h"

#include "client/common/OpeningSize.h"
#include "client/settings/ClientSettings.h"
#include "journal/HistoryOptions.h"
#include "programs/Translations.h"

#include <orda_base/ReturnPressesButton.h>
#include <orda_worker/SystemAssistant.h>
#include <vms_client_sdk/ForeignText.h>

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QVBoxLayout>

namespace orda_client {

namespace {

constexpr int margin = 24;
constexpr int spacing = 12;
constexpr int textWidth = 560;
constexpr int mostAskAbove = 100000;
constexpr int usualHaltShare = 20;

QLabel *heading(const QString &text)
{
    auto *label = new QLabel(text);
    label->setProperty("dialog_caption", true);
    return label;
}

QLabel *paragraph(const QString &text)
{
    auto *label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setMinimumWidth(textWidth);
    return label;
}

void choose(QComboBox *box, const QString &value)
{
    box->setCurrentIndex(qMax(0, box->findData(value)));
}

/// A framed area with a heading. @return its layout, whose parent is the area
QVBoxLayout *card(const QString &title)
{
    auto *area = new QWidget;
    area->setProperty("page_card", true);
    area->setAttribute(Qt::WA_StyledBackground);
    auto *layout = new QVBoxLayout(area);
    layout->setContentsMargins(margin, spacing, margin, spacing);
    layout->setSpacing(spacing);
    layout->addWidget(heading(title));
    return layout;
}

QFormLayout *formIn(QVBoxLayout *card)
{
    auto *form = new QFormLayout;
    form->setSpacing(spacing);
    card->addLayout(form);
    return form;
}

} // namespace

SettingsDialog::SettingsDialog(ClientSettings *settings, const orda_journal::HistoryOptions &history, QWidget *parent)
    : QDialog(parent)
    , m_settings(settings)
    , m_language(new QComboBox)
    , m_theme(new QComboBox)
    , m_askAbove(new QSpinBox)
    , m_halts(new QCheckBox(tr("Sto&p a run by itself when more of its devices have failed than")))
    , m_haltShare(new QSpinBox)
{
    setObjectName(QStringLiteral("settingsDialog"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Settings"));
    auto *cards = new QWidget;
    auto *column = new QVBoxLayout(cards);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(spacing);
    column->addWidget(buildWindow());
    column->addWidget(buildRuns());
    column->addWidget(buildHistory(history));
    column->addStretch();
    auto *area = new QScrollArea; // small screens with large letters do not show all of it at once
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidgetResizable(true);
    area->setWidget(cards);
    QWidget *buttons = buildButtons();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(spacing);
    layout->addWidget(area);
    layout->addWidget(buttons);
    new orda_base::ReturnPressesButton(this);
    m_language->setFocus();
    ensurePolished();
    const int width = cards->sizeHint().width();
    const int height = column->totalHeightForWidth(width) + spacing + buttons->sizeHint().height();
    const QSize wanted(width + 2 * margin, height + 2 * margin);
    const bool scrolls = openingSize(this, wanted).height() < wanted.height();
    const QSize scrollBar(scrolls ? area->verticalScrollBar()->sizeHint().width() : 0, 0);
    resize(openingSize(this, wanted + scrollBar));
}

QWidget *SettingsDialog::buildWindow()
{
    m_language->setObjectName(QStringLiteral("language"));
    m_language->addItem(tr("As the system", "the language"), QString());
    const QStringList codes = orda_programs::Translations::languages();
    for (const QString &code : codes)
        m_language->addItem(QLocale(code).nativeLanguageName(), code);
    choose(m_language, m_settings->language());
    m_theme->setObjectName(QStringLiteral("theme"));
    m_theme->addItem(tr("As the desktop", "the theme"), QString());
    m_theme->addItem(tr("Light", "the theme"), QStringLiteral("light"));
    m_theme->addItem(tr("Dark", "the theme"), QStringLiteral("dark"));
    choose(m_theme, m_settings->theme());
    QVBoxLayout *layout = card(tr("Window"));
    QFormLayout *form = formIn(layout);
    form->addRow(tr("&Language"), m_language);
    form->addRow(tr("&Theme"), m_theme);
    layout->addWidget(paragraph(tr("Another language and another theme are there when the client is started next.")));
    return layout->parentWidget();
}

QWidget *SettingsDialog::buildRuns()
{
    m_askAbove->setObjectName(QStringLiteral("askAbove"));
    m_askAbove->setRange(0, mostAskAbove);
    m_askAbove->setValue(m_settings->askAbove());
    m_halts->setObjectName(QStringLiteral("halts"));
    m_halts->setChecked(m_settings->haltShare() > 0);
    m_haltShare->setObjectName(QStringLiteral("haltShare"));
    m_haltShare->setRange(1, 99);
    m_haltShare->setSuffix(tr(" %", "per cent"));
    m_haltShare->setValue(m_halts->isChecked() ? m_settings->haltShare() : usualHaltShare);
    m_haltShare->setEnabled(m_halts->isChecked());
    m_haltShare->setAccessibleName(tr("Share of failed devices that stops a run"));
    connect(m_halts, &QCheckBox::toggled, m_haltShare, &QWidget::setEnabled);
    m_haltShare->ensurePolished();
    m_halts->setMinimumHeight(m_haltShare->sizeHint().height()); // on one line with the number
    QVBoxLayout *layout = card(tr("Runs"));
    QFormLayout *form = formIn(layout);
    form->addRow(tr("&Ask before a run over more devices than"), m_askAbove);
    form->addRow(m_halts, m_haltShare);
    layout->addWidget(paragraph(tr("With 0 devices the client asks before every run.")));
    return layout->parentWidget();
}

QWidget *SettingsDialog::buildHistory(const orda_journal::HistoryOptions &history)
{
    QLabel *path = paragraph(vms_sdk::displayText(history.path));
    path->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    path->setAccessibleName(tr("File of the history"));
    QVBoxLayout *layout = card(tr("History"));
    layout->addWidget(paragraph(tr("What runs have done to devices is kept in this file:")));
    layout->addWidget(path);
    layout->addWidget(
        paragraph(tr("Runs are removed after %n day(s), and the oldest ones earlier when the file grows beyond %1 MiB.",
                     nullptr, history.keptDays)
                      .arg(QLocale().toString(history.keptBytes >> 20))
                  + QLatin1Char(' ') + tr("The latest %n run(s) always stay.", nullptr, history.keptRuns)));
    return layout->parentWidget();
}

QWidget *SettingsDialog::buildButtons()
{
    auto *ok = new QPushButton(tr("OK"));
    ok->setObjectName(QStringLiteral("saveSettings"));
    ok->setProperty("common_bt_style1", true);
    auto *cancel = new QPushButton(tr("Cancel"));
    cancel->setProperty("common_bt_style2", true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto *buttons = new QWidget;
    auto *row = new QHBoxLayout(buttons);
    row->setContentsMargins(0, 0, 0, 0);
    row->addStretch();
    for (QPushButton *button : {ok, cancel}) {
        button->setAutoDefault(false);
        row->addWidget(button);
    }
    return buttons;
}

void SettingsDialog::accept()
{
    m_settings->setLanguage(m_language->currentData().toString());
    m_settings->setTheme(m_theme->currentData().toString());
    m_settings->setAskAbove(m_askAbove->value());
    m_settings->setHaltShare(m_halts->isChecked() ? m_haltShare->value() : 0);
    const QString problem = m_settings->writeProblem();
    QDialog::accept();
    if (!problem.isEmpty())
        orda_worker::SystemAssistant::instance().messageAlert(tr("Settings"), problem);
}

} // namespace orda_client
