#pragma once

#include <QWidget>

/// A translucent sheet that covers its parent, follows its size and keeps the mouse away from it.
class MaskLayer : public QWidget
{
    Q_OBJECT

public:
    MaskLayer(QWidget *parent, int cornerRadius);

    bool eventFilter(QObject *watched, QEvent *event) override;
};
