#pragma once

#include "host/ui/glyphs.h"

#include <QFrame>

class QButtonGroup;
class QHBoxLayout;
struct HostTheme;

/// A row of buttons of which one is chosen.
class Segments : public QFrame
{
    Q_OBJECT

public:
    explicit Segments(QWidget *parent = nullptr);

    /// With a text, or with an icon only and \a name as its tooltip.
    void addText(int id, const QString &text);
    void addGlyph(int id, Glyph glyph, const QString &name);
    void setText(int id, const QString &text);
    void setChosen(int id);
    int chosen() const;
    void setTheme(const HostTheme &theme);

signals:
    void picked(int id); ///< by the user

private:
    QButtonGroup *m_group;
    QHBoxLayout *m_row;
};
