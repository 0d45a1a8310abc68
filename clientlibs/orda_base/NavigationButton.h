#pragma once

#include <orda_base/Export.h>

#include <QAbstractButton>
#include <QIcon>

namespace orda_base {

/// A bar of the navigation, or an entry under one. The arrow keys go to the ones above and below, Space and Return
/// press it; assistive technology learns whether it is current, or unfolded.
class ORDA_BASE_EXPORT NavigationButton : public QAbstractButton
{
    Q_OBJECT

public:
    enum Kind
    {
        Bar,
        FoldingBar,
        Entry
    };

    NavigationButton(Kind kind, const QString &title, QWidget *parent);

    /// Makes assistive technology see navigations as such; to be called before their first name is set.
    static void installAccess();

    void setIcons(const QIcon &normal, const QIcon &highlighted);
    Kind kind() const { return m_kind; }
    void setHighlighted(bool highlighted);
    bool isHighlighted() const { return m_isHighlighted; }
    /// Of a folding bar: which way its arrow points.
    void setUnfolded(bool unfolded);
    bool isUnfolded() const { return m_isUnfolded; }
    /// Whether the text has room in one line or two; else it is elided, and the tool tip has the whole of it.
    bool isTextWhole() const;

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QRect textRect() const;
    void moveFocus(bool down) const;

    Kind m_kind;
    QIcon m_normal, m_highlighted;
    bool m_isHighlighted = false;
    bool m_isUnfolded = true;
};

} // namespace orda_base
