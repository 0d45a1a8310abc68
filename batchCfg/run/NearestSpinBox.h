#pragma once

#include <QSpinBox>

namespace orda_batchCfg {

/// A spin box in which any number can be typed. When the editor is left or interpretText() is called, a number outside
/// the range becomes the nearest one inside it, and an empty line becomes the minimum.
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
