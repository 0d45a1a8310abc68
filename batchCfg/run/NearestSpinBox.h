#pragma once

#include <QSpinBox>

namespace orda_batchCfg {

/// A spin box in which any number can be typed: one beyond a bound becomes that bound, and an empty line the minimum,
/// when the editor is left or interpretText() is called.
class NearestSpinBox : public QSpinBox
{
    Q_OBJECT

public:
    using QSpinBox::QSpinBox;

protected:
    QValidator::State validate(QString &input, int &pos) const override;
    void fixup(QString &input) const override;

private:
    QString digits(const QString &input) const;
};

} // namespace orda_batchCfg
