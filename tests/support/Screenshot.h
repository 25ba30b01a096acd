#pragma once

#include <QCoreApplication>
#include <QDir>
#include <QPixmap>
#include <QWidget>

// Saves what a widget shows as <test binary's folder>/screenshots/<name>.png, for a person
// to look at; returns whether it was written.
inline bool saveScreenshot(const QPixmap &picture, const QString &name)
{
    const QString dir = QCoreApplication::applicationDirPath() + u"/screenshots";
    return QDir().mkpath(dir) && picture.save(dir + u'/' + name + u".png");
}

inline bool saveScreenshot(QWidget *widget, const QString &name)
{
    return saveScreenshot(widget->grab(), name);
}
