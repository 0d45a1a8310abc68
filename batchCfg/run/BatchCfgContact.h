#pragma once

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QWidget>

#include <functional>

namespace orda_batchCfg {

class BatchCfgForm;

/// The meeting point of the form and its pages, which know nothing of each other. User-interface thread only.
class BatchCfgContact : public QObject
{
    Q_OBJECT

public:
    static BatchCfgContact &instance();

    /// The last form wins. The contact does not own it and forgets it when it is deleted.
    /// @tparam Form BatchCfgForm, whose definition only shell/ includes
    template <typename Form>
    void setForm(Form *form)
    {
        m_form = form;
        m_widget = form;
        m_listCheckedDevIds = [form] { return form->checkedDevIds(); };
    }
    void setForm(std::nullptr_t) { m_widget = nullptr; }
    /// The registered form, or null.
    BatchCfgForm *form() const { return m_widget ? m_form : nullptr; }
    /// form() for those who only cover it with something.
    QWidget *formWidget() const { return m_widget; }
    /// Ids of the devices that are ticked and can be seen, top to bottom; empty without a form.
    QStringList checkedDevIds() const { return m_widget ? m_listCheckedDevIds() : QStringList(); }

private:
    BatchCfgContact() = default;

    BatchCfgForm *m_form = nullptr; // dangles once m_widget is null
    QPointer<QWidget> m_widget;
    std::function<QStringList()> m_listCheckedDevIds;
};

} // namespace orda_batchCfg
