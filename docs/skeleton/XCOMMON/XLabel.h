#pragma once

#include <QLabel>

namespace XCOMMON {

/// The captions beside the editors.
class XLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;
};

} // namespace XCOMMON
