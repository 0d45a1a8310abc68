#include "client/form/FormPage.h"

#include "client/form/Families.h"

#include <families/Families.h>

#include <QPushButton>
#include <QStackedWidget>
#include <QVariant>

#include <algorithm>

namespace orda_client {

namespace {

FormPage read(QWidget *page)
{
    FormPage read;
    const QVariantMap current = page ? page->property("current").toMap() : QVariantMap();
    read.family = orda_batchCfg::Families::find(current.value(QStringLiteral("family")).toString());
    if (!read.family)
        return {};
    read.page = page;
    read.values = current.value(QStringLiteral("values")).toJsonObject();
    const QVariantList members = current.value(QStringLiteral("members")).toList();
    for (const QVariant &shown : members) {
        const QVariantMap member = shown.toMap();
        QVector<QPointer<QAbstractButton>> boxes;
        const QVariantList shownBoxes = member.value(QStringLiteral("boxes")).toList();
        for (const QVariant &box : shownBoxes)
            boxes.append(qobject_cast<QAbstractButton *>(box.value<QObject *>()));
        read.members.append({member.value(QStringLiteral("name")).toString(),
                             member.value(QStringLiteral("title")).toString(), boxes,
                             qobject_cast<QWidget *>(member.value(QStringLiteral("editor")).value<QObject *>())});
    }
    return read;
}

} // namespace

bool FormPage::Member::isMeant() const
{
    return !boxes.isEmpty()
        && std::all_of(boxes.begin(), boxes.end(), [](const auto &box) { return box && box->isChecked(); });
}

FormPage FormPage::shown(const QWidget *form)
{
    const auto *pages = form->findChild<QStackedWidget *>(QStringLiteral("stackedWidget"));
    return pages ? read(pages->currentWidget()) : FormPage();
}

FormPage FormPage::of(const QWidget *form, const orda_batchCfg::CfgFamily &family)
{
    const Family *entry = findFamily(family.name);
    return entry ? read(form->findChild<QWidget *>(entry->pageName)) : FormPage();
}

int FormPage::parameters() const
{
    QVector<const QAbstractButton *> ticked;
    for (const Member &member : members)
        if (member.isMeant() && !ticked.contains(member.boxes.constFirst().data()))
            ticked.append(member.boxes.constFirst().data());
    return ticked.size();
}

void FormPage::open(const QWidget *form) const
{
    const Family *entry = family ? findFamily(family->name) : nullptr;
    auto *button = entry ? form->findChild<QAbstractButton *>(entry->navigationKey) : nullptr;
    if (button)
        button->click();
}

void FormPage::press() const
{
    auto *configure = page ? page->findChild<QPushButton *>(QStringLiteral("okBt")) : nullptr;
    if (configure)
        configure->click();
}

} // namespace orda_client
