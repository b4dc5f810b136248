#include "popups/rightmenuframe.h"

#include "common/commonfunction.h"
#include "common/fontmanager.h"
#include "common/guard.h"
#include "common/qssloader.h"
#include "common/screenpixmap.h"
#include "ui_rightmenuframe.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QMouseEvent>
#include <QPointer>
#include <QStyle>
#include <QVariant>

#include <algorithm>

namespace {

constexpr int FontPixelSize = 14;
constexpr int FontWeight = 400;
constexpr int AroundText = 52; // icon and insets
constexpr int LeastWidth = 140;
constexpr int IconX = 16;
constexpr int TextX = 40;

const char *stateText(RightMenuFrame::FrameState state)
{
    switch (state) {
    case RightMenuFrame::Hover:
        return "hover";
    case RightMenuFrame::Selected:
        return "selected";
    default:
        return "normal";
    }
}

/// Path of an entry's icon without scale and extension; empty for an entry that has none.
QString iconBase(const QString &entry, bool highlighted)
{
    const QCoreApplication *app = QCoreApplication::instance();
    const bool dark = app && app->property("ThemeType").toInt() == 1;
    QString base;
    if (entry == QLatin1String("Preview"))
        base = dark ? QStringLiteral(":/Images/Dark/icon20_preview2_")
                    : QStringLiteral(":/Images/icon20_previewMenu_");
    else if (entry == QLatin1String("Recover"))
        base = dark ? QStringLiteral(":/Images/Dark/icon20_recoverMenu_")
                    : QStringLiteral(":/Images/icon20_recoverMenu_");
    else
        return {};
    return base + (highlighted ? QLatin1String("hover") : QLatin1String("normal"));
}

void repolish(QWidget *widget)
{
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
    widget->update();
}

} // namespace

RightMenuFrame::RightMenuFrame(QWidget *parent)
    : QFrame(parent)
    , ui(std::make_unique<Ui::RightMenuFrame>())
{
    ui->setupUi(this);
    setMouseTracking(true);
    // the entry is one thing to the mouse
    for (QLabel *label : {ui->labelText, ui->lblIcon})
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
    loadStyleSheet();
    updateState(Normal, true);
}

RightMenuFrame::~RightMenuFrame() = default;

int RightMenuFrame::setDisplayText(const QString &text)
{
    guarded(Q_FUNC_INFO, [&] {
        const QFont font = FontManager::instance()->getFont(FontPixelSize, FontWeight);
        ui->labelText->setFont(font);
        ui->labelText->setText(text);
        setAccessibleName(text);
        const int advance = QFontMetrics(font).horizontalAdvance(text);
        setFixedWidth(std::max(LeastWidth, advance + AroundText));
        updateState(Normal, true);
    });
    return width();
}

QLabel *RightMenuFrame::textLabel() const
{
    return ui->labelText;
}

void RightMenuFrame::updateState(RightMenuFrame::FrameState state, bool force)
{
    guarded(Q_FUNC_INFO, [&] {
        if (!force && state == m_state)
            return;
        m_state = state;
        setProperty("state", QString::fromLatin1(stateText(state)));
        repolish(this);
        repolish(ui->labelText);
        repolish(ui->lblIcon);
        updateIconPixmap();
    });
}

void RightMenuFrame::updateIconPixmap()
{
    guarded(Q_FUNC_INFO, [this] {
        const QString base = iconBase(objectName(), isHighlighted());
        if (base.isEmpty())
            return;
        const QPixmap icon = CommonFunction::highDpiPixmap(base);
        if (icon.isNull())
            return;
        ui->lblIcon->clear();
        ui->lblIcon->setPixmap(screenPixmap(icon));
    });
}

void RightMenuFrame::updateTheme()
{
    loadStyleSheet();
    updateState(m_state, true);
}

void RightMenuFrame::choose()
{
    const QPointer<RightMenuFrame> self(this);
    updateState(Selected, false);
    emit buttonClicked();
    if (self)
        updateState(Normal, false);
}

void RightMenuFrame::enterEvent(QEvent *event)
{
    updateState(Hover, false);
    QFrame::enterEvent(event);
}

void RightMenuFrame::leaveEvent(QEvent *event)
{
    updateState(Normal, false);
    QFrame::leaveEvent(event);
}

void RightMenuFrame::mouseReleaseEvent(QMouseEvent *event)
{
    updateState(Selected, false);
    QFrame::mouseReleaseEvent(event);
    event->accept(); // an ignored one would go on to a parent that choosing may have deleted
    choose();
}

void RightMenuFrame::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    placeLabels();
}

void RightMenuFrame::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        placeLabels();
}

void RightMenuFrame::loadStyleSheet()
{
    QSSLoader::applyStyleSheet(this, QStringLiteral("rightmenuframe.qss"));
}

void RightMenuFrame::placeLabels()
{
    QRect text = ui->labelText->geometry();
    QRect icon = ui->lblIcon->geometry();
    text.setX(TextX);
    text.setWidth(width() - TextX);
    icon.moveLeft(IconX);
    // by the layout, not by the script of the text
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    ui->labelText->setAlignment((mirrored ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute
                                | Qt::AlignVCenter);
    ui->labelText->setGeometry(QStyle::visualRect(layoutDirection(), rect(), text));
    ui->lblIcon->setGeometry(QStyle::visualRect(layoutDirection(), rect(), icon));
}
