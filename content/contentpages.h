#pragma once

#include "content/pagechoice.h"

#include <QObject>

class AISearchHintFrame;
class ScanAnimation;
class SearchHintFrame;

namespace Ui {
class SDCardContentDataWidgetClass;
}

/// The pages of a content area: which one fits what is known of the scan, their pictures, texts and
/// fonts, and the animation, which plays while its page is shown. Pages that the form does not have
/// are made and added here when they are first shown. The form is the content area's. GUI thread.
class ContentPages : public QObject
{
    Q_OBJECT

public:
    /// Shows the first page of the side.
    ContentPages(Ui::SDCardContentDataWidgetClass &form, bool searchSide, QObject *parent);

    bool isSearchSide() const { return m_searchSide; }
    bool searchMode() const { return m_searchMode; }
    void setSearchMode(bool searchMode) { m_searchMode = searchMode; }
    bool scanFinished() const { return m_scanFinished; }
    void setScanFinished(bool finished) { m_scanFinished = finished; }
    /// Stays the caller's; null: no filter.
    void setFilterCondition(const FilterCondition *condition) { m_filter = condition; }

    PageChoice::Page current() const;
    void show(PageChoice::Page page);
    /// The page that fits a tree that is handed over.
    PageChoice::Page pageForTree(const TreeItemData *root) const;
    /// The scan has ended with \a root, which may be null.
    void showForFinishedScan(const TreeItemData *root);
    /// Unless the scan still runs or a search is shown.
    void showLoading();
    ScanAnimation *animation() const { return m_animation; }

    void applyFonts();
    void retranslate();
    void updateTheme();

signals:
    void shown();

private:
    QWidget *searchHint();
    QWidget *aiSearchHint();
    void loadImages();
    PageChoice::Situation situation(const TreeItemData *root) const;

    Ui::SDCardContentDataWidgetClass &m_form;
    ScanAnimation *m_animation;
    SearchHintFrame *m_searchHint = nullptr;
    AISearchHintFrame *m_aiSearchHint = nullptr;
    const FilterCondition *m_filter = nullptr;
    const bool m_searchSide;
    bool m_searchMode = false;
    bool m_scanFinished = false;
};
