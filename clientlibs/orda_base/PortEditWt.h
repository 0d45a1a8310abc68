#pragma once

#include <orda_base/Export.h>

#include <QLineEdit>

namespace orda_base {

/// An editor for a port number: accepts 0 to 65535, or nothing.
class ORDA_BASE_EXPORT PortEditWt : public QLineEdit
{
    Q_OBJECT

public:
    explicit PortEditWt(QWidget *parent = nullptr);
};

} // namespace orda_base
