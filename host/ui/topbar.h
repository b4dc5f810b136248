#pragma once

#include <QFrame>
#include <QIcon>
#include <QTimer>

class QAction;
class QActionGroup;
class QLineEdit;
class QMenu;
class QToolButton;
class Segments;
struct HostTheme;

/// What is scanned, the search box, how results are shown, the language and the theme.
class TopBar : public QFrame
{
    Q_OBJECT

public:
    explicit TopBar(QWidget *parent = nullptr);

    void setSource(const QString &path);
    void setScanning(bool scanning);
    void setViewMode(int mode);
    void setKeyword(const QString &keyword);
    QString keyword() const;
    /// What is typed describes items rather than names them.
    void setDescribed(bool described);
    void focusSearch();
    void setTheme(const HostTheme &theme);

signals:
    void openFolderRequested();
    void openImageRequested();
    void rescanRequested();
    void stopRequested();
    void keywordChanged(const QString &keyword); ///< once typing pauses
    void describedChanged(bool described);
    void viewModePicked(int mode);
    void themeToggled();
    void languagePicked(const QString &name);

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void buildSourceMenu();
    void buildLanguageMenu();
    void retranslate();
    void elideSource();
    void nameSearch();

    QToolButton *m_source;
    QMenu *m_menu;
    QAction *m_openFolder = nullptr;
    QAction *m_openImage = nullptr;
    QAction *m_rescan = nullptr;
    QAction *m_stop = nullptr;
    QLineEdit *m_search;
    QAction *m_searchIcon = nullptr;
    QAction *m_describe = nullptr;
    QIcon m_namedIcon;
    QIcon m_describedIcon;
    Segments *m_views;
    QToolButton *m_language;
    QActionGroup *m_languages;
    QToolButton *m_theme;
    QTimer m_typing;
    QString m_path;
};
