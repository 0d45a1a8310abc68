#include "run/SwitchImages.h"

#include <QFile>
#include <QPushButton>

namespace orda_batchCfg {

void completeSwitchImages(const QWidget *page, const QString &clientImages)
{
    const auto buttons = page->findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (!button->isCheckable())
            continue;
        const QString given = button->styleSheet();
        QString complete = given;
        for (const QLatin1String image : {QLatin1String("switch_open.png"), QLatin1String("switch_close.png")})
            if (!QFile::exists(clientImages + image))
                complete.replace(clientImages + image, QLatin1String(":/batchCfg_images/images/") + image);
        if (complete != given) // a new style sheet costs time
            button->setStyleSheet(complete);
    }
}

} // namespace orda_batchCfg
