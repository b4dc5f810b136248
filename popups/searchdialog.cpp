#include "popups/searchdialog.h"

#include "common/commonfunction.h"
#include "common/fontmanager.h"
#include "common/guard.h"
#include "common/qssloader.h"
#include "common/screenpixmap.h"
#include "common/translation.h"
#include "ui_searchdialog.h"

#include <QDebug>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QStyleOption>
#include <QVariant>

#include <algorithm>

namespace {

constexpr int DesignWidth = 800;
constexpr QRect CloseButton(768, 4, 24, 24);
constexpr int CloseFromEdge = DesignWidth - CloseButton.x() - CloseButton.width();
constexpr QSize LeastWindow(640, 480); // over a smaller one the dialog stands out
constexpr int AroundDialog = 8;
constexpr int LeastPictureHeight = 96; // below this nobody can read it

constexpr int TitlePixelSize = 20;
constexpr int TextPixelSize = 14;
constexpr int ButtonPixelSize = 16;
constexpr int Normal = 400;
constexpr int Semibold = 600;

struct LanguageImage
{
    const char *language;
    const char *suffix;
};

constexpr LanguageImage LanguageImages[] = {
    {"Arab", "AR"},       {"German", "DE"},   {"Spanish", "ES"},  {"French", "FR"},
    {"Italiano", "IT"},   {"Japanese", "JP"}, {"Korean", "KO"},   {"Netherland", "NL"},
    {"Portuguese", "PT"}, {"Russian", "RUS"}, {"Chinese", "TCH"}, {"Sweden", "SE"},
    {"Indonesia", "ID"},  {"Hindi", "IND"},   {"Thai", "THA"},
};

} // namespace

SearchDialog::SearchDialog(QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint)
    , ui(std::make_unique<Ui::searchDialog>())
{
    ui->setupUi(this);
    setAttribute(Qt::WA_TranslucentBackground);
    setProperty("mouseMove", true);

    m_close = new QPushButton(ui->backgroudframe);
    m_close->setObjectName(QStringLiteral("btnClose"));
    m_close->setCursor(Qt::PointingHandCursor);
    m_close->setFlat(true);
    m_close->setFocusPolicy(Qt::NoFocus);
    m_close->setAutoDefault(false);
    m_close->setGeometry(CloseButton);
    connect(m_close, &QPushButton::clicked, this, &SearchDialog::close);

    ui->btnGotIt->setProperty("type", QStringLiteral("WhiteFBlueBNoneC"));
    connect(ui->btnGotIt, &QPushButton::clicked, this, &SearchDialog::slotCloseClicked);
    loadStyleSheet();
    doChangeLanguage();
}

SearchDialog::~SearchDialog() = default;

QString SearchDialog::imageName(const QString &language)
{
    QString suffix = QStringLiteral("EN");
    for (const LanguageImage &image : LanguageImages) {
        if (!language.contains(QLatin1String(image.language)))
            continue;
        suffix = QLatin1String(image.suffix);
        break;
    }
    return QStringLiteral("image_SDCardUnsourcedFiles_Win-") + suffix;
}

void SearchDialog::loadThemeImage()
{
    guarded(Q_FUNC_INFO, [this] {
        const QCoreApplication *app = QCoreApplication::instance();
        const bool dark = app && app->property("ThemeType").toInt() == 1;
        const QString format = dark ? QStringLiteral(":Images/Dark/unsourcefiles/%1")
                                    : QStringLiteral(":Images/unsourcefiles/%1");
        const QString path = CommonFunction::getHighDpiPath(
            format.arg(imageName(FontManager::instance()->language())), QStringLiteral("png"));
        m_picture = CommonFunction::loadPixmap(path);
        if (m_picture.isNull())
            qWarning() << "SearchDialog: missing picture" << path;
        fitIntoSurroundings();
    });
}

void SearchDialog::doChangeLanguage()
{
    const FontManager *fonts = FontManager::instance();
    fonts->setWidgetFont(ui->labelTitle, TitlePixelSize, Semibold);
    for (QLabel *label : {ui->labelIntro, ui->labelStep1, ui->labelStep2, ui->labelStep3})
        fonts->setWidgetFont(label, TextPixelSize, Normal);
    for (QLabel *number : {ui->labelNumber1, ui->labelNumber2, ui->labelNumber3})
        fonts->setWidgetFont(number, TextPixelSize, Semibold);
    fonts->setWidgetFont(ui->btnGotIt, ButtonPixelSize, Semibold);

    ui->labelTitle->setText(translatedKey("how_to_find_in_reconstructed"));
    ui->labelIntro->setText(translatedKey("reconstructed_tip_intro"));
    ui->labelStep1->setText(translatedKey("click_reconstructed"));
    ui->labelStep2->setText(translatedKey("search_dialog_text2"));
    ui->labelStep3->setText(translatedKey("search_dialog_text3"));
    ui->btnGotIt->setText(translatedKey("got_it"));
    setWindowTitle(ui->labelTitle->text());
    setAccessibleName(ui->labelTitle->text());
    setAccessibleDescription(ui->labelIntro->text());
    m_close->setAccessibleName(tr("Close"));
    loadThemeImage();
}

void SearchDialog::updateTheme()
{
    loadStyleSheet();
    loadThemeImage();
}

void SearchDialog::fitInto(const QSize &available)
{
    const int width = std::min(DesignWidth, available.width());
    ui->labelImage->hide();
    ui->imageSpacer->changeSize(0, 0, QSizePolicy::Fixed, QSizePolicy::Fixed);
    ui->frameLayout->invalidate();
    ui->backgroudframe->ensurePolished();
    int height = ui->frameLayout->totalHeightForWidth(width);

    // The picture takes what the texts leave.
    const int gap = ui->stepsSpacer->sizeHint().height();
    const QMargins around = ui->frameLayout->contentsMargins()
        + ui->backgroudframe->contentsMargins(); // its border
    const QSize room(width - around.left() - around.right(), available.height() - height - gap);
    QSizeF size = QSizeF(m_picture.size()) / m_picture.devicePixelRatio();
    if (size.width() > room.width() || size.height() > room.height())
        size.scale(room, Qt::KeepAspectRatio);
    if (!m_picture.isNull() && room.height() > 0 && size.height() >= LeastPictureHeight) {
        QPixmap shown = m_picture;
        const QSize pixels = (size * m_picture.devicePixelRatio()).toSize();
        if (pixels != m_picture.size()) {
            shown = m_picture.scaled(pixels, Qt::KeepAspectRatio, Qt::SmoothTransformation);
            shown.setDevicePixelRatio(m_picture.devicePixelRatio());
        }
        ui->labelImage->setPixmap(screenPixmap(shown));
        ui->labelImage->show();
        ui->imageSpacer->changeSize(0, gap, QSizePolicy::Fixed, QSizePolicy::Fixed);
        ui->frameLayout->invalidate();
        height = ui->frameLayout->totalHeightForWidth(width);
    }
    setFixedSize(width, std::min(height, available.height()));
    layout()->activate();
    placeCloseButton();
}

void SearchDialog::fitIntoSurroundings()
{
    const QWidget *window = parentWidget() ? parentWidget()->window() : this;
    const QScreen *screen = window->screen();
    QSize available = screen ? screen->availableSize() : QSize(DesignWidth, DesignWidth);
    if (window != this)
        available = available
                        .expandedTo(window->size()) // which may reach over several screens
                        .boundedTo(window->size().expandedTo(LeastWindow)
                                   - 2 * QSize(AroundDialog, AroundDialog));
    fitInto(available);
}

void SearchDialog::placeCloseButton()
{
    QRect place = CloseButton;
    place.moveLeft(width() - CloseFromEdge - place.width());
    m_close->setGeometry(QStyle::visualRect(layoutDirection(), rect(), place));
}

void SearchDialog::slotCloseClicked()
{
    close();
}

void SearchDialog::loadStyleSheet()
{
    QSSLoader::applyStyleSheet(this, QStringLiteral("searchdialog.qss"));
    m_close->setIcon(
        QIcon(screenPixmap(CommonFunction::themePixmap(QStringLiteral("icon16_close")))));
}

void SearchDialog::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        placeCloseButton();
}

bool SearchDialog::focusNextPrevChild(bool next)
{
    showFocusRing(true);
    return QDialog::focusNextPrevChild(next);
}

void SearchDialog::showFocusRing(bool shown)
{
    ui->btnGotIt->setProperty("focusRing", shown);
    ui->btnGotIt->style()->unpolish(ui->btnGotIt);
    ui->btnGotIt->style()->polish(ui->btnGotIt);
}

void SearchDialog::mousePressEvent(QMouseEvent *event)
{
    m_held = event->button() == Qt::LeftButton && property("mouseMove").toBool();
    m_grip = event->globalPos() - pos();
}

void SearchDialog::mouseMoveEvent(QMouseEvent *event)
{
    if (m_held && event->buttons().testFlag(Qt::LeftButton))
        move(event->globalPos() - m_grip);
}

void SearchDialog::mouseReleaseEvent(QMouseEvent *)
{
    m_held = false;
}

void SearchDialog::paintEvent(QPaintEvent *)
{
    guarded(Q_FUNC_INFO, [this] {
        QPainter painter(this);
        QStyleOption option;
        option.initFrom(this);
        style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
    });
}

void SearchDialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    // Whoever came by mouse sees it when the Tab key is pressed.
    const QWidget *opener = parentWidget() ? parentWidget()->window() : this;
    showFocusRing(opener->testAttribute(Qt::WA_KeyboardFocusChange));
    ui->btnGotIt->setFocus(Qt::OtherFocusReason);
}
