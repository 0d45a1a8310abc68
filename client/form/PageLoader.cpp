#include "client/form/PageLoader.h"

#include "client/form/FormPage.h"
#include "client/form/FormTicks.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>

#include <algorithm>

namespace orda_client {

PageLoader::PageLoader(const QWidget *form, const orda_batchCfg::CfgFamily &family)
    : m_form(form)
    , m_family(family)
{
}

FormPage PageLoader::page() const
{
    return FormPage::of(m_form, m_family);
}

PageLoader::Members PageLoader::membersOf(const QJsonObject &values) const
{
    Members members;
    for (const orda_batchCfg::CfgExchange &exchange : m_family.exchanges) {
        const QJsonObject asked = exchange.askedBy(values);
        for (auto member = asked.begin(); member != asked.end(); ++member)
            members.insert(member.key(), *member);
    }
    return members;
}

PageLoader::Members PageLoader::current() const
{
    return membersOf(page().values);
}

PageLoader::Loaded PageLoader::load(const QJsonObject &values)
{
    Loaded result;
    const FormPage shown = page();
    if (!shown.family || FormTicks::runOverlay(m_form)) {
        result.refusal = shown.family ? tr("A run is going on. Load the values when it has ended.")
                                      : tr("The form has no page for these values.");
        return result;
    }
    const Members wanted = membersOf(values);
    tickBoxes(wanted);

    // In the page's order: a server's port counts only beside its address.
    QVector<QWidget *> done;
    for (const FormPage::Member &member : shown.members) {
        if (!member.editor || !wanted.contains(member.name) || done.contains(member.editor))
            continue;
        done.append(member.editor);
        Members ofEditor; // several, as width and height are one resolution
        for (const FormPage::Member &other : shown.members)
            if (other.editor == member.editor && wanted.contains(other.name))
                ofEditor.insert(other.name, wanted.value(other.name));
        setEditor(member.editor, ofEditor);
    }
    emptyUnwanted(wanted);

    untickWrong(wanted);
    const Members sent = current();
    for (auto member = wanted.begin(); member != wanted.end(); ++member)
        if (!sent.contains(member.key()) || sent.value(member.key()) != *member)
            result.notSet.append(member.key());
    for (auto member = sent.begin(); member != sent.end(); ++member)
        if (!wanted.contains(member.key()))
            result.besides.append(member.key());
    return result;
}

void PageLoader::tickBoxes(const Members &wanted) const
{
    const FormPage shown = page();
    QVector<QAbstractButton *> needed;
    for (const FormPage::Member &member : shown.members)
        if (wanted.contains(member.name))
            for (const QPointer<QAbstractButton> &box : member.boxes)
                needed.append(box);
    for (const FormPage::Member &member : shown.members)
        for (const QPointer<QAbstractButton> &box : member.boxes)
            if (box)
                box->setChecked(needed.contains(box));
}

/// Tries what the editor can have until the page sends what is wanted. Where nothing fits, the editor stays as it was.
void PageLoader::setEditor(QWidget *editor, const Members &wanted) const
{
    const auto fits = [this, &wanted] {
        const Members sent = current();
        return std::all_of(wanted.keyBegin(), wanted.keyEnd(), [&](const QString &name) {
            return sent.contains(name) && sent.value(name) == wanted.value(name);
        });
    };
    const QJsonValue value = wanted.first();
    if (auto *combo = qobject_cast<QComboBox *>(editor)) {
        const int before = combo->currentIndex();
        bool isFound = false;
        for (int index = 0; index < combo->count() && !isFound; ++index) {
            combo->setCurrentIndex(index);
            isFound = fits();
        }
        if (!isFound)
            combo->setCurrentIndex(before);
    } else if (auto *edit = qobject_cast<QLineEdit *>(editor)) {
        const QString before = edit->text();
        edit->setText(value.isDouble() ? QString::number(value.toInt()) : value.toString());
        if (!fits() || !edit->hasAcceptableInput()) // setText() takes what nobody can type there
            edit->setText(before);
    } else if (auto *spinBox = qobject_cast<QSpinBox *>(editor)) {
        const int before = spinBox->value();
        spinBox->setValue(value.toInt());
        if (!fits())
            spinBox->setValue(before);
    } else if (auto *slider = qobject_cast<QAbstractSlider *>(editor)) {
        const int before = slider->value();
        slider->setValue(value.toInt());
        if (!fits())
            slider->setValue(before);
    } else if (auto *button = qobject_cast<QAbstractButton *>(editor); button && !fits()) {
        button->toggle();
        if (!fits())
            button->toggle();
    }
}

/// Another value than the user's must not be sent.
void PageLoader::untickWrong(const Members &wanted) const
{
    const FormPage shown = page();
    const Members sent = current();
    const auto isWrong = [&](const FormPage::Member &member) {
        const auto value = sent.constFind(member.name);
        return wanted.contains(member.name) && value != sent.constEnd() && *value != wanted.value(member.name);
    };
    const bool isAllWrong = std::any_of(shown.members.begin(), shown.members.end(), [&](const auto &member) {
        return member.boxes.isEmpty() && isWrong(member); // it goes with whatever is sent
    });
    for (const FormPage::Member &member : shown.members)
        if (!member.boxes.isEmpty() && member.boxes.constFirst() && (isAllWrong || isWrong(member)))
            member.boxes.constFirst()->setChecked(false);
}

/// Parameters that share a box with a wanted one stay out when their line is empty, as a server without an address.
void PageLoader::emptyUnwanted(const Members &wanted) const
{
    const FormPage shown = page();
    for (const FormPage::Member &member : shown.members) {
        auto *edit = qobject_cast<QLineEdit *>(member.editor);
        if (edit && !wanted.contains(member.name) && current().contains(member.name))
            edit->clear();
    }
}

} // namespace orda_client
