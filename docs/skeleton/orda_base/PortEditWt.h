#pragma once

#include <QLineEdit>

namespace orda_base {

/// An editor for a port. Its text is sent as a number, 0 when it is none.
class PortEditWt : public QLineEdit
{
    Q_OBJECT

public:
    explicit PortEditWt(QWidget *parent = nullptr);
};

} // namespace orda_base
