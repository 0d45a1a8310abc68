#pragma once

#include <QImage>
#include <QRect>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

// Whether texts can be read, by what is drawn.

constexpr double readableContrast = 4.5; // WCAG 2.1, 1.4.3, for text of ordinary size

/// A window as it looks, larger than it is.
QImage pictureOf(QWidget *window);
/// Of what is drawn in a part of a picture: the colour that most of it has, against the one that differs most.
/// @param rect in the window's pixels
double contrastIn(const QImage &picture, const QRect &rect);
/// Where a widget's text stands, without frame, mark and icon; empty when it shows none.
QRect textRect(const QWidget *widget);
