#pragma once

#include "client/devices/DevicesModel.h"

#include <orda_base/TableWidget.h>

#include <optional>

namespace orda_client {

/// The states that devices have, and for which reasons, each with how many there are now; above them all devices. One
/// is chosen.
class StateList : public orda_base::TableWidget
{
    Q_OBJECT

public:
    explicit StateList(QWidget *parent = nullptr);

    /// The chosen line stays chosen, even when no device is left in it.
    void setCounts(const DevicesModel::Counts &counts);

    /// Whether a device in this state is among those that are chosen.
    bool includes(const DeviceState &state) const;

signals:
    void signalChosen();

private:
    struct Line
    {
        std::optional<DeviceState::Kind> kind = {}; ///< nothing: all devices
        std::optional<orda_engine::ReachReason> reason = {}; ///< nothing: whatever the reason

        QString text() const;
        bool operator==(const Line &other) const { return kind == other.kind && reason == other.reason; }
    };

    QVector<Line> linesFor(const DevicesModel::Counts &counts) const;
    void setLines(const QVector<Line> &lines);

    QVector<Line> m_lines; // as they stand
    Line m_chosen;
};

} // namespace orda_client
