#include "client/press/PressTexts.h"

#include "client/form/FormPage.h"
#include "client/form/FormTicks.h"

#include <orda_data/DevsMgrData.h>

#include <QAbstractButton>

#include <algorithm>

namespace orda_client {

namespace {

constexpr int kindRecorder = 6; // DevInfo::kindCode

} // namespace

bool PressTexts::isEffective(const FormPage &page, const FormTicks &ticks)
{
    return page.page && !page.values.isEmpty() && !ticks.devIds.isEmpty();
}

QString PressTexts::press(const FormPage &page, const FormTicks &ticks)
{
    if (!page.page)
        return {};
    if (page.values.isEmpty()) {
        // A parameter whose own box is ticked lacks its stream.
        const bool isOneTicked =
            std::any_of(page.members.begin(), page.members.end(), [](const FormPage::Member &member) {
                return !member.boxes.isEmpty() && member.boxes.constFirst() && member.boxes.constFirst()->isChecked();
            });
        return isOneTicked ? tr("No stream is ticked on this page") : tr("Nothing is ticked on this page");
    }
    const QString left = hidden(ticks.hidden);
    if (ticks.devIds.isEmpty())
        return left.isEmpty() ? tr("No device is ticked")
                              : tr("%1 (%2)", "sentence, remark").arg(tr("No device is left to configure"), left);
    const QString devices = tr("%Ln device(s)", "to which something is written", ticks.devIds.size());
    const int parameters = page.parameters();
    const QString does =
        parameters == 0
            ? tr("No ticked parameter applies, but this would be written to: %1").arg(devices)
            : tr("%1 to %2", "parameters, devices").arg(tr("%Ln parameter(s)", nullptr, parameters), devices);
    return left.isEmpty() ? does : tr("%1 (%2)", "sentence, remark").arg(does, left);
}

QString PressTexts::hidden(int devices)
{
    return devices == 0 ? QString() : tr("%Ln ticked device(s) hidden by the search and left out", nullptr, devices);
}

QString PressTexts::kinds(const QStringList &devIds)
{
    const auto &store = orda_data::DevsMgrData::instance();
    const int recorders = int(std::count_if(devIds.begin(), devIds.end(), [&store](const QString &devId) {
        return store.getDevInfoById(devId).kindCode == kindRecorder;
    }));
    const int cameras = devIds.size() - recorders;
    const QString cameraText = tr("%Ln camera(s)", nullptr, cameras);
    const QString recorderText = tr("%Ln recorder(s)", nullptr, recorders);
    if (recorders == 0 || cameras == 0)
        return recorders == 0 ? cameraText : recorderText;
    return tr("%1 and %2", "cameras, recorders").arg(cameraText, recorderText);
}

} // namespace orda_client
