#include "client/runs/RunTexts.h"

#include "client/form/Families.h"

#include <families/Families.h>

#include <QAbstractButton>
#include <QDateTime>
#include <QLocale>

namespace orda_client {

using orda_journal::DeviceRow;
using orda_journal::Outcome;
using orda_journal::RunRow;

RunTexts::RunTexts(const QWidget *form)
{
    for (const Family &family : families()) {
        const auto *entry = form->findChild<QAbstractButton *>(family.navigationKey);
        const orda_batchCfg::CfgFamily *known = orda_batchCfg::Families::find(family.name);
        if (entry)
            m_titles.insert(family.name, entry->text());
        if (known)
            m_parameters.insert(family.name, std::make_shared<const ParameterTexts>(form, *known));
    }
}

QString RunTexts::family(const QString &name) const
{
    return m_titles.value(name, name);
}

const ParameterTexts *RunTexts::parameters(const QString &family) const
{
    return m_parameters.value(family).get();
}

QStringList RunTexts::values(const RunRow &run) const
{
    const ParameterTexts *texts = parameters(run.family);
    return texts && run.undoes.isEmpty() ? texts->list(run.values) : QStringList();
}

QString RunTexts::changes(const QString &family, const QVector<orda_batchCfg::MemberChange> &changes) const
{
    const ParameterTexts *texts = parameters(family);
    QStringList parts;
    for (const orda_batchCfg::MemberChange &change : changes)
        if (texts)
            parts.append(texts->change(change.member, change.before, change.after));
    return parts.join(QStringLiteral("; "));
}

QString RunTexts::kind(const RunRow &run, qint64 undone)
{
    if (run.undoes.isEmpty())
        return tr("Configured");
    return undone == 0 ? tr("Undo") : tr("Undo of %1", "time").arg(time(undone));
}

QString RunTexts::outcome(Outcome outcome)
{
    switch (outcome) {
    case Outcome::Done:
        return tr("Done");
    case Outcome::Unchanged:
        return tr("Unchanged");
    case Outcome::Failed:
        return tr("Failed");
    case Outcome::Unknown:
        return tr("Unknown");
    case Outcome::Stopped:
        return tr("Stopped");
    case Outcome::PartlyWritten:
        return tr("Partly written");
    case Outcome::NotReached:
        return tr("Not reached");
    case Outcome::Differs:
        return tr("Differs");
    }
    return {};
}

QString RunTexts::outcome(const DeviceRow &device, bool isUnderWay)
{
    if (device.outcome)
        return outcome(*device.outcome);
    return isUnderWay ? tr("Under way") : tr("Not known");
}

QString RunTexts::counts(const RunRow &run)
{
    if (run.ended == 0)
        return run.isUnderWay ? tr("under way") : tr("ended with its program");
    QStringList counts;
    for (auto count = run.counts.cbegin(); count != run.counts.cend(); ++count)
        counts.append(
            tr("%1: %2", "outcome, number of devices").arg(outcome(count.key()), QLocale().toString(count.value())));
    return counts.join(QStringLiteral(", "));
}

QString RunTexts::time(qint64 time)
{
    return QDateTime::fromMSecsSinceEpoch(time).toString(QStringLiteral("yyyy-MM-dd hh:mm:ss"));
}

QString RunTexts::duration(const RunRow &run)
{
    if (run.ended == 0)
        return {};
    const qint64 seconds = (run.ended - run.began + 500) / 1000;
    const auto twoDigits = [](qint64 number) { return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0')); };
    const QString clock = QStringLiteral("%1:%2").arg(twoDigits(seconds / 60 % 60), twoDigits(seconds % 60));
    return seconds < 3600 ? clock : QStringLiteral("%1:%2").arg(QString::number(seconds / 3600), clock);
}

QString RunTexts::device(const DeviceRow &device)
{
    if (device.name.isEmpty())
        return device.serialNumber.isEmpty() ? device.devId : device.serialNumber;
    return device.serialNumber.isEmpty() ? device.name
                                         : QStringLiteral("%1 (%2)").arg(device.name, device.serialNumber);
}

bool RunTexts::isFailure(const std::optional<Outcome> &outcome)
{
    return outcome != Outcome::Done && outcome != Outcome::Unchanged;
}

} // namespace orda_client
