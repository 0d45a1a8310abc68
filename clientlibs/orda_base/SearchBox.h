#pragma once

#include <orda_base/Export.h>

#include <QWidget>

QT_BEGIN_NAMESPACE
class QLineEdit;
QT_END_NAMESPACE

namespace orda_base {

/// A line edit for a search. It searches at every change of the text and at Return; Esc or its button clears it. GUI
/// thread only.
class ORDA_BASE_EXPORT SearchBox : public QWidget
{
    Q_OBJECT

public:
    explicit SearchBox(QWidget *parent = nullptr);

    QString text() const;

Q_SIGNALS:
    /// @param keyword the present text; empty when the line was cleared
    void signalSearchByKeyword(const QString &keyword);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void nameIcon(const QString &name); ///< names the icon that was added last

    QLineEdit *m_edit;
};

} // namespace orda_base
