#pragma once

#include <QStringList>
#include <QWidget>

#include <memory>

class FlowLayout;

namespace Ui {
class ChipInfoItem;
}

/// A title above chips that wrap: the tags of the detail pane.
class ChipInfoItem : public QWidget
{
    Q_OBJECT

public:
    explicit ChipInfoItem(QWidget *parent = nullptr);
    ~ChipInfoItem() override;

    void setTitle(const QString &title);
    void setChips(const QStringList &texts);
    QStringList chips() const { return m_texts; }
    void updateTheme();

private:
    void loadStyleSheet();

    std::unique_ptr<Ui::ChipInfoItem> ui;
    FlowLayout *m_flow;
    QStringList m_texts;
};
