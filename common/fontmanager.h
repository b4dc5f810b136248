#pragma once

#include <QFont>
#include <QObject>

class QWidget;

/// The font family for the language of the user interface. Shared by all modules of a process
/// through the application property "FontManager" (void*). GUI thread.
class FontManager : public QObject
{
    Q_OBJECT

public:
    static FontManager *instance();
    /// Deletes the object; the next instance() makes a new one.
    static void release();

    /// \a languageName as the host spells it, for example "Japanese" or "Chinese Simplified".
    /// Invokable, so that a host which shares no code with us can call it by name.
    Q_INVOKABLE void setLanguage(const QString &languageName);
    QString family() const { return m_family; }
    QString language() const { return m_language; }

    /// \a weight as in CSS: 400 normal, 600 semibold.
    QFont getFont(int pixelSize, int weight) const;
    /// The same in "Segoe UI", whatever the language.
    static QFont getFixedFont(int pixelSize, int weight);
    /// No size set; \a semibold has a family of its own only where Windows has one.
    QFont getFont(bool semibold) const;
    /// The same in the size that the stylesheet gives the widget too. A font that the sheet does
    /// not have to change costs no layout each time that the theme does.
    QFont styledFont(bool semibold, int pixelSize) const;
    /// Leaves a null \a widget alone.
    void setWidgetFont(QWidget *widget, int pixelSize, int weight) const;

private:
    explicit FontManager(QObject *parent = nullptr);

    QString m_family;
    QString m_language;
};
