#include "fleet/onvif/CameraTemplates.h"

#include <QFile>

// Outside the namespace, as the macro demands; a static library's resources are lost without it.
static void loadResource()
{
    Q_INIT_RESOURCE(device_fleet);
}

namespace device_fleet {

using vms_sdk::XmlElement;

namespace {

QHash<QString, XmlElement> readTemplates()
{
    loadResource();
    QFile file(QStringLiteral(":/device_fleet/onvif/camera.xml"));
    const QByteArray text = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    const vms_sdk::XmlRead read = vms_sdk::readXml(text);
    if (!read.root)
        qFatal("camera.xml: %s", qPrintable(read.error));
    QHash<QString, XmlElement> templates;
    for (const XmlElement &each : read.root->children)
        templates.insert(each.attribute("name"), vms_sdk::detached({&*read.root, &each, &each.children.at(0)}));
    return templates;
}

QString filled(QString text, const TemplateValues &values)
{
    int begin = 0;
    while ((begin = text.indexOf(QLatin1Char('{'), begin)) >= 0) {
        const int end = text.indexOf(QLatin1Char('}'), begin);
        if (end < 0)
            qFatal("camera.xml: a placeholder without an end in \"%s\"", qPrintable(text));
        const QString value = values.value(text.mid(begin + 1, end - begin - 1).toLatin1());
        text.replace(begin, end - begin + 1, value);
        begin += value.size();
    }
    return text;
}

XmlElement filled(const XmlElement &element, const TemplateValues &values);

void appendFilled(XmlElement *parent, const XmlElement &child, const TemplateValues &values)
{
    if (child.hasAttribute("only") && values.value(child.attribute("only").toLatin1()).isEmpty())
        return;
    if (!child.hasAttribute("each")) {
        parent->append(filled(child, values));
        return;
    }
    const QStringList words = filled(child.attribute("each"), values).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &word : words) {
        TemplateValues withParts = values;
        const int cross = word.at(0).isDigit() ? word.indexOf(QLatin1Char('x')) : -1;
        withParts.insert("1", word.left(cross));
        withParts.insert("2", cross < 0 ? QString() : word.mid(cross + 1));
        parent->append(filled(child, withParts));
    }
}

XmlElement filled(const XmlElement &element, const TemplateValues &values)
{
    XmlElement made = element;
    made.content = filled(element.content, values);
    made.children.clear();
    made.attributes.clear();
    for (XmlElement::Attribute attribute : element.attributes) {
        if (attribute.name == QLatin1String("only") || attribute.name == QLatin1String("each"))
            continue;
        const bool isPlaceholder = attribute.value.startsWith(QLatin1Char('{'));
        attribute.value = filled(attribute.value, values);
        if (!isPlaceholder || !attribute.value.isEmpty())
            made.attributes.append(attribute);
    }
    for (const XmlElement &child : element.children)
        appendFilled(&made, child, values);
    return made;
}

} // namespace

XmlElement fromTemplate(const QString &name, const TemplateValues &values)
{
    static const QHash<QString, XmlElement> templates = readTemplates();
    const auto found = templates.constFind(name);
    if (found == templates.constEnd())
        qFatal("camera.xml: no template \"%s\"", qPrintable(name));
    return filled(*found, values);
}

} // namespace device_fleet
