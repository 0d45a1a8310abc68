#include <orda_saas/SaasWorker.h>

namespace orda_saas {

SaasWorker &SaasWorker::instance()
{
    static SaasWorker worker;
    return worker;
}

bool SaasWorker::canOperateDevFreely(const QString &serialNumber) const
{
    return m_freelyOperable.contains(serialNumber);
}

void SaasWorker::setFreelyOperable(const QSet<QString> &serialNumbers)
{
    m_freelyOperable = serialNumbers;
}

} // namespace orda_saas
