#pragma once

#include <QObject>

namespace orda_client {

/// Opens files with the desktop's viewer, and reports when there is none.
class RecordViewer : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Returns at once. The viewer stays when the program ends.
    void open(const QString &path);

signals:
    void signalNoViewer(const QString &path);
};

} // namespace orda_client
