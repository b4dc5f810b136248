#pragma once

#include <QString>
#include <QStringList>

class QWidget;

/// Stylesheets are plain files beside the application, one per widget class and theme.
namespace QSSLoader {

/// Text of \a fileNames of the module \a folder in the current theme's folder.
QString loadStyleSheet(const QString &folder, const QStringList &fileNames);
/// The texts of \a paths, one after the other; an unreadable file is logged and left out.
QString loadFiles(const QStringList &paths);
/// Gives \a widget the plug-in's stylesheet \a fileName; an empty one leaves the widget as it is.
void applyStyleSheet(QWidget *widget, const QString &fileName);

} // namespace QSSLoader
