#pragma once

#include <QObject>
#include <QPixmap>
#include <QString>

class QFont;
class QWidget;

/// Helpers shared by the application family; static operations only. GUI thread.
class CommonFunction : public QObject
{
    Q_OBJECT

public:
    /// Name of the root of a tree by its `rootType`; empty for any other value.
    static QString categoryName(int rootType);
    /// Text of a category key such as "zenvo_video"; empty when \a key is none.
    static QString categoryKeyText(const QString &key);
    /// Fallback of the language service: "yyyy-MM-dd" in Chinese-speaking time zones, else
    /// "MM-dd-yyyy". \a seconds since the epoch, shown in local time; empty when no calendar
    /// reaches that far.
    static QString dateText(qint64 seconds);
    /// Fallback of the language service: two decimals and a translated unit, multiples of 1024.
    /// Bytes have no decimals.
    static QString sizeText(qint64 bytes);

    /// Device pixel ratio of the primary screen; 1 without a screen.
    static qreal getScaleFactor();
    /// `base.ext`, or `base@2x.ext` on a screen of ratio 2 or more. Does not test that it exists.
    static QString getHighDpiPath(const QString &base, const QString &extension);
    /// The path of a picture of the current theme; a dark one that does not exist is its light
    /// twin.
    static QString getThemeImagePath(const QString &name, const QString &extension);
    /// The picture at \a path with its device pixel ratio set; null when there is none. A picture
    /// for double resolution keeps its size in device-independent pixels on denser screens too.
    static QPixmap loadPixmap(const QString &path);
    /// Shorthands over the three above, with "png".
    static QPixmap themePixmap(const QString &name);
    static QPixmap highDpiPixmap(const QString &base);

    /// How a location reads: \a volumeRoot in front of \a path, '\\' between, "/Volume" dropped.
    /// The path "Volume" stands for the volume itself and reads as its root. Empty when \a path
    /// is empty.
    static QString combinedPath(const QString &path, const QString &volumeRoot);
    /// \a text cut in the middle to \a width device-independent pixels.
    static QString elidedMiddle(const QString &text, const QFont &font, int width);

    /// Covers \a parent, darkens it and follows its size; owned by \a parent, shown by the caller.
    /// Null for a null parent.
    static QWidget *createMaskLayer(QWidget *parent);
    static QWidget *createMaskLayer(QWidget *parent, int cornerRadius);

    /// The application's main window, which marks itself with one of its properties
    /// "MainWindowID" and "ZVQuarvoWindowID"; without one the window of \a widget.
    static QWidget *mainWindow(QWidget *widget);
    /// A mask layer for a whole window, round at the corners where the window is.
    static QWidget *createWindowMask(QWidget *window);
    /// Moves \a dialog into the middle of \a window, as far as the screen holds all of it.
    static void placeOver(QWidget *dialog, const QWidget *window);
};
