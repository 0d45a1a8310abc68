#pragma once

#include <QString>
#include <QWidget>

namespace orda_base {

/// The search over the list. There is one QLineEdit inside, which Ctrl+F selects.
class SearchBox : public QWidget
{
    Q_OBJECT

public:
    explicit SearchBox(QWidget *parent = nullptr);

    QString text() const;

signals:
    /// @param keyword what the rows are searched for; empty shows all
    void signalSearchByKeyword(const QString &keyword);
};

} // namespace orda_base
