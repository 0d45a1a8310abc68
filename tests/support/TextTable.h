#pragma once

#include "support/OrdaTest.h"

/// Tables in tests/cases, all columns of which are texts.
inline void readTable(const char *file, const QList<const char *> &columns)
{
    for (const char *column : columns)
        QTest::addColumn<QString>(column);
    rowsFrom(file);
}

/// Of the row: "~" is the end of a line, "{3*x}" is "xxx".
inline QString valueOf(const char *column)
{
    static const QRegularExpression repeated("\\{(\\d+)\\*(.*?)\\}");
    QString text = *static_cast<QString *>(QTest::qData(column, QMetaType::QString));
    for (auto match = repeated.match(text); match.hasMatch(); match = repeated.match(text))
        text.replace(match.captured(0), match.captured(2).repeated(match.captured(1).toInt()));
    return text.replace("~", "\r\n");
}
