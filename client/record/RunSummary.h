#pragma once

#include "client/record/RunRecord.h"

#include <QCoreApplication>

namespace orda_client {

/// A run in one line: when it was, and how many devices had which outcome.
class RunSummary
{
    Q_DECLARE_TR_FUNCTIONS(orda_client::RunSummary)

public:
    static QString text(const QVector<RunEntry> &entries);
};

} // namespace orda_client
