#pragma once

#include <QWidget>

#include <memory>

namespace Ui {
class DataInfoItem;
}

/// One fact of the detail pane: a title above its value.
class DataInfoItem : public QWidget
{
    Q_OBJECT

public:
    explicit DataInfoItem(QWidget *parent = nullptr);
    ~DataInfoItem() override;

    void setTitle(const QString &title);
    QString title() const;
    /// An empty \a value shows as "--".
    void setValue(const QString &value);
    QString value() const;
    void setLink(bool link);
    /// The keyboard comes here behind \a widget.
    void setTabAfter(QWidget *widget);
    void setValueElideMode(Qt::TextElideMode mode);
    void updateTheme();

signals:
    void linkClicked();

private:
    void loadStyleSheet();
    void applyFonts();

    std::unique_ptr<Ui::DataInfoItem> ui;

protected:
    void changeEvent(QEvent *event) override;
};
