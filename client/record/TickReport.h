#pragma once

#include "client/record/FailedDevices.h"

#include <QWidget>

QT_BEGIN_NAMESPACE
class QLabel;
class QPlainTextEdit;
QT_END_NAMESPACE

namespace orda_client {

/// Tells how many failed devices were ticked again, and which were not and why.
class TickReport : public QWidget
{
    Q_OBJECT

public:
    explicit TickReport(QWidget *parent = nullptr);

    void setTicked(const FailedDevices::Ticked &ticked);

private:
    QLabel *m_text;
    QPlainTextEdit *m_notTicked;
};

} // namespace orda_client
