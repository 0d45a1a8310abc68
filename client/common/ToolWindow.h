#pragma once

#include <QMainWindow>

namespace orda_client {

class ClientSettings;

/// A window beside the main one, as all of them are: remembers its size and place, closes on Esc, Ctrl+F goes to its
/// search, Return presses the button that has the focus. Deletes itself when it is closed.
class ToolWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Brings a window to the front, wherever it is.
    static void bringToFront(QWidget *window);

    ~ToolWindow() override;

protected:
    /// @param name object name, under which its size and place are remembered
    /// @param wanted its size at first, as far as the screen has room for it
    ToolWindow(const QString &name, const QSize &wanted, ClientSettings *settings, QWidget *parent);

    /// Shows @p content with the usual margins around it. Called once, when the content is complete: an
    /// orda_base::SearchBox in it gets Ctrl+F.
    void setContent(QWidget *content);

    ClientSettings *settings() const { return m_settings; }

private:
    ClientSettings *m_settings;
};

} // namespace orda_client
