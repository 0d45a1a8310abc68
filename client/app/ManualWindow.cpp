#include "client/app/ManualWindow.h"

#include <QFile>
#include <QLocale>
#include <QTextBrowser>
#include <QTextFrame>
#include <QTextTable>

namespace orda_client {

namespace {

constexpr QSize wantedSize(820, 760);
constexpr int pageMargin = 16;
constexpr int cellPadding = 6;

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

/// The tables of a text in Markdown have double lines and no room in their cells.
void styleTables(QTextDocument *text, const QColor &lines)
{
    const QList<QTextFrame *> frames = text->rootFrame()->childFrames();
    for (QTextFrame *frame : frames) {
        auto *table = qobject_cast<QTextTable *>(frame);
        if (!table)
            continue;
        QTextTableFormat format = table->format();
        format.setBorderCollapse(true);
        format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
        format.setBorder(1);
        format.setBorderBrush(lines);
        format.setCellSpacing(0);
        format.setCellPadding(cellPadding);
        format.setTopMargin(cellPadding);
        table->setFormat(format);
    }
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
    styleTables(page->document(), palette().color(QPalette::Disabled, QPalette::Text));
    setContent(page);
    page->setFocus();
}

} // namespace orda_client
