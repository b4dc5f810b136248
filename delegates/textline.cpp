#include "delegates/textline.h"

std::unique_ptr<QTextLayout> laidOutLine(const QString &text, const QFont &font,
                                         Qt::LayoutDirection direction,
                                         const QVector<QTextLayout::FormatRange> &formats)
{
    auto layout = std::make_unique<QTextLayout>(text, font);
    layout->setFormats(formats);
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    option.setTextDirection(direction);
    layout->setTextOption(option);
    layout->setCacheEnabled(true);
    layout->beginLayout();
    layout->createLine();
    layout->endLayout();
    return layout;
}
