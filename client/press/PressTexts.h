#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

namespace orda_client {

struct FormPage;
struct FormTicks;

/// What a press on Configure would do, in words.
class PressTexts
{
    Q_DECLARE_TR_FUNCTIONS(orda_client::PressTexts)

public:
    /// "5 parameters to 886 devices (12 ticked devices are hidden by the search and left out)", or why a press would do
    /// nothing. Empty while no page can be pressed.
    static QString press(const FormPage &page, const FormTicks &ticks);
    /// Whether a press would write to devices.
    static bool isEffective(const FormPage &page, const FormTicks &ticks);
    /// "12 ticked devices are hidden by the search and left out"; empty when there are none.
    static QString hidden(int devices);
    /// "800 cameras and 86 recorders".
    static QString kinds(const QStringList &devIds);
};

} // namespace orda_client
