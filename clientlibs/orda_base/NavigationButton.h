#pragma once

#include <orda_base/Export.h>

#include <QAbstractButton>
#include <QIcon>

namespace orda_base {

/// A bar of the navigation, or an entry under a bar. The arrow keys move the focus to the button above or below; Space
/// and Return press the button. Assistive technology is told which entry is open and which bars are unfolded.
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

    /// Describes navigations and their buttons to assistive technology. Call this before their first name is set.
    static void installAccess();

    void setIcons(const QIcon &normal, const QIcon &highlighted);
    Kind kind() const { return m_kind; }
    void setHighlighted(bool highlighted);
    bool isHighlighted() const { return m_isHighlighted; }
    /// For a folding bar: sets the direction of its arrow.
    void setUnfolded(bool unfolded);
    bool isUnfolded() const { return m_isUnfolded; }
    /// Whether the text fits in its one or two lines. If not, it is elided and the tool tip shows all of it.
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
