#pragma once

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QWidget>

namespace orda_batchCfg {

class BatchCfgForm;

/// The meeting point of the form and its pages, which know nothing of each other. User-interface thread only.
class BatchCfgContact : public QObject
{
    Q_OBJECT

public:
    static BatchCfgContact &instance();

    /// The last form wins. The contact does not own it and forgets it when it is deleted.
    void setForm(BatchCfgForm *form);
    /// The registered form, or null.
    BatchCfgForm *form() const;
    /// form() for those who only cover it with something.
    QWidget *formWidget() const { return m_form; }
    /// Ids of the devices that are ticked and can be seen, top to bottom; empty without a form.
    QStringList checkedDevIds() const;

private:
    BatchCfgContact() = default;

    QPointer<QWidget> m_form; // always a BatchCfgForm
};

} // namespace orda_batchCfg
