#pragma once

#include "client/FailedDevices.h"

#include <QWidget>

QT_BEGIN_NAMESPACE
class QLabel;
class QPlainTextEdit;
QT_END_NAMESPACE

namespace orda_client {

/// What has become of the failed devices that were to be ticked again: how many were, and which were not, with why.
class TickReport : public QWidget
{
    Q_OBJECT

public:
    explicit TickReport(QWidget *parent = nullptr);

    void setTicked(const FailedDevices::Ticked &ticked);

private:
    QLabel *m_text;
    QPlainTextEdit *m_left;
};

} // namespace orda_client
