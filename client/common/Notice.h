#pragma once

#include <QWidget>

QT_BEGIN_NAMESPACE
class QLabel;
class QPlainTextEdit;
QT_END_NAMESPACE

namespace orda_client {

/// A sentence for the user in a window, and below it the things that it speaks of, a line each, however many there are.
/// Hidden while there is nothing to say.
class Notice : public QWidget
{
    Q_OBJECT

public:
    /// @param listName accessible name of the list
    /// @param name object name of the sentence; that of the list is this and "List"
    explicit Notice(const QString &listName, const char *name = "notice", QWidget *parent = nullptr);

    /// @param lines may be texts of devices; none: there is no list
    void say(const QString &text, const QStringList &lines = {});
    void clear() { say({}); }

private:
    QLabel *m_text;
    QPlainTextEdit *m_lines;
};

} // namespace orda_client
