#include "client/compare/StandardBar.h"

#include "client/common/Question.h"
#include "client/common/Widgets.h"
#include "client/settings/ClientSettings.h"

#include <vms_client_sdk/ForeignText.h>

#include <QComboBox>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace orda_client {

namespace {

constexpr int sourceRole = Qt::UserRole;
constexpr int profileRole = Qt::UserRole + 1;
constexpr int widestSource = 40; // characters; a device's name may be long

} // namespace

StandardBar::StandardBar(ClientSettings *settings, QWidget *parent)
    : QWidget(parent)
    , m_settings(settings)
    , m_sources(new QComboBox)
{
    m_sources->setObjectName(QStringLiteral("standards"));
    m_sources->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_sources->setMinimumContentsLength(widestSource);
    connect(m_sources, QOverload<int>::of(&QComboBox::activated), this, &StandardBar::signalChosen);
    auto *caption = new QLabel(tr("Stan&dard:"));
    caption->setBuddy(m_sources);
    auto *choice = new QHBoxLayout;
    choice->addWidget(caption);
    choice->addWidget(m_sources);
    choice->addStretch(1);

    auto *buttons = new QHBoxLayout;
    const auto add = [buttons](const QString &text, const char *name, const QString &toolTip) {
        auto *button = styledButton(text, name);
        button->setToolTip(toolTip);
        buttons->addWidget(button);
        return button;
    };
    m_takeModel =
        add(tr("Take as &model"), "takeModel", tr("Compares the others with the device that is chosen below"));
    m_load = add(tr("&Load into the page"), "loadIntoPage",
                 tr("Ticks the parameters of the standard on the page, and no others, and gives them its values"));
    m_save = add(tr("Sa&ve as profile…"), "saveProfile", tr("Keeps the values of the standard under a name"));
    m_forget = add(tr("&Forget profile"), "forgetProfile", tr("Removes the profile that is chosen as the standard"));
    buttons->addStretch(1);
    connect(m_takeModel, &QPushButton::clicked, this, &StandardBar::signalTakeModel);
    connect(m_load, &QPushButton::clicked, this, [this] { emit signalLoad(m_values); });
    connect(m_save, &QPushButton::clicked, this, &StandardBar::askForName);
    connect(m_forget, &QPushButton::clicked, this, &StandardBar::askToForget);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(choice);
    layout->addLayout(buttons);
}

void StandardBar::setFamily(const QString &family)
{
    m_family = family;
    m_modelId.clear();
    fill(Page);
}

void StandardBar::setModel(const QString &devId, const QString &shownName)
{
    m_modelId = devId;
    m_modelName = shownName;
    fill(Model);
}

void StandardBar::forgetModel()
{
    m_modelId.clear();
    fill(source() == Model ? Page : source(), profile());
}

void StandardBar::fill(Source chosen, const QString &profile)
{
    m_sources->clear();
    const auto add = [this](const QString &text, Source source, const QString &name = {}) {
        m_sources->addItem(text, source);
        m_sources->setItemData(m_sources->count() - 1, name, profileRole);
    };
    add(tr("The values of the page as they are now"), Page);
    add(tr("The value that most devices have, for each setting"), MostFrequent);
    if (!m_modelId.isEmpty())
        add(tr("The device %1").arg(vms_sdk::displayText(m_modelName)), Model);
    const QStringList names = m_settings->profiles(m_family).keys();
    for (const QString &name : names)
        add(tr("The profile \"%1\"").arg(vms_sdk::displayText(name)), Profile, name);
    for (int index = 0; index < m_sources->count(); ++index)
        if (m_sources->itemData(index, sourceRole) == chosen && m_sources->itemData(index, profileRole) == profile)
            m_sources->setCurrentIndex(index);
}

StandardBar::Source StandardBar::source() const
{
    return Source(m_sources->currentData(sourceRole).toInt());
}

QString StandardBar::profile() const
{
    return m_sources->currentData(profileRole).toString();
}

QJsonObject StandardBar::profileValues() const
{
    return source() == Profile ? m_settings->profiles(m_family).value(profile()) : QJsonObject();
}

void StandardBar::setState(const QJsonObject &values, bool canBeLoaded, bool canTakeModel)
{
    m_values = values;
    m_takeModel->setEnabled(canTakeModel);
    m_save->setEnabled(!values.isEmpty());
    m_load->setEnabled(!values.isEmpty() && canBeLoaded && source() != Page);
    m_forget->setEnabled(source() == Profile);
}

void StandardBar::askForName()
{
    auto *dialog = new QInputDialog(this);
    dialog->setObjectName(QStringLiteral("profileName"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(tr("Save as profile"));
    dialog->setLabelText(tr("Name of the profile. One that has this name already is replaced."));
    dialog->setTextValue(profile());
    // The values of this moment: the page may change while the dialog is open.
    connect(dialog, &QInputDialog::textValueSelected, this,
            [this, values = m_values, family = m_family](const QString &text) {
                const QString name = text.trimmed();
                if (name.isEmpty())
                    return;
                m_settings->setProfile(family, name, values);
                if (family != m_family)
                    return;
                fill(Profile, name);
                emit signalSaved(name);
                emit signalChosen();
            });
    dialog->open();
}

void StandardBar::askToForget()
{
    const Question question{"forgetQuestion",
                            tr("Forget profile"),
                            tr("Forget the profile \"%1\"?").arg(vms_sdk::displayText(profile())),
                            {},
                            tr("Forget", "a profile")};
    question.ask(this, [this, family = m_family, name = profile()] {
        m_settings->setProfile(family, name, {});
        if (family == m_family && source() == Profile && profile() == name) {
            fill(Page);
            emit signalChosen();
        }
    });
}

} // namespace orda_client
