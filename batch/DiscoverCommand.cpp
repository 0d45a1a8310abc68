#include "batch/DiscoverCommand.h"

#include "batch/BatchExit.h"
#include "batch/OutputThread.h"
#include "batch/ResultTexts.h"
#include "batch/TextTable.h"
#include "programs/Complaint.h"
#include "programs/Csv.h"

#include <vms_client_sdk/ForeignText.h>
#include <vms_client_sdk/Inventory.h>

#include <QJsonArray>

namespace orda_batch {

using namespace orda_programs;
using vms_sdk::FoundCamera;
using vms_sdk::OnvifDiscovery;

namespace {

// Of the table's columns but the last. Lines are written as answers come, so that the widest is not known.
constexpr int usualText = 20;

QString textOf(const QUrl &address)
{
    return address.toString(QUrl::FullyEncoded);
}

QStringList addressesOf(const FoundCamera &camera)
{
    QStringList texts;
    for (const QUrl &address : camera.addresses)
        texts.append(textOf(address));
    return texts;
}

QJsonObject toJson(const FoundCamera &camera, const vms_sdk::DevInfo &device)
{
    const QJsonArray entries = vms_sdk::inventoryToJson({device}).value(QLatin1String("devices")).toArray();
    return {{QStringLiteral("endpoint"), camera.endpoint},
            {QStringLiteral("name"), camera.name},
            {QStringLiteral("hardware"), camera.hardware},
            {QStringLiteral("location"), camera.location},
            {QStringLiteral("addresses"), QJsonArray::fromStringList(addressesOf(camera))},
            {QStringLiteral("sender"), camera.sender},
            {QStringLiteral("isAtSender"), camera.isAtSender()},
            {QStringLiteral("inventory"), entries.at(0)}};
}

} // namespace

DiscoverCommand::DiscoverCommand(const BatchOptions &options, OutputThread *output)
    : m_options(options)
    , m_output(output)
{
    connect(&m_discovery, &OnvifDiscovery::found, this, &DiscoverCommand::write);
    connect(&m_discovery, &OnvifDiscovery::finished, this, &DiscoverCommand::finish);
}

void DiscoverCommand::start()
{
    QMetaObject::invokeMethod(this, &DiscoverCommand::begin, Qt::QueuedConnection);
}

void DiscoverCommand::begin()
{
    if (m_isStopped)
        return;
    const QString error = m_discovery.start(m_options.interface, m_options.searchTime);
    if (error.isEmpty())
        writeHead();
    else
        emit signalFinished(fail(error, ExitInput));
}

void DiscoverCommand::stop(const QString &why)
{
    complain(why);
    m_isStopped = true;
    m_discovery.stop();
    emit signalFinished(ExitStopped);
}

void DiscoverCommand::writeHead()
{
    const QStringList titles{tr("Name"), tr("Hardware"), tr("Location"), tr("Address")};
    if (m_options.format == Format::Table)
        m_output->write((alignedLine(titles, {usualText, usualText, usualText, 0}) + QLatin1Char('\n')).toUtf8());
    if (m_options.format != Format::Csv)
        return;
    if (!m_output->isTerminal())
        m_output->write(QString(QChar(QChar::ByteOrderMark)).toUtf8()); // by which spreadsheets know UTF-8
    m_output->write(csvLine({QStringLiteral("endpoint"), QStringLiteral("name"), QStringLiteral("hardware"),
                             QStringLiteral("location"), QStringLiteral("addresses"), QStringLiteral("sender")})
                        .toUtf8());
}

void DiscoverCommand::write(const FoundCamera &camera)
{
    if (m_isStopped)
        return;
    ++m_found;
    if (m_options.format == Format::Json) {
        m_output->write(ResultTexts::jsonLine(toJson(camera, vms_sdk::toDevInfo(camera, &m_ids))));
        return;
    }
    const QString address = textOf(camera.addresses.constFirst());
    QStringList cells{camera.name, camera.hardware, camera.location,
                      camera.isAtSender() ? address : tr("%1 says that it is at %2").arg(camera.sender, address)};
    if (m_options.format == Format::Csv)
        cells = QStringList{
            camera.endpoint, camera.name, camera.hardware, camera.location, addressesOf(camera).join(QLatin1Char(' ')),
            camera.sender};
    if (m_options.format == Format::Table || m_output->isTerminal())
        for (QString &cell : cells)
            cell = vms_sdk::escaped(cell);
    const QString line = m_options.format == Format::Csv
                           ? csvLine(cells)
                           : alignedLine(cells, {usualText, usualText, usualText, 0}) + QLatin1Char('\n');
    m_output->write(line.toUtf8());
}

void DiscoverCommand::finish()
{
    if (m_isStopped)
        return;
    if (m_found == 0) {
        const QStringList searched =
            m_options.interface.isEmpty() ? OnvifDiscovery::interfaces() : QStringList{m_options.interface};
        complain(tr("no camera has answered on %1").arg(searched.join(QStringLiteral(", "))));
    }
    emit signalFinished(ExitOk);
}

} // namespace orda_batch
