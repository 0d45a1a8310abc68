#include "run/CheckBoxAccess.h"

#include <QAccessibleWidget>
#include <QCheckBox>

namespace orda_batchCfg {

namespace {

class CheckBoxAccess : public QAccessibleWidget
{
public:
    explicit CheckBoxAccess(QCheckBox *box)
        : QAccessibleWidget(box, QAccessible::CheckBox)
        , m_box(box)
    {
    }

    QString text(QAccessible::Text type) const override
    {
        const QString text = QAccessibleWidget::text(type);
        return type == QAccessible::Name && text.isEmpty() ? m_box->text() : text;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = m_box->checkState() == Qt::Checked;
        state.checkStateMixed = m_box->checkState() == Qt::PartiallyChecked;
        state.pressed = m_box->isDown();
        return state;
    }

    QStringList actionNames() const override
    {
        const QStringList common = QAccessibleWidget::actionNames();
        return m_box->isEnabled() ? QStringList{toggleAction()} + common : common;
    }

    void doAction(const QString &name) override
    {
        if (name == toggleAction())
            m_box->click();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    QCheckBox *m_box;
};

bool isInModule(const QObject *object)
{
    while (object && !QByteArray(object->metaObject()->className()).startsWith("orda_batchCfg::"))
        object = object->parent();
    return object;
}

QAccessibleInterface *makeAccess(const QString &className, QObject *object)
{
    if (className == QLatin1String("QCheckBox") && isInModule(object))
        return new CheckBoxAccess(qobject_cast<QCheckBox *>(object));
    return nullptr;
}

} // namespace

void installCheckBoxAccess()
{
    QAccessible::installFactory(makeAccess); // does nothing when it is there already
}

} // namespace orda_batchCfg
