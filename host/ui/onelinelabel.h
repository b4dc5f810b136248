#pragma once

#include <QLabel>

/// One line that gives way where the room is short, with the whole text as its tooltip then.
class OneLineLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool isShort() const;
};
