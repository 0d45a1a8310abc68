#include <vms_client_sdk/onvif/XmlPath.h>

#include <vms_client_sdk/onvif/OnvifNames.h>

#include <QByteArrayList>

#include <algorithm>

namespace vms_sdk {

namespace {

/// Takes the name of an attribute off the end of a path.
QByteArray takeAttribute(QByteArrayList *names)
{
    if (names->isEmpty() || !names->constLast().startsWith('@'))
        return {};
    return names->takeLast().mid(1);
}

QByteArrayList namesOf(const QByteArray &path)
{
    return path.isEmpty() ? QByteArrayList() : path.split('/');
}

const XmlElement *elementAt(const XmlElement &root, const QByteArrayList &names)
{
    const XmlElement *element = &root;
    for (const QByteArray &name : names)
        if (element)
            element = element->child(onvif::tt, name.constData());
    return element;
}

} // namespace

std::vector<const XmlElement *> elementsAt(const XmlElement &root, const QByteArray &path)
{
    QByteArrayList names = namesOf(path);
    if (names.isEmpty())
        return {&root};
    const QByteArray last = names.takeLast();
    const XmlElement *parent = elementAt(root, names);
    return parent ? parent->all(onvif::tt, last.constData()) : std::vector<const XmlElement *>();
}

std::optional<QString> textAt(const XmlElement &root, const QByteArray &path)
{
    QByteArrayList names = namesOf(path);
    const QByteArray attribute = takeAttribute(&names);
    const XmlElement *element = elementAt(root, names);
    if (!element)
        return std::nullopt;
    if (attribute.isEmpty())
        return element->text();
    if (!element->hasAttribute(attribute.constData()))
        return std::nullopt;
    return element->attribute(attribute.constData()).trimmed();
}

void setTextAt(XmlElement *root, const QByteArray &path, const QString &text)
{
    QByteArrayList names = namesOf(path);
    const QByteArray attribute = takeAttribute(&names);
    XmlElement *element = root;
    for (const QByteArray &name : qAsConst(names))
        if (element)
            element = element->child(onvif::tt, name.constData());
    if (!element)
        return;
    if (attribute.isEmpty())
        element->setText(text);
    else
        element->setAttribute(attribute.constData(), text);
}

XmlElement &placed(XmlElement *parent, const char *name, std::initializer_list<const char *> order)
{
    if (XmlElement *found = parent->child(onvif::tt, name))
        return *found;
    const auto self =
        std::find_if(order.begin(), order.end(), [name](const char *each) { return qstrcmp(each, name) == 0; });
    const auto comesLater = [&](const XmlElement &child) {
        return std::any_of(self, order.end(), [&](const char *each) { return child.is(onvif::tt, each); });
    };
    std::vector<XmlElement> &children = parent->children;
    const auto place = std::find_if(children.begin(), children.end(), comesLater);
    return *children.insert(place, XmlElement(onvif::tt, name));
}

void removeChild(XmlElement *parent, const char *name)
{
    std::vector<XmlElement> &children = parent->children;
    const auto found = std::find_if(children.begin(), children.end(),
                                    [name](const XmlElement &child) { return child.is(onvif::tt, name); });
    if (found != children.end())
        children.erase(found);
}

} // namespace vms_sdk
