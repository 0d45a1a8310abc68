#include "run/KeyEditor.h"

#include "run/CfgFamily.h"

#include <orda_base/ComboBox.h>

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QLineEdit>
#include <QSpinBox>

namespace orda_batchCfg {

namespace {

void fillChoices(QComboBox *combo, const CfgFamily &family, const CfgKey &key)
{
    combo->clear();
    QList<QVariant> values;
    for (const CfgChoice &choice : key.choices) {
        combo->addItem(choice.text ? family.translated(choice.text) : QString::number(choice.value.toInt()));
        if (choice.text)
            values.append(choice.value.isString() ? QVariant(choice.value.toString()) : choice.value.toInt());
    }
    combo->setCurrentIndex(key.initial);
    auto *withData = dynamic_cast<orda_base::ComboBox *>(combo);
    if (withData && !values.isEmpty())
        withData->setItemsData(values);
}

template <typename Editor>
void fillRange(Editor *editor, const CfgKey &key)
{
    editor->setRange(key.minimum, key.maximum);
    editor->setValue(key.initial);
}

} // namespace

void fillEditor(QWidget *editor, const CfgFamily &family, const char *key)
{
    const CfgKey &filled = family.key(key);
    if (auto *combo = qobject_cast<QComboBox *>(editor))
        fillChoices(combo, family, filled);
    else if (auto *slider = qobject_cast<QAbstractSlider *>(editor))
        fillRange(slider, filled);
    else if (auto *spinBox = qobject_cast<QSpinBox *>(editor))
        fillRange(spinBox, filled);
    else if (auto *edit = qobject_cast<QLineEdit *>(editor); edit && filled.type == CfgKey::Text)
        edit->setMaxLength(filled.maximum);
}

QJsonValue editedValue(const QWidget *editor, const CfgFamily &family, const char *key)
{
    const CfgKey &edited = family.key(key);
    if (const auto *combo = qobject_cast<const QComboBox *>(editor)) {
        const int index = combo->currentIndex();
        return index < 0 ? QJsonValue(QJsonValue::Undefined) : edited.choices.at(index).value;
    }
    if (const auto *slider = qobject_cast<const QAbstractSlider *>(editor))
        return slider->value();
    if (const auto *spinBox = qobject_cast<const QSpinBox *>(editor))
        return spinBox->value();
    if (const auto *edit = qobject_cast<const QLineEdit *>(editor))
        return edit->text();
    const auto *button = qobject_cast<const QAbstractButton *>(editor);
    if (!button)
        qFatal("no editor for the key %s of family %s", key, qPrintable(family.name));
    const bool isOn = button->isChecked();
    return edited.type == CfgKey::NumberSwitch ? QJsonValue(isOn ? 1 : 0) : QJsonValue(isOn);
}

} // namespace orda_batchCfg
