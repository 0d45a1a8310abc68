#pragma once

#include <QEvent>
#include <QObject>
#include <QPointer>
#include <QVariant>

#include <functional>

/// Calls a function with the new value whenever a dynamic property of an object has changed.
class PropertyWatch : public QObject
{
public:
    PropertyWatch(QObject *watched, const char *name, std::function<void(const QVariant &)> changed)
        : m_name(name)
        , m_changed(std::move(changed))
    {
        watched->installEventFilter(this);
    }

private:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const QPointer<QObject> stillThere(watched);
        if (event->type() == QEvent::DynamicPropertyChange
            && static_cast<QDynamicPropertyChangeEvent *>(event)->propertyName() == m_name)
            m_changed(watched->property(m_name));
        return !stillThere; // then the event must not go to it
    }

    QByteArray m_name;
    std::function<void(const QVariant &)> m_changed;
};
