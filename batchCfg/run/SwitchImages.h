#pragma once

#include <QString>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace orda_batchCfg {

/// The switches of a page show nothing but two images, which the client provides. Where it lacks one, its switches show
/// the module's own, because a switch without an image cannot be seen. Called once, after the page's form was built.
/// @param clientImages the directory that the style sheets of the switches name
void completeSwitchImages(const QWidget *page, const QString &clientImages = QStringLiteral(":/images/images/"));

} // namespace orda_batchCfg
