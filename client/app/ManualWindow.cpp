#include "client/app/ManualWindow.h"

#include <QFile>
#include <QLocale>
#include <QTextBrowser>

namespace orda_client {

namespace {

constexpr QSize wantedSize(820, 760);
constexpr int pageMargin = 16;

QString manualIn(const QString &language)
{
    return QStringLiteral(":/manual/manual_%1.md").arg(language);
}

/// The program's languages are the ones of which Translations has set the locale.
QString manual()
{
    QString path = manualIn(QStringLiteral("en"));
    for (const char *language : {"de", "zh_CN"})
        if (QLocale(QLatin1String(language)).language() == QLocale().language()
            && QFile::exists(manualIn(QLatin1String(language))))
            path = manualIn(QLatin1String(language));
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    return QString::fromUtf8(file.readAll());
}

} // namespace

ManualWindow::ManualWindow(ClientSettings *settings, QWidget *parent)
    : ToolWindow(QStringLiteral("manualWindow"), wantedSize, settings, parent)
{
    setWindowTitle(tr("Manual"));
    auto *page = new QTextBrowser;
    page->setObjectName(QStringLiteral("manual"));
    page->setAccessibleName(tr("Manual"));
    page->document()->setDocumentMargin(pageMargin);
    page->setMarkdown(manual());
    setContent(page);
    page->setFocus();
}

} // namespace orda_client
