#pragma once

#include "content/pagechoice.h"

#include <QObject>

class ScanAnimation;

namespace Ui {
class SDCardContentDataWidgetClass;
}

/// The pages of a content area: which one is shown, their pictures, texts and fonts, and the
/// animation, which plays while its page is shown. The form is the content area's. GUI thread.
class ContentPages : public QObject
{
    Q_OBJECT

public:
    ContentPages(Ui::SDCardContentDataWidgetClass &form, QObject *parent);

    PageChoice::Page current() const;
    void show(PageChoice::Page page);
    ScanAnimation *animation() const { return m_animation; }

    void loadImages();
    void applyFonts();
    void retranslate();

signals:
    void shown();

private:
    Ui::SDCardContentDataWidgetClass &m_form;
    ScanAnimation *m_animation;
};
