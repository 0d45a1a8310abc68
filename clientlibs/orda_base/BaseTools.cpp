#include <orda_base/BaseTools.h>

#include <XCOMMON/XTableWidget.h>
#include <vms_client_sdk/DevInfo.h>

namespace orda_base {

BaseTools &BaseTools::instance()
{
    static BaseTools tools;
    return tools;
}

bool BaseTools::isDevOnline(int status)
{
    return vms_sdk::isOnlineStatus(vms_sdk::DevStatus(status));
}

QString BaseTools::strDatetime(const QDateTime &time, bool withMilliseconds, bool forFileName)
{
    QString format = forFileName ? QStringLiteral("yyyyMMdd-hhmmss") : QStringLiteral("yyyy-MM-dd hh:mm:ss");
    if (withMilliseconds)
        format += QStringLiteral(".zzz");
    return time.toString(format);
}

void BaseTools::updateTableOrderNum(XCOMMON::XTableWidget *table, int first)
{
    if (table->property("computedOrderNumbers").toBool()) {
        table->viewport()->update();
        return;
    }
    int number = first;
    for (int row = 0; row < table->rowCount(); ++row) {
        if (table->isRowHidden(row))
            continue;
        const QString text = QString::number(number++);
        QTableWidgetItem *item = table->item(row, 0);
        if (item && item->text() != text)
            item->setText(text);
    }
}

void BaseTools::openDevRemoteConfig(const QString &devId)
{
    emit signalDevRemoteConfigOpened(devId);
}

} // namespace orda_base
