#include "thumbnails/filetypeicons.h"

#include "common/commonfunction.h"
#include "platform/item/treeitemdata.h"
#include "platform/system/system.h"

#include <QCache>
#include <QHash>

namespace {

constexpr int FileKind = 2;
constexpr int MostIconKilobytes = 8 * 1024;
const char *const s_defaultFamily = "Default";

struct ExtensionFamily
{
    const char *family;
    const char *extensions; ///< upper case, each between blanks
};

/// Formats that have a picture of their own, whatever category they come with.
const ExtensionFamily s_ownFamilies[] = {
    {"Word", " DOC DOCX DOCM DOT DOTX DOTM RTF ODT OTT WPS WPT PAGES "},
    {"Excel", " XLS XLSX XLSM XLSB XLT XLTX XLTM CSV ODS OTS ET NUMBERS "},
    {"PowerPoint", " PPT PPTX PPTM PPS PPSX POT POTX ODP OTP DPS KEY "},
    {"PDF", " PDF "},
    {"Text", " TXT LOG MD INI CFG CONF NFO "},
    {"Raw",
     " 3FR ARI ARW BAY CAP CR2 CR3 CRW DCR DCS DNG ERF FFF GPR IIQ K25 KDC MDC MEF MOS MRW NEF NRW "
     "ORF PEF PTX PXN R3D RAF RAW RW2 RWL SR2 SRF SRW X3F "},
};

/// Formats told by their extension where the host names no category.
const ExtensionFamily s_commonFormats[] = {
    {"Audio", " AAC AC3 AIF AIFF AMR APE FLAC M4A MID MIDI MP3 OGG OPUS WAV WMA "},
    {"CameraVideo", " 360 INSV LRV M2T M2TS MOD MTS TOD MXF BRAW CRM "},
    {"Video", " 3G2 3GP AVI F4V FLV M4V MKV MOV MP4 MPEG MPG MTV RM RMVB TS VOB WEBM WMV "},
    {"Photo",
     " AVIF BMP GIF HEIC HEIF ICO INSP JFIF JPE JPEG JPG JXL PCX PNG PSD SVG TGA TIF TIFF WEBP "},
    {"Email", " DBX EML EMLX MBOX MSG OST PST "},
    {"Database", " ACCDB DB DB3 DBF MDB MDF SQL SQLITE SQLITE3 "},
    {"Web", " ASP ASPX CSS HTM HTML JS JSP MHT MHTML PHP XHTML XML "},
    {"Archive", " 7Z BZ2 CAB GZ ISO LZH RAR TAR TGZ XZ Z ZIP ZST "},
};

/// Families by `fileCategory`, which begins at 2.
const char *const s_categoryFamilies[] = {"Audio",    "Video", "CameraVideo", "Document", "Email",
                                          "Database", "Photo", "Web",         "Archive"};
constexpr int FirstCategory = 2;
constexpr int LastCategory = 10;

template <size_t Size>
const char *familyIn(const ExtensionFamily (&families)[Size], const QString &extension)
{
    if (extension.isEmpty() || extension.contains(QLatin1Char(' ')))
        return nullptr;
    const QString word = QLatin1Char(' ') + extension + QLatin1Char(' ');
    for (const ExtensionFamily &entry : families) {
        if (QLatin1String(entry.extensions).contains(word))
            return entry.family;
    }
    return nullptr;
}

const char *familyOf(const TreeItemData &item, const QString &upperExtension)
{
    if (item.kind != FileKind)
        return "Folder";
    if (const char *own = familyIn(s_ownFamilies, upperExtension))
        return own;
    if (item.fileCategory >= FirstCategory && item.fileCategory <= LastCategory)
        return s_categoryFamilies[item.fileCategory - FirstCategory];
    const char *common = familyIn(s_commonFormats, upperExtension);
    return common ? common : s_defaultFamily;
}

QString nameOf(const char *family, FileTypeIcons::Size size)
{
    return QStringLiteral("icon%1_File_%2").arg(int(size)).arg(QLatin1String(family));
}

/// Pictures are loaded once; a window may move to a screen of another scale.
QPixmap picture(const char *family, FileTypeIcons::Size size)
{
    const QString folder = size == FileTypeIcons::Size::List ? QStringLiteral(":/Images/icon32/")
                                                             : QStringLiteral(":/Images/");
    const QString base = folder + nameOf(family, size);
    static QHash<QString, QPixmap> pictures;
    const QString key = CommonFunction::getHighDpiPath(base, QStringLiteral("png"));
    auto found = pictures.find(key);
    if (found == pictures.end())
        found = pictures.insert(key, CommonFunction::highDpiPixmap(base));
    return *found;
}

/// The desktop's own icon; asked for once an extension and size. A damaged card may hold more
/// extensions than anyone would look at twice: the ones not shown for longest are given up.
QPixmap desktopIcon(const QString &upperExtension, FileTypeIcons::Size size)
{
    const qreal scale = CommonFunction::getScaleFactor();
    const int side = qRound(int(size) * scale);
    static QCache<QPair<QString, int>, QPixmap> icons(MostIconKilobytes);
    const QPair<QString, int> key(upperExtension, side);
    if (const QPixmap *const known = icons.object(key))
        return *known;
    QPixmap icon = System::fileTypeIcon(upperExtension, side);
    icon.setDevicePixelRatio(scale);
    const qint64 bytes = qint64(icon.width()) * icon.height() * 4 + upperExtension.size() * 2;
    icons.insert(key, new QPixmap(icon), 1 + int(bytes / 1024));
    return icon;
}

} // namespace

namespace FileTypeIcons {

QString imageName(const TreeItemData &item, Size size)
{
    return nameOf(familyOf(item, item.extension.toUpper()), size);
}

QPixmap icon(const TreeItemData &item, Size size)
{
    const QString extension = item.extension.toUpper();
    const char *const family = familyOf(item, extension);
    if (family == s_defaultFamily && !extension.isEmpty()) {
        const QPixmap ofDesktop = desktopIcon(extension, size);
        if (!ofDesktop.isNull())
            return ofDesktop;
    }
    const QPixmap ofFamily = picture(family, size);
    return ofFamily.isNull() ? generalIcon(size) : ofFamily;
}

QPixmap generalIcon(Size size)
{
    return picture(s_defaultFamily, size);
}

} // namespace FileTypeIcons
