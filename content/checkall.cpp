#include "content/checkall.h"

#include "common/commonfunction.h"

#include <QPushButton>
#include <QVariant>

namespace {

const char StateProperty[] = "checkstate";

QString iconName(int state)
{
    switch (state) {
    case Qt::Checked:
        return QStringLiteral("icon16_check_normal");
    case Qt::PartiallyChecked:
        return QStringLiteral("icon16_half_check");
    default:
        return QStringLiteral("icon16_uncheck_normal");
    }
}

} // namespace

CheckAll::CheckAll(QPushButton *button)
    : QObject(button)
    , m_button(button)
{
    setState(Qt::Unchecked);
    connect(button, &QPushButton::clicked, this, &CheckAll::onClicked);
}

int CheckAll::state() const
{
    return m_button->property(StateProperty).toInt();
}

void CheckAll::setState(int state)
{
    m_button->setProperty(StateProperty, state);
    m_button->setIcon(QIcon(CommonFunction::themePixmap(iconName(state))));
}

void CheckAll::onClicked()
{
    const Qt::CheckState wanted = state() == Qt::Checked ? Qt::Unchecked : Qt::Checked;
    setState(wanted);
    emit clicked(wanted);
}
